#pragma once

#include <cstdint>

namespace ballhaven {

/// Makes the game of the selector current, or, the first time in the process, the game shown last: loads its record,
/// plays, draws and chosen picks, rebuilds the view and the statistics, and arranges the main window by the kind of
/// game. Needs `programDirectory`. Sets `gameLoading` meanwhile, so that the selectors do not answer their own filling.
void SwitchGame();

/// What every change of the draws, of the history set or of the order ends in: saves a dirty history, marks the tables
/// stale, rebuilds the view and the hot table, and brings a draw into view. `date` is its serial; -1 stands for the
/// newest draw. Says so where the draw is not in the set, unless a new draw's date is being chosen.
void RefreshHistory(std::int16_t date);

/// Ends an edit in the log, and saves the history if it is dirty, then the plays if they are, under the current game.
void SaveWhatIsDirty();

}  // namespace ballhaven
