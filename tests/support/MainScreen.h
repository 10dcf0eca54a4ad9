#pragma once

#include "support/Games.h"

#include <vector>

namespace ballhaven::support {

/// The picks of a draw, -1 for an empty cell. Columns that are not given are empty.
using DrawPicks = std::vector<int>;

/// Puts the state and the main window back to the start of the process, and sets a game up in both.
void StartWith(const Game& game);

/// Gives the game these draws, one a day from 1 January 1990 on, and cuts the view out of them.
void ShowDraws(const std::vector<DrawPicks>& draws);

/// Puts a text into a box of the Color by Number toolbar.
void FillBox(int box, const char* text);

}  // namespace ballhaven::support
