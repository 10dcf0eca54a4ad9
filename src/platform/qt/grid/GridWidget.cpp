#include "platform/qt/grid/GridWidget.h"

#include "platform/Guard.h"
#include "platform/qt/grid/GridFrame.h"
#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/ControlWidget.h"
#include "platform/qt/widgets/Conversions.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace ballhaven::platform {

GridWidget::GridWidget(Grid& shownGrid, QWidget* parent)
    : QWidget(parent),
      grid(shownGrid),
      rowBar(new QScrollBar(Qt::Vertical, this)),
      editor(new GridCellEditor(shownGrid)) {
    rowBar->setObjectName(ToQString(grid.name) + QStringLiteral(".rows"));
    rowBar->setFocusPolicy(Qt::NoFocus);
    QObject::connect(rowBar, &QScrollBar::valueChanged, this, [this](int row) {
        for (GridPaneView* pane : panes) {
            pane->verticalScrollBar()->setValue(row);
        }
    });
    editor->setParent(this);
    editor->keyPressed = [this](QKeyEvent& key) { return ServeKey(key); };
    editor->focusLost = [this](Qt::FocusReason reason) { EditorLostFocus(reason); };
    editor->refused = [this] { ShowEditedCell(); };
    editor->handFocusBack = [this] { TakeFocus(); };
    editor->installEventFilter(this);
    grid.view = this;
    wasOff = true;
    Refresh();
}

GridWidget::~GridWidget() {
    editor->Cancel();
    for (GridPaneView* pane : panes) {
        delete pane;
    }
}

