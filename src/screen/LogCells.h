#pragma once

#include "forms/GamePresentation.h"
#include "platform/controls/GridColumns.h"
#include "state/GameRules.h"
#include "state/HiLiteBoxes.h"
#include "state/Table.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ballhaven {

/// The cell of a view that a cell of the log shows; none outside the log.
[[nodiscard]] std::optional<std::int16_t> DrawCell(const Table& view, const GridExtent& log, int row, int column);

/// The colours of a pick in a column of the log (from 1): the suits of cards, and the hi-lite. A blank pick, -1, is
/// black on white.
[[nodiscard]] platform::CellStyle StyleOfPick(int pick, int column, const GameRules& rules, const HiLites& hiLites);

/// The text of a cell of `grdHist`: the date of a draw in column 0, a pick in columns 1 to `logLastColumn`, empty for a
/// blank pick. A null outside the rows and columns of the log.
[[nodiscard]] std::optional<std::string> LogCellValue(int row, int column);

/// Gives a cell of `grdHist` the colours of its pick. A cell of column 0 or outside the log keeps its colours.
void LogCellStyle(int row, int column, platform::CellStyle& style);

}  // namespace ballhaven
