#include "calendar/MonthLayout.h"

#include "platform/Services.h"
#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

// Texts of 7 by 15 pixels a character: cells are 21 wide, rows 16 high.
constexpr int cellWidth = 21;
constexpr int rowHeight = 16;

/// A month with a selected day, on 14 February 2004.
class MonthLayout : public testing::Test {
  protected:
    void Select(year_month_day date) {
        selected = date;
        month = MonthOf(date, today);
    }

    void Choose(const AimedCell& cell) {
        const SelectedDay day = DayOfCell(month, cell, today);
        selected = day.date;
        month = day.month;
    }

    /// Selects the day of a cell, 1 to 42, aimed at in its middle.
    void SelectCell(int cell) {
        const int row = (cell - 1) / 7;
        const int column = (cell - 1) % 7;
        Choose(CellAt(measures, {5 + column * cellWidth + cellWidth / 2, (row + 2) * rowHeight + rowHeight / 2}));
    }

    [[nodiscard]] std::string Letters(std::chrono::weekday firstDay) const {
        const WeekdayLetters week = LettersOfWeek(firstDay, platform::EnglishShortDayName);
        std::string letters;
        for (int column = 1; column <= 7; ++column) {
            letters += LetterOverColumn(month, week, firstDay, column);
        }
        return letters;
    }

    /// The numbers of a row of days, 1 to 6, with the grey ones in parentheses.
    [[nodiscard]] std::string Row(int row) const {
        std::string text;
        for (int cell = (row - 1) * 7 + 1; cell <= row * 7; ++cell) {
            const auto index = static_cast<std::size_t>(cell);
            const std::string number = std::to_string(month.dayNumber[index]);
            text += (text.empty() ? "" : " ") + (month.dayColour[index] == 0 ? number : "(" + number + ")");
        }
        return text;
    }

    const year_month_day today = year{2004} / 2 / 14;
    const CalendarMeasures measures = MeasuresOf(15, 21);
    year_month_day selected{};
    CalendarMonth month;
};

using QuirkCalendarLine1 = MonthLayout;
using QuirkCalendarMonday1 = MonthLayout;

TEST_F(MonthLayout, MeasuresComeFromTheTexts) {
    EXPECT_EQ(measures.charHeight, 15);
    EXPECT_EQ(measures.cellWidth, 21);
    EXPECT_EQ(measures.rowHeight, 16);
    EXPECT_EQ(measures.gridTop, 32);
    EXPECT_EQ(InnerWidth(measures), 168) << "eight times \"777\"";
    EXPECT_EQ(measures.width, 2520);
    EXPECT_EQ(measures.height, 2587) << "11.5 lines of 225 twips";
    EXPECT_EQ(measures.gridLeft, 5) << "168 - 157.5 is 10.5, rounded to the even 10, halved";
    EXPECT_EQ(measures.prevRect, (platform::PixelRect{2, 2, 13, 13}));
    EXPECT_EQ(measures.nextRect, (platform::PixelRect{154, 2, 166, 13}));
}

TEST_F(MonthLayout, AMonthHasTheEndOfTheOneBeforeInFrontAndTheBeginningOfTheNextBehind) {
    Select(year{2004} / 2 / 3);
    EXPECT_EQ(Row(1), "(26) (27) (28) (29) (30) (31) 1");
    EXPECT_EQ(Row(2), "2 3 4 5 6 7 8");
    EXPECT_EQ(Row(5), "23 24 25 26 27 28 29");
    EXPECT_EQ(Row(6), "(1) (2) (3) (4) (5) (6) (7)");
    EXPECT_EQ(month.selectedCell, 9);
    EXPECT_EQ(month.todayCell, 20);
}

TEST_F(MonthLayout, AMonthThatBeginsOnAMondayHasItsFirstDayBlackInCellOne) {
    Select(year{2004} / 3 / 1);
    EXPECT_EQ(Row(1), "1 2 3 4 5 6 7");
    EXPECT_EQ(month.selectedCell, 1);
    EXPECT_EQ(month.todayCell, 0) << "the current date is in another month";
}

TEST_F(MonthLayout, ALongMonthThatBeginsOnASundayReachesIntoTheSixthRow) {
    Select(year{2004} / 8 / 31);
    EXPECT_EQ(Row(1), "(26) (27) (28) (29) (30) (31) 1");
    EXPECT_EQ(Row(6), "30 31 (1) (2) (3) (4) (5)");
    EXPECT_EQ(month.selectedCell, 37);
}

TEST_F(MonthLayout, AShortMonthThatBeginsOnAMondayHasTwoGreyRows) {
    Select(year{2010} / 2 / 28);
    EXPECT_EQ(Row(4), "22 23 24 25 26 27 28");
    EXPECT_EQ(Row(5), "(1) (2) (3) (4) (5) (6) (7)");
    EXPECT_EQ(Row(6), "(8) (9) (10) (11) (12) (13) (14)");
}

