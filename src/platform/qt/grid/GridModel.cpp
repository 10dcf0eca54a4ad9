#include "platform/qt/grid/GridModel.h"

#include "platform/Guard.h"
#include "platform/qt/widgets/Conversions.h"

namespace ballhaven::platform {

namespace {

/// The pane that shows a column, -1 for none.
int PaneOf(const Grid& grid, int column) {
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        if (grid.Pane(pane).Has(column)) {
            return pane;
        }
    }
    return -1;
}

bool CanBeTypedIn(const Grid& grid, int column) {
    const int pane = PaneOf(grid, column);
    return pane >= 0 && !grid.Pane(pane).locked && !grid.Column(column).locked && grid.Column(column).visible;
}

}  // namespace

void GridModel::ReadRows() {
    if (!grid.IsOn()) {
        return;
    }
    beginResetModel();
    RunGuarded([this] { rowsRead = grid.RowsRead(); });
    rowsTold = grid.RowCount();
    columnsRead = grid.ColumnCount();
    endResetModel();
}

bool GridModel::IsOutdated() const {
    return rowsTold != grid.RowCount() || columnsRead != grid.ColumnCount();
}

QString GridModel::CellText(int row, int column) const {
    QString text;
    if (grid.IsOn() && grid.cellText && row < rowsRead) {
        RunGuarded([&] { text = ToQString(grid.cellText(row, column).value_or(std::string())); });
    }
    return text;
}

CellStyle GridModel::StyleOf(int row, int column) const {
    CellStyle style{windowTextColor, grid.Column(column).background};
    if (grid.Column(column).styled && grid.IsOn() && grid.cellStyle && row < rowsRead) {
        RunGuarded([&] { grid.cellStyle(row, column, style); });
    }
    return style;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rowsRead;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnsRead;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return CellText(index.row(), index.column());
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= grid.ColumnCount()) {
        return {};
    }
    return ToQString(*grid.Column(section).heading);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    flags.setFlag(Qt::ItemIsSelectable, grid.Column(index.column()).focusable);
    flags.setFlag(Qt::ItemIsEditable, CanBeTypedIn(grid, index.column()));
    return flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid() || !grid.IsOn() || !CanBeTypedIn(grid, index.column())) {
        return false;
    }
    bool accepted = false;
    RunGuarded([&] {
        if (grid.EndEdit()) {
            grid.MoveByUser(PaneOf(grid, index.column()), index.row(), index.column());
            accepted = grid.Edit(index.column(), FromQString(value.toString()));
        }
    });
    return accepted;
}

PaneColumns::PaneColumns(const Grid& shownGrid, int shownPane, GridModel& model) : grid(shownGrid), pane(shownPane) {
    setSourceModel(&model);
}

bool PaneColumns::filterAcceptsColumn(int column, const QModelIndex&) const {
    return column < grid.ColumnCount() && grid.Pane(pane).Has(column) && grid.Column(column).visible;
}

}  // namespace ballhaven::platform
