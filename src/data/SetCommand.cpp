#include "data/SetCommand.h"

#include "data/folder/FolderFiles.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/TableOnFile.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"

namespace ballhaven::data {

namespace {

void SetHistorySet(std::string& table, const GameOnFile& game, int size) {
    std::string record = game.record;
    SetFieldValue(record, gameField::historySet, size);  // its last three digits: 1000 is "000"
    PutTableRecord(table, game.slot + 1, record);
}

void SetShownSlot(std::string& table, int slot) {
    std::string record = TableRecord(table, systemRecordNumber);
    SetFieldValue(record, systemField::shownSlot, slot);
    PutTableRecord(table, systemRecordNumber, record);
}

}  // namespace

std::string Set(const WorkFolder& folder, const SetOptions& options, const Console& console) {
    const std::vector<GameOnFile> games = ReadGames(folder.Path());
    std::string table = WholeTable(ReadFolderFile(folder.Path(), GameTableFile()).value_or(""));
    if (options.historySet) {
        SetHistorySet(table, FindGame(games, options.game), *options.historySet);
    }
    if (options.shownSlot) {
        SetShownSlot(table, *options.shownSlot);
    }
    const std::string copy = folder.Change({{GameTableFile().name, table}}, "set");
    if (options.historySet) {
        console.out << FindGame(games, options.game).Title() << " shows the last " << *options.historySet
                    << " draws from now on.\n";
    }
    if (options.shownSlot) {
        console.out << "Ballhaven starts with slot " << *options.shownSlot << ".\n";
    }
    std::string isKept = "What was there is kept in " + copy + ".";
    console.out << isKept << '\n';
    return isKept;
}

}  // namespace ballhaven::data
