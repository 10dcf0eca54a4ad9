#include "state/DateText.h"

#include "platform/Services.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string>

namespace ballhaven {
namespace {

using namespace std::chrono;

constexpr sys_days dayZero{1984y / January / 1};

struct DateText : public ::testing::Test {
    static std::string FileText(const std::string& pattern, std::string text) {
        appState.shortDateFormat = pattern;
        DateToFileText(text);
        return text;
    }

    /// The serial of a text that must change it.
    static int SerialOfText(std::string text) {
        DateToSerial(text);
        return appState.dateSerial;
    }

    static std::string ScreenText(const std::string& pattern, std::int16_t serial) {
        appState.shortDateFormat = pattern;
        return SerialToDate(serial);
    }
};

using QuirkDateColon1 = DateText;
using QuirkDateBefore19841 = DateText;

/// A day as month/day/year, by the standard library's calendar.
std::string CalendarText(sys_days day) {
    const year_month_day date{day};
    char text[32];
    std::snprintf(text, sizeof text, "%02u/%02u/%04d", static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(date.year()));
    return text;
}

TEST_F(DateText, TheThousandthDayIsThe27thOfSeptember1986) {
    EXPECT_EQ(SerialOfText("09/27/1986"), 1000);
    EXPECT_EQ(SerialToDate(1000), "09/27/1986");
}

TEST_F(DateText, TheFirstDayIsASundayWithSerialZero) {
    appState.dateSerial = 77;
    EXPECT_EQ(SerialOfText("01/01/1984"), 0);
    EXPECT_EQ(appState.dateWeekday, 7);
    EXPECT_EQ(SerialToDate(0), "01/01/1984");
}

TEST_F(DateText, TheFirstMondayIsWeekdayOne) {
    EXPECT_EQ(SerialOfText("01/02/1984"), 1);
    EXPECT_EQ(appState.dateWeekday, 1);
}

TEST_F(DateText, TheLeapDayOf2004IsOneDayBeforeTheFirstOfMarch) {
    const int leapDay = SerialOfText("02/29/2004");
    EXPECT_EQ(SerialOfText("03/01/2004"), leapDay + 1);
}

TEST_F(DateText, TheYear2000HasALeapDay) {
    const int leapDay = SerialOfText("02/29/2000");
    EXPECT_EQ(SerialOfText("03/01/2000"), leapDay + 1);
}

TEST_F(DateText, ADayFirstDateWithPointsBecomesNeutral) {
    EXPECT_EQ(FileText("d.m.y", "27.09.1986"), "09-27-1986");
}

TEST_F(DateText, AYearFirstDateBecomesNeutral) {
    EXPECT_EQ(FileText("y-m-d", "1986-09-27"), "09-27-1986");
}

TEST_F(DateText, LettersBetweenTheNumbersSeparateThemAsWell) {
    EXPECT_EQ(FileText("m/d/y", "9a27a1986"), FileText("m/d/y", "9/27/1986"));
    EXPECT_EQ(FileText("m/d/y", "9a27a1986"), "09-27-1986");
}

TEST_F(DateText, SingleDigitsGetALeadingZeroButTheYearStaysAsTyped) {
    EXPECT_EQ(FileText("m/d/y", "1/2/86"), "01-02-86");
    EXPECT_EQ(FileText("m/d/y", "1/2/7"), "01-02-7");
}

TEST_F(DateText, OfALongMonthOrDayTheLastTwoDigitsCount) {
    EXPECT_EQ(FileText("m/d/y", "123/456/1990"), "23-56-1990");
}

TEST_F(DateText, BlanksSeparateToo) {
    EXPECT_EQ(FileText("m/d/y", "9 27 1986"), "09-27-1986");
}

TEST_F(DateText, TwoSeparatorsInARowLeaveAPartOfZero) {
    EXPECT_EQ(FileText("m/d/y", "9//1986"), "09-00-1986");
}

TEST_F(DateText, WithoutASeparatorEveryPartIsTheSameNumber) {
    EXPECT_EQ(FileText("m/d/y", "9"), "09-09-9");
    EXPECT_EQ(FileText("m/d/y", "9/27"), "09-27-27");
}

TEST_F(DateText, AnEmptyTextBecomesZeros) {
    EXPECT_EQ(FileText("m/d/y", ""), "00-00-0");
}

// Not a bug: DATE-COLON-1 in docs/not-bugs.md.
TEST_F(QuirkDateColon1, AColonEndsThePartWithoutStartingAnother) {
    EXPECT_EQ(FileText("m/d/y", "9:27:1986"), "09-09-9");
    EXPECT_EQ(FileText("m/d/y", "9:30/27/1986"), "09-27-1986");
}

TEST_F(DateText, TheCallersTextIsNeutralAfterwards) {
    std::string text = "9/27/1986";
    DateToSerial(text);
    EXPECT_EQ(text, "09-27-1986");
}

TEST_F(DateText, AMonthOutsideTheYearAddsNoDays) {
    EXPECT_EQ(SerialOfText("00/05/1984"), 4);
    EXPECT_EQ(SerialOfText("13/05/1984"), 4);
}

TEST_F(DateText, DaysBeyondTheMonthRunOnIntoTheNext) {
    EXPECT_EQ(SerialOfText("01/32/1984"), SerialOfText("02/01/1984"));
    EXPECT_EQ(SerialOfText("01/00/1984"), -1);
    EXPECT_EQ(appState.dateWeekday, 6);
}

// Not a bug: DATE-BEFORE-1984-1 in docs/not-bugs.md.
TEST_F(QuirkDateBefore19841, AnEarlierYearLeavesTheLastResults) {
    ASSERT_EQ(SerialOfText("09/27/1986"), 1000);
    std::string text = "12/31/1983";
    DateToSerial(text);
    EXPECT_EQ(text, "12-31-1983");
    EXPECT_EQ(appState.dateSerial, 1000);
    EXPECT_EQ(appState.dateWeekday, 6);
}

// Not a bug: DATE-BEFORE-1984-1 in docs/not-bugs.md.
TEST_F(QuirkDateBefore19841, AYearOfTwoDigitsIsAnEarlierYear) {
    ASSERT_EQ(SerialOfText("09/27/1986"), 1000);
    EXPECT_EQ(SerialOfText("10/01/86"), 1000);
    EXPECT_EQ(SerialOfText("1/1/5"), 1000);
}

TEST_F(DateText, TheRangeOfTheSerialEndsInSeptember2073) {
    EXPECT_EQ(SerialOfText("09/17/2073"), 32767);
    EXPECT_EQ(SerialToDate(32767), "09/17/2073");
}

TEST_F(DateText, ADateBehindTheRangeIsAnOverflowThatChangesNothing) {
    ASSERT_EQ(SerialOfText("09/27/1986"), 1000);
    for (std::string text : {"09/18/2073", "01/01/2074", "01/01/9999"}) {
        EXPECT_THROW(DateToSerial(text), RuntimeFailure) << text;
        EXPECT_EQ(appState.dateSerial, 1000);
    }
}

TEST_F(DateText, EveryDayOfTheRangeHasTheSerialWeekdayAndTextOfTheCalendar) {
    for (int serial = 0; serial <= 32767; ++serial) {
        const sys_days day = dayZero + days{serial};
        std::string text = CalendarText(day);
        ASSERT_EQ(SerialToDate(static_cast<std::int16_t>(serial)), text);
        DateToSerial(text);
        ASSERT_EQ(appState.dateSerial, serial) << text;
        ASSERT_EQ(appState.dateWeekday, static_cast<int>(weekday{day}.iso_encoding())) << text;
    }
}

// The calendar of serials has a leap day in each fourth year; from 1900 to 2100 the standard one agrees but for 1900.
TEST_F(DateText, SerialsBelowZeroRunBackThroughTheCalendar) {
    const int march1900 = static_cast<int>((sys_days{1900y / March / 1} - dayZero).count());
    for (int serial = march1900; serial < 0; ++serial) {
        ASSERT_EQ(SerialToDate(static_cast<std::int16_t>(serial)), CalendarText(dayZero + days{serial}));
    }
}

TEST_F(DateText, TheLowestSerialStillHasAText) {
    EXPECT_EQ(SerialToDate(-1), "12/31/1983");
    EXPECT_EQ(SerialToDate(-32768), "04/15/1894");
}

TEST_F(DateText, TheTextFollowsTheOrderAndTheSeparatorOfThePattern) {
    EXPECT_EQ(ScreenText("d.m.y", 1000), "27.09.1986");
    EXPECT_EQ(ScreenText("y-m-d", 1000), "1986-09-27");
    EXPECT_EQ(ScreenText("m/d/y", 1000), "09/27/1986");
}

TEST_F(DateText, AnyCharacterButMAndDStandsForTheYear) {
    EXPECT_EQ(ScreenText("d.m.g", 1000), "27.09.1986");
    EXPECT_EQ(ScreenText("d.m. ", 1000), "27.09.1986");
}

TEST_F(DateText, TheDaysOfTheMonthsAreFilledAnewOnEachUse) {
    appState.monthDays.fill(-5);
    (void)SerialToDate(0);
    const std::array<std::int16_t, 13> expected = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    EXPECT_EQ(appState.monthDays, expected);
}

RC_GTEST_FIXTURE_PROP(DateText, AnyDateSurvivesAnyPattern, ()) {
    const std::string order = *rc::gen::element<std::string>("mdy", "dmy", "ymd", "ydm", "myd", "dym");
    const char separator = *rc::gen::elementOf(std::string("/.- _,"));
    appState.shortDateFormat = {order[0], separator, order[1], separator, order[2]};
    const auto serial = *rc::gen::inRange<int>(0, 32768);
    std::string text = SerialToDate(static_cast<std::int16_t>(serial));
    DateToSerial(text);
    RC_ASSERT(appState.dateSerial == serial);
}

RC_GTEST_FIXTURE_PROP(DateText, AnyTextBecomesNeutralOrOverflows, (std::string text)) {
    try {
        DateToSerial(text);
    } catch (const RuntimeFailure& failure) {
        RC_ASSERT(failure.GetKind() == RuntimeFailure::Kind::Overflow);
    }
    RC_ASSERT(text.size() >= 7U);
    RC_ASSERT(text[2] == '-');
    RC_ASSERT(text[5] == '-');
    RC_ASSERT(text.find_first_not_of("0123456789-") == std::string::npos);
}

TEST(ProbeShortDate, NormalisesWhatTheSystemsFolderHas) {
    appState.windowsDirectory = "settings/";
    platform::services.shortDatePattern = [](const std::string& folder) {
        return folder == "settings/" ? std::string("yyyy-MM-dd") : std::string();
    };
    EXPECT_EQ(ProbeShortDate(), "y-m-d");
    appState.windowsDirectory = "elsewhere/";
    EXPECT_EQ(ProbeShortDate(), "m/d/y");
}

TEST(ShortDate, IsWrittenByTheSystemsOwnPattern) {
    std::string pattern = "M/d/yyyy";
    platform::services.shortDatePattern = [&pattern](const std::string&) { return pattern; };
    EXPECT_EQ(ShortDate(2004y / 2 / 4), "2/4/2004");
    pattern = "dd.MM.yy";
    EXPECT_EQ(ShortDate(2004y / 2 / 4), "04.02.04");
}

TEST(ShortDate, IsWrittenAsOnTheScreenWhereTheSystemHasNoPattern) {
    appState.shortDateFormat = "y-m-d";
    EXPECT_EQ(ShortDate(2004y / 2 / 4), "2004-02-04");
}

}  // namespace
}  // namespace ballhaven
