#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridMeasures.h"
#include "platform/qt/grid/GridPaneView.h"

#include <QScrollBar>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace ballhaven::platform {

/// The panes of a grid with the scroll bars that move them in step. One of them is current and has the keyboard for
/// all.
class GridPanes {
  public:
    /// The parts become children of `partsParent`, the grid's widget.
    GridPanes(Grid& shownGrid, QWidget& partsParent);
    ~GridPanes();
    GridPanes(const GridPanes&) = delete;
    GridPanes& operator=(const GridPanes&) = delete;

    /// Makes the panes that the grid has got since the last time, and tells of each.
    void AddMissing(const std::function<void(GridPaneView& pane)>& added);

    [[nodiscard]] bool Empty() const { return panes.empty(); }
    [[nodiscard]] GridPaneView& Pane(int pane) const { return *panes.at(static_cast<std::size_t>(pane)); }

    /// The pane of the grid's current cell, null while there is none.
    [[nodiscard]] GridPaneView* Current() const;

    void Name();
    void Place(const GridMeasures& measures);

    /// Has so many rows from now on.
    void TakeRows(int count);
    [[nodiscard]] int Rows() const { return rows; }
    [[nodiscard]] int FirstVisibleRow() const;

    /// Rows that the visible part holds whole.
    [[nodiscard]] int VisibleRows() const;

    /// Makes the grid's current cell the one of its pane's table.
    void FollowCurrentCell();

    /// Scrolls the grid's current cell into view, or a row to the upper end of the visible part.
    void ScrollToCurrentCell();
    void ScrollToRow(int row);

    /// Only the current pane is a stop of the Tab key. None takes the keyboard at a press: it would leave an open
    /// editor before the press has been told.
    void HandOutTabStops();
    void TakeFocus();
    [[nodiscard]] bool HaveKeyboard() const;

    void Redraw();
    void RedrawRow(int row);
    void ScrollByWheel(QWheelEvent& turn);

    /// The cell at a position in the grid's widget.
    [[nodiscard]] std::optional<GridCell> CellAt(QPoint position) const;

    /// The place of that cell in the grid's widget.
    [[nodiscard]] std::optional<QRect> PlaceOfCellAt(QPoint position) const;

  private:
    void Add(int number);

    Grid& grid;
    QWidget& parent;
    std::vector<GridPaneView*> panes;
    std::vector<QScrollBar*> columnBars;
    QScrollBar* rowBar;
    int rows = 0;
};

}  // namespace ballhaven::platform
