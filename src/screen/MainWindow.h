#pragma once

namespace ballhaven {

/// Hangs all handlers onto the main window: its load, activation, resizing and close-down, and those of its controls.
void WireMainWindow();

}  // namespace ballhaven
