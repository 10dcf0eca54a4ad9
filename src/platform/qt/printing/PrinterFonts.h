#pragma once

#include "platform/printing/PrinterDevice.h"

#include <QFont>

#include <optional>

namespace ballhaven::platform {

/// The font that a printer takes for one of the program's: of that name, or, for the fonts that the program asks for,
/// of another one whose letters have the same widths. The empty name is the font of the windows. None where it cannot
/// be had.
[[nodiscard]] std::optional<QFont> QtFontOf(const PrinterFont& wanted);

}  // namespace ballhaven::platform
