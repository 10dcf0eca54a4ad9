#pragma once

#include <cstdint>
#include <span>

namespace ballhaven {

// What plays have to do with the screen.

/// Has the open boards of plays read again: those of the Play Slips window, then the main window's.
void RefreshPlayGrids();

/// The draw with which plays are compared: that of the log's current row, or, where the log has none, the newest. Empty
/// where there is no such draw. Changes nothing.
[[nodiscard]] std::span<const std::int16_t> DrawForWinners();

}  // namespace ballhaven
