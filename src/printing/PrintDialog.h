#pragma once

namespace ballhaven {

/// Hangs the handlers onto the print dialog, and onto the entries and buttons of other windows that open it.
void WirePrintDialog();

}  // namespace ballhaven
