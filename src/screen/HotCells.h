#pragma once

#include "platform/controls/Grid.h"

#include <optional>
#include <string>

namespace ballhaven {

/// The text of a cell of `grdHot`, columns 0 to 3: the pick or the pair, and, where the table counts, its hits, the
/// percentage of the draws cut to a whole number, and the game interval. A null outside the rows and columns of the
/// table. Raises the overflow failure for the percentage of 328 hits or more, and the failure of a division by zero for
/// the interval of a repeaters row without repeats.
[[nodiscard]] std::optional<std::string> HotCellValue(int row, int column);

/// The colours of a cell of `grdHot`: in column 0 the suits of cards, and the hi-lite while `colorMode` is not 0; black
/// on white in all others.
void HotCellStyle(int row, int column, platform::CellStyle& style);

/// The average number of games from one hit to the next by the mask "##.0": one decimal, halves rounded away from zero,
/// and no digit before the point of a value below 1. Raises the failure of a division by zero for 0 hits.
[[nodiscard]] std::string IntervalText(int games, int hits);

}  // namespace ballhaven
