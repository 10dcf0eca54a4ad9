#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace ballhaven::platform {

/// Draws a line that is one pixel of scale 1 wide or high. At scales such as 1.25 and 1.5 all lines have the same
/// number of the screen's pixels, wherever they stand; a plain fill would round both edges, and some lines came out
/// thicker.
void FillLine(QPainter& painter, const QRect& line, const QColor& color);

/// Draws the four lines just inside a place.
void DrawLineFrame(QPainter& painter, const QRect& place, const QColor& color);

}  // namespace ballhaven::platform
