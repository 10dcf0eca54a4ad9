#pragma once

namespace ballhaven {

/// Puts the pairs of picks that stand together in two or more games of the view into `hotPairTable`: the most frequent
/// first, equal ones by their lower and then by their higher pick. Candidates are the picks of `hotNumberTable`, which
/// has to be current; they count in all columns of a game, main and bonus, whatever `hotSortChoice` says. A pair with a
/// pick outside `mainLow` to `mainHigh` leaves a row of zeros at the end. A view of fewer than two games has no pairs.
/// Sets `hotPairLast` (-1 for none), `hotPairTable` (which stays as it was then), and, while Hot Pairs is on show, the
/// caption of `grdHot`; clears `hotPairStale`. Raises the subscript failure at the 502nd pair.
void ComputeHotPairs();

}  // namespace ballhaven
