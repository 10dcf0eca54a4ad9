#include "state/DateSerial.h"

#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/Games.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <chrono>
#include <optional>
#include <string>

namespace ballhaven {
namespace {

struct PatternCase {
    std::string systemPattern;
    std::string expected;
};

const PatternCase patternCases[] = {
    {"M/d/yyyy", "m/d/y"},   {"M/d/yy", "m/d/y"},     {"dd/MM/yyyy", "d/m/y"},  {"dd.MM.yyyy", "d.m.y"},
    {"yyyy-MM-dd", "y-m-d"}, {"d-MMM-yy", "d-m-y"},   {"yyyy.MM.dd.", "y.m.d"}, {"", "m/d/y"},
    {"yyyyMMdd", "m/d/y"},   {"dd/MMyyyy", "m/d/y"},  {"/dd/MM", "m/d/y"},      {"dd/MM/", "m/d/y"},
    {"dd.MM-yyyy", "m/d/y"}, {"dd@MM@yyyy", "d@m@y"}, {"dd[MM[yyyy", "d[m[y"},  {"dd{MM{yyyy", "d{m{y"},
};

TEST(NormalisedDatePattern, KeepsTheLettersBesideTheSeparators) {
    for (const PatternCase& pattern : patternCases) {
        EXPECT_EQ(NormalisedDatePattern(pattern.systemPattern), pattern.expected) << pattern.systemPattern;
    }
}

RC_GTEST_PROP(NormalisedDatePattern, HasFiveCharactersWithOneSeparatorTwice, (const std::string& systemPattern)) {
    const std::string pattern = NormalisedDatePattern(systemPattern);
    RC_ASSERT(pattern.size() == 5U);
    RC_ASSERT(pattern[1] == pattern[3]);
}

TEST(DateSerial, IsThatOfTheTextInThePatternsOrder) {
    EXPECT_EQ(SerialOf("09/27/1986", "m/d/y"), 1000);
    EXPECT_EQ(SerialOf("27.09.1986", "d.m.y"), 1000);
    EXPECT_EQ(SerialOf("1986-09-27", "y-m-d"), 1000);
    EXPECT_EQ(SerialOf("01/01/1984", "m/d/y"), 0);
    EXPECT_EQ(SerialOfNeutral("09-27-1986"), 1000);
}

TEST(DateSerial, OfAYearBelow1984IsNone) {
    for (const char* text : {"12/31/1983", "09/27/86", "", "x"}) {
        EXPECT_EQ(SerialOf(text, "m/d/y"), std::nullopt) << text;
    }
}

TEST(DateSerial, BeyondItsRangeIsAnOverflow) {
    EXPECT_EQ(SerialOf("09/17/2073", "m/d/y"), 32767);
    EXPECT_THROW(static_cast<void>(SerialOf("09/18/2073", "m/d/y")), RuntimeFailure);
}

TEST(DateSerial, HasItsTextInThePatternsOrder) {
    EXPECT_EQ(TextOfSerial(1000, "m/d/y"), "09/27/1986");
    EXPECT_EQ(TextOfSerial(1000, "d.m.y"), "27.09.1986");
    EXPECT_EQ(TextOfSerial(1000, "y-m-d"), "1986-09-27");
}

TEST(DateSerial, HasTheWeekdaysFromMondayToSunday) {
    EXPECT_EQ(WeekdayOf(0), 7) << "1 January 1984 was a Sunday";
    EXPECT_EQ(WeekdayOf(1), 1);
    EXPECT_EQ(WeekdayOf(6), 6);
    EXPECT_EQ(WeekdayOf(7), 7);
}

// Whoever draws or only looks a date up must not become the "call before" of somebody else.
TEST(DateSerial, LeavesNothingBehind) {
    support::ResetState();
    appState.dateSerial = 77;
    appState.dateWeekday = 3;
    appState.monthDays.fill(-5);
    static_cast<void>(SerialOf("09/27/1986", "m/d/y"));
    static_cast<void>(TextOfSerial(1000, "m/d/y"));
    static_cast<void>(DateOfText("09/27/1986", "m/d/y"));
    EXPECT_EQ(appState.dateSerial, 77);
    EXPECT_EQ(appState.dateWeekday, 3);
    EXPECT_EQ(appState.monthDays[1], -5);
    support::ResetState();
}

TEST(DateOfText, ReadsADateInThePatternsOrderAndNothingElse) {
    EXPECT_EQ(DateOfText("02/29/1992", "m/d/y"), std::chrono::year{1992} / 2 / 29);
    EXPECT_EQ(DateOfText("02/30/1992", "m/d/y"), std::nullopt);
    EXPECT_EQ(DateOfText("", "m/d/y"), std::nullopt);
    EXPECT_EQ(DateOfText("29.02.1992", "d.m.y"), std::chrono::year{1992} / 2 / 29);
}

}  // namespace
}  // namespace ballhaven
