#include "wheels/ShuffleFile.h"

#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/FullSizeFile.h"
#include "state/modUTILS.h"
#include "wheels/ChosenRecord.h"

#include <string>

namespace ballhaven {

namespace {

constexpr FileSizes fileSizes{
    .recordLength = chosenRecordLength, .recordCount = chosenFileRecords, .olderRecordCount = olderChosenFileRecords};

}  // namespace

void LoadShuffleFile() {
    const RecordFile file = OpenAtFullSize(appState.programDirectory + chosenFileName, fileSizes);
    appState.ShuffleTable = ChosenPicks();
    std::string record = file.Read(ChosenRecordOf(appState.currentGame, mainPicks));
    DecodeChosenPicks(record, appState.ShuffleTable.Slots(mainPicks));
    if (HasBonus(appState.gameType)) {
        record = file.Read(ChosenRecordOf(appState.currentGame, bonusPicks));
        DecodeChosenPicks(record, appState.ShuffleTable.Slots(bonusPicks));
    }
    // QUIRK SHUFFLE-OPTION-BONUS-1: the option is looked for in the record read last, which in a game with a bonus is
    // the bonus list's, where no option stands: such a game always comes back without one, and its window opens on
    // Shuffle. Looking in the main record would bring back options that were stored long ago and never shown.
    appState.ShuffleTable(mainPicks, 0) = MethodOfCode(FieldText(record, chosenField::method));
}

void SaveShuffleFile() {
    RecordFile file(appState.programDirectory + chosenFileName, fileSizes.recordLength, fileSizes.recordCount);
    std::string mainRecord = EncodeChosenPicks(appState.ShuffleTable.Slots(mainPicks));
    SetField(mainRecord, chosenField::method, CodeOfMethod(appState.ShuffleTable(mainPicks, 0)));
    file.Write(ChosenRecordOf(appState.currentGame, mainPicks), mainRecord);
    if (HasBonus(appState.gameType)) {
        file.Write(ChosenRecordOf(appState.currentGame, bonusPicks),
                   EncodeChosenPicks(appState.ShuffleTable.Slots(bonusPicks)));
    }
    file.Close();
}

}  // namespace ballhaven
