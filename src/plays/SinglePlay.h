#pragma once

namespace ballhaven {

/// Hangs the handlers onto the play board of the main window.
void WireSinglePlay();

/// Empties the play in `currentPlay` and has the main window's board read again, and no other.
void ErasePlayOnMain();

}  // namespace ballhaven
