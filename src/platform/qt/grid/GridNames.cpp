#include "platform/qt/grid/GridNames.h"

#include "platform/Guard.h"
#include "platform/qt/widgets/Conversions.h"

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

QString NameOfPane(const Grid& grid, int pane) {
    if (!grid.Pane(pane).accessibleName->empty()) {
        return ToQString(*grid.Pane(pane).accessibleName);
    }
    return NameOfGrid(grid) + (grid.PaneCount() > 1 ? QStringLiteral(" %1").arg(pane + 1) : QString());
}

}  // namespace ballhaven::platform
