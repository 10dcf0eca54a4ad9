#pragma once

namespace ballhaven {

/// Hangs the handlers onto the Play Slips window, and onto the main window's entries that open it and that turn the
/// winners red.
void WirePlaySlipsWindow();

}  // namespace ballhaven
