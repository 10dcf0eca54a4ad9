#include "platform/qt/grid/GridPaneView.h"

#include "platform/qt/grid/GridHeadings.h"
#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/Conversions.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace ballhaven::platform {

GridPaneView::GridPaneView(Grid& shownGrid, int shownPane, QWidget* parent)
    : QTableView(parent), grid(shownGrid), pane(shownPane), cells(shownGrid, shownPane), painter(shownGrid, cells) {
    setObjectName(QStringLiteral("%1.pane(%2)").arg(ToQString(grid.name)).arg(pane));
    setHorizontalHeader(new GridHeadings(grid.Pane(pane), this));
    setModel(&cells);
    setItemDelegate(&painter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    // The pixels of the last repaint stay while the grid is switched off.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void GridPaneView::Place(const GridMeasures::PanePlace& place) {
    horizontalHeader()->setVisible(grid.showsHeadings);
    verticalHeader()->setDefaultSectionSize(RowPixels(grid));
    if (cells.TakeColumns()) {
        FollowCurrentCell();
    }
    for (int column = 0; column < cells.columnCount(); ++column) {
        horizontalHeader()->resizeSection(column, place.columnWidths[static_cast<std::size_t>(column)]);
    }
    setGeometry(place.place);
    updateGeometries();
}

void GridPaneView::TakeRows(int count) {
    cells.TakeRows(count);
    FollowCurrentCell();
}

void GridPaneView::FollowCurrentCell() {
    following = true;
    const QModelIndex current = hasFocus() ? cells.IndexOf(grid.CurrentCell()) : QModelIndex();
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    following = false;
}

void GridPaneView::ScrollTo(const GridCell& cell) {
    const QModelIndex index = cells.IndexOf(cell);
    if (index.isValid()) {
        scrollTo(index);
    }
}

QRect GridPaneView::CellPlace(const GridCell& cell) const {
    return visualRect(cells.IndexOf(cell));
}

std::optional<GridCell> GridPaneView::CellAt(QPoint position) const {
    const QModelIndex index = indexAt(position);
    return index.isValid() ? std::optional(cells.CellOf(index)) : std::nullopt;
}

int GridPaneView::WholeRows() const {
    return viewport()->height() / RowPixels(grid);
}

bool GridPaneView::event(QEvent* event) {
    // Tab is a key of the grid before it leads out of it.
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
            keyPressEvent(key);
            return true;
        }
    }
    return QTableView::event(event);
}

void GridPaneView::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(keyPressed(*event));
}

// The toolkit's table draws all of itself anew when its window or itself gets the keyboard or loses it: only the mark
// of the current cell looks otherwise then.
bool GridPaneView::viewportEvent(QEvent* event) {
    const bool isOfTheWindow = event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate;
    return isOfTheWindow || QTableView::viewportEvent(event);
}

void GridPaneView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    setAutoScroll(false);  // a click is for the cell on which it fell
    FollowCurrentCell();
    setAutoScroll(true);
    if (focused) {
        focused();
    }
}

void GridPaneView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    FollowCurrentCell();
}

void GridPaneView::paintEvent(QPaintEvent* event) {
    const bool whole = event->region().boundingRect().contains(viewport()->rect());
    if (grid.IsOn()) {
        QPainter(viewport()).fillRect(event->rect(), palette().color(QPalette::Base));
        QTableView::paintEvent(event);
        drawnSize = viewport()->size();
        repainted(whole);
    } else if (!whole || drawnSize != viewport()->size()) {
        QPainter(viewport()).fillRect(event->rect(), palette().color(QPalette::Base));
    }
}

void GridPaneView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    scrolled();
}

void GridPaneView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The toolkit's table would tell assistive tools of a focus also where the keyboard is elsewhere, and of cells that
    // the joined table tells of.
    if (hasFocus() && !IsOneTable(grid)) {
        QTableView::currentChanged(current, previous);
    } else {
        QAbstractItemView::currentChanged(current, previous);
    }
    if (!following && current.isValid()) {
        movedFromOutside(cells.CellOf(current));
    }
}

bool GridPaneView::edit(const QModelIndex& index, EditTrigger trigger, QEvent*) {
    // The toolkit's own editor would restore the old value when a new one is refused; the grid has its own.
    if (trigger != AllEditTriggers || !index.flags().testFlag(Qt::ItemIsEditable)) {
        return false;
    }
    movedFromOutside(cells.CellOf(index));
    editAsked();
    return true;
}

}  // namespace ballhaven::platform
