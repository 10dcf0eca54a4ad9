#pragma once

#include "state/AppState.h"
#include "state/GameRules.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ballhaven::data {

/// What stands in a slot without a pick.
inline constexpr int noPick = -1;

/// The picks of a draw or of a play, as numbers or cards: a slot for each pick that the game draws.
struct Picks {
    std::vector<int> main{};
    std::vector<int> bonus{};

    bool operator==(const Picks&) const = default;
};

/// The slots that the game's bonus picks have; 0 in a game without them.
[[nodiscard]] int BonusSlots(const GameRules& rules);

/// The pick on a cell of a play or of the chosen picks, as the files keep it; `noPick` for an empty slot and for a cell
/// of the board that shows no pick.
[[nodiscard]] int PickOnCell(const GameRules& rules, PickColumn list, int cell);

/// The picks of a play (1 to 5000), which has ten main slots at most.
[[nodiscard]] Picks PicksOfPlay(const GameRules& rules, const PlayPicks& plays, int play);

/// The picks of a draw, in which the bonus picks follow the main ones.
[[nodiscard]] Picks PicksOfDraw(const GameRules& rules, std::span<const std::int16_t> draw);

/// Whether there is no main pick at all.
[[nodiscard]] bool HasNoMainPick(const Picks& picks);

/// Whether there is each main pick that the game draws, one at least, and all are different unless they can repeat.
[[nodiscard]] bool HasAllMainPicks(const GameRules& rules, const Picks& picks);

/// Picks as a person writes them, with a blank between; a dash for a slot without one.
[[nodiscard]] std::string PickTexts(const GameRules& rules, std::span<const int> picks);

}  // namespace ballhaven::data
