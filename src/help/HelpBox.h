#pragma once

namespace ballhaven {

/// Hangs the handlers onto the help window, and onto the entries of the main window and of the Play Slips window that
/// open it.
void WireHelpBox();

}  // namespace ballhaven
