#include "plays/PlayFile.h"

#include "platform/Application.h"
#include "plays/BoardRedraw.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/RecordFile.h"
#include "state/modUTILS.h"

#include <string_view>

namespace ballhaven {

namespace {

constexpr int recordLength = 64;
constexpr std::int64_t longestOlderFile = 1000 * recordLength;  // of a version that kept 1000 plays
constexpr int firstPlayAdded = 1001;

// A play's record: its method in columns 1-2, then the main picks from column 6 on and the bonus picks from column 36
// on, each in two columns behind a blank.
constexpr int methodColumn = 1;
constexpr std::size_t pickWidth = 2;

constexpr int PickFieldColumn(int pickColumn, int slot) {
    return 3 * (pickColumn * picksPerPlay + slot) + 3;
}

RecordFile OpenedPlayFile() {
    return {appState.programDirectory + "PLAYS" + modUTILS::ZeroPadded(appState.currentGame, 2) + ".CDB", recordLength,
            playCount};
}

void WriteEmptyPlays(RecordFile& file, int first) {
    for (int play = first; play <= playCount; ++play) {
        file.Write(play, "");
    }
}

/// Brings a file that is empty, or that has the older size, to its full size. Returns whether there was anything to do.
bool Complete(RecordFile& file) {
    if (file.Length() > longestOlderFile) {
        return false;
    }
    WriteEmptyPlays(file, file.Length() == 0 ? 1 : firstPlayAdded);
    return true;
}

void DecodePlay(std::string_view record, int play) {
    appState.PlayTable(mainPicks, play, 0) = MethodOfCode(record.substr(methodColumn - 1, methodCodeWidth));
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const auto start = static_cast<std::size_t>(PickFieldColumn(pickColumn, slot) - 1);
            appState.PlayTable(pickColumn, play, slot) = modUTILS::PickOfField(record.substr(start, pickWidth));
        }
    }
}

std::string EncodePlay(int play) {
    std::string record(recordLength, ' ');
    modUTILS::SetColumns(record, methodColumn, CodeOfMethod(appState.PlayTable(mainPicks, play, 0)));
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const std::int16_t pick = appState.PlayTable(pickColumn, play, slot);
            if (pick >= 0) {
                modUTILS::SetColumns(record, PickFieldColumn(pickColumn, slot), modUTILS::PickField(pick));
            }
        }
    }
    return record;
}

}  // namespace

void LoadPlayFile() {
    RecordFile file = OpenedPlayFile();
    while (Complete(file)) {
        file.Close();
        platform::ProcessPendingEvents();
        file = OpenedPlayFile();
    }

    appState.PlayTable = PlayPicks();
    for (int play = 1; play <= playCount; ++play) {
        DecodePlay(file.Read(play), play);
    }
    file.Close();
}

void SavePlayFile() {
    RecordFile file = OpenedPlayFile();
    for (int play = 1; play <= playCount; ++play) {
        file.Write(play, EncodePlay(play));
    }
    file.Close();
}

void ClearAllPlays() {
    for (int play = 1; play <= playCount; ++play) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            appState.PlayTable(mainPicks, play, slot) = -1;
            appState.PlayTable(bonusPicks, play, slot) = -1;
        }
        appState.PlayTable(mainPicks, play, 0) = byHand;
    }
    appState.playsDirty = true;
    RefreshPlayGrids();
}

}  // namespace ballhaven
