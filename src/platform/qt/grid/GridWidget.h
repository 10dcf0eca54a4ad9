#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridInput.h"
#include "platform/qt/grid/GridMeasures.h"
#include "platform/qt/grid/GridPanes.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QWidget>

#include <optional>

namespace ballhaven::platform {

/// Shows a grid: its panes, and around them what is drawn of it once. The current cell is the grid's; the panes only
/// follow it.
class GridWidget : public QWidget, public GridView {
  public:
    GridWidget(Grid& shownGrid, QWidget* parent);

    void Refresh() override;
    void TakeFocus() override { panes.TakeFocus(); }
    void BringToFront() override { raise(); }
    [[nodiscard]] Bounds ScreenPlace() const override { return ScreenPlaceOf(*this); }

    void ReadAgain() override;
    void Repaint() override { DrawAnew(); }
    void ShowCurrentCell() override;
    bool EndEdit() override { return input.EndEdit(); }
    void SelectCellText() override { input.SelectCellText(); }
    [[nodiscard]] bool HasSelectedText() const override { return input.HasSelectedText(); }
    [[nodiscard]] int FirstVisibleRow() const override { return panes.FirstVisibleRow(); }
    [[nodiscard]] int VisibleRows() const override { return panes.VisibleRows(); }
    [[nodiscard]] std::optional<int> RowTop(int row) const override;
    [[nodiscard]] int PaneLeft(int pane) const override;

    // For what assistive tools are told.
    [[nodiscard]] const Grid& Shown() const { return grid; }
    [[nodiscard]] const GridPanes& Panes() const { return panes; }
    void MoveByTool(const GridCell& cell) { input.MoveFromOutside(cell); }

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ListenTo(GridPaneView& pane);
    void ReadRows();
    void PlaceParts();
    void DrawAnew();
    void RedrawRow(int row);
    void TellKeyboard();
    void NotePainted(bool whole);
    void RaisePainted();

    Grid& grid;
    GridMeasures measures;
    GridPanes panes;
    GridInput input;
    GridCell shownCell;
    int rowsTold = 0;
    bool wasOff = true;
    bool drawnAnew = true;
    bool paintedIsComing = false;
};

}  // namespace ballhaven::platform
