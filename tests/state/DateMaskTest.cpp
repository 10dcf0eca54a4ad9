#include "state/DateMask.h"

#include "platform/Services.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using std::chrono::year;

TEST(DateMask, TheMaskFollowsTheOrderAndTheSeparatorOfThePattern) {
    EXPECT_EQ(DateMaskOf("m/d/y"), "mm/dd/yyyy");
    EXPECT_EQ(DateMaskOf("d.m.y"), "dd.mm.yyyy");
    EXPECT_EQ(DateMaskOf("y-m-d"), "yyyy-mm-dd");
}

TEST(DateMask, AnythingThatIsNoLetterSeparates) {
    EXPECT_EQ(DateMaskOf("m d y"), "mm dd yyyy");
    EXPECT_EQ(DateMaskOf("m@d@y"), "mm@dd@yyyy");
    EXPECT_EQ(DateMaskOf("m[d[y"), "mm[dd[yyyy");
    EXPECT_EQ(DateMaskOf("m`d`y"), "mm`dd`yyyy");
    EXPECT_EQ(DateMaskOf("m{d{y"), "mm{dd{yyyy");
    EXPECT_EQ(DateMaskOf("m\xB7"
                         "d\xB7y"),
              "mm\xB7"
              "dd\xB7yyyy");
}

TEST(DateMask, APatternOfLettersHasNoSeparator) {
    EXPECT_EQ(DateMaskOf("mAdZy"), "mmddyyyy");
    EXPECT_EQ(DateMaskOf("mdy"), "mmyyyyyyyy");
}

TEST(DateMask, WhatIsNeitherMonthNorDayIsTheYear) {
    EXPECT_EQ(DateMaskOf("x/q/m"), "yyyy/yyyy/mm");
    EXPECT_EQ(DateMaskOf("m/d"), "mm/dd/yyyy");
}

TEST(DateMask, ADateFollowsItsMask) {
    EXPECT_EQ(FormatDate(year{1986} / 9 / 7, "mm/dd/yyyy"), "09/07/1986");
    EXPECT_EQ(FormatDate(year{1986} / 9 / 7, "d.m.yy"), "7.9.86");
    EXPECT_EQ(FormatDate(year{2004} / 12 / 31, "yyyy-mm-dd"), "2004-12-31");
    EXPECT_EQ(FormatDate(year{2004} / 12 / 31, "mmddyyyy"), "12312004");
    EXPECT_EQ(FormatDate(year{2004} / 12 / 31, ""), "");
}

TEST(DateMask, AMonthsNameComesFromTheSystem) {
    platform::services.monthName = [](std::chrono::month month) {
        return month == std::chrono::March ? std::string("M\xE4rz") : std::string("?");
    };
    EXPECT_EQ(FormatDate(year{1999} / 3 / 1, "mmmm yyyy"), "M\xE4rz 1999");
}

TEST(DateMask, WithoutASystemTheNamesAreEnglish) {
    EXPECT_EQ(platform::EnglishMonthName(std::chrono::January), "January");
    EXPECT_EQ(platform::EnglishMonthName(std::chrono::December), "December");
    EXPECT_EQ(platform::EnglishShortDayName(std::chrono::Sunday), "Sun");
    EXPECT_EQ(platform::EnglishShortDayName(std::chrono::Saturday), "Sat");
}

}  // namespace
}  // namespace ballhaven
