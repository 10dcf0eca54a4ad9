#include "history/HistoryFile.h"

#include "platform/Application.h"
#include "state/AppState.h"
#include "state/RecordFile.h"
#include "state/modUTILS.h"

#include <string>
#include <string_view>

namespace ballhaven {

namespace {

constexpr int recordLength = 64;
constexpr int headerRecord = 1;
constexpr int firstRowRecord = 2;
constexpr int recordCount = 1 + historyRows;

// A file of at most this many records comes from a version that kept 100 draws.
constexpr int olderRecordCount = 1 + 100;

// The header: a stamp of the format that nothing reads, and a mark that only a deletion touches.
constexpr std::string_view formatStamp = "10-26-2002";
constexpr int markColumn = 12;
constexpr std::string_view blankMark = "  ";

// A row: the date in columns 1-4, pick 1 in columns 6-7, pick 2 in columns 9-10, and so on.
constexpr int dateColumn = 1;
constexpr std::size_t dateWidth = 4;
constexpr int pickWidth = 2;

constexpr int PickFieldColumn(int pick) {
    return 3 * pick + 3;
}

RecordFile OpenedHistoryFile() {
    return {appState.programDirectory + "GAME" + modUTILS::ZeroPadded(appState.currentGame, 2) + ".CDB", recordLength,
            recordCount};
}

void WriteBlankRecords(RecordFile& file, int first) {
    for (int record = first; record <= recordCount; ++record) {
        file.Write(record, "");
    }
}

/// Brings a file that is empty, or that has the older size, to its full size. Returns whether there was anything to do.
bool Complete(RecordFile& file) {
    if (file.Length() > olderRecordCount * recordLength) {
        return false;
    }
    const int firstMissing = file.Length() == 0 ? firstRowRecord : olderRecordCount + 1;
    file.Write(headerRecord, formatStamp);
    WriteBlankRecords(file, firstMissing);
    return true;
}

void DecodeRow(const std::string& record, int row) {
    const std::int16_t date = modUTILS::ValueOf16(modUTILS::Columns(record, dateColumn, dateWidth));
    if (date <= 0) {
        return;
    }
    ++appState.historyLast;
    appState.HistoryTable(0, row) = date;
    for (int pick = 1; pick <= appState.totalPicks; ++pick) {
        appState.HistoryTable(pick, row) =
            modUTILS::PickOfField(modUTILS::Columns(record, PickFieldColumn(pick), pickWidth));
    }
}

std::string EncodeRow(int row) {
    std::string record(recordLength, ' ');
    const std::int16_t date = appState.HistoryTable.PickAt(0, row);
    if (date <= 0) {
        return record;
    }
    // QUIRK HISTORY-DATE-FOUR-DIGITS-1: the field has four columns, so a date of five digits, from 19 May 2011 on,
    // loses its last digit and comes back as a date some decades earlier. The file's columns are settled; a fifth digit
    // in the blank column 5 would make files that copies of the program already in use read wrongly.
    modUTILS::SetColumns(record, dateColumn, std::to_string(date).substr(0, dateWidth));
    for (int pick = 1; pick <= appState.totalPicks; ++pick) {
        const std::int16_t value = appState.HistoryTable.PickAt(pick, row);
        if (value > -1) {
            modUTILS::SetColumns(record, PickFieldColumn(pick), modUTILS::PickField(value));
        }
    }
    return record;
}

}  // namespace

void LoadHistory() {
    RecordFile file = OpenedHistoryFile();
    while (Complete(file)) {
        file.Close();
        platform::ProcessPendingEvents();
        file = OpenedHistoryFile();
    }

    appState.HistoryTable = Table(1 + appState.totalPicks, historyRows);
    appState.historyLast = -1;
    for (int row = 0; row < historyRows; ++row) {
        DecodeRow(file.Read(firstRowRecord + row), row);
    }
    file.Close();
}

void SaveHistory(std::int16_t clearMark) {
    RecordFile file = OpenedHistoryFile();
    if (clearMark == 1) {
        std::string header = file.Read(headerRecord);
        modUTILS::SetColumns(header, markColumn, blankMark);
        file.Write(headerRecord, header);
    }
    for (int row = 0; row < historyRows; ++row) {
        file.Write(firstRowRecord + row, EncodeRow(row));
    }
    file.Close();
    appState.historyDirty = false;
}

}  // namespace ballhaven
