#include "calendar/MonthLayout.h"

#include "forms/CalendarForm.h"
#include "platform/Services.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace ballhaven {

namespace {

using modUTILS::ToInt16;
using platform::PixelPoint;
using platform::twipsPerPixel;
using platform::Window;
using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year_month;
using std::chrono::year_month_day;

constexpr int weekLength = 7;
constexpr int firstDayRow = 2;
constexpr int firstRowOfNextMonth = 6;
constexpr int dayAreaLeft = 5;
constexpr std::int16_t shownMonthColour = 0;
constexpr std::int16_t besideColour = 8;

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

void PutCell(int cell, int day, std::int16_t colour) {
    ahcCalendar.dayNumber[static_cast<std::size_t>(cell)] = ToInt16(day);
    ahcCalendar.dayColour[static_cast<std::size_t>(cell)] = colour;
}

void PutDayOfMonth(int cell, year_month_day date) {
    PutCell(cell, DayOf(date), shownMonthColour);
    if (date == ahcCalendar.Today) {
        ahcCalendar.selectedCell = ToInt16(cell);
    }
    if (date == platform::services.today()) {
        ahcCalendar.todayCell = ToInt16(cell);
    }
}

/// Days from the system's first day of the week to a day, 0 to 6.
int PlaceInWeek(weekday day) {
    return static_cast<int>((day - platform::services.firstDayOfWeek()).count());
}

/// The cell under the mouse. Cell 0 and the cells before it stand on the line above the first row of days.
int AimedCell() {
    return (ahcCalendar.hitRow - firstDayRow) * weekLength + ahcCalendar.hitColumn + 1;
}

void SelectInMonth(year_month month, int day) {
    ahcCalendar.Today = DateInMonth(month, day);
    LayOutMonth();
}

}  // namespace

void MeasureCalendar() {
    ahcCalendar.charHeight = ToInt16(ahcCalendar.surface.TextHeight());
    ahcCalendar.cellWidth = ToInt16(ahcCalendar.surface.TextWidth("777"));
    const int width = 8 * ahcCalendar.cellWidth * twipsPerPixel;
    const int height = 23 * ahcCalendar.charHeight * twipsPerPixel / 2;  // 11.5 lines
    ahcCalendar.window.Resize(width + Window::frameWidth, height + Window::frameHeight);
    ahcCalendar.surface.bounds = platform::Bounds{0, 0, width, height};

    ahcCalendar.rowHeight = ToInt16(ahcCalendar.charHeight + 1);
    ahcCalendar.gridLeft = modUTILS::Divide(std::lrint(InnerWidth() - 7.5 * ahcCalendar.cellWidth), 2);
    ahcCalendar.gridTop = ToInt16(2 * ahcCalendar.rowHeight);
    ahcCalendar.prevRect = {2, 2, 13, 13};
    ahcCalendar.nextRect = {InnerWidth() - 14, 2, InnerWidth() - 2, 13};
}

int InnerWidth() {
    return ahcCalendar.surface.bounds->width / twipsPerPixel;
}

void FillWeekdayLetters() {
    const weekday first = platform::services.firstDayOfWeek();
    for (int i = 1; i <= weekLength; ++i) {
        const std::string letter = platform::services.shortDayName(first + days{i - 1}).substr(0, 1);
        ahcCalendar.weekdayLetter[static_cast<std::size_t>(i)] = letter;
        ahcCalendar.weekdayLetter[static_cast<std::size_t>(i + weekLength)] = letter;
    }
}

