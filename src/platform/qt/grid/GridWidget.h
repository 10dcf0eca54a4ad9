#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridCellEditor.h"
#include "platform/qt/grid/GridMeasures.h"
#include "platform/qt/grid/GridNavigation.h"
#include "platform/qt/grid/GridPaneView.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QScrollBar>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace ballhaven::platform {

/// Shows a grid: one table view for each pane, scrolled in step by the grid's own scroll bars. The
/// current cell is the grid's; the views only follow it. Mouse and keys of all parts come together here, so that the
/// notices keep their order.
class GridWidget : public QWidget, public GridView {
  public:
    GridWidget(Grid& shownGrid, QWidget* parent);
    ~GridWidget() override;

    void Refresh() override;
    void TakeFocus() override;
    void BringToFront() override { raise(); }
    [[nodiscard]] Bounds ScreenPlace() const override { return ScreenPlaceOf(*this); }

    void ReadAgain() override;
    void Repaint() override;
    void ShowCurrentCell() override;
    bool EndEdit() override;
    void SelectCellText() override;
    [[nodiscard]] bool HasSelectedText() const override;
    [[nodiscard]] int FirstVisibleRow() const override;
    [[nodiscard]] int VisibleRows() const override;
    [[nodiscard]] std::optional<int> RowTop(int row) const override;
    [[nodiscard]] int PaneLeft(int pane) const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { Press(event->position().toPoint(), *event); }
    void mouseReleaseEvent(QMouseEvent* event) override { Release(event->position().toPoint(), *event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { Press(event->position().toPoint(), *event); }
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddMissingPanes();
    void ConnectPane(GridPaneView& pane);
    void PlaceParts();
    void PlaceScrollBars();
    void NameParts();
    void HandOutFocus();
    void ReadRows();
    void DrawAnew();
    void NotePainted(bool whole);
    void RaisePainted();

    /// Runs what the user's act leads to, under the guard. False when the widget is gone afterwards, or was before.
    bool Report(const std::function<void()>& act);
    void Press(QPoint position, const QMouseEvent& event);
    void Release(QPoint position, const QMouseEvent& event);
    void FinishClick(QPoint position);
    [[nodiscard]] std::optional<GridCell> CellAt(QPoint position) const;
    [[nodiscard]] bool IsOnDropDownButton(const GridCell& cell, QPoint position) const;

    bool ServeKey(QKeyEvent& key);
    bool ServeEditorKey(QKeyEvent& key);
    bool ServeCellKey(QKeyEvent& key);
    bool MoveByKey(QKeyEvent& key);
    void MoveTo(const GridCell& cell);
    void MoveFromOutside(const GridCell& cell);

    void OpenEditor(GridCellEditor::Start start, const std::optional<QString>& typed = std::nullopt);
    void EditorLostFocus(Qt::FocusReason reason);
    void DropComingPress();
    void PutEditorOverCell();
    void ShowEditedCell();

    [[nodiscard]] bool HasKeyboard() const;
    [[nodiscard]] GridPaneView* CurrentPaneView() const;

    Grid& grid;
    GridMeasures measures;
    std::vector<GridPaneView*> panes;
    std::vector<QScrollBar*> paneBars;
    QScrollBar* rowBar;
    GridCellEditor* editor;
    GridCell shownCell;
    int rowsTold = 0;
    int rowsRead = 0;
    bool wasOff = false;
    bool pressed = false;
    bool pressedTwice = false;
    bool dropsPress = false;
    bool drawnAnew = true;
    bool paintedIsComing = false;
};

}  // namespace ballhaven::platform
