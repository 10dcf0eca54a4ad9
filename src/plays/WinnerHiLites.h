#pragma once

#include "state/GameRules.h"

#include <cstdint>
#include <span>

namespace ballhaven {

/// Whether a draw holds the pick of a board's cell, which stands in a slot (from 1) of its play's list. `draw` is its
/// row: the date, the main picks in the order of the drawing, the bonus picks; `value` is the number or the card of the
/// cell. Where the order matters the pick has to stand at the place of its slot.
[[nodiscard]] bool IsWinner(const GameRules& rules, std::span<const std::int16_t> draw, int cell, int slot, int value);

}  // namespace ballhaven