void GridWidget::AddMissingPanes() {
    while (static_cast<int>(panes.size()) < grid.PaneCount()) {
        const int number = static_cast<int>(panes.size());
        auto* pane = new GridPaneView(grid, number, this);
        auto* bar = new QScrollBar(Qt::Horizontal, this);
        bar->setObjectName(QStringLiteral("%1.columns(%2)").arg(ToQString(grid.name)).arg(number));
        bar->setFocusPolicy(Qt::NoFocus);
        QObject::connect(bar, &QScrollBar::valueChanged, pane->horizontalScrollBar(), &QScrollBar::setValue);
        QObject::connect(pane->horizontalScrollBar(), &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
        QObject::connect(pane->verticalScrollBar(), &QScrollBar::valueChanged, rowBar, &QScrollBar::setValue);
        panes.push_back(pane);
        paneBars.push_back(bar);
        ConnectPane(*pane);
        pane->show();
    }
}

void GridWidget::ConnectPane(GridPaneView& pane) {
    pane.keyPressed = [this](QKeyEvent& key) { return ServeKey(key); };
    pane.movedFromOutside = [this](const GridCell& cell) { MoveFromOutside(cell); };
    pane.editAsked = [this] { OpenEditor(GridCellEditor::Start::Behind); };
    pane.repainted = [this](bool whole) { NotePainted(whole); };
    pane.scrolled = [this] {
        PutEditorOverCell();
        drawnAnew = true;
        update();
    };
    pane.viewport()->installEventFilter(this);
    pane.horizontalHeader()->viewport()->installEventFilter(this);
}

void GridWidget::Refresh() {
    ShowCommon(grid, *this);
    if (!grid.IsOn()) {
        wasOff = true;
        return;
    }
    AddMissingPanes();
    NameParts();
    HandOutFocus();
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

void GridWidget::NameParts() {
    setAccessibleName(NameOfGrid(grid));
    for (int pane = 0; pane < static_cast<int>(panes.size()); ++pane) {
        panes[static_cast<std::size_t>(pane)]->setAccessibleName(NameOfPane(grid, pane));
    }
}

/// Only the current pane is a stop of the Tab key. None takes the keyboard at a press: it would leave an open editor
/// before the press has been told.
void GridWidget::HandOutFocus() {
    for (GridPaneView* pane : panes) {
        pane->setFocusPolicy(pane == CurrentPaneView() ? Qt::TabFocus : Qt::NoFocus);
    }
}

void GridWidget::ReadRows() {
    const int firstRow = FirstVisibleRow();
    RunGuarded([this] { rowsRead = grid.RowsRead(); });
    rowsTold = grid.RowCount();
    for (GridPaneView* pane : panes) {
        pane->TakeRows(rowsRead);
    }
    PlaceParts();
    for (GridPaneView* pane : panes) {
        pane->verticalScrollBar()->setValue(firstRow);
    }
}

void GridWidget::PlaceParts() {
    measures = MeasureGrid(grid, size(), rowsRead, style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    for (std::size_t pane = 0; pane < panes.size(); ++pane) {
        panes[pane]->Place(measures.panes[pane]);
    }
    PlaceScrollBars();
    PutEditorOverCell();
    update();
}

void GridWidget::PlaceScrollBars() {
    const auto follow = [](QScrollBar& bar, const QScrollBar& followed, const QRect& place) {
        bar.setRange(followed.minimum(), followed.maximum());
        bar.setPageStep(followed.pageStep());
        bar.setValue(followed.value());
        bar.setGeometry(place);
        bar.setVisible(!place.isEmpty());
    };
    for (std::size_t pane = 0; pane < panes.size(); ++pane) {
        follow(*paneBars[pane], *panes[pane]->horizontalScrollBar(), measures.panes[pane].scrollBar);
    }
    if (!panes.empty()) {
        follow(*rowBar, *panes.front()->verticalScrollBar(), measures.scrollBar);
    }
}

void GridWidget::ReadAgain() {
    ReadRows();
    DrawAnew();
}

void GridWidget::Repaint() {
    DrawAnew();
}

void GridWidget::DrawAnew() {
    drawnAnew = true;
    update();
    for (GridPaneView* pane : panes) {
        pane->viewport()->update();
    }
}

void GridWidget::ShowCurrentCell() {
    if (!grid.IsOn()) {
        shownCell = {};
        return;
    }
    shownCell = grid.CurrentCell();
    const bool hadKeyboard = HasKeyboard();
    for (GridPaneView* pane : panes) {
        pane->FollowCurrentCell();
        pane->ScrollTo(shownCell);
    }
    HandOutFocus();
    if (hadKeyboard) {
        TakeFocus();
    }
    DrawAnew();
}

bool GridWidget::EndEdit() {
    return editor->Leave();
}

void GridWidget::SelectCellText() {
    if (editor->IsOpen()) {
        editor->selectAll();
    } else {
        OpenEditor(GridCellEditor::Start::Selected);
    }
}

bool GridWidget::HasSelectedText() const {
    return editor->IsOpen() && editor->hasSelectedText();
}

int GridWidget::FirstVisibleRow() const {
    return panes.empty() ? 0 : panes.front()->verticalScrollBar()->value();
}

int GridWidget::VisibleRows() const {
    return panes.empty() ? 0 : std::min(panes.front()->WholeRows(), rowsRead - FirstVisibleRow());
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

void GridWidget::TakeFocus() {
    if (CurrentPaneView() != nullptr) {
        CurrentPaneView()->setFocus(Qt::OtherFocusReason);
    }
}

bool GridWidget::HasKeyboard() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && isAncestorOf(focused);
}

GridPaneView* GridWidget::CurrentPaneView() const {
    const auto pane = static_cast<std::size_t>(grid.CurrentPane());
    return pane < panes.size() ? panes[pane] : nullptr;
}

void GridWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawGridFrame(painter, grid, measures, size(), {FirstVisibleRow(), VisibleRows()});
}

void GridWidget::resizeEvent(QResizeEvent*) {
    if (!panes.empty()) {
        PlaceParts();
        DrawAnew();
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
        Report(grid.painted);
    }
}

}  // namespace ballhaven::platform
