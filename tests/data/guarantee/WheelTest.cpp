#include "data/guarantee/Wheel.h"

#include "support/Plays.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using support::EmptyPlays;
using support::PutPicks;

using Numbers = std::vector<int>;
using Places = std::vector<std::vector<int>>;

constexpr GameRules threeOf49{.gameType = 0, .mainPickCount = 3, .mainLow = 1, .mainHigh = 49};

class WheelTest : public testing::Test {
  protected:
    WheelTest() {
        PutPicks(plays, mainPicks, 1, {11, 6, 40});  // the cells of 12, 7 and 41
        PutPicks(plays, mainPicks, 3, {6, 1, 2});
        PutPicks(plays, mainPicks, 4, {8, -1, 9});
        PutPicks(plays, mainPicks, 5, {8, 9, 8});
        PutPicks(plays, mainPicks, 6, {8, 9, 49});  // where the board shows no number
        PutPicks(plays, bonusPicks, 7, {5});
    }

    PlayPicks plays = EmptyPlays();
};

TEST_F(WheelTest, WithoutAChoiceItsNumbersAreThoseOfTheWholePlays) {
    const Wheel wheel = WheelOf(threeOf49, plays, {});

    EXPECT_EQ(wheel.numbers, (Numbers{2, 3, 7, 12, 41}));
    EXPECT_EQ(wheel.plays, (Numbers{1, 3}));
    EXPECT_EQ(wheel.holds, (Places{{2, 3, 4}, {0, 1, 2}}));
}

TEST_F(WheelTest, PlaysWithABlankOrADoublePickAreNoPartOfIt) {
    EXPECT_EQ(WheelOf(threeOf49, plays, {}).partPlays, (Numbers{4, 5, 6}));
}

TEST_F(WheelTest, OfThePlaysOnlyTheChosenNumbersCount) {
    const Wheel wheel = WheelOf(threeOf49, plays, {3, 7, 49});

    EXPECT_EQ(wheel.numbers, (Numbers{3, 7, 49}));
    EXPECT_EQ(wheel.plays, (Numbers{1, 3}));
    EXPECT_EQ(wheel.holds, (Places{{1}, {0, 1}}));
}

TEST(Wheel, EmptyPlaysMakeAWheelOfNothing) {
    const Wheel wheel = WheelOf(threeOf49, EmptyPlays(), {});

    EXPECT_TRUE(wheel.numbers.empty());
    EXPECT_TRUE(wheel.plays.empty());
    EXPECT_TRUE(wheel.partPlays.empty());
}

TEST(Wheel, PlacesStandForItsNumbers) {
    const Wheel wheel{.numbers = {7, 12, 41}};

    EXPECT_EQ(NumbersAt(wheel, Numbers{0, 2}), (Numbers{7, 41}));
    EXPECT_EQ(NumbersAt(wheel, {}), Numbers{});
}

TEST(Wheel, ThePicksThatWereChosenForWheelsAreCellsToo) {
    ChosenPicks chosen;
    chosen(mainPicks, 1) = 40;
    chosen(mainPicks, 2) = 0;
    chosen(mainPicks, 3) = 49;  // no number stands there
    chosen(mainPicks, 4) = 0;
    chosen(bonusPicks, 1) = 5;

    EXPECT_EQ(ChosenNumbers(threeOf49, chosen), (Numbers{1, 41}));
}

}  // namespace
}  // namespace ballhaven::data
