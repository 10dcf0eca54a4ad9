#pragma once

#include "state/Table.h"

#include <compare>
#include <cstdint>

namespace ballhaven {

/// Two picks of one game, by value. A row of a work table that nothing was written into is the pair 0, 0.
struct PickPair {
    std::int16_t lower = 0;
    std::int16_t higher = 0;

    /// By the lower pick, then by the higher one.
    auto operator<=>(const PickPair&) const = default;
};

/// The pair of the picks in two rows of `hotNumberTable`, in either order.
[[nodiscard]] PickPair PairOfRows(int row, int otherRow);

/// Whether both picks lie in `mainLow` to `mainHigh`.
[[nodiscard]] bool IsOfMainPicks(PickPair pair);

/// Counts the joint games of all picks of `hotNumberTable`: the games of the view in which two of them stand together,
/// in whatever columns. Columns and rows of the result are rows of `hotNumberTable`, column j and row i holding the
/// count of the picks in rows i and j where i is at most j, and 0 elsewhere; where i is j, the games in which that pick
/// stands. A game counts once, however often it holds a pick.
[[nodiscard]] Table CountJointGames();

}  // namespace ballhaven
