#include "calendar/MonthLayout.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "calendar/CalendarForm.h"
#include "platform/Services.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"

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

CalendarForm& form = ahcCalendar;

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
    form.dayNumber[static_cast<std::size_t>(cell)] = ToInt16(day);
    form.dayColour[static_cast<std::size_t>(cell)] = colour;
}

void PutDayOfMonth(int cell, year_month_day date) {
    PutCell(cell, DayOf(date), shownMonthColour);
    if (date == form.Today) {
        form.selectedCell = ToInt16(cell);
    }
    if (date == platform::services.today()) {
        form.todayCell = ToInt16(cell);
    }
}

/// Days from the system's first day of the week to a day, 0 to 6.
int PlaceInWeek(weekday day) {
    return static_cast<int>((day - platform::services.firstDayOfWeek()).count());
}

/// The cell under the mouse. Cell 0 and the cells before it stand on the line above the first row of days.
int AimedCell() {
    return (form.hitRow - firstDayRow) * weekLength + form.hitColumn + 1;
}

void SelectInMonth(year_month month, int day) {
    form.Today = DateInMonth(month, day);
    LayOutMonth();
}

}  // namespace

void MeasureCalendar() {
    form.charHeight = ToInt16(form.surface.TextHeight());
    form.cellWidth = ToInt16(form.surface.TextWidth("777"));
    const int width = 8 * form.cellWidth * twipsPerPixel;
    const int height = 23 * form.charHeight * twipsPerPixel / 2;  // 11.5 lines
    form.window.Resize(width + Window::frameWidth, height + Window::frameHeight);
    form.surface.bounds = platform::Bounds{0, 0, width, height};

    form.rowHeight = ToInt16(form.charHeight + 1);
    form.gridLeft = modUTILS::Divide(std::lrint(InnerWidth() - 7.5 * form.cellWidth), 2);
    form.gridTop = ToInt16(2 * form.rowHeight);
    form.prevRect = {2, 2, 13, 13};
    form.nextRect = {InnerWidth() - 14, 2, InnerWidth() - 2, 13};
}

int InnerWidth() {
    return form.surface.bounds->width / twipsPerPixel;
}

void FillWeekdayLetters() {
    const weekday first = platform::services.firstDayOfWeek();
    for (int i = 1; i <= weekLength; ++i) {
        const std::string letter = platform::services.shortDayName(first + days{i - 1}).substr(0, 1);
        form.weekdayLetter[static_cast<std::size_t>(i)] = letter;
        form.weekdayLetter[static_cast<std::size_t>(i + weekLength)] = letter;
    }
}

// QUIRK CALENDAR-MONDAY-1: the rows of days begin with Monday, whatever day the system's week begins with. It is meant:
// the columns of the calendar are the same on every machine. Only the letters come from the system; beginning the rows
// with its first day would move every day of users who know the calendar by its columns.
void LayOutMonth() {
    form.shownMonth = form.Today.year() / form.Today.month();
    form.selectedCell = 0;
    form.todayCell = 0;
    const auto firstCell = static_cast<int>(weekday{sys_days{form.shownMonth / 1}}.iso_encoding());
    const int lastDayBefore = LastDayOf(form.shownMonth - months{1});
    const int behindLastCell = firstCell + LastDayOf(form.shownMonth);
    PutCell(0, 0, shownMonthColour);
    for (int cell = 1; cell < firstCell; ++cell) {
        PutCell(cell, lastDayBefore - firstCell + 1 + cell, besideColour);
    }
    for (int cell = firstCell; cell < behindLastCell; ++cell) {
        PutDayOfMonth(cell, DateInMonth(form.shownMonth, cell - firstCell + 1));
    }
    for (int cell = behindLastCell; cell <= calendarCells; ++cell) {
        PutCell(cell, cell - behindLastCell + 1, besideColour);
    }
}

const std::string& LetterOverColumn(int column) {
    const year_month month = form.dayColour[1] == besideColour ? form.shownMonth - months{1} : form.shownMonth;
    const weekday firstShown{sys_days{DateInMonth(month, form.dayNumber[1])}};
    return form.weekdayLetter.at(static_cast<std::size_t>(column + PlaceInWeek(firstShown)));
}

void StepMonth(int monthsOnward) {
    const year_month month = form.shownMonth + months{monthsOnward};
    SelectInMonth(month, std::min(DayOf(form.Today), LastDayOf(month)));
}

// QUIRK CALENDAR-LINE-1: the line of pixels above the first row of days belongs to the days, but to no cell. In the
// last column it selects the day before the first of the month, which no cell shows as selected; in any other column
// the program ends with the failure of a subscript, and saves nothing. It is meant: the day area begins one pixel above
// its cells, and what stands before cell 0 is no day. Beginning the area at its first cell would take the day before
// the first away; holding the cell at 0 would select a day at which nobody pointed.
bool IsInDayArea(PixelPoint place) {
    const int x = place.x - dayAreaLeft;
    const int y = place.y + 1;
    return 0 <= x && x < weekLength * form.cellWidth && 2 * form.rowHeight <= y && y < 8 * form.rowHeight;
}

void AimAt(PixelPoint place) {
    form.hitColumn = modUTILS::Divide(place.x - dayAreaLeft, form.cellWidth);
    form.hitRow = modUTILS::Divide(place.y, form.rowHeight);
    const int left = form.cellWidth * form.hitColumn + dayAreaLeft;
    const int top = form.hitRow * form.rowHeight;
    form.focusRect = {left, top, left + form.cellWidth + 1, top + form.rowHeight - 1};
}

void SelectAimedDay() {
    const int cell = AimedCell();
    if (cell < 0 || cell > calendarCells) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    const int day = form.dayNumber[static_cast<std::size_t>(cell)];
    const bool isBeside = form.dayColour[static_cast<std::size_t>(cell)] == besideColour;
    if (isBeside && form.hitRow == firstDayRow) {
        SelectInMonth(form.shownMonth - months{1}, day);
    } else if (isBeside && form.hitRow >= firstRowOfNextMonth) {
        SelectInMonth(form.shownMonth + months{1}, day);
    } else {
        form.Today = DateInMonth(form.shownMonth, day);
        form.selectedCell = ToInt16(cell);
    }
}

}  // namespace ballhaven
