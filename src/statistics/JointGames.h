#pragma once

#include "state/Table.h"
#include "state/ViewRows.h"

#include <cstdint>
#include <span>

namespace ballhaven {

/// Counts the joint games of all candidates (0 to 1000, each once): the draws in which two of them stand together, in
/// whatever columns. Columns and rows of the result are the candidates in their order, column j and row i holding the
/// count of the candidates i and j where i is at most j, and 0 elsewhere; where i is j, the draws in which that pick
/// stands. A draw counts once, however often it holds a pick.
[[nodiscard]] Table CountJointGames(const DrawRows& draws, std::span<const std::int16_t> candidates);

}  // namespace ballhaven
