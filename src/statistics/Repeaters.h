#pragma once

#include "state/ViewRows.h"
#include "statistics/HotRows.h"

#include <cstdint>
#include <limits>
#include <span>

namespace ballhaven {

/// The repeats of a pick that the table counts in an ordinary folder.
inline constexpr std::ptrdiff_t mostRepeats = std::numeric_limits<std::int16_t>::max();

/// The candidates (0 to 1000) that came up again in the very next draw, with their repeats, each pair of columns being
/// one: the most repeats first, equal ones by ascending value. A candidate outside the main range leaves a row of zeros
/// at the end. The direction of the log makes no difference. More repeats of a pick than `mostOfPick` are an overflow
/// failure.
[[nodiscard]] FoundRows<PickHits> FindRepeaters(const DrawRows& draws, std::span<const std::int16_t> candidates,
                                                PickRange mainPicks, std::ptrdiff_t mostOfPick);

/// Puts the picks that came up again in the very next game of the view into `repeaterTable`, as `FindRepeaters` finds
/// them. Candidates are the picks of `hotNumberTable`, which has to be current; they count in all columns of both
/// games. Sets `repeaterLast` (-1 for none), `repeaterTable` (which stays as it was then), and, while Paired Once is on
/// show, the caption of `grdHot`; clears `repeaterStale`. Raises the overflow failure above 32767 repeats of a pick,
/// with the repeaters before it counted in `repeaterLast` and nothing else set; not in a mended folder.
void ComputeRepeaters();

}  // namespace ballhaven
