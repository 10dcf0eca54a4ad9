#include "platform/qt/grid/GridWidget.h"

#include "platform/Guard.h"
#include "platform/qt/grid/GridFrame.h"
#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/Conversions.h"

#include <QAccessible>
#include <QPainter>

#include <utility>

namespace ballhaven::platform {

GridWidget::GridWidget(Grid& shownGrid, QWidget* parent)
    : QWidget(parent), grid(shownGrid), panes(shownGrid, *this), input(shownGrid, panes, *this, *this) {
    grid.view = this;
    Refresh();
}

void GridWidget::Refresh() {
    ShowCommon(grid, *this);
    if (!grid.IsOn()) {
        wasOff = true;
        return;
    }
    panes.AddMissing([this](GridPaneView& pane) { ListenTo(pane); });
    setAccessibleName(NameOfGrid(grid));
    panes.Name();
    panes.HandOutTabStops();
    if (wasOff || rowsTold != grid.RowCount()) {
        wasOff = false;
        ReadRows();
    } else {
        PlaceParts();
    }
    if (shownCell != grid.CurrentCell()) {
        ShowCurrentCell();
    }
    DrawAnew();
}

void GridWidget::ListenTo(GridPaneView& pane) {
    input.ListenTo(pane);
    pane.focused = [this] { TellKeyboard(); };
    pane.repainted = [this](bool whole) { NotePainted(whole); };
    pane.scrolled = [this] {
        input.PutEditorOverCell();
        drawnAnew = true;
        update(0, 0, gridMarginWidth, height());
    };
}

void GridWidget::ReadRows() {
    const int firstRow = FirstVisibleRow();
    int rows = 0;
    RunGuardedReading([&] { rows = grid.RowsRead(); });
    rowsTold = grid.RowCount();
    panes.TakeRows(rows);
    measures = {};  // with new rows the toolkit's tables forget the widths of their columns
    PlaceParts();
    panes.ScrollToRow(firstRow);
}

/// Many changes of a grid, such as of a column's colour, move none of its parts.
void GridWidget::PlaceParts() {
    const GridMeasures wanted =
        MeasureGrid(grid, size(), panes.Rows(), style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    if (wanted != measures) {
        measures = wanted;
        panes.Place(measures);
    }
    input.PutEditorOverCell();
    update();
}

void GridWidget::ReadAgain() {
    ReadRows();
    DrawAnew();
}

void GridWidget::DrawAnew() {
    drawnAnew = true;
    update();
    panes.Redraw();
}

void GridWidget::ShowCurrentCell() {
    if (!grid.IsOn()) {
        shownCell = {};
        return;
    }
    const GridCell before = std::exchange(shownCell, grid.CurrentCell());
    const bool hadKeyboard = panes.HaveKeyboard();
    panes.FollowCurrentCell();
    panes.ScrollToCurrentCell();
    panes.HandOutTabStops();
    if (hadKeyboard) {
        TakeFocus();
        TellKeyboard();
    }
    drawnAnew = true;
    RedrawRow(before.row);
    RedrawRow(shownCell.row);
}

void GridWidget::RedrawRow(int row) {
    panes.RedrawRow(row);
    if (const std::optional<int> top = RowTop(row)) {
        update(0, ToPixels(*top), gridMarginWidth, RowPixels(grid));
    }
}

std::optional<int> GridWidget::RowTop(int row) const {
    const int line = row - FirstVisibleRow();
    if (line < 0 || line >= VisibleRows()) {
        return std::nullopt;
    }
    return ToTwips(measures.rows.top() + line * RowPixels(grid));
}

int GridWidget::PaneLeft(int pane) const {
    return ToTwips(measures.panes.at(static_cast<std::size_t>(pane)).place.left());
}

void GridWidget::wheelEvent(QWheelEvent* event) {
    panes.ScrollByWheel(*event);
}

void GridWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawGridFrame(painter, grid, measures, size(), {FirstVisibleRow(), VisibleRows()});
}

void GridWidget::resizeEvent(QResizeEvent*) {
    if (!panes.Empty()) {
        PlaceParts();
        DrawAnew();
    }
}

/// Tells assistive tools which cell has the keyboard. The toolkit does so for a table of its own.
void GridWidget::TellKeyboard() {
    const int index = IndexInTable(grid, grid.CurrentCell());
    if (IsOneTable(grid) && index >= 0 && grid.CurrentRow() < panes.Rows()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(index);
        QAccessible::updateAccessibility(&event);
    }
}

void GridWidget::NotePainted(bool whole) {
    // A part is drawn again when something before the grid moves, which is what the listener may have done itself.
    if ((drawnAnew || whole) && !paintedIsComing) {
        paintedIsComing = true;
        QMetaObject::invokeMethod(
            this, [this] { RaisePainted(); }, Qt::QueuedConnection);
    }
}

void GridWidget::RaisePainted() {
    paintedIsComing = false;
    drawnAnew = false;
    if (grid.IsOn() && grid.painted) {
        input.Report(grid.painted);
    }
}

}  // namespace ballhaven::platform
