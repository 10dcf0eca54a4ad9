#pragma once

#include "state/ViewRows.h"
#include "statistics/HotRows.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace ballhaven {

/// The pairs that the table takes in an ordinary folder.
inline constexpr std::ptrdiff_t mostHotPairs = 501;

/// The pairs of candidates that stand together in two or more draws, in whatever columns: the most frequent first,
/// equal ones by their lower and then by their higher pick. A pair with a pick outside the main range leaves a row of
/// zeros at the end. One pair more than `mostPairs` is a subscript failure.
[[nodiscard]] FoundRows<PairHits> FindHotPairs(const DrawRows& draws, std::span<const std::int16_t> candidates,
                                               PickRange mainPicks, std::ptrdiff_t mostPairs);

/// Puts the pairs that stand together in two or more games of the view into `hotPairTable`, as `FindHotPairs` finds
/// them. Candidates are the picks of `hotNumberTable`, which has to be current; they count in all columns of a game,
/// main and bonus, whatever `hotSortChoice` says. Sets `hotPairLast` (-1 for none), `hotPairTable` (which stays as it
/// was then), and, while Hot Pairs is on show, the caption of `grdHot`; clears `hotPairStale`. Raises the subscript
/// failure at the 502nd pair, with the pairs before it counted in `hotPairLast` and nothing else set; not in a mended
/// folder.
void ComputeHotPairs();

}  // namespace ballhaven
