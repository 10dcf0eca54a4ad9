#pragma once

namespace ballhaven {

/// Hangs the handlers onto the play board of the main window.
void WireSinglePlay();

}  // namespace ballhaven
