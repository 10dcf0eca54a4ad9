#include "wheels/TotalPlays.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

constexpr auto refused = std::nullopt;

TEST(TotalPlaysOf, TwoToFiveThousandAreTaken) {
    EXPECT_EQ(TotalPlaysOf("2"), 2);
    EXPECT_EQ(TotalPlaysOf("28"), 28);
    EXPECT_EQ(TotalPlaysOf("5000"), 5000);
}

TEST(TotalPlaysOf, FiveThousandAndOneIsRefused) {
    EXPECT_EQ(TotalPlaysOf("5001"), refused);
    EXPECT_EQ(TotalPlaysOf("5000.1"), refused);
    EXPECT_EQ(TotalPlaysOf("999999999999"), refused);
    EXPECT_EQ(TotalPlaysOf(std::string(400, '9')), refused);
}

// Not a bug: TOTAL-PLAYS-1 in docs/not-bugs.md.
TEST(QuirkTotalPlays1, OneIsRefusedAndALittleMoreIsTaken) {
    EXPECT_EQ(TotalPlaysOf("1"), refused);
    EXPECT_EQ(TotalPlaysOf("1.0"), refused);
    EXPECT_EQ(TotalPlaysOf("1.25"), 1.25);
}

TEST(TotalPlaysOf, LettersAndAnEmptyBoxAreRefused) {
    const std::string euroSign = "\x80";
    for (const std::string& text : {std::string(), std::string("   "), std::string("abc"), std::string("x12"),
                                    std::string("inf"), std::string("nan"), std::string("?"), euroSign + "5"}) {
        EXPECT_EQ(TotalPlaysOf(text), refused) << text;
    }
}

TEST(TotalPlaysOf, BlanksAreSkippedBeforeTheNumberOnly) {
    EXPECT_EQ(TotalPlaysOf("   12"), 12);
    EXPECT_EQ(TotalPlaysOf("1 2"), refused);
    EXPECT_EQ(TotalPlaysOf("+ 12"), refused);
}

TEST(TotalPlaysOf, OneSignIsTaken) {
    EXPECT_EQ(TotalPlaysOf("+12"), 12);
    EXPECT_EQ(TotalPlaysOf("-12"), refused);
    EXPECT_EQ(TotalPlaysOf("++12"), refused);
    EXPECT_EQ(TotalPlaysOf("+-12"), refused);
    EXPECT_EQ(TotalPlaysOf("--12"), refused);
}

TEST(TotalPlaysOf, OnePointIsTaken) {
    EXPECT_EQ(TotalPlaysOf("2.5"), 2.5);
    EXPECT_EQ(TotalPlaysOf("12."), 12);
    EXPECT_EQ(TotalPlaysOf("3.5.9"), 3.5);
    EXPECT_EQ(TotalPlaysOf(".5"), refused);
    EXPECT_EQ(TotalPlaysOf("."), refused);
}

TEST(TotalPlaysOf, WhatFollowsTheNumberIsIgnored) {
    EXPECT_EQ(TotalPlaysOf("12 plays"), 12);
    EXPECT_EQ(TotalPlaysOf("12,5"), 12);
    EXPECT_EQ(TotalPlaysOf("2e3"), 2);
    EXPECT_EQ(TotalPlaysOf("1e3"), refused);
    EXPECT_EQ(TotalPlaysOf("0x10"), refused);
}

}  // namespace
}  // namespace ballhaven
