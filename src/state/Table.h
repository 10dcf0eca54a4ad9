#pragma once

#include "state/RuntimeFailure.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ballhaven {

/// A two-dimensional table of 16-bit integers, addressed by column and row from 0. A table that was never dimensioned
/// has no columns and no rows.
class Table {
  public:
    Table() = default;

    /// A table of `columns` times `rows` cells, all holding `value`.
    Table(int columns, int rows, std::int16_t value = 0)
        : columnCount(columns),
          rowCount(rows),
          cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), value) {}

    [[nodiscard]] int Columns() const { return columnCount; }
    [[nodiscard]] int Rows() const { return rowCount; }

    [[nodiscard]] bool Has(int column, int row) const {
        return 0 <= column && column < columnCount && 0 <= row && row < rowCount;
    }

    /// A cell. Raises the subscript failure for one that the table does not have.
    std::int16_t& operator()(int column, int row) { return cells[Index(column, row)]; }
    std::int16_t operator()(int column, int row) const { return cells[Index(column, row)]; }

    /// The pick in a cell, -1 (an empty cell) where the table has no such cell.
    [[nodiscard]] std::int16_t PickAt(int column, int row) const {
        return Has(column, row) ? cells[Index(column, row)] : std::int16_t{-1};
    }

    /// The cells of a row, from column 0. Raises the subscript failure for a row that the table does not have.
    [[nodiscard]] std::span<std::int16_t> Row(int row) { return {&cells[Index(0, row)], Width()}; }
    [[nodiscard]] std::span<const std::int16_t> Row(int row) const { return {&cells[Index(0, row)], Width()}; }

    bool operator==(const Table&) const = default;

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
    std::vector<std::int16_t> cells;
};

}  // namespace ballhaven
