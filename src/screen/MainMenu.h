#pragma once

namespace ballhaven {

/// Hangs the commands onto the menu entries of the main window, and the entries onto the toolbar's buttons.
void WireMainMenu();

}  // namespace ballhaven
