#include "plays/PlayFile.h"

#include "plays/PickSlots.h"
#include "plays/PlayRecord.h"
#include "plays/PlayScreen.h"
#include "state/AppState.h"
#include "state/FullSizeFile.h"

#include <string>

namespace ballhaven {

namespace {

constexpr FileSizes fileSizes{
    .recordLength = playRecordLength, .recordCount = playCount, .olderRecordCount = olderPlayFileRecords};

}  // namespace

void LoadPlayFile() {
    const RecordFile file = OpenAtFullSize(appState.programDirectory + PlayFileName(appState.currentGame), fileSizes);
    appState.PlayTable = PlayPicks();
    std::string padded;
    for (int play = 1; play <= playCount; ++play) {
        DecodePlay(file.View(play, padded), appState.PlayTable, play);
    }
}

void SavePlayFile() {
    RecordFile file(appState.programDirectory + PlayFileName(appState.currentGame), fileSizes.recordLength,
                    fileSizes.recordCount);
    for (int play = 1; play <= playCount; ++play) {
        file.Write(play, EncodePlay(appState.PlayTable, play));
    }
    file.Close();
}

void ClearAllPlays() {
    for (int play = 1; play <= playCount; ++play) {
        EmptyPlay(appState.PlayTable, play);
    }
    appState.playsDirty = true;
    RefreshPlayGrids();
}

}  // namespace ballhaven
