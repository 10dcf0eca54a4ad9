#pragma once

namespace ballhaven {

/// Sorts the draws and brings the one whose date was taken into view, if there is one and the window is not starting.
/// Sets `pendingLogDate` to 0, and clears `gameLoading`. A new draw leaves the history dirty: its row may have moved,
/// and its picks come next. While it runs, another call does nothing.
void BringInChosenDraw();

/// Asks whether the draw of the log's current row is to go and, on Yes, takes the first draw of its date out of
/// `HistoryTable`, saves, and goes to the draw in the row behind it, else to the one before it. A log without draws
/// asks nothing. Raises the file failure.
void DeleteDraw();

/// Hangs the commands onto the log that add and delete draws and change their dates, and the timer that brings them in.
void WireDrawCommands();

}  // namespace ballhaven
