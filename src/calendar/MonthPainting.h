#pragma once

#include "platform/controls/DrawingSurface.h"
#include "state/CalendarMonth.h"

#include <functional>
#include <string>
#include <string_view>

namespace ballhaven {

/// What the calendar draws of a month: its measures and cells, the title, the letters over its columns (1 to 7), and
/// the width of a text in the calendar's font, in pixels.
struct MonthPicture {
    CalendarMeasures measures;
    CalendarMonth month;
    std::string title;
    std::array<std::string, daysOfWeek + 1> columnLetters;
    std::function<int(std::string_view)> textWidth;
};

/// Draws the calendar: the arrow buttons, the title, the letters of the week and the cells of the month.
void PaintMonth(platform::Canvas& canvas, const MonthPicture& picture);

}  // namespace ballhaven
