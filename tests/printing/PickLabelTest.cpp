#include "printing/PickLabel.h"

#include "support/Games.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;
using support::SetUpGame;

// Not a bug: REPORT-PICKS-1 in docs/not-bugs.md.
TEST(PickLabel, ADrawnNumberPrintsAsTheNextOneWhereTheLowestIsOne) {
    SetUpGame(NumberGame().Picks(6).From(1).To(49));
    EXPECT_EQ(pickLabel(7), "8");
    EXPECT_EQ(pickLabel(48), "49");
    EXPECT_EQ(pickLabel(49), "");
}

TEST(PickLabel, ADrawnNumberPrintsAsItIsWhereTheLowestIsZero) {
    SetUpGame(NumberGame().Picks(3).From(0).To(9));
    EXPECT_EQ(pickLabel(0), "0");
    EXPECT_EQ(pickLabel(9), "9");
}

TEST(PickLabel, WithDuplicatesTheNumbersBeginAgainBehindTheHighest) {
    SetUpGame(NumberGame().Picks(3).From(1).To(9).WithDuplicates());
    EXPECT_EQ(pickLabel(8), "9");
    EXPECT_EQ(pickLabel(9), "1");
}

// Not a bug: REPORT-PICKS-1 in docs/not-bugs.md.
TEST(PickLabel, ADrawnCardPrintsAsTheNextOneAndTheLastAsNone) {
    SetUpGame(CardGame().Picks(5));
    EXPECT_EQ(pickLabel(1), "2h");
    EXPECT_EQ(pickLabel(13), "Ac");
    EXPECT_EQ(pickLabel(51), "Ks");
    EXPECT_EQ(pickLabel(52), "");
}

TEST(PickLabel, TheLettersOfBonusAreNoCards) {
    SetUpGame(CardGame().Picks(4).Bonus(1, BonusPool::Same));
    EXPECT_EQ(pickLabel(66), "");
}

}  // namespace
}  // namespace ballhaven
