#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridPaneModel.h"

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

}  // namespace ballhaven::platform
