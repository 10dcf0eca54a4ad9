#include "calendar/MonthLayout.h"

#include "forms/CalendarForm.h"
#include "platform/Services.h"
#include "state/RuntimeFailure.h"
#include "support/CalendarReset.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;
using support::ShowMonthOf;

// Without a window a character is 7 pixels wide and 15 high: cells are 21 wide, rows 16 high.
constexpr int cellWidth = 21;
constexpr int rowHeight = 16;

const CalendarForm& form = ahcCalendar;

class MonthLayout : public testing::Test {
  protected:
    MonthLayout() {
        platform::services.today = [] { return year{2004} / 2 / 14; };
        platform::services.firstDayOfWeek = [] { return std::chrono::Sunday; };
        platform::services.shortDayName = platform::EnglishShortDayName;
        support::ResetCalendar();
    }
    ~MonthLayout() override { platform::services = before; }

    /// Aims at a cell, 1 to 42, in its middle, and selects its day.
    static void SelectCell(int cell) {
        const int row = (cell - 1) / 7;
        const int column = (cell - 1) % 7;
        AimAt({5 + column * cellWidth + cellWidth / 2, (row + 2) * rowHeight + rowHeight / 2});
        SelectAimedDay();
    }

    static std::string Letters() {
        std::string letters;
        for (int column = 1; column <= 7; ++column) {
            letters += LetterOverColumn(column);
        }
        return letters;
    }

    /// The numbers of a row of days, 1 to 6, with the grey ones in parentheses.
    static std::string Row(int row) {
        std::string text;
        for (int cell = (row - 1) * 7 + 1; cell <= row * 7; ++cell) {
            const auto index = static_cast<std::size_t>(cell);
            const std::string number = std::to_string(form.dayNumber[index]);
            text += (text.empty() ? "" : " ") + (form.dayColour[index] == 0 ? number : "(" + number + ")");
        }
        return text;
    }

  private:
    const platform::Services before = platform::services;
};

using QuirkCalendarLine1 = MonthLayout;
using QuirkCalendarMonday1 = MonthLayout;

TEST_F(MonthLayout, MeasuresComeFromTheTexts) {
    MeasureCalendar();
    EXPECT_EQ(form.charHeight, 15);
    EXPECT_EQ(form.cellWidth, 21);
    EXPECT_EQ(form.rowHeight, 16);
    EXPECT_EQ(form.gridTop, 32);
    EXPECT_EQ(InnerWidth(), 168) << "eight times \"777\"";
    EXPECT_EQ(form.window.Width(), 168 * 15 + platform::Window::frameWidth);
    EXPECT_EQ(form.window.Height(), 2587 + platform::Window::frameHeight) << "11.5 lines of 225 twips";
    EXPECT_EQ(form.gridLeft, 5) << "168 - 157.5 is 10.5, rounded to the even 10, halved";
    EXPECT_EQ(form.prevRect, (platform::PixelRect{2, 2, 13, 13}));
    EXPECT_EQ(form.nextRect, (platform::PixelRect{154, 2, 166, 13}));
}

TEST_F(MonthLayout, AMonthHasTheEndOfTheOneBeforeInFrontAndTheBeginningOfTheNextBehind) {
    ShowMonthOf(year{2004} / 2 / 3);
    EXPECT_EQ(Row(1), "(26) (27) (28) (29) (30) (31) 1");
    EXPECT_EQ(Row(2), "2 3 4 5 6 7 8");
    EXPECT_EQ(Row(5), "23 24 25 26 27 28 29");
    EXPECT_EQ(Row(6), "(1) (2) (3) (4) (5) (6) (7)");
    EXPECT_EQ(form.selectedCell, 9);
    EXPECT_EQ(form.todayCell, 20);
}

TEST_F(MonthLayout, AMonthThatBeginsOnAMondayHasItsFirstDayBlackInCellOne) {
    ShowMonthOf(year{2004} / 3 / 1);
    EXPECT_EQ(Row(1), "1 2 3 4 5 6 7");
    EXPECT_EQ(form.selectedCell, 1);
    EXPECT_EQ(form.todayCell, 0) << "the current date is in another month";
}

TEST_F(MonthLayout, ALongMonthThatBeginsOnASundayReachesIntoTheSixthRow) {
    ShowMonthOf(year{2004} / 8 / 31);
    EXPECT_EQ(Row(1), "(26) (27) (28) (29) (30) (31) 1");
    EXPECT_EQ(Row(6), "30 31 (1) (2) (3) (4) (5)");
    EXPECT_EQ(form.selectedCell, 37);
}

