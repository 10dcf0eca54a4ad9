#include "platform/qt/grid/GridPanes.h"

#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/Conversions.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>

namespace ballhaven::platform {

namespace {

void Follow(QScrollBar& bar, const QScrollBar& followed, const QRect& place) {
    bar.setRange(followed.minimum(), followed.maximum());
    bar.setPageStep(followed.pageStep());
    bar.setValue(followed.value());
    bar.setGeometry(place);
    bar.setVisible(!place.isEmpty());
}

QScrollBar* NewBar(Qt::Orientation orientation, const QString& name, QWidget& parent) {
    auto* bar = new QScrollBar(orientation, &parent);
    bar->setObjectName(name);
    bar->setFocusPolicy(Qt::NoFocus);
    return bar;
}

}  // namespace

GridPanes::GridPanes(Grid& shownGrid, QWidget& partsParent)
    : grid(shownGrid),
      parent(partsParent),
      rowBar(NewBar(Qt::Vertical, ToQString(shownGrid.name) + QStringLiteral(".rows"), partsParent)) {
    QObject::connect(rowBar, &QScrollBar::valueChanged, &parent, [this](int row) {
        for (GridPaneView* pane : panes) {
            pane->verticalScrollBar()->setValue(row);
        }
    });
}

GridPanes::~GridPanes() {
    for (GridPaneView* pane : panes) {
        delete pane;
    }
}

void GridPanes::AddMissing(const std::function<void(GridPaneView& pane)>& added) {
    while (static_cast<int>(panes.size()) < grid.PaneCount()) {
        Add(static_cast<int>(panes.size()));
        added(*panes.back());
        panes.back()->show();
    }
}

void GridPanes::Add(int number) {
    auto* pane = new GridPaneView(grid, number, &parent);
    const QString name = QStringLiteral("%1.columns(%2)").arg(ToQString(grid.name)).arg(number);
    QScrollBar* bar = NewBar(Qt::Horizontal, name, parent);
    QObject::connect(bar, &QScrollBar::valueChanged, pane->horizontalScrollBar(), &QScrollBar::setValue);
    QObject::connect(pane->horizontalScrollBar(), &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
    QObject::connect(pane->verticalScrollBar(), &QScrollBar::valueChanged, rowBar, &QScrollBar::setValue);
    panes.push_back(pane);
    columnBars.push_back(bar);
}

GridPaneView* GridPanes::Current() const {
    const auto pane = static_cast<std::size_t>(grid.CurrentPane());
    return pane < panes.size() ? panes[pane] : nullptr;
}

void GridPanes::Name() {
    for (int pane = 0; pane < static_cast<int>(panes.size()); ++pane) {
        Pane(pane).setAccessibleName(NameOfPane(grid, pane));
    }
}

void GridPanes::Place(const GridMeasures& measures) {
    for (std::size_t pane = 0; pane < panes.size(); ++pane) {
        panes[pane]->Place(measures.panes[pane]);
        Follow(*columnBars[pane], *panes[pane]->horizontalScrollBar(), measures.panes[pane].scrollBar);
    }
    if (!panes.empty()) {
        Follow(*rowBar, *panes.front()->verticalScrollBar(), measures.scrollBar);
    }
}

void GridPanes::TakeRows(int count) {
    rows = count;
    for (GridPaneView* pane : panes) {
        pane->TakeRows(count);
    }
}

int GridPanes::FirstVisibleRow() const {
    return panes.empty() ? 0 : panes.front()->verticalScrollBar()->value();
}

int GridPanes::VisibleRows() const {
    return panes.empty() ? 0 : std::min(panes.front()->WholeRows(), rows - FirstVisibleRow());
}

void GridPanes::FollowCurrentCell() {
    for (GridPaneView* pane : panes) {
        pane->FollowCurrentCell();
    }
}

void GridPanes::ScrollToCurrentCell() {
    for (GridPaneView* pane : panes) {
        pane->ScrollTo(grid.CurrentCell());
    }
}

void GridPanes::ScrollToRow(int row) {
    for (GridPaneView* pane : panes) {
        pane->verticalScrollBar()->setValue(row);
    }
}

void GridPanes::HandOutTabStops() {
    for (GridPaneView* pane : panes) {
        pane->setFocusPolicy(pane == Current() ? Qt::TabFocus : Qt::NoFocus);
    }
}

void GridPanes::TakeFocus() {
    if (Current() != nullptr) {
        Current()->setFocus(Qt::OtherFocusReason);
    }
}

bool GridPanes::HaveKeyboard() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && parent.isAncestorOf(focused);
}

void GridPanes::Redraw() {
    for (GridPaneView* pane : panes) {
        pane->viewport()->update();
    }
}

void GridPanes::RedrawRow(int row) {
    for (GridPaneView* pane : panes) {
        pane->viewport()->update(0, pane->rowViewportPosition(row), pane->viewport()->width(), RowPixels(grid));
    }
}

void GridPanes::ScrollByWheel(QWheelEvent& turn) {
    QApplication::sendEvent(rowBar, &turn);
}

std::optional<GridCell> GridPanes::CellAt(QPoint position) const {
    for (const GridPaneView* pane : panes) {
        const QPoint inside = pane->viewport()->mapFrom(&parent, position);
        if (pane->viewport()->rect().contains(inside)) {
            return pane->CellAt(inside);
        }
    }
    return std::nullopt;
}

std::optional<QRect> GridPanes::PlaceOfCellAt(QPoint position) const {
    const std::optional<GridCell> cell = CellAt(position);
    if (!cell) {
        return std::nullopt;
    }
    const GridPaneView& pane = Pane(cell->pane);
    const QRect place = pane.CellPlace(*cell);
    return QRect(pane.viewport()->mapTo(&parent, place.topLeft()), place.size());
}

}  // namespace ballhaven::platform
