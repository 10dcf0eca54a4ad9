#pragma once

#include "state/AppState.h"

namespace ballhaven {

/// How the picks of a game's plays are sorted.
struct PlaySortRules {
    int mainPickCount;
    int bonusPickCount;  ///< 0 in a game without bonus picks
    int mostPicks;       ///< that either list of a play keeps
    int mainHigh;
    int bonusHigh;
};

/// A table of plays in which those up to `lastUsedPlay` have their picks in ascending order, from slot 1 on; those
/// above the highest pick are left out. All its other cells hold 0.
[[nodiscard]] PlayPicks SortedPlays(const PlayPicks& plays, int lastUsedPlay, const PlaySortRules& rules);

/// Sorts the picks of `PlayTable` in memory, up to the last used play (0 for none), as `SortedPlays` does; neither
/// where there is none nor in a game whose order matters. `playsDirty` stays as it is.
void sortPlaysForReport(int lastUsedPlay);

}  // namespace ballhaven
