#pragma once

#include "platform/controls/GridCell.h"
#include "platform/controls/GridColumns.h"

#include <optional>
#include <string>

namespace ballhaven {

/// The text of a cell of `grdShuffle`: that of the boards of the Play Slips window. A null outside the board, and in
/// all of it for a game that has not been set up.
[[nodiscard]] std::optional<std::string> ShuffleBoardText(const platform::GridCell& cell);

/// The colours of a cell of `grdShuffle`, counted along its rows from 0: those of a play that has the chosen picks.
void GetShuffleCellStyle(int cell, platform::CellStyle& style);

/// What a cell is called to somebody who does not see it, as "17, chosen"; empty beside the picks.
[[nodiscard]] std::string ShuffleCellDescription(const platform::GridCell& cell);

/// What a click on the current cell of `grdShuffle` does: puts its pick into the first empty slot of its list in
/// `ShuffleTable`, or takes it out; has the lists saved, and the board read again. A cell that is no pick does nothing,
/// nor does a pick that the other list holds in a kind of game that keeps them apart. A pick for which a list has no
/// slot is dropped. Raises the file failure.
void ToggleShufflePick();

/// Empties both lists of `ShuffleTable`, has them saved, and the board read again. Raises the file failure.
void ClearShufflePicks();

}  // namespace ballhaven
