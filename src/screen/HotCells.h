#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/Grid.h"
#include "statistics/HotFigures.h"
#include "statistics/HotTableKinds.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ballhaven {

/// The text of a table's cell, columns 0 to 3, from the cells of its row (`CellsOfRow`) in a view of so many games. A
/// null where the row has too few cells. Raises the failures of `HotCellValue` where figures are narrow.
[[nodiscard]] std::optional<std::string> HotCellText(HotTable table, std::span<const std::int32_t> cells, int column,
                                                     int games, int gameType, FigureRange figures);

/// The colour of a card's text, or of that of a pair of cards. A pair is blue with a club and no spade or a spade and
/// no club; else, and for a single card, hearts and diamonds are red, clubs and spades black.
[[nodiscard]] platform::Color SuitColor(std::string_view cards);

/// Whether a box with this text hi-lites a row with the picks of this text: one pick, or two with ", " between them.
[[nodiscard]] bool IsHiLitedBy(std::string_view box, std::string_view picks);

/// The text of a cell of `grdHot`, columns 0 to 3: the pick or the pair, and, where the table counts, its hits, the
/// percentage of the draws cut to a whole number, and the game interval. A null outside the rows and columns of the
/// grid, in rows that the chosen table does not have (the grid still has those of another one while the game dialog is
/// open, and after it was cancelled), and before a table is chosen. Raises the overflow failure for the percentage of
/// 328 hits or more, and the failure of a division by zero for the interval of a repeaters row without repeats; in a
/// mended folder neither.
[[nodiscard]] std::optional<std::string> HotCellValue(int row, int column);

/// The colours of a cell of `grdHot`: in column 0 the suits of cards, and the hi-lite while there is a `colorMode`;
/// black on white in all others.
void HotCellStyle(int row, int column, platform::CellStyle& style);

}  // namespace ballhaven