TEST_F(MonthLayout, AShortMonthThatBeginsOnAMondayHasTwoGreyRows) {
    ShowMonthOf(year{2010} / 2 / 28);
    EXPECT_EQ(Row(4), "22 23 24 25 26 27 28");
    EXPECT_EQ(Row(5), "(1) (2) (3) (4) (5) (6) (7)");
    EXPECT_EQ(Row(6), "(8) (9) (10) (11) (12) (13) (14)");
}

TEST_F(MonthLayout, EveryMonthOfTwoCenturiesShowsEachDayUnderItsWeekday) {
    for (year_month_day first = year{1900} / 1 / 1; first < year{2100} / 1 / 1; first += std::chrono::months{1}) {
        ShowMonthOf(first);
        const unsigned monday = std::chrono::weekday{sys_days{first}}.iso_encoding();
        for (int cell = 1; cell <= calendarCells; ++cell) {
            const year_month_day expected = sys_days{first} + days{cell - static_cast<int>(monday)};
            const auto index = static_cast<std::size_t>(cell);
            ASSERT_EQ(form.dayNumber[index], static_cast<int>(static_cast<unsigned>(expected.day()))) << cell;
            ASSERT_EQ(form.dayColour[index], expected.month() == first.month() ? 0 : 8) << cell;
        }
    }
}

TEST_F(MonthLayout, GreyCellsStandInTheFirstRowAndTheLastTwoOnly) {
    for (year_month_day first = year{1984} / 1 / 1; first < year{2024} / 1 / 1; first += std::chrono::months{1}) {
        ShowMonthOf(first);
        for (int row : {2, 3, 4}) {
            ASSERT_EQ(Row(row).find('('), std::string::npos);
        }
    }
}

TEST_F(MonthLayout, TheLastDayOfJanuaryGoesOnToTheLastOfFebruary) {
    ShowMonthOf(year{2003} / 1 / 31);
    StepMonth(1);
    EXPECT_EQ(form.Today, year{2003} / 2 / 28);
    ShowMonthOf(year{2004} / 1 / 31);
    StepMonth(1);
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
    EXPECT_EQ(form.selectedCell, 35);
}

TEST_F(MonthLayout, TheLastDayOfMarchGoesBackToTheLastOfFebruary) {
    ShowMonthOf(year{2003} / 3 / 31);
    StepMonth(-1);
    EXPECT_EQ(form.Today, year{2003} / 2 / 28);
    ShowMonthOf(year{2004} / 3 / 31);
    StepMonth(-1);
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
}

TEST_F(MonthLayout, StepsGoOverTheTurnOfTheYear) {
    ShowMonthOf(year{1999} / 12 / 15);
    StepMonth(1);
    EXPECT_EQ(form.Today, year{2000} / 1 / 15);
    StepMonth(-1);
    EXPECT_EQ(form.Today, year{1999} / 12 / 15);
}

TEST_F(MonthLayout, ADayOfTheShownMonthIsSelectedWhereItStands) {
    ShowMonthOf(year{2004} / 2 / 3);
    SelectCell(35);
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
    EXPECT_EQ(form.selectedCell, 35);
    SelectCell(7);
    EXPECT_EQ(form.Today, year{2004} / 2 / 1);
    EXPECT_EQ(form.selectedCell, 7);
}

TEST_F(MonthLayout, AGreyDayOfTheFirstRowGoesToTheMonthBefore) {
    ShowMonthOf(year{2004} / 1 / 15);
    SelectCell(1);
    EXPECT_EQ(form.Today, year{2003} / 12 / 29);
    EXPECT_EQ(form.shownMonth, year{2003} / 12);
    EXPECT_EQ(form.selectedCell, 29);
}

TEST_F(MonthLayout, AGreyDayOfTheLastTwoRowsGoesToTheMonthAfter) {
    ShowMonthOf(year{2010} / 2 / 10);
    SelectCell(29);
    EXPECT_EQ(form.Today, year{2010} / 3 / 1) << "row 5 of days";
    ShowMonthOf(year{2010} / 2 / 10);
    SelectCell(42);
    EXPECT_EQ(form.Today, year{2010} / 3 / 14) << "row 6 of days";
    EXPECT_EQ(form.shownMonth, year{2010} / 3);
    EXPECT_EQ(form.selectedCell, 14);
}

