#include "history/HistoryView.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/DateText.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace ballhaven {

namespace {

constexpr int dateColumn = 0;

/// Whether a row of the table is a draw: a date of 0 or less is none.
bool HasDate(const Table& table, int row) {
    return table.PickAt(dateColumn, row) > 0;
}

/// Copies a row with all columns of the receiving table; picks that the other one does not have become blank.
void CopyRow(const Table& from, int fromRow, Table& to, int toRow) {
    for (int column = 0; column < to.Columns(); ++column) {
        to(column, toRow) = from.PickAt(column, fromRow);
    }
}

Table EmptyDraws(int rows) {
    return {appState.totalPicks + 1, rows};
}

/// Rows of `HistoryTable` that belong to the history set, in display order.
std::vector<int> RowsOfHistorySet() {
    const int first = std::max(0, appState.historyLast - (appState.historySetSize - 1));
    std::vector<int> rows(static_cast<std::size_t>(std::max(0, appState.historyLast - first + 1)));
    std::iota(rows.begin(), rows.end(), first);
    if (appState.historySortOrder == 0) {
        std::ranges::reverse(rows);
    }
    return rows;
}

void ShowNewestDraw() {
    const int newest = appState.historySortOrder == 0 ? 0 : appState.historyViewLast;
    frmMainForm.newestDrawText = SerialToDate(appState.historyView(dateColumn, newest));
}

}  // namespace

void BuildHistoryView() {
    appState.historyViewLast = -1;
    appState.historyView = EmptyDraws(appState.historySetSize);
    for (const int row : RowsOfHistorySet()) {
        if (!HasDate(appState.HistoryTable, row)) {
            break;
        }
        CopyRow(appState.HistoryTable, row, appState.historyView, ++appState.historyViewLast);
    }

    frmMainForm.logRowCount = appState.historyViewLast + 1;
    frmMainForm.grdHist.SetRowCount(frmMainForm.logRowCount);
    if (appState.historyViewLast >= 0) {
        ShowNewestDraw();
    }
}

void SortHistory() {
    const int rowCount = std::min(appState.historyLast + 1, appState.HistoryTable.Rows());
    if (rowCount < 2) {
        return;
    }
    const Table unsorted = appState.HistoryTable;
    std::vector<int> rows(static_cast<std::size_t>(rowCount));
    std::iota(rows.begin(), rows.end(), 0);
    std::ranges::stable_sort(rows, {}, [&unsorted](int row) { return unsorted(dateColumn, row); });
    for (int row = 0; row < rowCount; ++row) {
        CopyRow(unsorted, rows[static_cast<std::size_t>(row)], appState.HistoryTable, row);
    }
}

void CompactHistory() {
    const Table gapped = appState.HistoryTable;
    appState.HistoryTable = EmptyDraws(historyRows);
    appState.historyLast = -1;
    for (int row = 0; row < historyRows; ++row) {
        if (HasDate(gapped, row)) {
            CopyRow(gapped, row, appState.HistoryTable, ++appState.historyLast);
        }
    }
}

}  // namespace ballhaven
