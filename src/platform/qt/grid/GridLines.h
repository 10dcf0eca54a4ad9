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

/// Draws the lines at the right and the lower edge of a cell.
void DrawCellLines(QPainter& painter, const QRect& cell, const QColor& color);

/// Draws a flat face with such lines, as headings, the caption and the row margin have it.
void DrawGridFace(QPainter& painter, const QRect& place);

/// The colour of a grid's frame and of the lines between its panes.
[[nodiscard]] QColor GridFrameColor();

}  // namespace ballhaven::platform
