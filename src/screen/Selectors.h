#pragma once

namespace ballhaven {

/// Hangs the handlers onto the three selectors and the option buttons of the main window.
void WireSelectors();

}  // namespace ballhaven
