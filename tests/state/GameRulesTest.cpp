#include "state/GameRules.h"

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

}  // namespace
}  // namespace ballhaven
