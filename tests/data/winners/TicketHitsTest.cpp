#include "data/winners/TicketHits.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

GameRules Rules(int gameType) {
    return {.gameType = gameType, .mainPickCount = 3, .bonusPickCount = 1, .mainLow = 0, .mainHigh = 49};
}

GameRules InOrder(int gameType) {
    GameRules rules = Rules(gameType);
    rules.orderMatters = true;
    return rules;
}

TEST(TicketHits, AnyPlaceCountsWhereTheOrderDoesNotMatter) {
    EXPECT_EQ(CountHits(Rules(0), {.main = {1, 2, 3}}, {.main = {3, 2, 9}}), (Hits{2, 0}));
    EXPECT_EQ(CountHits(Rules(0), {.main = {1, 2, 3}}, {.main = {3, 1, 2}}), (Hits{3, 0}));
    EXPECT_EQ(CountHits(Rules(0), {.main = {1, 2, 3}}, {.main = {4, 5, 6}}), (Hits{0, 0}));
}

TEST(TicketHits, WhereTheOrderMattersAPickHitsAtItsPlaceAlone) {
    EXPECT_EQ(CountHits(InOrder(0), {.main = {1, 2, 3}}, {.main = {3, 2, 1}}), (Hits{1, 0}));
    EXPECT_EQ(CountHits(InOrder(2), {.main = {1, 2, 3}, .bonus = {5, 6}}, {.main = {1, 2, 3}, .bonus = {6, 5}}),
              (Hits{3, 0}));
    EXPECT_EQ(CountHits(InOrder(2), {.main = {1, 2, 3}, .bonus = {5, 6}}, {.main = {1, 9, 3}, .bonus = {9, 6}}),
              (Hits{2, 1}));
}

TEST(TicketHits, MainAndBonusPicksHitTheirOwnKindAlone) {
    const Picks ticket{.main = {1, 2, 3}, .bonus = {4}};

    EXPECT_EQ(CountHits(Rules(2), ticket, {.main = {4, 5, 6}, .bonus = {1}}), (Hits{0, 0}));
    EXPECT_EQ(CountHits(Rules(2), ticket, {.main = {1, 5, 6}, .bonus = {4}}), (Hits{1, 1}));
    EXPECT_EQ(CountHits(Rules(1), ticket, {.main = {1, 5, 6}, .bonus = {2}}), (Hits{1, 0}));
}

TEST(TicketHits, WithoutABonusPickMainPicksCanHitABonusFromTheirPool) {
    const Picks draw{.main = {1, 2, 9}, .bonus = {3}};
    for (const int samePool : {1, 4}) {
        EXPECT_EQ(CountHits(Rules(samePool), {.main = {1, 2, 3}, .bonus = {noPick}}, draw), (Hits{2, 1})) << samePool;
        EXPECT_EQ(CountHits(InOrder(samePool), {.main = {1, 2, 3}, .bonus = {noPick}}, draw), (Hits{2, 1})) << samePool;
    }
    for (const int ownPool : {2, 5}) {
        EXPECT_EQ(CountHits(Rules(ownPool), {.main = {1, 2, 3}, .bonus = {noPick}}, draw), (Hits{2, 0})) << ownPool;
    }
}

TEST(TicketHits, APickThatStandsTwiceHitsTwiceOnlyWhereItIsDrawnTwice) {
    EXPECT_EQ(CountHits(Rules(0), {.main = {3, 3, 5}}, {.main = {3, 7, 5}}), (Hits{2, 0}));
    EXPECT_EQ(CountHits(Rules(0), {.main = {3, 7, 5}}, {.main = {3, 3, 5}}), (Hits{2, 0}));
    EXPECT_EQ(CountHits(Rules(0), {.main = {3, 3, 5}}, {.main = {5, 3, 3}}), (Hits{3, 0}));
}

TEST(TicketHits, BlankPicksHitNothing) {
    const Picks blank{.main = {noPick, noPick, 0}, .bonus = {noPick}};

    EXPECT_EQ(CountHits(Rules(2), blank, blank), (Hits{1, 0}));
    EXPECT_EQ(CountHits(InOrder(2), blank, blank), (Hits{1, 0}));
    EXPECT_EQ(CountHits(Rules(1), blank, blank), (Hits{1, 0}));
}

TEST(TicketHits, OneMoreMainHitIsBetterThanAnyBonusHits) {
    EXPECT_GT((Hits{4, 0}), (Hits{3, 2}));
    EXPECT_GT((Hits{3, 2}), (Hits{3, 1}));
}

}  // namespace
}  // namespace ballhaven::data
