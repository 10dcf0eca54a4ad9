#include "history/HistoryFile.h"

#include "history/DrawRecord.h"
#include "state/AppState.h"
#include "state/FullSizeFile.h"
#include "state/MendedFolder.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>

namespace ballhaven {

namespace {

constexpr FileSizes fileSizes{.recordLength = drawRecordLength,
                              .recordCount = drawFileRecords,
                              .olderRecordCount = olderDrawFileRecords,
                              .headerFor = StampedHeader};

/// The cells of a row that are stored, the date and as many picks as the game has; none where the table has no such
/// row.
std::span<const std::int16_t> StoredCells(const Table& draws, int row, int picks) {
    if (!draws.Has(0, row)) {
        return {};
    }
    return draws.Row(row).first(static_cast<std::size_t>(std::min(1 + picks, draws.Columns())));
}

/// The header of a file that is saved.
std::string HeaderToSave(std::string header, bool clearMark) {
    if (clearMark) {
        header = WithoutDeletedMark(header);
    }
    return FolderIsMended() ? WithFiveDigits(header) : header;
}

}  // namespace

void LoadHistory() {
    const RecordFile file =
        OpenAtFullSize(appState.programDirectory + HistoryFileName(appState.currentGame), fileSizes);
    const DateDigits digits = DateDigitsOf(file.Read(headerRecord));
    appState.HistoryTable = Table(1 + appState.totalPicks, historyRows);
    appState.historyLast = -1;
    const bool closesGaps = FolderIsMended();
    std::string padded;
    for (int row = 0; row < historyRows; ++row) {
        // QUIRK HISTORY-GAPS-1: a row keeps its place in the file, while the last one is found by counting the draws:
        // one date that cannot be read hides the newest draw, and the next new one takes its place. Files rest on the
        // places. In a mended folder the rows close up.
        const int place = closesGaps ? appState.historyLast + 1 : row;
        if (DecodeDraw(file.View(firstDrawRecord + row, padded), digits, appState.HistoryTable.Row(place))) {
            ++appState.historyLast;
        }
    }
}

void SaveHistory(std::int16_t clearMark) {
    RecordFile file(appState.programDirectory + HistoryFileName(appState.currentGame), fileSizes.recordLength,
                    fileSizes.recordCount);
    const std::string header = HeaderToSave(file.Read(headerRecord), clearMark == 1);
    file.Write(headerRecord, header);
    const DateDigits digits = DateDigitsOf(header);
    for (int row = 0; row < historyRows; ++row) {
        file.Write(firstDrawRecord + row,
                   EncodeDraw(StoredCells(appState.HistoryTable, row, appState.totalPicks), digits));
    }
    file.Close();
    appState.historyDirty = false;
}

}  // namespace ballhaven
