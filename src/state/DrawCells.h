#pragma once

#include <cstdint>

namespace ballhaven {

// The cells of a row of draws, in memory and in the log: the date, and behind it the picks.

inline constexpr int dateColumn = 0;

/// What stands in the cell of a pick that is not known.
inline constexpr std::int16_t blankPick = -1;

}  // namespace ballhaven
