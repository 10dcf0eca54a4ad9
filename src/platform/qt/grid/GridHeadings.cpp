#include "platform/qt/grid/GridHeadings.h"

#include "platform/qt/grid/GridLines.h"
#include "platform/qt/widgets/Conversions.h"

#include <QPainter>

namespace ballhaven::platform {

GridHeadings::GridHeadings(const GridPane& shownPane, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), pane(shownPane) {
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
    setFocusPolicy(Qt::NoFocus);
}

void GridHeadings::paintSection(QPainter* painter, const QRect& section, int logicalIndex) const {
    DrawGridFace(*painter, section);
    painter->setPen(PaletteColor(QPalette::ButtonText));
    painter->drawText(section.adjusted(0, 0, -1, 0), Qt::AlignCenter | Qt::TextSingleLine,
                      model()->headerData(logicalIndex, Qt::Horizontal, Qt::DisplayRole).toString());
}

void GridHeadings::paintEvent(QPaintEvent* event) {
    if (pane.caption->empty()) {
        QHeaderView::paintEvent(event);
    }
    QPainter painter(viewport());
    if (!pane.caption->empty()) {
        DrawGridFace(painter, viewport()->rect());
        painter.setPen(PaletteColor(QPalette::ButtonText));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextSingleLine, ToQString(*pane.caption));
    }
    FillLine(painter, {0, 0, viewport()->width(), 1}, GridFrameColor());
}

}  // namespace ballhaven::platform
