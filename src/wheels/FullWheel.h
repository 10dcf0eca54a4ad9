#pragma once

#include "wheels/WheelRun.h"

namespace ballhaven {

/// Puts every combination of the pool into the plays of the stretch, one a play. Where there are more combinations of
/// main picks than plays, asks whether to go on with those for which there is room; No leaves the plays as they are and
/// 0 as `lastPlay`. Bonus picks go round beside the main ones. Leaves the last play of the wheel in `lastPlay`.
void FullWheelPass(const PickPass& pass, PlayStretch& plays, PlayPicks& table);

}  // namespace ballhaven
