#include "screen/DrawingHiLite.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using Picks = std::vector<std::int16_t>;

constexpr int numberGame = 0;
constexpr int cardGame = 3;

TEST(DrawingHiLite, EachBoxOfTheGameHasThePickOfItsColumn) {
    EXPECT_EQ(PicksOfBoxes(Picks{7, 8, 49}, 3), (Picks{7, 8, 49}));
    EXPECT_EQ(PicksOfBoxes(Picks{7, 8, 49}, 2), (Picks{7, 8}));
}

TEST(DrawingHiLite, BoxesOfColumnsThatADrawDoesNotHaveAreBlank) {
    EXPECT_EQ(PicksOfBoxes(Picks{7}, 3), (Picks{7, -1, -1}));
    EXPECT_EQ(PicksOfBoxes(Picks{}, 1), Picks{-1});
}

TEST(DrawingHiLite, PicksBehindTheTenthHaveNoBox) {
    EXPECT_EQ(PicksOfBoxes(Picks{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 12), (Picks{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(DrawingHiLite, ADrawIsHiLitedWhenTheBoxesHoldTheCodesOfItsPicksInTheirOrder) {
    EXPECT_TRUE(HoldCodesOf(Picks{7, 8, 49}, {"7", "8", "49"}));
    EXPECT_FALSE(HoldCodesOf(Picks{7, 8, 48}, {"7", "8", "49"}));
    EXPECT_FALSE(HoldCodesOf(Picks{6, 8, 49}, {"7", "8", "49"}));
    EXPECT_FALSE(HoldCodesOf(Picks{8, 7, 49}, {"7", "8", "49"}));
    EXPECT_FALSE(HoldCodesOf(Picks{7, 8, 49}, {}));
    EXPECT_TRUE(HoldCodesOf(Picks{0}, {"0"}));
}

TEST(DrawingHiLite, CodesAreComparedAsTexts) {
    EXPECT_FALSE(HoldCodesOf(Picks{7}, {"07"}));
}

TEST(DrawingHiLite, OnlyTheCodesOfTheGamesPicksAreCompared) {
    EXPECT_TRUE(HoldCodesOf(Picks{7, 8}, {"7", "8", "9"}));
}

TEST(DrawingHiLite, NumbersStandInTheBoxesAsInTheCodes) {
    EXPECT_EQ(BoxesWith(Picks{0, 8, 49}, numberGame), (BoxContents{{"0", "8", "49"}, {"0", "8", "49"}}));
}

TEST(DrawingHiLite, CardsStandInTheBoxesByTheirTextAndInTheCodesByTheirValue) {
    EXPECT_EQ(BoxesWith(Picks{1, 36}, cardGame), (BoxContents{{"Ah", "10d"}, {"1", "36"}}));
}

TEST(DrawingHiLite, ABlankPickLeavesItsBoxEmpty) {
    EXPECT_EQ(BoxesWith(Picks{7, -1, 49}, numberGame), (BoxContents{{"7", "", "49"}, {"7", "", "49"}}));
}

TEST(DrawingHiLite, TenPicksFillAllBoxes) {
    EXPECT_EQ(BoxesWith(Picks{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, numberGame).texts,
              (BoxTexts{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

// Not a bug: HILITE-BLANK-1 in docs/not-bugs.md.
TEST(QuirkHiLiteBlank1, ADrawWithABlankPickIsNeverHiLitedAlready) {
    EXPECT_FALSE(HoldCodesOf(Picks{7, -1}, {"7", ""}));
    EXPECT_FALSE(HoldCodesOf(Picks{-1, -1}, {}));
}

}  // namespace
}  // namespace ballhaven
