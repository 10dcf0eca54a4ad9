#include "platform/qt/grid/GridCellPainter.h"

#include "platform/qt/grid/GridLines.h"
#include "platform/qt/widgets/Conversions.h"

#include <QPainter>

namespace ballhaven::platform {

namespace {

constexpr int buttonWidth = 15;
constexpr int leftPadding = 4;
constexpr QColor lineColor(214, 211, 203);

void DrawButton(QPainter& painter, const QRect& button) {
    painter.fillRect(button, PaletteColor(QPalette::Button));
    DrawLineFrame(painter, button, PaletteColor(QPalette::Dark));
    const QPoint middle = button.center();
    for (int line = 0; line < 4; ++line) {
        painter.fillRect(middle.x() - 3 + line, middle.y() - 1 + line, 7 - 2 * line, 1,
                         PaletteColor(QPalette::ButtonText));
    }
}

/// The mark of the current cell: a dark frame, with a lighter one inside it so that it shows on any colour.
void DrawMark(QPainter& painter, const QRect& cell, bool hasFocus) {
    const QRect inside = cell.adjusted(0, 0, -1, -1);
    DrawLineFrame(painter, inside, hasFocus ? PaletteColor(QPalette::Highlight) : PaletteColor(QPalette::Shadow));
    if (hasFocus) {
        DrawLineFrame(painter, inside.adjusted(1, 1, -1, -1), PaletteColor(QPalette::Highlight).lighter(220));
    }
}

}  // namespace

GridCellPainter::GridCellPainter(const Grid& shownGrid, const GridPaneModel& shownCells)
    : grid(shownGrid), cells(shownCells) {}

void GridCellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const GridCell cell = cells.CellOf(index);
    const GridColumn& column = grid.Column(cell.column);
    const CellStyle style = cells.StyleOf(cell);
    painter->fillRect(option.rect, ToQColor(style.background));
    DrawCellLines(*painter, option.rect, lineColor);

    QRect text = option.rect.adjusted(0, 0, -1, -1);
    if (column.hasButton) {
        text.adjust(leftPadding, 0, -buttonWidth, 0);
    }
    painter->setFont(option.font);
    painter->setPen(ToQColor(style.foreground));
    painter->drawText(text,
                      Qt::AlignVCenter | Qt::TextSingleLine | (column.hasButton ? Qt::AlignLeft : Qt::AlignHCenter),
                      cells.CellText(cell));

    if (column.hasButton && cell.row == grid.CurrentRow()) {
        DrawButton(*painter, ButtonIn(option.rect));
    }
    if (cell == grid.CurrentCell() && grid.Pane(cell.pane).marksCurrentCell) {
        DrawMark(*painter, option.rect, option.state.testFlag(QStyle::State_HasFocus));
    }
}

QRect GridCellPainter::ButtonIn(const QRect& cell) {
    return {QPoint(cell.right() - buttonWidth, cell.top()), QPoint(cell.right() - 1, cell.bottom() - 1)};
}

}  // namespace ballhaven::platform
