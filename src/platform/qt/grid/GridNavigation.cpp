#include "platform/qt/grid/GridNavigation.h"

#include <algorithm>
#include <vector>

namespace ballhaven::platform {

namespace {

bool CanBeCurrent(const GridColumn& column) {
    return column.visible && column.focusable;
}

/// The cells of a row that can become current, from left to right.
std::vector<GridCell> Stops(const Grid& grid, int row) {
    std::vector<GridCell> stops;
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        for (int column = grid.Pane(pane).firstColumn; column <= grid.Pane(pane).lastColumn; ++column) {
            if (CanBeCurrent(grid.Column(column))) {
                stops.push_back({pane, row, column});
            }
        }
    }
    return stops;
}

bool IsLeftOf(const GridCell& one, const GridCell& other) {
    return one.pane != other.pane ? one.pane < other.pane : one.column < other.column;
}

std::optional<GridCell> NextStop(const Grid& grid) {
    const auto stops = Stops(grid, grid.CurrentRow());
    const auto found = std::ranges::upper_bound(stops, grid.CurrentCell(), IsLeftOf);
    return found == stops.end() ? std::nullopt : std::optional(*found);
}

std::optional<GridCell> PreviousStop(const Grid& grid) {
    const auto stops = Stops(grid, grid.CurrentRow());
    const auto found = std::ranges::lower_bound(stops, grid.CurrentCell(), IsLeftOf);
    return found == stops.begin() ? std::nullopt : std::optional(*std::prev(found));
}

std::optional<GridCell> InSamePane(const Grid& grid, std::optional<GridCell> stop) {
    return stop && stop->pane == grid.CurrentPane() ? stop : std::nullopt;
}

/// The first or last stop of the current pane, in a row of choice.
std::optional<GridCell> EndOfPane(const Grid& grid, bool last, int row) {
    auto stops = Stops(grid, row);
    std::erase_if(stops, [&grid](const GridCell& stop) { return stop.pane != grid.CurrentPane(); });
    if (stops.empty()) {
        return std::nullopt;
    }
    return last ? stops.back() : stops.front();
}

}  // namespace

GridKey KeyOf(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Insert:
            return GridKey::Insert;
        case Qt::Key_Left:
            return GridKey::Left;
        case Qt::Key_Right:
            return GridKey::Right;
        case Qt::Key_Tab:
            return GridKey::Tab;
        default:
            return GridKey::Other;
    }
}

bool IsDropDownKey(const QKeyEvent& key) {
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return (key.key() == Qt::Key_F4 && plain) || (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier));
}

bool IsTyping(const QKeyEvent& key) {
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(key.modifiers() & commands) && !key.text().isEmpty() && key.text().front().isPrint();
}

std::optional<GridCell> CellByKey(const Grid& grid, const QKeyEvent& key, int rowCount, int pageRows) {
    const GridCell current = grid.CurrentCell();
    if (current.row < 0 || rowCount == 0 || (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier))) {
        return std::nullopt;
    }
    const bool withControl = key.modifiers() & Qt::ControlModifier;
    const auto inRow = [current, rowCount](int row) {
        return GridCell{current.pane, std::clamp(row, 0, rowCount - 1), current.column};
    };
    switch (key.key()) {
        case Qt::Key_Up:
            return inRow(current.row - 1);
        case Qt::Key_Down:
            return inRow(current.row + 1);
        case Qt::Key_PageUp:
            return inRow(current.row - std::max(1, pageRows));
        case Qt::Key_PageDown:
            return inRow(current.row + std::max(1, pageRows));
        case Qt::Key_Left:
            return PreviousStop(grid);
        case Qt::Key_Right:
            return NextStop(grid);
        case Qt::Key_Tab:
            return InSamePane(grid, NextStop(grid));
        case Qt::Key_Backtab:
            return InSamePane(grid, PreviousStop(grid));
        case Qt::Key_Home:
            return EndOfPane(grid, false, withControl ? 0 : current.row);
        case Qt::Key_End:
            return EndOfPane(grid, true, withControl ? rowCount - 1 : current.row);
        default:
            return std::nullopt;
    }
}

}  // namespace ballhaven::platform
