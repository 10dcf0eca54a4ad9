#pragma once

#include <string>

namespace ballhaven {

/// The text with which the reports print a pick of a draw or a cell of a play in the game at hand: that of the cell of
/// this number on the game's board, in a card game as a card. Empty beyond the board.
[[nodiscard]] std::string pickLabel(int value);

}  // namespace ballhaven
