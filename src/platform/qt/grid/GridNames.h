#pragma once

#include "platform/controls/Grid.h"

#include <QString>

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

/// A pane: a board by its own name, any other of several by the grid's name and its number from 1.
[[nodiscard]] QString NameOfPane(const Grid& grid, int pane);

}  // namespace ballhaven::platform
