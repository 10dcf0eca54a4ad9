#include "history/HistoryView.h"

#include "state/AppState.h"
#include "state/DrawCells.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace ballhaven {

namespace {

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

/// The rows of a history up to `last` that belong to the set, in display order.
std::vector<int> RowsOfSet(int last, const HistorySet& set) {
    const int first = std::max(0, last - (set.size - 1));
    std::vector<int> rows(static_cast<std::size_t>(std::max(0, last - first + 1)));
    std::iota(rows.begin(), rows.end(), first);
    if (set.newestFirst) {
        std::ranges::reverse(rows);
    }
    return rows;
}

}  // namespace

Draws ViewOf(const Table& history, int last, int picks, const HistorySet& set) {
    Draws view{.table = Table(picks + 1, set.size)};
    for (const int row : RowsOfSet(last, set)) {
        if (!HasDate(history, row)) {
            break;
        }
        CopyRow(history, row, view.table, ++view.last);
    }
    return view;
}

Table Sorted(const Table& history, int last) {
    std::vector<int> rows(static_cast<std::size_t>(std::max(0, std::min(last + 1, history.Rows()))));
    std::iota(rows.begin(), rows.end(), 0);
    std::ranges::stable_sort(rows, {}, [&history](int row) { return history(dateColumn, row); });
    Table sorted = history;
    for (int row = 0; const int from : rows) {
        CopyRow(history, from, sorted, row++);
    }
    return sorted;
}

Draws Compacted(const Table& history, int picks) {
    Draws draws{.table = Table(picks + 1, historyRows)};
    for (int row = 0; row < historyRows; ++row) {
        if (HasDate(history, row)) {
            CopyRow(history, row, draws.table, ++draws.last);
        }
    }
    return draws;
}

void SortHistory() {
    appState.HistoryTable = Sorted(appState.HistoryTable, appState.historyLast);
}

void CompactHistory() {
    Draws draws = Compacted(appState.HistoryTable, appState.totalPicks);
    appState.HistoryTable = std::move(draws.table);
    appState.historyLast = draws.last;
}

}  // namespace ballhaven
