#pragma once

#include "platform/controls/Grid.h"

#include <optional>
#include <string>

namespace ballhaven {

/// The play that a board (0 to 4) of the Play Slips window shows: of slip 0 one that does not exist.
[[nodiscard]] int PlayOfBoard(int board);

/// The text of a cell of the five boards: a number, a letter of BONUS in a game of numbers, a card's text, or nothing.
/// A null outside the board.
[[nodiscard]] std::optional<std::string> SlipBoardText(const platform::GridCell& cell);

/// What a cell is called: the line, the pick and whether it is chosen, as "Line A, 17, chosen"; empty beside the picks.
[[nodiscard]] std::string SlipCellDescription(const platform::GridCell& cell);

/// Empties the plays of the slip on show. Has no board read again.
void EraseShownSlip();

}  // namespace ballhaven
