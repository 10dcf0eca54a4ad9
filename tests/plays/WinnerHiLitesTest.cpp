#include "plays/WinnerHiLites.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using Row = std::vector<std::int16_t>;

constexpr std::int16_t date = 9000;

GameRules Rules(int gameType, bool orderMatters = false) {
    return {.gameType = gameType,
            .mainPickCount = 3,
            .bonusPickCount = 2,
            .mainLow = 1,
            .mainHigh = 49,
            .bonusLow = 1,
            .bonusHigh = 20,
            .orderMatters = orderMatters};
}

constexpr int mainCell = 10;
constexpr int bonusCell = 110;

TEST(IsWinner, InAnyOrderAMainPickMayStandAnywhereAmongTheMainPicks) {
    const Row draw{date, 3, 2, 1, 8, 9};
    for (const int pick : {1, 2, 3}) {
        EXPECT_TRUE(IsWinner(Rules(2), draw, mainCell, 1, pick)) << pick;
    }
    EXPECT_FALSE(IsWinner(Rules(2), draw, mainCell, 1, 8)) << "a bonus pick of the draw";
    EXPECT_FALSE(IsWinner(Rules(2), draw, mainCell, 1, 4));
}

TEST(IsWinner, ABonusPickEqualToAMainNumberOfTheDrawIsNoHit) {
    const Row draw{date, 3, 2, 1, 8, 9};
    EXPECT_FALSE(IsWinner(Rules(2), draw, bonusCell, 1, 3));
    EXPECT_TRUE(IsWinner(Rules(2), draw, bonusCell, 1, 8));
    EXPECT_TRUE(IsWinner(Rules(2), draw, bonusCell, 1, 9));
}

TEST(IsWinner, WhereTheOrderMattersThePickStandsAtThePlaceOfItsSlot) {
    const Row draw{date, 3, 2, 1, 8, 9};
    EXPECT_FALSE(IsWinner(Rules(2, true), draw, mainCell, 1, 1));
    EXPECT_TRUE(IsWinner(Rules(2, true), draw, mainCell, 2, 2));
    EXPECT_FALSE(IsWinner(Rules(2, true), draw, mainCell, 3, 3));
    EXPECT_TRUE(IsWinner(Rules(2, true), draw, bonusCell, 2, 9));
    EXPECT_FALSE(IsWinner(Rules(2, true), draw, bonusCell, 1, 9));
}

TEST(IsWinner, APickInASlotAboveTheGamesCountIsComparedWithThatColumn) {
    const Row draw{date, 3, 2, 1, 8, 9};
    EXPECT_TRUE(IsWinner(Rules(2, true), draw, mainCell, 4, 8));
    EXPECT_FALSE(IsWinner(Rules(2, true), draw, mainCell, 9, 8));
}

// Not a bug: WINNER-DATE-1 in docs/not-bugs.md.
TEST(QuirkWinnerDate1, ADayNumberThatEqualsAMainPickIsAHit) {
    const Row draw{17, 3, 2, 1, 8, 9};
    EXPECT_TRUE(IsWinner(Rules(2), draw, mainCell, 1, 17));
    EXPECT_FALSE(IsWinner(Rules(2), draw, bonusCell, 1, 17));
    EXPECT_FALSE(IsWinner(Rules(2, true), draw, mainCell, 1, 17));
}

TEST(IsWinner, AGameWithoutBonusPicksHasNoBonusHits) {
    const Row draw{date, 3, 2, 1, 8, 9};
    EXPECT_FALSE(IsWinner(Rules(0), draw, bonusCell, 1, 8));
    EXPECT_FALSE(IsWinner(Rules(0, true), draw, bonusCell, 1, 8));
}

TEST(IsWinner, TheRowOfTheWordIsExempt) {
    const Row draw{date, 3, 2, 1, 8, 9};
    EXPECT_FALSE(IsWinner(Rules(2), draw, 99, 1, 3));
    EXPECT_TRUE(IsWinner(Rules(2), draw, 98, 1, 3));
    EXPECT_TRUE(IsWinner(Rules(0), draw, 99, 1, 3));
    EXPECT_FALSE(IsWinner(Rules(4), draw, 66, 1, 3));
    EXPECT_TRUE(IsWinner(Rules(3), draw, 66, 1, 3));
}

// Not a bug: WINNER-ROW-1 in docs/not-bugs.md.
TEST(QuirkWinnerRow1, BonusCardsFromTwoToTenOfDiamondsNeverTurnRed) {
    const Row draw{date, 3, 2, 1, 28, 36};
    EXPECT_FALSE(IsWinner(Rules(5), draw, 99, 1, 28));
    EXPECT_FALSE(IsWinner(Rules(5), draw, 107, 1, 36));
    const Row beside{date, 3, 2, 1, 27, 37};
    EXPECT_TRUE(IsWinner(Rules(5), beside, 98, 1, 27));
    EXPECT_TRUE(IsWinner(Rules(5), beside, 108, 1, 37));
}

TEST(IsWinner, ADrawThatIsNotThereHasNoHits) {
    EXPECT_FALSE(IsWinner(Rules(2), {}, mainCell, 1, 3));
    EXPECT_FALSE(IsWinner(Rules(2, true), {}, mainCell, 1, 3));
}

}  // namespace
}  // namespace ballhaven
