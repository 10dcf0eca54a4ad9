#pragma once

#include <cstdint>

namespace ballhaven {

/// Makes the game of the selector current and stores its slot, or, the first time in the process, the game shown last.
/// Opens the game table before. Needs `programDirectory`. Otherwise as `SwitchGameTo`.
void SwitchGame();

/// Makes the game of a slot (1 to 20) of the open game table current: loads its record, plays, draws and chosen picks,
/// rebuilds the view and the statistics, and arranges the main window by the kind of game. The log and the hot table
/// are switched off meanwhile, and `gameLoading` is set, so that the selectors do not answer their own filling. Raises
/// the file failure.
void SwitchGameTo(std::int16_t slot);

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

/// Ends an edit in the log, and saves the history if it is dirty, then the plays if they are, under the current game.
void SaveWhatIsDirty();

/// What `SaveWhatIsDirty` does, and saves the chosen picks if their window is open: for what comes before the game
/// variables or all tables are read anew, with the window still standing.
void SaveBeforeReload();

}  // namespace ballhaven
