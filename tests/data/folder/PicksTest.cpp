#include "data/folder/Picks.h"

#include "support/Plays.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using support::EmptyPlays;
using support::PutPicks;

constexpr GameRules sixOf49{.gameType = 0, .mainPickCount = 6, .mainLow = 1, .mainHigh = 49};
constexpr GameRules withBonus{.gameType = 2,
                              .mainPickCount = 5,
                              .bonusPickCount = 2,
                              .mainLow = 1,
                              .mainHigh = 50,
                              .bonusLow = 0,
                              .bonusHigh = 11};
constexpr GameRules cards{.gameType = 4,
                          .mainPickCount = 3,
                          .bonusPickCount = 1,
                          .mainLow = 1,
                          .mainHigh = 52,
                          .bonusLow = 1,
                          .bonusHigh = 52};
constexpr GameRules digits{
    .gameType = 0, .mainPickCount = 3, .mainLow = 0, .mainHigh = 9, .duplicatesAllowed = true, .orderMatters = true};

TEST(Picks, TheNumberOfACellIsOneMoreThanItsPlaceWhereTheLowestIsOne) {
    EXPECT_EQ(PickOnCell(sixOf49, mainPicks, 0), 1);
    EXPECT_EQ(PickOnCell(sixOf49, mainPicks, 48), 49);
    EXPECT_EQ(PickOnCell(withBonus, bonusPicks, 0), 0);
    EXPECT_EQ(PickOnCell(withBonus, bonusPicks, 11), 11);
}

TEST(Picks, ACellWithoutANumberAndAnEmptySlotAreNoPick) {
    EXPECT_EQ(PickOnCell(sixOf49, mainPicks, 49), noPick);
    EXPECT_EQ(PickOnCell(sixOf49, mainPicks, -1), noPick);
    EXPECT_EQ(PickOnCell(withBonus, mainPicks, 101), noPick) << "the B of BONUS";
    EXPECT_EQ(PickOnCell(withBonus, bonusPicks, 12), noPick);
}

TEST(Picks, ACellOfACardGameIsACard) {
    EXPECT_EQ(PickOnCell(cards, mainPicks, 51), 52);
    EXPECT_EQ(PickOnCell(cards, mainPicks, 52), noPick);
    EXPECT_EQ(PickOnCell(cards, bonusPicks, 38), 39);
}

TEST(Picks, EachRunOfABoardWithRepeatedNumbersShowsThemAll) {
    EXPECT_EQ(PickOnCell(digits, mainPicks, 0), 0);
    EXPECT_EQ(PickOnCell(digits, mainPicks, 10), 0);
    EXPECT_EQ(PickOnCell(digits, mainPicks, 27), 7);
    EXPECT_EQ(PickOnCell(digits, mainPicks, 30), noPick);
}

TEST(Picks, APlayHasThePicksOfTheGamesSlotsAlone) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 7, {4, -1, 0, 49, 10, 20, 30});
    PutPicks(plays, bonusPicks, 7, {3, 11, 5});

    EXPECT_EQ(PicksOfPlay(withBonus, plays, 7), (Picks{.main = {5, noPick, 1, 50, 11}, .bonus = {3, 11}}));
    EXPECT_EQ(PicksOfPlay(sixOf49, plays, 7), (Picks{.main = {5, noPick, 1, noPick, 11, 21}}));
}

TEST(Picks, ADrawHasItsBonusPicksBehindTheMainOnes) {
    const std::vector<std::int16_t> draw{7, 8, 9, 10, -1, 3, 4};

    EXPECT_EQ(PicksOfDraw(withBonus, draw), (Picks{.main = {7, 8, 9, 10, noPick}, .bonus = {3, 4}}));
    EXPECT_EQ(PicksOfDraw(sixOf49, draw), (Picks{.main = {7, 8, 9, 10, noPick, 3}}));
    EXPECT_EQ(PicksOfDraw(withBonus, std::span(draw).first(6)), (Picks{.main = {7, 8, 9, 10, noPick}, .bonus = {3}}));
}

TEST(Picks, MainPicksAreAllThereOnlyWhereNoneIsMissingOrDouble) {
    EXPECT_TRUE(HasAllMainPicks(cards, {.main = {1, 2, 52}, .bonus = {noPick}}));
    EXPECT_FALSE(HasAllMainPicks(cards, {.main = {1, noPick, 52}}));
    EXPECT_FALSE(HasAllMainPicks(cards, {.main = {1, 2, 1}}));
    EXPECT_FALSE(HasAllMainPicks(cards, {.main = {1, 2}}));
    EXPECT_TRUE(HasAllMainPicks(digits, {.main = {1, 2, 1}}));
}

TEST(Picks, NoPlayHasAllPicksOfARecordThatDrawsNoneOrMoreThanTen) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    GameRules damaged = sixOf49;
    for (const int count : {0, 11, 99}) {
        damaged.mainPickCount = count;
        EXPECT_FALSE(HasAllMainPicks(damaged, PicksOfPlay(damaged, plays, 1))) << count;
    }
    damaged.mainPickCount = 10;
    EXPECT_TRUE(HasAllMainPicks(damaged, PicksOfPlay(damaged, plays, 1)));
}

TEST(Picks, APlayWithBonusPicksAloneHasNoMainPick) {
    EXPECT_TRUE(HasNoMainPick({.main = {noPick, noPick}, .bonus = {4}}));
    EXPECT_FALSE(HasNoMainPick({.main = {noPick, 0}}));
}

TEST(Picks, TheyAreWrittenAsNumbersOrAsCards) {
    EXPECT_EQ(PickTexts(sixOf49, std::vector{7, noPick, 49}), "7 - 49");
    EXPECT_EQ(PickTexts(cards, std::vector{1, 36, 52}), "Ah 10d Ks");
    EXPECT_EQ(PickTexts(cards, {}), "");
}

}  // namespace
}  // namespace ballhaven::data
