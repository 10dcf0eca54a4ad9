#pragma once

#include "wheels/WheelRun.h"

namespace ballhaven {

/// Puts the first combinations of the pool, as many as the stretch has plays, into the plays: every other combination
/// first, then those left out. A wheel that is complete before lowers `lastPlay` and `plannedLast` to its last row. The
/// plays that are filled begin with `firstFilled`, wherever the stretch begins.
void PartialWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table, int firstFilled);

}  // namespace ballhaven
