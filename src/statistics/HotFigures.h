#pragma once

#include <string>

namespace ballhaven {

/// How the figures of the tables are reckoned.
enum class FigureRange {
    Narrow,  ///< in 16 bits, with an interval for every row
    Whole    ///< as large as they are; without hits there is no interval
};

/// How they are in the folder that the program works on.
[[nodiscard]] FigureRange FiguresOfFolder();

/// The hits in a hundred games, cut to a whole number. Raises the overflow failure for 328 hits or more where figures
/// are narrow.
[[nodiscard]] int HotPercentage(int games, int hits, FigureRange range);

/// The average number of games from one hit to the next by the mask "##.0": one decimal, halves rounded away from zero,
/// and no digit before the point of a value below 1. Of 0 hits, where figures are whole, it is empty; where they are
/// narrow, that raises the failure of a division by zero.
[[nodiscard]] std::string IntervalText(int games, int hits, FigureRange range);

}  // namespace ballhaven
