#pragma once

#include "platform/controls/Grid.h"

#include <QAbstractTableModel>

#include <vector>

namespace ballhaven::platform {

/// The rows and the visible columns of one pane of a grid for the toolkit's table. A table that merely hid the other
/// columns would still tell assistive tools of them, so that every cell would be there once for each pane. It holds no
/// cell: texts and colours are asked of the grid's owner when they are drawn, and never while the grid is switched off.
class GridPaneModel : public QAbstractTableModel {
  public:
    GridPaneModel(Grid& shownGrid, int shownPane);

    /// Has so many rows from now on, those that the owner has been found to know.
    void TakeRows(int count);

    /// Takes over which columns of the pane are visible. True when they have changed.
    bool TakeColumns();

    /// The cell of the grid that an index of the table stands for, and the other way; an invalid index for a cell that
    /// the pane does not show.
    [[nodiscard]] GridCell CellOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex IndexOf(const GridCell& cell) const;

    [[nodiscard]] QString CellText(const GridCell& cell) const;
    [[nodiscard]] QString CellDescription(const GridCell& cell) const;
    [[nodiscard]] CellStyle StyleOf(const GridCell& cell) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// An edit from outside, such as an assistive tool's: the cell becomes current, and the value is checked like one
    /// that was typed in it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  private:
    [[nodiscard]] bool CanBeTypedIn(const GridCell& cell) const;

    Grid& grid;
    const int pane;
    int rows = 0;
    std::vector<int> columns;
};

}  // namespace ballhaven::platform
