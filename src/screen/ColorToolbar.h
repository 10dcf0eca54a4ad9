#pragma once

namespace ballhaven {

/// Hangs the handlers onto the Color by Number toolbar: the boxes' keys and clicks, the buttons that apply and clear
/// the colours, and the button on the log's current row.
void WireColorToolbar();

}  // namespace ballhaven
