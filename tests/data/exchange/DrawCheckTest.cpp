#include "data/exchange/DrawCheck.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using Picks = std::vector<std::int16_t>;

constexpr int lastDateOfFourDigits = 9999;

GameRules Rules(int gameType, int mainCount, int bonusCount) {
    const bool cards = gameType > 2;
    return {.gameType = gameType,
            .mainPickCount = mainCount,
            .bonusPickCount = bonusCount,
            .mainLow = 1,
            .mainHigh = cards ? 52 : 49,
            .bonusLow = cards ? 1 : 0,
            .bonusHigh = cards ? 52 : 9};
}

const GameRules threeOf49 = Rules(0, 3, 0);
const GameRules twoAndOneOfTheSame = Rules(1, 2, 1);
const GameRules twoAndOneOfItsOwn = Rules(2, 2, 1);
const GameRules twoAndOneOfTheSameDeck = Rules(4, 2, 1);
const GameRules twoAndOneOfItsOwnDeck = Rules(5, 2, 1);

CheckedDraw Check(const Fields& fields, const GameRules& rules = threeOf49, int lastDate = lastDateOfFourDigits) {
    return CheckDraw(fields, ChosenColumns("", TotalPicksOf(rules), {}), DateOrder::yearFirst, rules, lastDate);
}

std::string FaultOf(const Fields& fields, const GameRules& rules = threeOf49, int lastDate = lastDateOfFourDigits) {
    return Check(fields, rules, lastDate).fault;
}

TEST(DrawCheck, PicksKeepTheOrderInWhichTheyStand) {
    const CheckedDraw checked = Check({"1986-09-27", "49", "1", "007"});
    EXPECT_EQ(checked.fault, "");
    EXPECT_EQ(checked.draw, (DrawOnFile{1000, {49, 1, 7}}));
}

TEST(DrawCheck, TheColumnsSayWhichFieldsAreTheDraws) {
    const Fields fields{"x", "3", "2", "1", "1986-09-27"};
    const CheckedDraw checked =
        CheckDraw(fields, ChosenColumns("5,4,3,2", 3, {}), DateOrder::yearFirst, threeOf49, lastDateOfFourDigits);
    EXPECT_EQ(checked.fault, "");
    EXPECT_EQ(checked.draw, (DrawOnFile{1000, {1, 2, 3}}));
}

TEST(DrawCheck, AnEmptyFieldIsAnEmptyCell) {
    EXPECT_EQ(Check({"1986-09-27", "", "", "7"}).draw.picks, (Picks{-1, -1, 7}));
    EXPECT_EQ(FaultOf({"1986-09-27", "", "", ""}), "");
}

TEST(DrawCheck, ALineOfAnotherWidthHasAFault) {
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "2"}), "it has 3 fields where a date and 3 picks are 4");
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "2", "3", "4"}),
              "it has 5 fields where a date and 3 picks are 4; choose the right ones with --columns");
}

TEST(DrawCheck, ADateHasToBeADayOfTheCalendar) {
    EXPECT_EQ(FaultOf({"2011-02-31", "1", "2", "3"}), "\"2011-02-31\" is no day of the calendar");
    const DrawColumns columns = ChosenColumns("", 3, {});
    const Fields monthAboveTwelve{"21/05/2010", "1", "2", "3"};
    EXPECT_EQ(CheckDraw(monthAboveTwelve, columns, DateOrder::monthFirst, threeOf49, lastDateOfFourDigits).fault,
              "\"21/05/2010\" is no day of the calendar with dates m/d/y");
    EXPECT_EQ(FaultOf({"soon", "1", "2", "3"}), "\"soon\" is no date of the form y-m-d, with four digits of the year");
    EXPECT_EQ(FaultOf({"", "1", "2", "3"}), "\"\" is no date of the form y-m-d, with four digits of the year");
}

TEST(DrawCheck, TheFirstDateIsTheSecondOfJanuary1984) {
    EXPECT_EQ(Check({"1984-01-02", "1", "2", "3"}).draw.date, 1);
    EXPECT_EQ(FaultOf({"1984-01-01", "1", "2", "3"}),
              "\"1984-01-01\" is before 1984-01-02, the first date that the program keeps");
    EXPECT_EQ(FaultOf({"0001-01-01", "1", "2", "3"}),
              "\"0001-01-01\" is before 1984-01-02, the first date that the program keeps");
}

TEST(DrawCheck, AFolderThatIsNotMendedKeepsNoDateAfterThe18thOfMay2011) {
    EXPECT_EQ(Check({"2011-05-18", "1", "2", "3"}).draw.date, 9999);
    EXPECT_EQ(FaultOf({"2011-05-19", "1", "2", "3"}),
              "\"2011-05-19\" is after 2011-05-18, the last date that this folder keeps; mend the folder first "
              "(ballhaven-data mend)");
}