// QUIRK CALENDAR-MONDAY-1: the rows of days begin with Monday, whatever day the system's week begins with. It is meant:
// the columns of the calendar are the same on every machine. Only the letters come from the system; beginning the rows
// with its first day would move every day of users who know the calendar by its columns.
void LayOutMonth() {
    ahcCalendar.shownMonth = ahcCalendar.Today.year() / ahcCalendar.Today.month();
    ahcCalendar.selectedCell = 0;
    ahcCalendar.todayCell = 0;
    const auto firstCell = static_cast<int>(weekday{sys_days{ahcCalendar.shownMonth / 1}}.iso_encoding());
    const int lastDayBefore = LastDayOf(ahcCalendar.shownMonth - months{1});
    const int behindLastCell = firstCell + LastDayOf(ahcCalendar.shownMonth);
    PutCell(0, 0, shownMonthColour);
    for (int cell = 1; cell < firstCell; ++cell) {
        PutCell(cell, lastDayBefore - firstCell + 1 + cell, besideColour);
    }
    for (int cell = firstCell; cell < behindLastCell; ++cell) {
        PutDayOfMonth(cell, DateInMonth(ahcCalendar.shownMonth, cell - firstCell + 1));
    }
    for (int cell = behindLastCell; cell <= calendarCells; ++cell) {
        PutCell(cell, cell - behindLastCell + 1, besideColour);
    }
}

const std::string& LetterOverColumn(int column) {
    const year_month month =
        ahcCalendar.dayColour[1] == besideColour ? ahcCalendar.shownMonth - months{1} : ahcCalendar.shownMonth;
    const weekday firstShown{sys_days{DateInMonth(month, ahcCalendar.dayNumber[1])}};
    return ahcCalendar.weekdayLetter.at(static_cast<std::size_t>(column + PlaceInWeek(firstShown)));
}

void StepMonth(int monthsOnward) {
    const year_month month = ahcCalendar.shownMonth + months{monthsOnward};
    SelectInMonth(month, std::min(DayOf(ahcCalendar.Today), LastDayOf(month)));
}

// QUIRK CALENDAR-LINE-1: the line of pixels above the first row of days belongs to the days, but to no cell. In the
// last column it selects the day before the first of the month, which no cell shows as selected; in any other column
// the program ends with the failure of a subscript, and saves nothing. It is meant: the day area begins one pixel above
// its cells, and what stands before cell 0 is no day. Beginning the area at its first cell would take the day before
// the first away; holding the cell at 0 would select a day at which nobody pointed.
bool IsInDayArea(PixelPoint place) {
    const int x = place.x - dayAreaLeft;
    const int y = place.y + 1;
    return 0 <= x && x < weekLength * ahcCalendar.cellWidth && 2 * ahcCalendar.rowHeight <= y &&
           y < 8 * ahcCalendar.rowHeight;
}

void AimAt(PixelPoint place) {
    ahcCalendar.hitColumn = modUTILS::Divide(place.x - dayAreaLeft, ahcCalendar.cellWidth);
    ahcCalendar.hitRow = modUTILS::Divide(place.y, ahcCalendar.rowHeight);
    const int left = ahcCalendar.cellWidth * ahcCalendar.hitColumn + dayAreaLeft;
    const int top = ahcCalendar.hitRow * ahcCalendar.rowHeight;
    ahcCalendar.focusRect = {left, top, left + ahcCalendar.cellWidth + 1, top + ahcCalendar.rowHeight - 1};
}

void SelectAimedDay() {
    const int cell = AimedCell();
    if (cell < 0 || cell > calendarCells) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    const int day = ahcCalendar.dayNumber[static_cast<std::size_t>(cell)];
    const bool isBeside = ahcCalendar.dayColour[static_cast<std::size_t>(cell)] == besideColour;
    if (isBeside && ahcCalendar.hitRow == firstDayRow) {
        SelectInMonth(ahcCalendar.shownMonth - months{1}, day);
    } else if (isBeside && ahcCalendar.hitRow >= firstRowOfNextMonth) {
        SelectInMonth(ahcCalendar.shownMonth + months{1}, day);
    } else {
        ahcCalendar.Today = DateInMonth(ahcCalendar.shownMonth, day);
        ahcCalendar.selectedCell = ToInt16(cell);
    }
}

}  // namespace ballhaven
