#pragma once

#include "platform/controls/Grid.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

namespace ballhaven::platform {

/// The rows and columns of a grid for the toolkit's views. It holds no cell: texts and colours are asked of the grid's
/// owner when they are drawn, and never while the grid is switched off.
class GridModel : public QAbstractTableModel {
  public:
    explicit GridModel(Grid& shownGrid) : grid(shownGrid) {}

    /// Asks the owner how many rows there are to be read. While the grid is switched off nothing happens.
    void ReadRows();

    /// Whether the grid's owner has told another row count, or other columns have been set, since the rows were read.
    [[nodiscard]] bool IsOutdated() const;

    [[nodiscard]] QString CellText(int row, int column) const;
    [[nodiscard]] CellStyle StyleOf(int row, int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// An edit from outside, such as an assistive tool's: the cell becomes current, and the value is checked like one
    /// that was typed in it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  private:
    Grid& grid;
    int rowsRead = 0;
    int rowsTold = 0;
    int columnsRead = 0;
};

/// The visible columns of one pane of a grid. A view that merely hid the other columns would still tell assistive
/// tools of them, so that every cell would be there once for each pane.
class PaneColumns : public QSortFilterProxyModel {
  public:
    PaneColumns(const Grid& shownGrid, int shownPane, GridModel& model);

    /// Takes over which columns are visible.
    void ChooseColumns() { invalidateColumnsFilter(); }

  protected:
    [[nodiscard]] bool filterAcceptsColumn(int column, const QModelIndex& parent) const override;

  private:
    const Grid& grid;
    const int pane;
};

}  // namespace ballhaven::platform
