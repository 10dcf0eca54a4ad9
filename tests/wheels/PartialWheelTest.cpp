#include "wheels/PartialWheel.h"

#include "plays/PlayMethodCode.h"
#include "support/Combinations.h"
#include "support/Plays.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>

namespace ballhaven {
namespace {

using support::EmptyPlays;
using support::PicksText;
using support::PlaysInUse;
using support::PutPicks;

// The picks a to d of the descriptions.
constexpr std::int16_t a = 1;
constexpr std::int16_t b = 2;
constexpr std::int16_t c = 3;
constexpr std::int16_t d = 4;

TEST(PartialWheel, EveryOtherCombinationComesFirst) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 5, 5};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 6), "1 2|1 4|2 4|1 3|2 3|");
    EXPECT_EQ(table(mainPicks, 5, 0), byPartialWheel);
    EXPECT_EQ(table(mainPicks, 6, 0), 0);
}

TEST(PartialWheel, ATotalOfAllCombinationsEndsOnTheLastRow) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 6, 6};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 7), "1 2|1 4|2 4|1 3|2 3|3 4|");
    EXPECT_EQ(plays.lastPlay, 6);
}

TEST(PartialWheel, AWheelThatIsCompleteBeforeTheTotalStops) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 9, 9};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(plays.lastPlay, 6);
    EXPECT_EQ(plays.plannedLast, 6);
    EXPECT_EQ(PlaysInUse(table, mainPicks), 6);
}

TEST(PartialWheel, ATotalOfTwoGivesBothRowsInTheirOrder) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 2, 2};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 3), "1 2|1 3|");
}

TEST(PartialWheel, ABonusPickStaysWithTheMainPicksOfItsRow) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 5, 5};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);
    PartialWheelPass({bonusPicks, {24, 25, 26}, 1}, plays, table, 1);

    EXPECT_EQ(PicksText(table, bonusPicks, 1, 6), "24|26|25|25|24|");
}

// Not a bug: PARTIAL-WHEEL-PLACE-1 in docs/not-bugs.md.
TEST(QuirkPartialWheelPlace1, AWheelBehindPlaysInUseReplacesTheFirstPlays) {
    PlayPicks table = EmptyPlays();
    for (int play = 1; play <= 10; ++play) {
        PutPicks(table, mainPicks, play, {40 + play, 60, 70});
    }
    PlayStretch plays{11, 13, 13};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 4), "1 2 70|1 4 70|1 3 70|44 60 70");
    EXPECT_EQ(PicksText(table, mainPicks, 10, 14), "50 60 70||||");
    EXPECT_EQ(plays.lastPlay, 13);
}

TEST(QuirkPartialWheelPlace1, AWheelThatIsFilledInBehindThePlaysInUseLeavesThemAsTheyAre) {
    PlayPicks table = EmptyPlays();
    PutPicks(table, mainPicks, 10, {50, 60, 70});
    PlayStretch plays{11, 13, 13};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 11);

    EXPECT_EQ(PicksText(table, mainPicks, 10, 14), "50 60 70|1 2|1 4|1 3|");
    EXPECT_EQ(PlaysInUse(table, mainPicks), 4);
}

// Not a bug: PARTIAL-WHEEL-FIRST-1 in docs/not-bugs.md.
TEST(QuirkPartialWheelFirst1, OnlyTheFirstCombinationsOfALargeWheelAreTaken) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 10, 10};
    std::vector<std::int16_t> twenty(20);
    std::iota(twenty.begin(), twenty.end(), std::int16_t{1});
    PartialWheelPass({mainPicks, twenty, 6}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 5), "1 2 3 4 5 6|1 2 3 4 5 8|1 2 3 4 5 10|1 2 3 4 5 12|1 2 3 4 5 14");
    EXPECT_EQ(PicksText(table, mainPicks, 6, 11), "1 2 3 4 5 7|1 2 3 4 5 9|1 2 3 4 5 11|1 2 3 4 5 13|1 2 3 4 5 15|");
}

TEST(PartialWheel, TheLastPlaysCanBeReachedWithoutWritingBehindThem) {
    PlayPicks table = EmptyPlays();
    PlayStretch plays{4999, 5000, 5000};
    PartialWheelPass({mainPicks, {a, b, c, d}, 2}, plays, table, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 3), "1 2|1 3|");
    EXPECT_EQ(PlaysInUse(table, mainPicks), 2);
}

RC_GTEST_PROP(PartialWheel, PlaysAreTheRowsOfOddAndThenOfEvenPlaces, ()) {
    const int k = *rc::gen::inRange(1, 5);
    const int n = *rc::gen::inRange(k + 1, 10);
    const int total = *rc::gen::inRange(2, 150);
    std::vector<std::int16_t> pool(static_cast<std::size_t>(n));
    std::iota(pool.begin(), pool.end(), std::int16_t{0});
    support::Combinations rows = support::AllCombinations({pool.begin(), pool.end()}, k);
    rows.resize(std::min(rows.size(), static_cast<std::size_t>(total)));
    PlayPicks expected = EmptyPlays();
    int play = 0;
    for (const std::size_t parity : {0U, 1U}) {
        for (std::size_t row = parity; row < rows.size(); row += 2) {
            PutPicks(expected, mainPicks, ++play, rows[row]);
            expected(mainPicks, play, 0) = 2;
        }
    }

    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, total, total};
    PartialWheelPass({mainPicks, pool, k}, plays, table, 1);

    RC_ASSERT(table == expected);
    RC_ASSERT(plays.lastPlay == static_cast<int>(rows.size()));
}

}  // namespace
}  // namespace ballhaven
