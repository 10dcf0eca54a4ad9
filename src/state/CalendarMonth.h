#pragma once

#include "platform/controls/DrawingSurface.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string>

namespace ballhaven {

inline constexpr int calendarCells = 42;
inline constexpr int daysOfWeek = 7;

/// A table of the calendar's cells, which count from 1. Cell 0 stands for the day before the first of the month.
using CellTable = std::array<std::int16_t, calendarCells + 1>;

/// Colours of the days, as indices of the 16 colours.
inline constexpr std::int16_t shownMonthColour = 0;  // black
inline constexpr std::int16_t besideColour = 8;      // grey

/// The first letters of the days of the week, 1 to 14: the week twice in a row, as the system begins it.
using WeekdayLetters = std::array<std::string, 2 * daysOfWeek + 1>;

/// The measures of the calendar by its texts, in pixels but for its size.
struct CalendarMeasures {
    int width = 0;   ///< inside the frame, in twips
    int height = 0;  ///< likewise
    std::int16_t charHeight = 0;
    std::int16_t cellWidth = 0;
    std::int16_t rowHeight = 0;
    std::int16_t gridLeft = 0;
    std::int16_t gridTop = 0;
    platform::PixelRect prevRect;
    platform::PixelRect nextRect;

    bool operator==(const CalendarMeasures&) const = default;
};

/// A month as the calendar shows it.
struct CalendarMonth {
    std::chrono::year_month shownMonth{};
    std::int16_t selectedCell = 0;  ///< 0 for none
    std::int16_t todayCell = 0;     ///< cell of the current date, 0 while it is not on show
    CellTable dayNumber{};
    CellTable dayColour{};  ///< `shownMonthColour`, or `besideColour` for the days of the months beside

    bool operator==(const CalendarMonth&) const = default;
};

/// The cell under the mouse.
struct AimedCell {
    std::int16_t hitColumn = 0;
    std::int16_t hitRow = 0;  ///< day rows begin at 2
    platform::PixelRect focusRect;

    bool operator==(const AimedCell&) const = default;
};

}  // namespace ballhaven
