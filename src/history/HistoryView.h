#pragma once

#include <cstdint>
#include <span>

namespace ballhaven {

/// Cuts `historyView` out of `HistoryTable`: the last `historySetSize` draws in display order, the newest
/// first when `historySortOrder` is 0, else the oldest first. Stops at a row without a date.
/// Sets `historyView`, `historyViewLast`, and the row count and newest-draw text of the main window; the text stays as
/// it was where the view has no draw. An empty table or a history set of 0 gives `historyViewLast` -1.
void BuildHistoryView();

/// Puts rows 0 to `historyLast` of `HistoryTable` in ascending order of date; rows of one date keep their
/// order. Rows behind `historyLast` stay as they are.
void SortHistory();

/// Closes the gaps in `HistoryTable`: the rows with a date move up to row 0 in their order, all others become empty,
/// and `historyLast` counts them again.
void CompactHistory();

/// First row of `historyView` with a date, as its serial; -1 if it has none.
[[nodiscard]] int RowOfDate(std::int16_t date);

/// The picks of a row of `historyView`, columns 1 to `totalPicks`, -1 for a blank cell. Fewer, or none, where the view
/// has no such columns or no such row.
[[nodiscard]] std::span<const std::int16_t> PicksOfDraw(int row);

}  // namespace ballhaven
