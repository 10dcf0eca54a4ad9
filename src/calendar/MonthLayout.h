#pragma once

#include "state/CalendarMonth.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace ballhaven {

/// The size of the calendar and its parts by its texts: the height of "X" and the width of "777", in pixels.
[[nodiscard]] CalendarMeasures MeasuresOf(int charHeight, int cellWidth);

/// Width of the calendar inside its frame, in pixels.
[[nodiscard]] int InnerWidth(const CalendarMeasures& measures);

/// The letters of the week from its first day on, of the short names that `shortDayName` gives.
[[nodiscard]] WeekdayLetters LettersOfWeek(std::chrono::weekday first,
                                           const std::function<std::string(std::chrono::weekday)>& shortDayName);

/// The month of a selected date, as it is on the day `today`.
[[nodiscard]] CalendarMonth MonthOf(std::chrono::year_month_day selected, std::chrono::year_month_day today);

/// The letter over a column of days, 1 to 7, in a week that begins with `firstDayOfWeek`.
[[nodiscard]] const std::string& LetterOverColumn(const CalendarMonth& month, const WeekdayLetters& letters,
                                                  std::chrono::weekday firstDayOfWeek, int column);

/// A date so many months later, or earlier where `step` is negative. A day that the month does not have becomes its
/// last one.
[[nodiscard]] std::chrono::year_month_day MonthsOnward(std::chrono::year_month_day date, int step);

/// Whether a place belongs to the cells of days.
[[nodiscard]] bool IsInDayArea(const CalendarMeasures& measures, platform::PixelPoint place);

/// The cell at a place of the day area.
[[nodiscard]] AimedCell CellAt(const CalendarMeasures& measures, platform::PixelPoint place);

/// A date, and the month that is on show once it is selected.
struct SelectedDay {
    std::chrono::year_month_day date;
    CalendarMonth month;
};

/// The day of a cell. A day of the months beside brings its month on show, as it is on the day `today`; any other stays
/// in the shown one. Raises the subscript failure for a cell before cell 0.
[[nodiscard]] SelectedDay DayOfCell(const CalendarMonth& month, const AimedCell& aimed,
                                    std::chrono::year_month_day today);

/// The days of a month's cells in the order of the cells, each with its place and whether it is the selected one.
[[nodiscard]] std::vector<platform::SurfaceCell> DaysOf(const CalendarMonth& month, const CalendarMeasures& measures,
                                                        std::chrono::year_month_day today);

}  // namespace ballhaven
