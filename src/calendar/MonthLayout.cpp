#include "calendar/MonthLayout.h"

#include "state/DateMask.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <cmath>

namespace ballhaven {

namespace {

using modUTILS::ToInt16;
using platform::PixelPoint;
using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year_month;
using std::chrono::year_month_day;

constexpr int firstDayRow = 2;
constexpr int firstRowOfNextMonth = 6;
constexpr int dayAreaLeft = 5;

int LastDayOf(year_month month) {
    return static_cast<int>(static_cast<unsigned>((month / std::chrono::last).day()));
}

int DayOf(year_month_day date) {
    return static_cast<int>(static_cast<unsigned>(date.day()));
}

/// The date so many days after the day before the first of a month: day 0 is that day itself.
year_month_day DateInMonth(year_month month, int day) {
    return sys_days{month / 1} + days{day - 1};
}

/// The cell of the first of a month, 1 for Monday to 7 for Sunday.
int FirstCellOf(year_month month) {
    return static_cast<int>(weekday{sys_days{month / 1}}.iso_encoding());
}

void PutCell(CalendarMonth& month, int cell, int day, std::int16_t colour) {
    month.dayNumber[static_cast<std::size_t>(cell)] = ToInt16(day);
    month.dayColour[static_cast<std::size_t>(cell)] = colour;
}

/// The cell of a date in a month, 0 for a date of another one.
std::int16_t CellOf(year_month_day date, year_month month) {
    const bool isInMonth = date.year() / date.month() == month;
    return isInMonth ? ToInt16(FirstCellOf(month) + DayOf(date) - 1) : std::int16_t{0};
}

/// The number of a cell of days. Cell 0 and the cells before it stand on the line above the first row.
int NumberOf(const AimedCell& cell) {
    return (cell.hitRow - firstDayRow) * daysOfWeek + cell.hitColumn + 1;
}

AimedCell CellOf(const CalendarMeasures& measures, std::int16_t column, std::int16_t row) {
    const int left = measures.cellWidth * column + dayAreaLeft;
    const int top = row * measures.rowHeight;
    return {column, row, {left, top, left + measures.cellWidth + 1, top + measures.rowHeight - 1}};
}

}  // namespace

CalendarMeasures MeasuresOf(int charHeight, int cellWidth) {
    CalendarMeasures measures;
    measures.width = 8 * cellWidth * platform::twipsPerPixel;
    measures.height = 23 * charHeight * platform::twipsPerPixel / 2;  // 11.5 lines
    measures.charHeight = ToInt16(charHeight);
    measures.cellWidth = ToInt16(cellWidth);
    measures.rowHeight = ToInt16(charHeight + 1);
    const int innerWidth = InnerWidth(measures);
    measures.gridLeft = modUTILS::Divide(std::lrint(innerWidth - 7.5 * cellWidth), 2);
    measures.gridTop = ToInt16(2 * measures.rowHeight);
    measures.prevRect = {2, 2, 13, 13};
    measures.nextRect = {innerWidth - 14, 2, innerWidth - 2, 13};
    return measures;
}

int InnerWidth(const CalendarMeasures& measures) {
    return measures.width / platform::twipsPerPixel;
}

WeekdayLetters LettersOfWeek(weekday first, const std::function<std::string(weekday)>& shortDayName) {
    WeekdayLetters letters;
    for (int i = 1; i <= daysOfWeek; ++i) {
        const std::string letter = shortDayName(first + days{i - 1}).substr(0, 1);
        letters[static_cast<std::size_t>(i)] = letter;
        letters[static_cast<std::size_t>(i + daysOfWeek)] = letter;
    }
    return letters;
}

// QUIRK CALENDAR-MONDAY-1: the rows of days begin with Monday, whatever day the system's week begins with; only the
// letters come from the system. Beginning the rows with its first day would move every day of users who know the
// calendar by its columns.
CalendarMonth MonthOf(year_month_day selected, year_month_day today) {
    CalendarMonth month;
    month.shownMonth = selected.year() / selected.month();
    month.selectedCell = CellOf(selected, month.shownMonth);
    month.todayCell = CellOf(today, month.shownMonth);
    const int firstCell = FirstCellOf(month.shownMonth);
    const int lastDayBefore = LastDayOf(month.shownMonth - months{1});
    const int behindLastCell = firstCell + LastDayOf(month.shownMonth);
    for (int cell = 1; cell < firstCell; ++cell) {
        PutCell(month, cell, lastDayBefore - firstCell + 1 + cell, besideColour);
    }
    for (int cell = firstCell; cell < behindLastCell; ++cell) {
        PutCell(month, cell, cell - firstCell + 1, shownMonthColour);
    }
    for (int cell = behindLastCell; cell <= calendarCells; ++cell) {
        PutCell(month, cell, cell - behindLastCell + 1, besideColour);
    }
    return month;
}

const std::string& LetterOverColumn(const CalendarMonth& month, const WeekdayLetters& letters, weekday firstDayOfWeek,
                                    int column) {
    const bool beginsBefore = month.dayColour[1] == besideColour;
    const year_month first = beginsBefore ? month.shownMonth - months{1} : month.shownMonth;
    const weekday firstShown{sys_days{DateInMonth(first, month.dayNumber[1])}};
    const int placeInWeek = static_cast<int>((firstShown - firstDayOfWeek).count());
    return letters.at(static_cast<std::size_t>(column + placeInWeek));
}

year_month_day MonthsOnward(year_month_day date, int step) {
    const year_month month = date.year() / date.month() + months{step};
    return DateInMonth(month, std::min(DayOf(date), LastDayOf(month)));
}

// QUIRK CALENDAR-LINE-1: the line of pixels above the first row of days belongs to the days, but to no cell. In the
// last column it selects the day before the first of the month, which no cell shows as selected; in any other column
// the program ends with the failure of a subscript, and saves nothing. Beginning the area at its first cell would take
// the day before the first away; holding the cell at 0 would select a day at which nobody pointed.
bool IsInDayArea(const CalendarMeasures& measures, PixelPoint place) {
    const int x = place.x - dayAreaLeft;
    const int y = place.y + 1;
    return 0 <= x && x < daysOfWeek * measures.cellWidth && 2 * measures.rowHeight <= y && y < 8 * measures.rowHeight;
}

AimedCell CellAt(const CalendarMeasures& measures, PixelPoint place) {
    return CellOf(measures, modUTILS::Divide(place.x - dayAreaLeft, measures.cellWidth),
                  modUTILS::Divide(place.y, measures.rowHeight));
}

SelectedDay DayOfCell(const CalendarMonth& month, const AimedCell& aimed, year_month_day today) {
    const int cell = NumberOf(aimed);
    if (cell < 0 || cell > calendarCells) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    const int day = month.dayNumber[static_cast<std::size_t>(cell)];
    const bool isBeside = month.dayColour[static_cast<std::size_t>(cell)] == besideColour;
    if (isBeside && aimed.hitRow == firstDayRow) {
        const year_month_day date = DateInMonth(month.shownMonth - months{1}, day);
        return {date, MonthOf(date, today)};
    }
    if (isBeside && aimed.hitRow >= firstRowOfNextMonth) {
        const year_month_day date = DateInMonth(month.shownMonth + months{1}, day);
        return {date, MonthOf(date, today)};
    }
    SelectedDay selected{DateInMonth(month.shownMonth, day), month};
    selected.month.selectedCell = ToInt16(cell);
    return selected;
}

std::vector<platform::SurfaceCell> DaysOf(const CalendarMonth& month, const CalendarMeasures& measures,
                                          year_month_day today) {
    std::vector<platform::SurfaceCell> told;
    for (int cell = 1; cell <= calendarCells; ++cell) {
        const AimedCell aimed =
            CellOf(measures, ToInt16((cell - 1) % daysOfWeek), ToInt16((cell - 1) / daysOfWeek + firstDayRow));
        const year_month_day date = DayOfCell(month, aimed, today).date;
        told.push_back({aimed.focusRect, FormatDate(date, "d mmmm yyyy"), cell == month.selectedCell});
    }
    return told;
}

}  // namespace ballhaven
