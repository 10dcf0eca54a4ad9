#pragma once

#include <optional>
#include <string>

namespace ballhaven {

/// The text of a cell of `grdPlay`: a number, a card's text, a letter of BONUS or nothing. A null outside the rows and
/// the `slipColumns` of the board.
[[nodiscard]] std::optional<std::string> PlayBoardText(int row, int column);

}  // namespace ballhaven
