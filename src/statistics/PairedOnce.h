#pragma once

namespace ballhaven {

/// Puts the pairs of picks that stand together in exactly one game of the view into `pairedOnceTable`, by their lower
/// and then by their higher pick. Candidates and games are those of `ComputeHotPairs`, and so are the rows of zeros of
/// pairs outside the main range. Where `mainLow` is 0, each pick that stands in one game only has a row 0, 0 too, but
/// for the last one of `hotNumberTable`; where it is above 1, a pick is not paired with the `mainLow` - 1 picks that
/// follow it there. Sets `pairedOnceLast` (-1 for none), `pairedOnceTable` (which stays as it was then), and, while
/// Paired Once is on show, the caption of `grdHot`; clears `pairedOnceStale`. Raises the subscript failure at the
/// 1002nd pair.
void ComputePairedOnce();

}  // namespace ballhaven