TEST_F(MonthLayout, TheDayAreaEndsWithItsPixels) {
    MeasureCalendar();
    EXPECT_TRUE(IsInDayArea({5, 2 * rowHeight}));
    EXPECT_FALSE(IsInDayArea({4, 2 * rowHeight}));
    EXPECT_TRUE(IsInDayArea({5 + 7 * cellWidth - 1, 2 * rowHeight}));
    EXPECT_FALSE(IsInDayArea({5 + 7 * cellWidth, 2 * rowHeight}));
    EXPECT_TRUE(IsInDayArea({5, 8 * rowHeight - 2}));
    EXPECT_FALSE(IsInDayArea({5, 8 * rowHeight - 1}));
}

TEST_F(MonthLayout, AimingTellsTheCellAndItsRectangle) {
    MeasureCalendar();
    AimAt({5 + 2 * cellWidth, 3 * rowHeight});
    EXPECT_EQ(form.hitColumn, 2);
    EXPECT_EQ(form.hitRow, 3);
    EXPECT_EQ(form.focusRect, (platform::PixelRect{47, 48, 69, 63}));
    AimAt({5 + 2 * cellWidth - 1, 3 * rowHeight - 1});
    EXPECT_EQ(form.hitColumn, 1);
    EXPECT_EQ(form.hitRow, 2);
    EXPECT_EQ(form.focusRect, (platform::PixelRect{26, 32, 48, 47}));
}

// Not a bug: CALENDAR-LINE-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarLine1, TheLineAboveTheDaysBelongsToThem) {
    MeasureCalendar();
    EXPECT_TRUE(IsInDayArea({5, 2 * rowHeight - 1}));
    EXPECT_FALSE(IsInDayArea({5, 2 * rowHeight - 2}));
    AimAt({5, 2 * rowHeight - 1});
    EXPECT_EQ(form.hitRow, 1);
}

TEST_F(QuirkCalendarLine1, InTheLastColumnItSelectsTheDayBeforeTheFirstInNoCell) {
    ShowMonthOf(year{2004} / 3 / 10);
    AimAt({5 + 7 * cellWidth - 1, 2 * rowHeight - 1});
    SelectAimedDay();
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
    EXPECT_EQ(form.selectedCell, 0);
    EXPECT_EQ(form.shownMonth, year{2004} / 3) << "only the cells change";
    SelectCell(3);
    EXPECT_EQ(form.Today, year{2004} / 3 / 3) << "the cells still stand for the month on show";
}

TEST_F(QuirkCalendarLine1, InAnyOtherColumnItFailsAndSelectsNothing) {
    ShowMonthOf(year{2004} / 3 / 10);
    for (int column = 0; column < 6; ++column) {
        AimAt({5 + column * cellWidth, 2 * rowHeight - 1});
        try {
            SelectAimedDay();
            FAIL() << column;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.GetKind(), RuntimeFailure::Kind::SubscriptOutOfRange);
        }
    }
    EXPECT_EQ(form.Today, year{2004} / 3 / 10);
}

// Not a bug: CALENDAR-MONDAY-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarMonday1, TheRowsBeginWithMondayWhateverTheSystemsWeekBeginsWith) {
    for (const std::chrono::weekday first : {std::chrono::Sunday, std::chrono::Monday, std::chrono::Saturday}) {
        platform::services.firstDayOfWeek = [first] { return first; };
        ShowMonthOf(year{2004} / 2 / 3);
        EXPECT_EQ(Letters(), "MTWTFSS");
        EXPECT_EQ(Row(2), "2 3 4 5 6 7 8");
    }
}

TEST_F(MonthLayout, TheLettersRunTwiceThroughTheSystemsWeek) {
    platform::services.firstDayOfWeek = [] { return std::chrono::Saturday; };
    FillWeekdayLetters();
    std::string letters;
    for (const std::string& letter : form.weekdayLetter) {
        letters += letter;
    }
    EXPECT_EQ(letters, "SSMTWTFSSMTWTF");
}

TEST_F(MonthLayout, WhatIsNoDateLeavesTheSelectedOne) {
    ahcCalendar.SetToday(year{2004} / 2 / 29);
    ahcCalendar.SetToday(year{2003} / 2 / 29);
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
    ahcCalendar.SetToday(year_month_day{});
    EXPECT_EQ(form.Today, year{2004} / 2 / 29);
}

}  // namespace
}  // namespace ballhaven
