#pragma once

#include "platform/controls/Grid.h"
#include "plays/BoardColours.h"

#include <string>

namespace ballhaven {

/// What a click on the current cell of a board does to the play (1 to 5000) that it shows: puts its pick into the play
/// or takes it out, and has the board read again; says so where the play has enough picks. Sets `playsDirty` whatever
/// comes of it. A play whose main picks have changed counts as made by hand.
void TogglePick(int play, platform::Grid& board);

/// The colours of a cell of a board that shows a play; those of a play outside 1 to 5000 are an empty play's.
void PlayCellStyle(int play, int cell, platform::CellStyle& style);

/// Whether a play holds the pick of a cell.
[[nodiscard]] bool IsChosen(int play, int cell);

/// What a cell of a board with a text is called to somebody who does not see it, as "17, chosen"; empty beside the
/// picks.
[[nodiscard]] std::string CellDescription(int play, int cell, const std::string& text);

/// Empties a play and sets `playsDirty`. Has no board read again.
void ErasePlay(int play);

}  // namespace ballhaven
