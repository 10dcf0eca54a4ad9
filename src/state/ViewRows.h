#pragma once

#include "state/Table.h"

#include <cstdint>
#include <span>

namespace ballhaven {

/// Columns of picks in a draw, from 1, both ends included; none where `last` is below `first`.
struct PickColumns {
    int first;
    int last;

    bool operator==(const PickColumns&) const = default;
};

/// The draws of a view as rows of picks. Looks into the view's table and lives no longer than that.
class DrawRows {
  public:
    /// The picks in some columns of the first `games` rows of a view.
    DrawRows(const Table& viewTable, int games, PickColumns pickColumns)
        : view(&viewTable), gameCount(games), columns(pickColumns) {}

    [[nodiscard]] int Games() const { return gameCount; }

    /// The picks of a row, -1 for a blank cell. Fewer, or none, where the view has no such columns or no such row.
    [[nodiscard]] std::span<const std::int16_t> Picks(int row) const;

  private:
    const Table* view;
    int gameCount;
    PickColumns columns;
};

/// The draws of `historyView` with all their picks, columns 1 to `totalPicks`.
[[nodiscard]] DrawRows ViewedDraws();

/// The first of rows 0 to `last` of a table of draws that has a date, as its serial; -1 if none has it.
[[nodiscard]] int RowOfDate(const Table& draws, int last, std::int16_t date);

/// The same in `historyView`.
[[nodiscard]] int RowOfDate(std::int16_t date);

/// The picks of a row of `historyView`, columns 1 to `totalPicks`, -1 for a blank cell. Fewer, or none, where the view
/// has no such columns or no such row.
[[nodiscard]] std::span<const std::int16_t> PicksOfDraw(int row);

}  // namespace ballhaven
