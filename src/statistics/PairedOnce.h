#pragma once

#include "state/ViewRows.h"
#include "statistics/HotRows.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace ballhaven {

/// The pairs that the table takes in an ordinary folder.
inline constexpr std::ptrdiff_t mostPairsDrawnOnce = 1001;

/// The pairs of candidates that stand together in exactly one draw, by their lower and then by their higher pick; none
/// in fewer than two draws. A pair with a pick outside the main range leaves a row of zeros at the end. Where the main
/// range begins with 0, each candidate that stands in one draw only has a row 0, 0 too, but for the last one; where it
/// begins with n above 1, a candidate is not paired with the n - 1 that follow it. One row more than `mostPairs` is a
/// subscript failure if it is one of two picks; rows 0, 0 of one pick may stand beyond.
[[nodiscard]] FoundRows<PickPair> FindPairsDrawnOnce(const DrawRows& draws, std::span<const std::int16_t> candidates,
                                                     PickRange mainPicks, std::ptrdiff_t mostPairs);

/// Puts the pairs that stand together in exactly one game of the view into `pairedOnceTable`, as `FindPairsDrawnOnce`
/// finds them. Candidates and games are those of `ComputeHotPairs`. Sets `pairedOnceLast` (-1 for none),
/// `pairedOnceTable` (which stays as it was then), and, while Paired Once is on show, the caption of `grdHot`; clears
/// `pairedOnceStale`. Raises the subscript failure at the 1002nd pair, with the pairs before it counted in
/// `pairedOnceLast` and nothing else set; and for a row 0, 0 in that place, with all but the flag set and the table
/// empty of pairs; in a mended folder neither.
void ComputePairedOnce();

}  // namespace ballhaven
