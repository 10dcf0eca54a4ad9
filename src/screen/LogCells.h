#pragma once

#include "platform/controls/Grid.h"

#include <optional>
#include <string>

namespace ballhaven {

/// The text of a cell of `grdHist`: the date of a draw in column 0, a pick in columns 1 to `logLastColumn`, empty for a
/// blank pick. A null outside the rows and columns of the log.
[[nodiscard]] std::optional<std::string> LogCellValue(int row, int column);

/// The colours of a cell of `grdHist`: the suits of cards, and the hi-lite while `colorMode` is not 0. A cell of column
/// 0 or outside the log keeps its colours; a blank pick is black on white.
void LogCellStyle(int row, int column, platform::CellStyle& style);

}  // namespace ballhaven
