#pragma once

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

}  // namespace ballhaven
