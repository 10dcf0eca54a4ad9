#pragma once

namespace ballhaven {

/// Hangs the commands onto the log that add and delete draws and change their dates, and the timer that brings them in.
void WireHistoryEditing();

}  // namespace ballhaven
