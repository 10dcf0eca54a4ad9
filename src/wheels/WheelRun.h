#pragma once

#include "state/AppState.h"

#include <cstdint>
#include <vector>

namespace ballhaven {

/// The way in which a run makes plays of the chosen picks.
enum class WheelMode { Shuffle, PartialWheel, FullWheel };

/// The plays of a run, by number. The wheels lower the ends when they are complete before.
struct PlayStretch {
    int firstPlay;    ///< at which every pass begins
    int lastPlay;     ///< as it stands; below 1 when a wheel was declined
    int plannedLast;  ///< at which the run aimed when it began
};

/// What one pass of a run deals: the main picks of the plays, or their bonus picks.
struct PickPass {
    PickColumn pickColumn;
    std::vector<std::int16_t> pool;  ///< the chosen picks, in the order in which they were chosen
    int slotCount;                   ///< picks of a play, fewer than there are in the pool
};

}  // namespace ballhaven
