#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

/// The hits in a hundred games, cut to a whole number. Raises the overflow failure for 328 hits or more.
[[nodiscard]] std::int16_t HotPercentage(int games, int hits);

/// The average number of games from one hit to the next by the mask "##.0": one decimal, halves rounded away from zero,
/// and no digit before the point of a value below 1. Raises the failure of a division by zero for 0 hits.
[[nodiscard]] std::string IntervalText(int games, int hits);

}  // namespace ballhaven
