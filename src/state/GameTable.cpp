#include "state/GameTable.h"

#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "state/GameRules.h"
#include "state/MendedFolder.h"
#include "state/RecordFile.h"

namespace ballhaven {

namespace {

RecordFile OpenedGameTable(const std::string& directory) {
    return {directory + gameTableName, gameRecordLength, gameTableRecords};
}

int RecordNumberOf(int slot) {
    return slot + 1;
}

void WriteRecord(const std::string& directory, int record, const std::string& text) {
    RecordFile file = OpenedGameTable(directory);
    file.Write(record, text);
    file.Close();
}

}  // namespace

void OpenGameTable() {
    RecordFile file = OpenedGameTable(appState.programDirectory);
    // QUIRK GAME-TABLE-ONE-RECORD-1: a table of one record, 64 bytes, counts as empty and is built anew, settings
    // included. Reading the record and going on would make every slot a blank game without a name.
    if (file.Length() == 0 || file.Length() == gameRecordLength) {
        file.Write(systemRecordNumber, NewSystemRecord());
        for (int slot = 1; slot <= gameSlots; ++slot) {
            file.Write(RecordNumberOf(slot), BuildDefaultGameRecord(slot, 0));
        }
    }
    appState.systemRecord = file.Read(systemRecordNumber);
    file.Close();
}

void SaveSystemRecord() {
    WriteRecord(appState.programDirectory, systemRecordNumber, appState.systemRecord);
}

void LoadGameRecord(int slot) {
    appState.gameRecord = InPresentForm(ReadGameRecord(slot));

    // QUIRK LOAD-STORES-UNDER-CURRENT-1: the record is stored under the current game, not under the slot that was
    // asked for. Adding a game while another one is current gives up the current game's slot, which the list shows as
    // "un-defined" from then on, while its draws and plays stay. A guard, or storing under `slot`, would leave a table
    // in which that slot is still configured: that is what a mended folder has.
    const int storedUnder = FolderIsMended() ? slot : appState.currentGame;
    SaveGameRecord(storedUnder);

    appState.historySortOrder = FieldValue(appState.systemRecord, systemField::sortOrder);
    appState.nextLogDate = 0;
    appState.hotSortChoice = 2;
    appState.hotTableChoice = 1;
    appState.currentSlip = 1;
    appState.currentPlay = 1;
    if (!HasConversionMark(appState.gameRecord)) {
        appState.gameRecord = WithConversionMark(appState.gameRecord);
        SaveGameRecord(storedUnder);
    }
    TakeRules(RulesOf(appState.gameRecord));
    appState.historySetSize = HistorySetOf(appState.gameRecord);
}

void SaveGameRecord(int slot) {
    WriteRecord(appState.programDirectory, RecordNumberOf(slot), appState.gameRecord);
}

std::string ReadGameRecord(int slot) {
    return OpenedGameTable(appState.programDirectory).Read(RecordNumberOf(slot));
}

std::array<std::string, gameSlots> ReadGameRecords() {
    const RecordFile file = OpenedGameTable(appState.programDirectory);
    std::array<std::string, gameSlots> records;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        records[static_cast<std::size_t>(slot - 1)] = file.Read(RecordNumberOf(slot));
    }
    return records;
}

}  // namespace ballhaven
