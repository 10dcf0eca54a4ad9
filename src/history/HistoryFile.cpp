#include "history/HistoryFile.h"

#include "state/AppState.h"
#include "state/FullSizeFile.h"
#include "state/modUTILS.h"

#include <span>
#include <string>
#include <string_view>

namespace ballhaven {

namespace {

constexpr int headerRecord = 1;
constexpr int firstRowRecord = 2;

// The older form comes from a version that kept 100 draws. The header is a stamp of the format that nothing reads.
constexpr FileSizes fileSizes{
    .recordLength = 64, .recordCount = 1 + historyRows, .olderRecordCount = 1 + 100, .header = "10-26-2002"};

// A mark in the header, which only a deletion touches.
constexpr int markColumn = 12;
constexpr std::string_view blankMark = "  ";

// A row: the date in columns 1-4, pick 1 in columns 6-7, pick 2 in columns 9-10, and so on.
constexpr int dateColumn = 1;
constexpr std::size_t dateWidth = 4;
constexpr int pickWidth = 2;

constexpr int PickFieldColumn(int pick) {
    return 3 * pick + 3;
}

std::string PathOf(const std::string& directory, int slot) {
    return directory + "GAME" + modUTILS::ZeroPadded(slot, 2) + ".CDB";
}

/// Puts a record's date and picks into the cells of a row, as many as there are. Without a date they stay as they are,
/// and it returns false.
bool DecodeDraw(std::string_view record, std::span<std::int16_t> cells) {
    const std::int16_t date = modUTILS::ValueOf16(modUTILS::Columns(record, dateColumn, dateWidth));
    if (date <= 0) {
        return false;
    }
    cells[0] = date;
    for (std::size_t pick = 1; pick < cells.size(); ++pick) {
        const int column = PickFieldColumn(static_cast<int>(pick));
        cells[pick] = modUTILS::PickOfField(modUTILS::Columns(record, column, pickWidth));
    }
    return true;
}

/// The record of the draw in a row of a table, with the first `picks` of its picks.
std::string EncodeDraw(const Table& draws, int row, int picks) {
    std::string record(static_cast<std::size_t>(fileSizes.recordLength), ' ');
    const std::int16_t date = draws.PickAt(0, row);
    if (date <= 0) {
        return record;
    }
    // QUIRK HISTORY-DATE-FOUR-DIGITS-1: the field has four columns, so a date of five digits, from 19 May 2011 on,
    // loses its last digit and comes back as a date some decades earlier. The file's columns are settled; a fifth digit
    // in the blank column 5 would make files that copies of the program already in use read wrongly.
    modUTILS::SetColumns(record, dateColumn, std::to_string(date).substr(0, dateWidth));
    for (int pick = 1; pick <= picks; ++pick) {
        const std::int16_t value = draws.PickAt(pick, row);
        if (value > -1) {
            modUTILS::SetColumns(record, PickFieldColumn(pick), modUTILS::PickField(value));
        }
    }
    return record;
}

}  // namespace

void LoadHistory() {
    const RecordFile file = OpenAtFullSize(PathOf(appState.programDirectory, appState.currentGame), fileSizes);
    appState.HistoryTable = Table(1 + appState.totalPicks, historyRows);
    appState.historyLast = -1;
    for (int row = 0; row < historyRows; ++row) {
        if (DecodeDraw(file.Read(firstRowRecord + row), appState.HistoryTable.Row(row))) {
            ++appState.historyLast;
        }
    }
}

void SaveHistory(std::int16_t clearMark) {
    RecordFile file(PathOf(appState.programDirectory, appState.currentGame), fileSizes.recordLength,
                    fileSizes.recordCount);
    if (clearMark == 1) {
        std::string header = file.Read(headerRecord);
        modUTILS::SetColumns(header, markColumn, blankMark);
        file.Write(headerRecord, header);
    }
    for (int row = 0; row < historyRows; ++row) {
        file.Write(firstRowRecord + row, EncodeDraw(appState.HistoryTable, row, appState.totalPicks));
    }
    file.Close();
    appState.historyDirty = false;
}

}  // namespace ballhaven