TEST_F(MonthLayout, EveryMonthOfTwoCenturiesShowsEachDayUnderItsWeekday) {
    for (year_month_day first = year{1900} / 1 / 1; first < year{2100} / 1 / 1; first += std::chrono::months{1}) {
        Select(first);
        const unsigned monday = std::chrono::weekday{sys_days{first}}.iso_encoding();
        for (int cell = 1; cell <= calendarCells; ++cell) {
            const year_month_day expected = sys_days{first} + days{cell - static_cast<int>(monday)};
            const auto index = static_cast<std::size_t>(cell);
            ASSERT_EQ(month.dayNumber[index], static_cast<int>(static_cast<unsigned>(expected.day()))) << cell;
            ASSERT_EQ(month.dayColour[index], expected.month() == first.month() ? 0 : 8) << cell;
        }
    }
}

TEST_F(MonthLayout, GreyCellsStandInTheFirstRowAndTheLastTwoOnly) {
    for (year_month_day first = year{1984} / 1 / 1; first < year{2024} / 1 / 1; first += std::chrono::months{1}) {
        Select(first);
        for (int row : {2, 3, 4}) {
            ASSERT_EQ(Row(row).find('('), std::string::npos);
        }
    }
}

TEST_F(MonthLayout, TheLastDayOfJanuaryGoesOnToTheLastOfFebruary) {
    Select(year{2003} / 1 / 31);
    Select(MonthsOnward(selected, 1));
    EXPECT_EQ(selected, year{2003} / 2 / 28);
    Select(year{2004} / 1 / 31);
    Select(MonthsOnward(selected, 1));
    EXPECT_EQ(selected, year{2004} / 2 / 29);
    EXPECT_EQ(month.selectedCell, 35);
}

TEST_F(MonthLayout, TheLastDayOfMarchGoesBackToTheLastOfFebruary) {
    Select(year{2003} / 3 / 31);
    Select(MonthsOnward(selected, -1));
    EXPECT_EQ(selected, year{2003} / 2 / 28);
    Select(year{2004} / 3 / 31);
    Select(MonthsOnward(selected, -1));
    EXPECT_EQ(selected, year{2004} / 2 / 29);
}

TEST_F(MonthLayout, StepsGoOverTheTurnOfTheYear) {
    Select(year{1999} / 12 / 15);
    Select(MonthsOnward(selected, 1));
    EXPECT_EQ(selected, year{2000} / 1 / 15);
    Select(MonthsOnward(selected, -1));
    EXPECT_EQ(selected, year{1999} / 12 / 15);
}

TEST_F(MonthLayout, ADayOfTheShownMonthIsSelectedWhereItStands) {
    Select(year{2004} / 2 / 3);
    SelectCell(35);
    EXPECT_EQ(selected, year{2004} / 2 / 29);
    EXPECT_EQ(month.selectedCell, 35);
    SelectCell(7);
    EXPECT_EQ(selected, year{2004} / 2 / 1);
    EXPECT_EQ(month.selectedCell, 7);
}

TEST_F(MonthLayout, AGreyDayOfTheFirstRowGoesToTheMonthBefore) {
    Select(year{2004} / 1 / 15);
    SelectCell(1);
    EXPECT_EQ(selected, year{2003} / 12 / 29);
    EXPECT_EQ(month.shownMonth, year{2003} / 12);
    EXPECT_EQ(month.selectedCell, 29);
}

TEST_F(MonthLayout, AGreyDayOfTheLastTwoRowsGoesToTheMonthAfter) {
    Select(year{2010} / 2 / 10);
    SelectCell(29);
    EXPECT_EQ(selected, year{2010} / 3 / 1) << "row 5 of days";
    Select(year{2010} / 2 / 10);
    SelectCell(42);
    EXPECT_EQ(selected, year{2010} / 3 / 14) << "row 6 of days";
    EXPECT_EQ(month.shownMonth, year{2010} / 3);
    EXPECT_EQ(month.selectedCell, 14);
}

TEST_F(MonthLayout, AssistiveToolsAreToldOfTheDateOfEachCell) {
    Select(year{2004} / 2 / 14);
    const std::vector<platform::SurfaceCell> told = DaysOf(month, measures, today);
    ASSERT_EQ(told.size(), 42U);
    EXPECT_EQ(told[0].name, "26 January 2004");
    EXPECT_EQ(told[6].name, "1 February 2004");
    EXPECT_EQ(told[19].name, "14 February 2004");
    EXPECT_EQ(told[41].name, "7 March 2004");
    EXPECT_EQ(std::ranges::count_if(told, &platform::SurfaceCell::selected), 1);
    EXPECT_TRUE(told[19].selected);
    EXPECT_EQ(told[19].place, CellAt(measures, {5 + 5 * cellWidth + 1, 4 * rowHeight + 1}).focusRect);
}

