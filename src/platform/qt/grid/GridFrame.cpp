#include "platform/qt/grid/GridFrame.h"

#include "platform/qt/grid/GridLines.h"
#include "platform/qt/widgets/Conversions.h"

namespace ballhaven::platform {

namespace {

void DrawCaption(QPainter& painter, const Grid& grid, const QRect& place) {
    DrawGridFace(painter, place);
    QFont bold = painter.font();
    bold.setBold(true);
    const QFont plain = painter.font();
    painter.setFont(bold);
    painter.setPen(PaletteColor(QPalette::ButtonText));
    painter.drawText(place.adjusted(2, 1, -2, -1), Qt::AlignCenter | Qt::TextSingleLine, ToQString(*grid.caption));
    painter.setFont(plain);
}

/// The triangle that points at the current row.
void DrawRowMark(QPainter& painter, const QRect& place) {
    constexpr int halfHeight = 4;
    const QPoint middle = place.center();
    for (int step = 0; step <= halfHeight; ++step) {
        painter.fillRect(middle.x() - 2 + step, middle.y() - halfHeight + step, 1, 2 * (halfHeight - step) + 1,
                         PaletteColor(QPalette::ButtonText));
    }
}

void DrawMargin(QPainter& painter, const Grid& grid, const GridMeasures& measures, GridRowsInView rows) {
    const int top = measures.rows.top();
    if (grid.showsHeadings) {
        DrawGridFace(painter, QRect(0, top - gridHeadingHeight, gridMarginWidth, gridHeadingHeight));
    }
    painter.save();
    painter.setClipRect(QRect(0, top, gridMarginWidth, measures.rows.height()));
    for (int row = 0; row < rows.count; ++row) {
        const QRect place(0, top + row * RowPixels(grid), gridMarginWidth, RowPixels(grid));
        DrawGridFace(painter, place);
        if (rows.first + row == grid.CurrentRow()) {
            DrawRowMark(painter, place);
        }
    }
    painter.restore();
}

}  // namespace

void DrawGridFrame(QPainter& painter, const Grid& grid, const GridMeasures& measures, QSize size, GridRowsInView rows) {
    painter.fillRect(QRect(QPoint(0, 0), size), PaletteColor(QPalette::Base));
    if (!measures.scrollBar.isEmpty()) {
        painter.fillRect(QRect(QPoint(measures.scrollBar.left(), 0), QPoint(size.width(), size.height())),
                         PaletteColor(QPalette::Button));
    }
    for (const GridMeasures::PanePlace& pane : measures.panes) {
        if (!pane.scrollBar.isEmpty()) {
            painter.fillRect(QRect(0, pane.scrollBar.top(), size.width(), size.height()),
                             PaletteColor(QPalette::Button));
        }
    }
    for (std::size_t pane = 1; pane < measures.panes.size(); ++pane) {
        FillLine(painter, {measures.panes[pane].place.left() - 1, measures.panes[pane].place.top(), 1, size.height()},
                 GridFrameColor());
    }
    if (grid.showsRowMargin) {
        DrawMargin(painter, grid, measures, rows);
    }
    if (!measures.caption.isEmpty()) {
        DrawCaption(painter, grid, measures.caption);
    }
    DrawLineFrame(painter, QRect(QPoint(0, 0), size), GridFrameColor());
}

}  // namespace ballhaven::platform
