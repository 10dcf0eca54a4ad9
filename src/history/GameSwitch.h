#pragma once

#include <cstdint>

namespace ballhaven {

/// Makes the game of the selector current and stores its slot, or, the first time in the process, the game shown last.
/// Opens the game table before. Needs `programDirectory`. Otherwise as `SwitchGameTo`.
void SwitchGame();

/// Makes the game of a slot (1 to 20) of the open game table current: loads its record, plays, draws and chosen picks,
/// rebuilds the view and the statistics, and arranges the main window by the kind of game. The log and the hot table
/// are switched off meanwhile, and `gameLoading` is set, so that the selectors do not answer their own filling. Raises
/// the file failure.
void SwitchGameTo(std::int16_t slot);

}  // namespace ballhaven