TEST_F(MonthLayout, TheDayAreaEndsWithItsPixels) {
    EXPECT_TRUE(IsInDayArea(measures, {5, 2 * rowHeight}));
    EXPECT_FALSE(IsInDayArea(measures, {4, 2 * rowHeight}));
    EXPECT_TRUE(IsInDayArea(measures, {5 + 7 * cellWidth - 1, 2 * rowHeight}));
    EXPECT_FALSE(IsInDayArea(measures, {5 + 7 * cellWidth, 2 * rowHeight}));
    EXPECT_TRUE(IsInDayArea(measures, {5, 8 * rowHeight - 2}));
    EXPECT_FALSE(IsInDayArea(measures, {5, 8 * rowHeight - 1}));
}

TEST_F(MonthLayout, AimingTellsTheCellAndItsRectangle) {
    EXPECT_EQ(CellAt(measures, {5 + 2 * cellWidth, 3 * rowHeight}), (AimedCell{2, 3, {47, 48, 69, 63}}));
    EXPECT_EQ(CellAt(measures, {5 + 2 * cellWidth - 1, 3 * rowHeight - 1}), (AimedCell{1, 2, {26, 32, 48, 47}}));
}

// Not a bug: CALENDAR-LINE-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarLine1, TheLineAboveTheDaysBelongsToThem) {
    EXPECT_TRUE(IsInDayArea(measures, {5, 2 * rowHeight - 1}));
    EXPECT_FALSE(IsInDayArea(measures, {5, 2 * rowHeight - 2}));
    EXPECT_EQ(CellAt(measures, {5, 2 * rowHeight - 1}).hitRow, 1);
}

TEST_F(QuirkCalendarLine1, InTheLastColumnItSelectsTheDayBeforeTheFirstInNoCell) {
    Select(year{2004} / 3 / 10);
    Choose(CellAt(measures, {5 + 7 * cellWidth - 1, 2 * rowHeight - 1}));
    EXPECT_EQ(selected, year{2004} / 2 / 29);
    EXPECT_EQ(month.selectedCell, 0);
    EXPECT_EQ(month.shownMonth, year{2004} / 3) << "only the cells change";
    SelectCell(3);
    EXPECT_EQ(selected, year{2004} / 3 / 3) << "the cells still stand for the month on show";
}

TEST_F(QuirkCalendarLine1, OnlyTheSelectedCellChanges) {
    Select(year{2004} / 3 / 10);
    CalendarMonth expected = month;
    expected.selectedCell = 0;
    Choose(CellAt(measures, {5 + 7 * cellWidth - 1, 2 * rowHeight - 1}));
    EXPECT_EQ(month, expected);
}

TEST_F(QuirkCalendarLine1, InAnyOtherColumnItFailsAndSelectsNothing) {
    Select(year{2004} / 3 / 10);
    for (int column = 0; column < 6; ++column) {
        try {
            Choose(CellAt(measures, {5 + column * cellWidth, 2 * rowHeight - 1}));
            FAIL() << column;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.GetKind(), RuntimeFailure::Kind::SubscriptOutOfRange);
        }
    }
    EXPECT_EQ(selected, year{2004} / 3 / 10);
}

// Not a bug: CALENDAR-MONDAY-1 in docs/not-bugs.md.
TEST_F(QuirkCalendarMonday1, TheRowsBeginWithMondayWhateverTheSystemsWeekBeginsWith) {
    Select(year{2004} / 2 / 3);
    EXPECT_EQ(Row(2), "2 3 4 5 6 7 8");
    for (const std::chrono::weekday first : {std::chrono::Sunday, std::chrono::Monday, std::chrono::Saturday}) {
        EXPECT_EQ(Letters(first), "MTWTFSS");
    }
}

TEST_F(MonthLayout, TheLettersOverAMonthThatBeginsOnAMondayAreThoseOfItsOwnDays) {
    Select(year{2004} / 3 / 1);
    EXPECT_EQ(Letters(std::chrono::Sunday), "MTWTFSS");
    EXPECT_EQ(Letters(std::chrono::Wednesday), "MTWTFSS");
}

TEST_F(MonthLayout, TheLettersOverAMonthThatBeginsOnATuesdayBeginWithTheMondayBefore) {
    Select(year{2004} / 6 / 1);
    EXPECT_EQ(Row(1), "(31) 1 2 3 4 5 6");
    EXPECT_EQ(Letters(std::chrono::Sunday), "MTWTFSS");
}

TEST_F(MonthLayout, TheLettersRunTwiceThroughTheSystemsWeek) {
    std::string letters;
    for (const std::string& letter : LettersOfWeek(std::chrono::Saturday, platform::EnglishShortDayName)) {
        letters += letter;
    }
    EXPECT_EQ(letters, "SSMTWTFSSMTWTF");
}

}  // namespace
}  // namespace ballhaven
