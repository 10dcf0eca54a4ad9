#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/Controls.h"
#include "platform/controls/Geometry.h"

#include <QColor>
#include <QPalette>
#include <QRect>
#include <QString>

#include <string>
#include <string_view>

namespace ballhaven::platform {

/// Text of the program, in Windows-1252, as the screen takes it.
[[nodiscard]] QString ToQString(std::string_view text);

/// Text from the screen in Windows-1252; a character that has no byte there becomes "?".
[[nodiscard]] std::string FromQString(const QString& text);

/// The whole pixels that are nearest to a length in twips, at scale 1.
[[nodiscard]] int ToPixels(int twips);
[[nodiscard]] int ToTwips(int pixels);

/// A place in pixels. Edges that meet in twips meet in pixels too.
[[nodiscard]] QRect ToQRect(const Bounds& bounds);

[[nodiscard]] MouseButton ToMouseButton(Qt::MouseButton button);

/// The colour as it is drawn; the system's own colours are those of the palette.
[[nodiscard]] QColor ToQColor(const Color& color);

/// The colour that the program's palette has for a part of a window.
[[nodiscard]] QColor PaletteColor(QPalette::ColorRole role);

}  // namespace ballhaven::platform