TEST(DrawCheck, AMendedFolderKeepsDatesUpToTheProgramsLast) {
    EXPECT_EQ(Check({"2011-05-19", "1", "2", "3"}, threeOf49, 32'767).draw.date, 10'000);
    EXPECT_EQ(Check({"2073-09-17", "1", "2", "3"}, threeOf49, 32'767).draw.date, 32'767);
    EXPECT_EQ(FaultOf({"2073-09-18", "1", "2", "3"}, threeOf49, 32'767),
              "\"2073-09-18\" is after 2073-09-17, the last date that the program keeps");
    EXPECT_EQ(FaultOf({"9999-12-31", "1", "2", "3"}, threeOf49, 32'767),
              "\"9999-12-31\" is after 2073-09-17, the last date that the program keeps");
}

TEST(DrawCheck, APickOutOfItsRangeIsNamedWithItsLimits) {
    EXPECT_EQ(FaultOf({"1986-09-27", "50", "1", "2"}), "50 is no main pick of 1 to 49");
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "0", "2"}), "0 is no main pick of 1 to 49");
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "2", "10"}, twoAndOneOfItsOwn), "10 is no bonus pick of 0 to 9");
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "2", "0"}, twoAndOneOfItsOwn), "");
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "2", "10"}, twoAndOneOfTheSame), "10 is no bonus pick of 0 to 9")
        << "typing checks a bonus pick of the same pool against the bonus limits too";
    EXPECT_EQ(FaultOf({"1986-09-27", "53", "2", "1"}, twoAndOneOfItsOwnDeck), "53 is no main pick of 1 to 52");
}

TEST(DrawCheck, WhatIsNoNumberOrCardIsNamed) {
    EXPECT_EQ(FaultOf({"1986-09-27", "1", "seven", "2"}), "\"seven\" is no number");
    EXPECT_EQ(FaultOf({"1986-09-27", "-1", "3", "2"}), "\"-1\" is no number");
    EXPECT_EQ(FaultOf({"1986-09-27", "1.0", "3", "2"}), "\"1.0\" is no number");
    EXPECT_EQ(FaultOf({"1986-09-27", "1000", "3", "2"}), "\"1000\" is no number");
    EXPECT_EQ(FaultOf({"1986-09-27", "Ah", "3", "2"}), "\"Ah\" is no number");
    EXPECT_EQ(FaultOf({"1986-09-27", "14h", "3", "2"}, twoAndOneOfItsOwnDeck), "\"14h\" is no card");
}

TEST(DrawCheck, APickStandsTwiceInADrawOnlyWhereTheGameAllowsIt) {
    EXPECT_EQ(FaultOf({"1986-09-27", "7", "8", "7"}), "7 stands twice in the draw");
    GameRules repeating = threeOf49;
    repeating.duplicatesAllowed = true;
    EXPECT_EQ(FaultOf({"1986-09-27", "7", "7", "7"}, repeating), "");
}

TEST(DrawCheck, ABonusPickRepeatsAMainPickOnlyOutOfAPoolOfItsOwn) {
    EXPECT_EQ(FaultOf({"1986-09-27", "7", "8", "7"}, twoAndOneOfTheSame), "7 stands twice in the draw");
    EXPECT_EQ(FaultOf({"1986-09-27", "7", "8", "7"}, twoAndOneOfItsOwn), "");
    EXPECT_EQ(FaultOf({"1986-09-27", "7h", "8h", "7"}, twoAndOneOfTheSameDeck), "7h stands twice in the draw");
    EXPECT_EQ(FaultOf({"1986-09-27", "7h", "8h", "7"}, twoAndOneOfItsOwnDeck), "");
    const GameRules twoBonus = Rules(2, 1, 2);
    EXPECT_EQ(FaultOf({"1986-09-27", "7", "8", "8"}, twoBonus), "8 stands twice in the draw");
}

TEST(PickIn, ANumberIsItsDigits) {
    EXPECT_EQ(PickIn("7", 0), 7);
    EXPECT_EQ(PickIn("07", 2), 7);
    EXPECT_EQ(PickIn("999", 0), 999);
    for (const char* text : {"", " ", "1 2", " 7", "7 ", "-1", "7x", "x7", "+7", "0007", "7h"}) {
        EXPECT_EQ(PickIn(text, 0), std::nullopt) << text;
    }
}

TEST(PickIn, ACardIsItsTextInAnyCaseOrItsNumber) {
    EXPECT_EQ(PickIn("Ah", 3), 1);
    EXPECT_EQ(PickIn("10C", 4), 23);
    EXPECT_EQ(PickIn("kS", 5), 52);
    EXPECT_EQ(PickIn("2d", 3), 28);
    EXPECT_EQ(PickIn("17", 3), 17);
    for (const char* text : {"1h", "0h", "11h", "14h", "A", "h", "hA", "Ax", "Ahh", "1Ah", "10h ", "-1"}) {
        EXPECT_EQ(PickIn(text, 3), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace ballhaven::data
