#pragma once

#include "platform/controls/Grid.h"

#include <QString>

#include <vector>

namespace ballhaven::platform {

/// What assistive tools call the parts of a grid. Nothing is asked of the owner of a grid that is switched off.

/// A column, by its accessible heading, or else by the one that is shown.
[[nodiscard]] QString NameOfColumn(const Grid& grid, int column);

/// A row, by its text in the grid's `rowNameColumn`; empty where there is none.
[[nodiscard]] QString NameOfRow(const Grid& grid, int row);

/// The editor of a cell, by its column and its row.
[[nodiscard]] QString NameOfEditor(const Grid& grid, const GridCell& cell);

/// The grid itself, by its caption, or else by its accessible name.
[[nodiscard]] QString NameOfGrid(const Grid& grid);

/// Whether the panes together are one table to assistive tools: there are several, and each shows columns of its own.
[[nodiscard]] bool IsOneTable(const Grid& grid);

/// The cells of the first row of that table from left to right, and the place of a cell in it, counted along the rows
/// from 0; -1 for a cell that is not shown.
[[nodiscard]] std::vector<GridCell> FirstRowOfTable(const Grid& grid);
[[nodiscard]] int IndexInTable(const Grid& grid, const GridCell& cell);

/// A pane: a board by its own name, any other of several by the grid's name and its number from 1.
[[nodiscard]] QString NameOfPane(const Grid& grid, int pane);

}  // namespace ballhaven::platform
