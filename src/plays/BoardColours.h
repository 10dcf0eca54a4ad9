#pragma once

#include "platform/controls/GridColumns.h"
#include "state/GameRules.h"

#include <cstdint>
#include <optional>
#include <span>

namespace ballhaven {

/// The picks of a board by their lists, as a play or the chosen picks have them, -1 for an empty slot.
struct BoardPicks {
    std::span<const std::int16_t> main;
    std::span<const std::int16_t> bonus;
};

/// The slot, from 1, in which the list of a cell's picks holds the cell; none if it is not picked.
[[nodiscard]] std::optional<int> SlotOfCell(const GameRules& rules, const BoardPicks& picks, int cell);

/// The colours of a cell: suits and runs on white, the row of the word pale blue, a pick white on black, or in the
/// colour of its slot where the order matters, and grey what the other list has taken.
[[nodiscard]] platform::CellStyle BoardCellStyle(const GameRules& rules, const BoardPicks& picks, int cell);

/// The colours of a pick that the selected draw holds.
inline constexpr platform::CellStyle winnerStyle{platform::white, platform::red};

}  // namespace ballhaven
