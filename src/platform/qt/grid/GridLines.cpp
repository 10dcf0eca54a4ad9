#include "platform/qt/grid/GridLines.h"

#include "platform/qt/widgets/Conversions.h"

#include <QTransform>

namespace ballhaven::platform {

namespace {

/// The near edge of a line in the screen's pixels: its far edge is the one that it shares with what stands behind it.
int NearEdge(int nearEdge, int farEdge, bool thin, double scale) {
    return thin ? farEdge - qMax(1, qRound(scale)) : nearEdge;
}

}  // namespace

void FillLine(QPainter& painter, const QRect& line, const QColor& color) {
    const QTransform toScreen = painter.deviceTransform();
    const QRectF exact = toScreen.mapRect(QRectF(line));
    const QPoint end(qRound(exact.right()), qRound(exact.bottom()));
    const QPoint start(NearEdge(qRound(exact.left()), end.x(), line.width() == 1, toScreen.m11()),
                       NearEdge(qRound(exact.top()), end.y(), line.height() == 1, toScreen.m22()));
    painter.fillRect(toScreen.inverted().mapRect(QRectF(start, end)), color);
}

void DrawLineFrame(QPainter& painter, const QRect& place, const QColor& color) {
    FillLine(painter, {place.left(), place.top(), place.width(), 1}, color);
    FillLine(painter, {place.left(), place.bottom(), place.width(), 1}, color);
    FillLine(painter, {place.left(), place.top(), 1, place.height()}, color);
    FillLine(painter, {place.right(), place.top(), 1, place.height()}, color);
}

void DrawCellLines(QPainter& painter, const QRect& cell, const QColor& color) {
    FillLine(painter, {cell.right(), cell.top(), 1, cell.height()}, color);
    FillLine(painter, {cell.left(), cell.bottom(), cell.width(), 1}, color);
}

void DrawGridFace(QPainter& painter, const QRect& place) {
    painter.fillRect(place, PaletteColor(QPalette::Button));
    DrawCellLines(painter, place, PaletteColor(QPalette::Mid));
}

QColor GridFrameColor() {
    return PaletteColor(QPalette::Dark);
}

}  // namespace ballhaven::platform
