#pragma once

#include "wheels/WheelRun.h"

#include <functional>

namespace ballhaven {

/// Fills the empty slots of a stretch of plays with picks drawn at random from the pool, no pick twice in one play, and
/// marks the plays as shuffled. `draw` gives one number from 0 up to 1 for each pick that is tried. Plays are not
/// compared with each other. Of a play that is full already the pick that was drawn for it goes into the first slot of
/// the next play, whatever stands there; behind play 5000 it is dropped. A play from which no pick of the pool is
/// missing stays as far as it is filled.
void ShufflePass(const PickPass& pass, const PlayStretch& plays, PlayPicks& table, const std::function<float()>& draw);

}  // namespace ballhaven
