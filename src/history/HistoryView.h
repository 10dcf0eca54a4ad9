#pragma once

#include "state/Table.h"

#include <cstdint>

namespace ballhaven {

/// Draws in the first rows of a table: column 0 the date, columns 1 on the picks, -1 for a blank one.
struct Draws {
    Table table;
    std::int16_t last = -1;  ///< the last row with a draw, -1 for none
};

/// Which draws of a history are looked at: the last `size`, and in which order.
struct HistorySet {
    int size;
    bool newestFirst;
};

/// The draws of the history set out of rows 0 to `last` of a history, in display order, in a table of `picks` picks and
/// the set's size. Stops at a row without a date. Picks that the history has no columns for are blank.
[[nodiscard]] Draws ViewOf(const Table& history, int last, int picks, const HistorySet& set);

/// The history with rows 0 to `last` in ascending order of date; rows of one date keep their order. Rows behind `last`
/// stay as they are.
[[nodiscard]] Table Sorted(const Table& history, int last);

/// The rows of a history that have a date, moved up to row 0 in their order, in a table of `picks` picks.
[[nodiscard]] Draws Compacted(const Table& history, int picks);

/// Puts rows 0 to `historyLast` of `HistoryTable` in ascending order of date.
void SortHistory();

/// Closes the gaps in `HistoryTable`: the rows with a date move up to row 0 in their order, all others become empty,
/// and `historyLast` counts them again.
void CompactHistory();

}  // namespace ballhaven
