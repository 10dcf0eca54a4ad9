#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridCellPainter.h"
#include "platform/qt/grid/GridMeasures.h"
#include "platform/qt/grid/GridPaneModel.h"

#include <QTableView>

#include <functional>

namespace ballhaven::platform {

/// One pane of a grid: the toolkit's table over the pane's columns. What is done in it is told to the grid's widget,
/// which alone decides what moves and what is edited.
class GridPaneView : public QTableView {
  public:
    GridPaneView(Grid& shownGrid, int shownPane, QWidget* parent);

    /// Takes over the place of the pane, its columns and the height of the rows.
    void Place(const GridMeasures::PanePlace& place);

    /// Has so many rows from now on.
    void TakeRows(int count);

    /// Makes the grid's current cell the table's own, for assistive tools, to which it has the keyboard then; none if
    /// it is in another pane, or the pane does not have the keyboard.
    void FollowCurrentCell();

    /// Scrolls a cell of the pane into view.
    void ScrollTo(const GridCell& cell);

    /// Place of a cell in the viewport, empty for one that the pane does not show.
    [[nodiscard]] QRect CellPlace(const GridCell& cell) const;

    /// The cell at a position in the viewport.
    [[nodiscard]] std::optional<GridCell> CellAt(QPoint position) const;

    /// What the pane's table shows.
    [[nodiscard]] GridPaneModel& Cells() { return cells; }
    [[nodiscard]] const GridPaneModel& Cells() const { return cells; }

    /// Rows that the viewport holds whole.
    [[nodiscard]] int WholeRows() const;

    /// Gives the keyboard to the control before or behind the grid.
    void LeaveByTab(bool forwards) { QAbstractScrollArea::focusNextPrevChild(forwards); }

    /// A key; true when it has been served.
    std::function<bool(QKeyEvent& key)> keyPressed;

    /// The current cell was moved from outside, such as by an assistive tool.
    std::function<void(const GridCell& cell)> movedFromOutside;

    /// The pane has got the keyboard.
    std::function<void()> focused;

    /// An editor was asked for from outside.
    std::function<void()> editAsked;
    std::function<void()> scrolled;

    /// A finished repaint; `whole` if it was of the whole pane.
    std::function<void(bool whole)> repainted;

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

  private:
    Grid& grid;
    const int pane;
    GridPaneModel cells;
    GridCellPainter painter;
    QSize drawnSize;
    bool following = false;
};

}  // namespace ballhaven::platform
