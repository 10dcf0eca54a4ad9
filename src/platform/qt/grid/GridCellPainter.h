#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridMeasures.h"
#include "platform/qt/grid/GridPaneModel.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ballhaven::platform {

/// Draws the cells of one pane of a grid. Text and colours are asked of the grid's owner for each cell as it is drawn.
class GridCellPainter : public QStyledItemDelegate {
  public:
    GridCellPainter(const Grid& shownGrid, const GridPaneModel& shownCells);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Place of the drop-down button in a cell.
    [[nodiscard]] static QRect ButtonIn(const QRect& cell);

  private:
    const Grid& grid;
    const GridPaneModel& cells;
};

/// The headings of one pane: its columns', or its caption over all of them.
class GridHeadings : public QHeaderView {
  public:
    GridHeadings(const GridPane& shownPane, QWidget* parent);

    /// The toolkit's own headings would measure all their texts each time they are asked.
    [[nodiscard]] QSize sizeHint() const override { return {0, gridHeadingHeight}; }

  protected:
    void paintSection(QPainter* painter, const QRect& section, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    const GridPane& pane;
};

/// Draws a flat raised face, as headings, the caption and the row margin have it, with lines at its right and lower
/// edge.
void DrawGridFace(QPainter& painter, const QRect& place);

/// The colour of a grid's frame and of the lines between its panes.
[[nodiscard]] QColor GridFrameColor();

}  // namespace ballhaven::platform
