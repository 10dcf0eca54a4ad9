#include "data/exchange/DrawMerge.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using Draws = std::vector<DrawOnFile>;
using Dates = std::vector<int>;

const GameRules ordered{.gameType = 0, .mainPickCount = 1, .orderMatters = true};

/// Draws of these dates, each with its date as its only pick.
Draws DrawsFrom(int first, int last) {
    Draws draws;
    for (int date = first; date <= last; ++date) {
        draws.push_back({static_cast<std::int16_t>(date), {static_cast<std::int16_t>(date % 100)}});
    }
    return draws;
}

TEST(Merged, DrawsComeInByTheirDate) {
    const MergedDraws merged = Merged(ordered, {{20, {1}}, {40, {2}}}, {{10, {3}}, {30, {4}}, {50, {5}}}, false);
    EXPECT_EQ(merged.draws, (Draws{{10, {3}}, {20, {1}}, {30, {4}}, {40, {2}}, {50, {5}}}));
    EXPECT_EQ(merged.added, 3);
    EXPECT_TRUE(merged.changesGame);
    EXPECT_TRUE(merged.alike.empty());
    EXPECT_TRUE(merged.different.empty());
    EXPECT_TRUE(merged.leftOut.empty());
}

TEST(Merged, ADateThatIsThereStaysAsItIs) {
    const MergedDraws merged = Merged(ordered, {{20, {1}}, {40, {2}}}, {{20, {9}}, {40, {2}}}, false);
    EXPECT_EQ(merged.draws, (Draws{{20, {1}}, {40, {2}}}));
    EXPECT_EQ(merged.added, 0);
    EXPECT_EQ(merged.different, Dates{20});
    EXPECT_EQ(merged.alike, Dates{40});
    EXPECT_FALSE(merged.changesGame);
}

TEST(Merged, ADateThatIsThereTakesTheNewPicksWhereThatIsWanted) {
    const MergedDraws merged = Merged(ordered, {{20, {1}}, {40, {2}}}, {{20, {9}}, {40, {2}}}, true);
    EXPECT_EQ(merged.draws, (Draws{{20, {9}}, {40, {2}}}));
    EXPECT_EQ(merged.different, Dates{20});
    EXPECT_TRUE(merged.changesGame);
}

TEST(Merged, EveryRowOfADateThatIsThereTwiceTakesThePicks) {
    const Draws twice{{20, {1}}, {20, {2}}, {30, {3}}};
    EXPECT_EQ(Merged(ordered, twice, {{20, {2}}}, true).draws, (Draws{{20, {2}}, {20, {2}}, {30, {3}}}));
    EXPECT_EQ(Merged(ordered, twice, {{20, {2}}}, false).different, Dates{20});
}

TEST(Merged, TheSamePicksInAnotherOrderAreOthersOnlyWhereTheOrderMatters) {
    GameRules rules{.gameType = 2, .mainPickCount = 3, .bonusPickCount = 2};
    const Draws ofGame{{20, {1, 2, 3, 4, 5}}};
    const Draws inDrawnOrder{{20, {3, 1, 2, 5, 4}}};
    const MergedDraws alike = Merged(rules, ofGame, inDrawnOrder, true);
    EXPECT_EQ(alike.alike, Dates{20});
    EXPECT_EQ(alike.draws, ofGame);
    EXPECT_FALSE(alike.changesGame);
    EXPECT_EQ(Merged(rules, ofGame, {{20, {4, 2, 3, 1, 5}}}, false).different, Dates{20}) << "a bonus is no main pick";
    rules.orderMatters = true;
    EXPECT_EQ(Merged(rules, ofGame, inDrawnOrder, true).draws, inDrawnOrder);
}

TEST(Merged, RowsOutOfOrderAreNoChangeByThemselves) {
    EXPECT_FALSE(Merged(ordered, {{40, {2}}, {20, {1}}}, {{20, {1}}}, false).changesGame);
    EXPECT_EQ(Merged(ordered, {{40, {2}}, {20, {1}}}, {{30, {3}}}, false).draws,
              (Draws{{20, {1}}, {30, {3}}, {40, {2}}}));
}

TEST(Merged, OfMoreThanAThousandTheNewestStay) {
    const MergedDraws merged = Merged(ordered, DrawsFrom(11, 1000), DrawsFrom(1001, 1011), false);
    EXPECT_EQ(merged.draws, DrawsFrom(12, 1011));
    EXPECT_EQ(merged.added, 11) << "1001 to 1011";
    EXPECT_EQ(merged.leftOut, Dates{11});
    EXPECT_EQ(merged.leftOutOfGame, 1);
}

TEST(Merged, DrawsOlderThanAThousandOthersDoNotComeIn) {
    const MergedDraws merged = Merged(ordered, DrawsFrom(11, 1010), DrawsFrom(1, 3), false);
    EXPECT_EQ(merged.draws, DrawsFrom(11, 1010));
    EXPECT_EQ(merged.added, 0);
    EXPECT_EQ(merged.leftOut, (Dates{1, 2, 3}));
    EXPECT_EQ(merged.leftOutOfGame, 0);
    EXPECT_FALSE(merged.changesGame);
}

TEST(Merged, AThousandHaveRoom) {
    EXPECT_TRUE(Merged(ordered, {}, DrawsFrom(1, 1000), false).leftOut.empty());
    EXPECT_EQ(Merged(ordered, {}, DrawsFrom(1, 1001), false).leftOut, Dates{1});
}

}  // namespace
}  // namespace ballhaven::data
