#pragma once

#include <cstdint>

namespace ballhaven {

/// Cuts `historyView` out of `HistoryTable`: the last `historySetSize` draws in display order, the newest first when
/// `historySortOrder` is 0, else the oldest first. Stops at a row without a date. Sets `historyView`,
/// `historyViewLast`, and the row count and newest-draw text of the main window; the text stays as it was where the
/// view has no draw. An empty table or a history set of 0 gives `historyViewLast` -1.
void BuildHistoryView();

/// In place of a date: the newest draw.
inline constexpr std::int16_t newestDraw = -1;

/// What every change of the draws, of the history set or of the order ends in: saves a dirty history, marks the tables
/// stale, rebuilds the view and the hot table, and brings a draw into view. `date` is its serial, or `newestDraw`. Says
/// so where the draw is not in the set, unless a new draw's date is being chosen.
void RefreshHistory(std::int16_t date);

}  // namespace ballhaven
