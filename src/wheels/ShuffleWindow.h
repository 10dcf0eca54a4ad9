#pragma once

namespace ballhaven {

/// Hangs the handlers onto the Wheel and Shuffle window, and onto the entries of the main window and of the Play Slips
/// window that open it.
void WireShuffleWindow();

}  // namespace ballhaven
