#include "wheels/ShuffleFile.h"

#include "platform/Application.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/RecordFile.h"
#include "state/modUTILS.h"

#include <string>
#include <string_view>

namespace ballhaven {

namespace {

constexpr int recordLength = 320;
constexpr int recordCount = 2 * gameSlots;
constexpr std::int64_t longestOlderFile = gameSlots * recordLength;  // of a version without bonus lists

// A list's record: pick i in the two columns from 3 * i - 2 on, with a blank behind it, and the option.
constexpr int pickWidth = 2;
constexpr int pickStride = 3;
constexpr int optionColumn = 300;

RecordFile OpenedShuffleFile() {
    return {appState.programDirectory + "SHUFFLE.CDB", recordLength, recordCount};
}

int MainRecord() {
    return appState.currentGame;
}

int BonusRecord() {
    return gameSlots + appState.currentGame;
}

/// Brings a file that is empty, or that has no bonus lists, to its full size. Returns whether there was anything to do.
bool Complete(RecordFile& file) {
    if (file.Length() > longestOlderFile) {
        return false;
    }
    for (int record = file.Length() == 0 ? 1 : gameSlots + 1; record <= recordCount; ++record) {
        file.Write(record, "");
    }
    return true;
}

Table EmptyShuffleTable() {
    Table table(2, chosenPicks + 1, -1);
    table(mainPicks, 0) = byHand;
    table(bonusPicks, 0) = 0;
    return table;
}

void DecodeList(const std::string& record, int pickColumn) {
    int slot = 0;
    for (int field = 0; field < chosenPicks; ++field) {
        const std::int16_t pick = modUTILS::PickOfField(modUTILS::Columns(record, pickStride * field + 1, pickWidth));
        if (pick > -1) {
            ++slot;
            appState.ShuffleTable(pickColumn, slot) = pick;
        }
    }
}

std::string EncodeList(int pickColumn) {
    std::string record(recordLength, ' ');
    int column = 1;
    for (int slot = 1; slot <= chosenPicks; ++slot) {
        const std::int16_t pick = appState.ShuffleTable.PickAt(pickColumn, slot);
        if (pick != -1) {
            modUTILS::SetColumns(record, column, modUTILS::FixedWidth(std::to_string(pick), pickWidth));
            column += pickStride;
        }
    }
    return record;
}

}  // namespace

void LoadShuffleFile() {
    RecordFile file = OpenedShuffleFile();
    while (Complete(file)) {
        file.Close();
        platform::ProcessPendingEvents();
        file = OpenedShuffleFile();
    }

    appState.ShuffleTable = EmptyShuffleTable();
    std::string record = file.Read(MainRecord());
    DecodeList(record, mainPicks);
    if (HasBonus(appState.gameType)) {
        record = file.Read(BonusRecord());
        DecodeList(record, bonusPicks);
    }
    // QUIRK SHUFFLE-OPTION-BONUS-1: the option is looked for in the record read last, which in a game with a bonus is
    // the bonus list's, where no option stands: such a game always comes back without one, and its window opens on
    // Shuffle. Looking in the main record would bring back options that were stored long ago and never shown.
    appState.ShuffleTable(mainPicks, 0) = MethodOfCode(modUTILS::Columns(record, optionColumn, methodCodeWidth));
    file.Close();
}

void SaveShuffleFile() {
    RecordFile file = OpenedShuffleFile();
    std::string mainRecord = EncodeList(mainPicks);
    modUTILS::SetColumns(mainRecord, optionColumn, CodeOfMethod(appState.ShuffleTable(mainPicks, 0)));
    file.Write(MainRecord(), mainRecord);
    if (HasBonus(appState.gameType)) {
        file.Write(BonusRecord(), EncodeList(bonusPicks));
    }
    file.Close();
}

}  // namespace ballhaven
