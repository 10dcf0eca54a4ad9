#include "wheels/ShuffleFile.h"

#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/FullSizeFile.h"
#include "state/modUTILS.h"

#include <span>
#include <string>

namespace ballhaven {

namespace {

// The older form comes from a version without bonus lists.
constexpr FileSizes fileSizes{.recordLength = 320, .recordCount = 2 * gameSlots, .olderRecordCount = gameSlots};

// A list's record: pick i in the two columns from 3 * i - 2 on, with a blank behind it, and the option.
constexpr int pickWidth = 2;
constexpr int pickStride = 3;
constexpr int optionColumn = 300;

std::string PathOf(const std::string& directory) {
    return directory + "SHUFFLE.CDB";
}

/// The record of a slot's list.
int RecordOf(int slot, int pickColumn) {
    return pickColumn == mainPicks ? slot : gameSlots + slot;
}

/// Puts the picks of a list's record into the slots of the list, closed up from the first on.
void DecodeList(const std::string& record, std::span<std::int16_t> slots) {
    auto slot = slots.begin();
    for (int field = 0; field < chosenPicks; ++field) {
        const std::int16_t pick = modUTILS::PickOfField(modUTILS::Columns(record, pickStride * field + 1, pickWidth));
        if (pick > -1) {
            *slot++ = pick;
        }
    }
}

/// The record of a list's picks, closed up, without an option.
std::string EncodeList(std::span<const std::int16_t> slots) {
    std::string record(static_cast<std::size_t>(fileSizes.recordLength), ' ');
    int column = 1;
    for (const std::int16_t pick : slots) {
        if (pick != -1) {
            // QUIRK PICK-TWO-DIGITS-1: of a cell number above 99 its first two digits are stored, as in the plays.
            modUTILS::SetColumns(record, column, modUTILS::FixedWidth(std::to_string(pick), pickWidth));
            column += pickStride;
        }
    }
    return record;
}

}  // namespace

void LoadShuffleFile() {
    const RecordFile file = OpenAtFullSize(PathOf(appState.programDirectory), fileSizes);
    appState.ShuffleTable = ChosenPicks();
    std::string record = file.Read(RecordOf(appState.currentGame, mainPicks));
    DecodeList(record, appState.ShuffleTable.Slots(mainPicks));
    if (HasBonus(appState.gameType)) {
        record = file.Read(RecordOf(appState.currentGame, bonusPicks));
        DecodeList(record, appState.ShuffleTable.Slots(bonusPicks));
    }
    // QUIRK SHUFFLE-OPTION-BONUS-1: the option is looked for in the record read last, which in a game with a bonus is
    // the bonus list's, where no option stands: such a game always comes back without one, and its window opens on
    // Shuffle. Looking in the main record would bring back options that were stored long ago and never shown.
    appState.ShuffleTable(mainPicks, 0) = MethodOfCode(modUTILS::Columns(record, optionColumn, methodCodeWidth));
}

void SaveShuffleFile() {
    RecordFile file(PathOf(appState.programDirectory), fileSizes.recordLength, fileSizes.recordCount);
    std::string mainRecord = EncodeList(appState.ShuffleTable.Slots(mainPicks));
    modUTILS::SetColumns(mainRecord, optionColumn, CodeOfMethod(appState.ShuffleTable(mainPicks, 0)));
    file.Write(RecordOf(appState.currentGame, mainPicks), mainRecord);
    if (HasBonus(appState.gameType)) {
        file.Write(RecordOf(appState.currentGame, bonusPicks), EncodeList(appState.ShuffleTable.Slots(bonusPicks)));
    }
    file.Close();
}

}  // namespace ballhaven
