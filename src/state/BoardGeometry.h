#pragma once

#include <optional>
#include <string_view>

namespace ballhaven {

/// The board on which the picks of a kind of game are clicked on and off. Its cells count from 0, along the rows.
struct BoardGeometry {
    int columns;
    int rows;              ///< 12 without bonus picks, else 24
    int mainCells;         ///< the main picks stand in the cells below
    int firstWordRowCell;  ///< the row between main and bonus picks, which ends before these
    int firstWordCell;     ///< of the word BONUS in it, one letter a cell
    int firstBonusCell;    ///< the bonus picks stand from this cell on
};

/// The word between the main and the bonus picks of a board.
inline constexpr std::string_view bonusWord = "BONUS";

/// The board of a kind of game (0 to 5).
[[nodiscard]] BoardGeometry BoardOf(int gameType);

/// The number of the cell at a row and a column of the game at hand, whose board is `slipColumns` wide.
[[nodiscard]] int CellNumberAt(int row, int column);

/// Whether the board of the game at hand has a row and a column.
[[nodiscard]] bool IsOnBoard(int row, int column);

/// The place in `bonusWord` of the letter that a cell shows; none beside the word, and in a game without bonus picks.
[[nodiscard]] std::optional<int> BonusLetterAt(int gameType, int cell);

}  // namespace ballhaven
