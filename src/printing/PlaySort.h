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

/// The plays as they are printed, up to the last used play (0 for none): as `SortedPlays` gives them, but as they are
/// where there is none and in a game whose order matters. `PlayTable` takes them; in a mended folder it stays as it is.
/// `playsDirty` stays as it is.
PlayPicks sortPlaysForReport(int lastUsedPlay);

}  // namespace ballhaven
