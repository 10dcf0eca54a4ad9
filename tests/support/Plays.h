#pragma once

#include "state/AppState.h"

#include <string>
#include <vector>

namespace ballhaven::support {

/// A table of plays that are all empty.
[[nodiscard]] PlayPicks EmptyPlays();

/// Puts picks into the slots of a play's list from 1 on; the other slots stay as they are.
void PutPicks(PlayPicks& table, PickColumn list, int play, const std::vector<int>& picks);

/// A list of a run of plays as text: the filled slots of each from 1 to 10, a dash for a hole before one, blanks
/// between slots, and a bar between plays. "1 2|3 - 5" is a play of 1 and 2, and one of 3 and 5 in slots 1 and 3.
[[nodiscard]] std::string PicksText(const PlayPicks& table, PickColumn list, int first, int last);

/// Plays with a pick in a list.
[[nodiscard]] int PlaysInUse(const PlayPicks& table, PickColumn list);

}  // namespace ballhaven::support
