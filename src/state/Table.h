#pragma once

#include "state/RuntimeFailure.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ballhaven {

/// A two-dimensional table of integers, addressed by column and row from 0. A table that was never dimensioned has no
/// columns and no rows.
template <typename Cell>
class TableOfCells {
  public:
    TableOfCells() = default;

    /// A table of `columns` times `rows` cells, all holding `value`.
    TableOfCells(int columns, int rows, Cell value = 0)
        : columnCount(columns),
          rowCount(rows),
          cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), value) {}

    [[nodiscard]] int Columns() const { return columnCount; }
    [[nodiscard]] int Rows() const { return rowCount; }

    [[nodiscard]] bool Has(int column, int row) const {
        return 0 <= column && column < columnCount && 0 <= row && row < rowCount;
    }

    /// A cell. Raises the subscript failure for one that the table does not have.
    Cell& operator()(int column, int row) { return cells[Index(column, row)]; }
    Cell operator()(int column, int row) const { return cells[Index(column, row)]; }

    /// The pick in a cell, -1 (an empty cell) where the table has no such cell.
    [[nodiscard]] Cell PickAt(int column, int row) const {
        return Has(column, row) ? cells[Index(column, row)] : Cell{-1};
    }

    /// The cells of a row, from column 0. Raises the subscript failure for a row that the table does not have.
    [[nodiscard]] std::span<Cell> Row(int row) { return {&cells[Index(0, row)], Width()}; }
    [[nodiscard]] std::span<const Cell> Row(int row) const { return {&cells[Index(0, row)], Width()}; }

    bool operator==(const TableOfCells&) const = default;

  private:
    [[nodiscard]] std::size_t Width() const { return static_cast<std::size_t>(columnCount); }

    [[nodiscard]] std::size_t Index(int column, int row) const {
        if (!Has(column, row)) {
            throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(row) * Width() + static_cast<std::size_t>(column);
    }

    int columnCount = 0;
    int rowCount = 0;
    std::vector<Cell> cells;
};

/// Draws: dates and picks.
using Table = TableOfCells<std::int16_t>;

/// Picks with what was counted of them.
using CountTable = TableOfCells<std::int32_t>;

}  // namespace ballhaven
