#include "data/folder/TableOnFile.h"

#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "state/MendedFolder.h"

namespace ballhaven::data {

namespace {

constexpr std::size_t recordSize = gameRecordLength;

std::size_t PlaceOf(int record) {
    return static_cast<std::size_t>(record - 1) * recordSize;
}

}  // namespace

std::string WholeTable(std::string_view content) {
    if (content.size() == recordSize) {
        content = {};
    }
    std::string table(content);
    if (const std::size_t cut = table.size() % recordSize; cut != 0) {
        table.append(recordSize - cut, ' ');
    }
    if (table.empty()) {
        table = NewSystemRecord();
    }
    for (int slot = static_cast<int>(table.size() / recordSize); slot <= gameSlots; ++slot) {
        table += BuildDefaultGameRecord(slot, 0);
    }
    return table;
}

bool IsTableOfMendedFolder(const std::optional<std::string>& content) {
    return IsMended(TableRecord(WholeTable(content.value_or("")), systemRecordNumber));
}

std::string TableRecord(const std::string& table, int record) {
    return table.substr(PlaceOf(record), recordSize);
}

void PutTableRecord(std::string& table, int record, std::string_view text) {
    table.replace(PlaceOf(record), recordSize, modUTILS::FixedWidth(text, gameRecordLength));
}

}  // namespace ballhaven::data
