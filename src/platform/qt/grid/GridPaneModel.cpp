#include "platform/qt/grid/GridPaneModel.h"

#include "platform/Guard.h"
#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/Conversions.h"

#include <algorithm>

namespace ballhaven::platform {

namespace {

std::vector<int> VisibleColumns(const Grid& grid, int pane) {
    std::vector<int> columns;
    for (int column = grid.Pane(pane).firstColumn; column <= grid.Pane(pane).lastColumn; ++column) {
        if (grid.Column(column).visible) {
            columns.push_back(column);
        }
    }
    return columns;
}

}  // namespace

GridPaneModel::GridPaneModel(Grid& shownGrid, int shownPane)
    : grid(shownGrid), pane(shownPane), columns(VisibleColumns(shownGrid, shownPane)) {}

void GridPaneModel::TakeRows(int count) {
    beginResetModel();
    rows = count;
    endResetModel();
}

bool GridPaneModel::TakeColumns() {
    std::vector<int> visible = VisibleColumns(grid, pane);
    if (visible == columns) {
        return false;
    }
    beginResetModel();
    columns = std::move(visible);
    endResetModel();
    return true;
}

GridCell GridPaneModel::CellOf(const QModelIndex& index) const {
    return {pane, index.row(), columns.at(static_cast<std::size_t>(index.column()))};
}

QModelIndex GridPaneModel::IndexOf(const GridCell& cell) const {
    const auto found = std::ranges::find(columns, cell.column);
    if (cell.pane != pane || found == columns.end()) {
        return {};
    }
    return index(cell.row, static_cast<int>(found - columns.begin()));
}

QString GridPaneModel::CellText(const GridCell& cell) const {
    QString text;
    if (grid.IsOn() && grid.cellText && cell.row < rows) {
        RunGuardedReading([&] { text = ToQString(grid.cellText(cell).value_or(std::string())); });
    }
    return text;
}

QString GridPaneModel::CellDescription(const GridCell& cell) const {
    QString description;
    if (grid.IsOn() && grid.cellDescription && cell.row < rows) {
        RunGuardedReading([&] { description = ToQString(grid.cellDescription(cell)); });
    }
    return description.isEmpty() ? CellText(cell) : description;
}

CellStyle GridPaneModel::StyleOf(const GridCell& cell) const {
    const GridColumn& column = grid.Column(cell.column);
    CellStyle style{windowTextColor, column.background};
    if (column.styled && grid.IsOn() && grid.cellStyle && cell.row < rows) {
        RunGuardedReading([&] { grid.cellStyle(cell, style); });
    }
    return style;
}

bool GridPaneModel::CanBeTypedIn(const GridCell& cell) const {
    return !grid.Pane(pane).locked && !grid.Column(cell.column).locked;
}

int GridPaneModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows;
}

int GridPaneModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant GridPaneModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return CellText(CellOf(index));
        case Qt::AccessibleTextRole:
            return CellDescription(CellOf(index));
        default:
            return {};
    }
}

QVariant GridPaneModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool spoken = role == Qt::AccessibleTextRole;
    if (orientation == Qt::Vertical) {
        return spoken && section < rows ? NameOfRow(grid, section) : QVariant();
    }
    if ((!spoken && role != Qt::DisplayRole) || section >= columnCount()) {
        return {};
    }
    const int column = columns[static_cast<std::size_t>(section)];
    return spoken ? NameOfColumn(grid, column) : ToQString(*grid.Column(column).heading);
}

Qt::ItemFlags GridPaneModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const GridCell cell = CellOf(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsSelectable, grid.Column(cell.column).focusable);
    flags.setFlag(Qt::ItemIsEditable, CanBeTypedIn(cell));
    return flags;
}

bool GridPaneModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid() || !grid.IsOn() || !CanBeTypedIn(CellOf(index))) {
        return false;
    }
    const GridCell cell = CellOf(index);
    bool accepted = false;
    RunGuarded([&] {
        if (grid.EndEdit()) {
            grid.MoveByUser(cell);
            accepted = grid.Edit(cell.column, FromQString(value.toString()));
        }
    });
    return accepted;
}

}  // namespace ballhaven::platform
