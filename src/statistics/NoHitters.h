#pragma once

#include "state/ViewRows.h"
#include "statistics/HotRows.h"

#include <cstdint>
#include <vector>

namespace ballhaven {

/// The picks that are looked for as no-hitters: the main range; in a game that allows duplicates only up to its share
/// for one of the main picks, its high end \ `mainPickCount`, and one less where it begins with 0. A game of no main
/// picks is taken as one of one pick.
[[nodiscard]] PickRange NoHitterRange(PickRange mainPicks, int mainPickCount, bool duplicatesAllowed);

/// The picks of a range from 0 up that stand in none of the draws, in no column, ascending. Without draws, them all.
[[nodiscard]] std::vector<std::int16_t> FindNoHitters(const DrawRows& draws, PickRange range);

/// Puts the picks of `NoHitterRange` that stand in no game of the view into `noHitterTable`, in ascending order;
/// `hotSortChoice` makes no difference. Sets `noHitterLast` (-1 for none), `noHitterTable` (which stays as it was
/// then), and, while Repeaters is on show, the caption of `grdHot`; clears `noHitterStale`.
void ComputeNoHitters();

}  // namespace ballhaven
