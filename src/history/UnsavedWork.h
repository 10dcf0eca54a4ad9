#pragma once

namespace ballhaven {

/// Ends an edit in the log, and saves the history if it is dirty, then the plays if they are, under the current game.
void SaveWhatIsDirty();

/// What `SaveWhatIsDirty` does, and saves the chosen picks if their window is open: for what comes before the game
/// variables or all tables are read anew, with the window still standing.
void SaveBeforeReload();

}  // namespace ballhaven
