#include "platform/qt/grid/GridNames.h"

#include "platform/Guard.h"
#include "platform/qt/widgets/Conversions.h"

#include <algorithm>

namespace ballhaven::platform {

QString NameOfColumn(const Grid& grid, int column) {
    const GridColumn& named = grid.Column(column);
    return ToQString(named.accessibleHeading->empty() ? *named.heading : *named.accessibleHeading);
}

QString NameOfRow(const Grid& grid, int row) {
    QString name;
    if (grid.rowNameColumn >= 0 && row >= 0 && grid.IsOn() && grid.cellText) {
        RunGuardedReading([&] {
            name = ToQString(grid.cellText({0, row, grid.rowNameColumn}).value_or(std::string()));
        });
    }
    return name;
}

QString NameOfEditor(const Grid& grid, const GridCell& cell) {
    const QString column = NameOfColumn(grid, cell.column);
    const QString row = NameOfRow(grid, cell.row);
    return column.isEmpty() || row.isEmpty() ? column + row : column + QStringLiteral(", ") + row;
}

QString NameOfGrid(const Grid& grid) {
    return ToQString(grid.caption->empty() ? *grid.accessibleName : *grid.caption);
}

bool IsOneTable(const Grid& grid) {
    return grid.PaneCount() > 1 && grid.Pane(1).firstColumn > grid.Pane(0).lastColumn;
}

std::vector<GridCell> FirstRowOfTable(const Grid& grid) {
    std::vector<GridCell> cells;
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        for (int column = grid.Pane(pane).firstColumn; column <= grid.Pane(pane).lastColumn; ++column) {
            if (*grid.Column(column).visible) {
                cells.push_back({pane, 0, column});
            }
        }
    }
    return cells;
}

int IndexInTable(const Grid& grid, const GridCell& cell) {
    const std::vector<GridCell> cells = FirstRowOfTable(grid);
    const auto found = std::ranges::find(cells, GridCell{cell.pane, 0, cell.column});
    return cell.row < 0 || found == cells.end()
               ? -1
               : cell.row * static_cast<int>(cells.size()) + static_cast<int>(found - cells.begin());
}

QString NameOfPane(const Grid& grid, int pane) {
    if (!grid.Pane(pane).accessibleName->empty()) {
        return ToQString(*grid.Pane(pane).accessibleName);
    }
    return NameOfGrid(grid) + (grid.PaneCount() > 1 ? QStringLiteral(" %1").arg(pane + 1) : QString());
}

}  // namespace ballhaven::platform
