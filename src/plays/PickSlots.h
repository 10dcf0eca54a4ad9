#pragma once

#include "state/AppState.h"

#include <cstdint>
#include <span>

namespace ballhaven {

/// What stands in a slot without a pick.
inline constexpr std::int16_t emptySlot = -1;

/// Whether one of the slots has a pick.
[[nodiscard]] bool Holds(std::span<const std::int16_t> slots, std::int16_t pick);

/// Takes all picks out of a play (1 to 5000), whatever the game's counts of picks, and makes it one by hand.
void EmptyPlay(PlayPicks& plays, int play);

}  // namespace ballhaven
