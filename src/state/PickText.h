#pragma once

#include "state/GameRules.h"

#include <cstdint>
#include <string>

namespace ballhaven {

/// The short text of a card (1 to 52), such as "Ah" or "10c"; empty for any other value.
[[nodiscard]] std::string CardToText(int value);

/// The value of a card's text, which becomes normalised: "kd" turns into "Kd" and gives 39. Nothing checks the rank:
/// "14h" gives 14, and a text without a suit letter 13 less than its rank. Raises the overflow failure for a rank
/// beyond 16 bits.
[[nodiscard]] std::int16_t TextToCard(std::string& text);

/// The text of a pick in a kind of game: a number's digits, or a card's text.
[[nodiscard]] std::string PickToText(int pick, int gameType);

/// The same in the game at hand.
[[nodiscard]] std::string PickToText(int pick);

/// The text of a cell of a game's pick grid, counted along its rows from 0: a pick in decimal, a letter of BONUS
/// between the main and the bonus picks, or nothing.
[[nodiscard]] std::string TextOfPickCell(const GameRules& rules, int cell);

/// The same in the game at hand, `cell` being row * `slipColumns` + column.
[[nodiscard]] std::string PickCellText(int cell);

}  // namespace ballhaven
