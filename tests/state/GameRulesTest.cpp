#include "state/GameRules.h"

#include "state/AppState.h"
#include "support/Games.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

TEST(CurrentRules, AreThoseOfTheGameAtHand) {
    support::SetUpGame(support::NumberGame()
                           .Picks(5)
                           .From(0)
                           .To(36)
                           .Bonus(2, support::BonusPool::Separate)
                           .BonusFrom(1)
                           .BonusTo(12)
                           .WithDuplicates()
                           .InOrder());

    EXPECT_EQ(CurrentRules(), (GameRules{2, 5, 2, 0, 36, 1, 12, true, true}));
}

TEST(TakeRules, MakesThemThoseOfTheGameAtHand) {
    support::ResetState();
    const GameRules rules{.gameType = 2,
                          .mainPickCount = 5,
                          .bonusPickCount = 2,
                          .mainLow = 3,
                          .mainHigh = 49,
                          .bonusLow = 1,
                          .bonusHigh = 12,
                          .duplicatesAllowed = true,
                          .orderMatters = true};
    TakeRules(rules);
    EXPECT_EQ(CurrentRules(), rules);
    EXPECT_EQ(appState.totalPicks, 7);
    support::ResetState();
}

TEST(TotalPicksOf, IsAtLeastOneAndCountsABonusOnlyWhereThereIsOne) {
    EXPECT_EQ(TotalPicksOf({.gameType = 0}), 1);
    EXPECT_EQ(TotalPicksOf({.gameType = 0, .mainPickCount = 6, .bonusPickCount = 1}), 6);
    EXPECT_EQ(TotalPicksOf({.gameType = 3, .mainPickCount = 5, .bonusPickCount = 1}), 5);
    EXPECT_EQ(TotalPicksOf({.gameType = 4, .mainPickCount = 5, .bonusPickCount = 1}), 6);
}

}  // namespace
}  // namespace ballhaven
