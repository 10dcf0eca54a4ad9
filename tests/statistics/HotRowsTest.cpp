#include "statistics/HotRows.h"

#include "support/Views.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

TEST(PickRange, HoldsBothOfItsEnds) {
    const PickRange range{2, 9};

    EXPECT_FALSE(range.Holds(1));
    EXPECT_TRUE(range.Holds(2));
    EXPECT_TRUE(range.Holds(9));
    EXPECT_FALSE(range.Holds(10));
}

TEST(PairOf, PutsTheLowerPickFirst) {
    EXPECT_EQ(PairOf(1, 9), (PickPair{1, 9}));
    EXPECT_EQ(PairOf(9, 1), (PickPair{1, 9}));
}

TEST(PickPair, IsWithinARangeThatHoldsBothPicks) {
    EXPECT_TRUE((PickPair{1, 9}.IsWithin({1, 9})));
    EXPECT_FALSE((PickPair{0, 9}.IsWithin({1, 9})));
    EXPECT_FALSE((PickPair{1, 10}.IsWithin({1, 9})));
}

TEST(SortRows, PutsMostHitsFirstAndEqualOnesByPick) {
    std::vector<PickHits> rows{{9, 1}, {4, 3}, {2, 1}, {7, 3}};

    SortRows(rows, {1, 9});

    EXPECT_EQ(rows, (std::vector<PickHits>{{4, 3}, {7, 3}, {2, 1}, {9, 1}}));
}

TEST(SortRows, PutsPairsOfEqualHitsByTheirLowerAndThenTheirHigherPick) {
    std::vector<PairHits> rows{{{3, 4}, 2}, {{1, 9}, 2}, {{8, 9}, 5}, {{1, 2}, 2}};

    SortRows(rows, {1, 9});

    EXPECT_EQ(rows, (std::vector<PairHits>{{{8, 9}, 5}, {{1, 2}, 2}, {{1, 9}, 2}, {{3, 4}, 2}}));
}

TEST(SortRows, PutsPairsWithoutHitsByTheirLowerAndThenTheirHigherPick) {
    std::vector<PickPair> rows{{3, 4}, {1, 9}, {1, 2}};

    SortRows(rows, {1, 9});

    EXPECT_EQ(rows, (std::vector<PickPair>{{1, 2}, {1, 9}, {3, 4}}));
}

// Not a bug: PAIR-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkPairZeros1, RowsOutsideTheMainRangeBecomeZerosAtTheEnd) {
    std::vector<PairHits> rows{{{0, 4}, 9}, {{1, 2}, 2}, {{5, 12}, 3}, {{3, 4}, 2}};

    SortRows(rows, {1, 9});

    EXPECT_EQ(rows, (std::vector<PairHits>{{{1, 2}, 2}, {{3, 4}, 2}, {{0, 0}, 0}, {{0, 0}, 0}}));
}

// Not a bug: REPEATER-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkRepeaterZeros1, PicksOutsideTheMainRangeBecomeZerosAtTheEnd) {
    std::vector<PickHits> rows{{0, 4}, {5, 1}, {10, 3}, {9, 2}};

    SortRows(rows, {1, 9});

    EXPECT_EQ(rows, (std::vector<PickHits>{{9, 2}, {5, 1}, {0, 0}, {0, 0}}));
}

TEST(TableOf, PutsTheCellsOfARowIntoColumnsOneAndUp) {
    const CountTable picks = TableOf(std::vector<PickHits>{{7, 3}, {8, 2}}, 4);
    EXPECT_EQ(picks.Columns(), 4);
    EXPECT_EQ(picks.Rows(), 2);
    EXPECT_EQ(picks(0, 0), 0);
    EXPECT_EQ(picks(1, 0), 7);
    EXPECT_EQ(picks(2, 0), 3);
    EXPECT_EQ(picks(3, 0), 0);
    EXPECT_EQ(picks(1, 1), 8);
    EXPECT_EQ(picks(2, 1), 2);

    const CountTable pairs = TableOf(std::vector<PairHits>{{{7, 9}, 3}}, 4);
    EXPECT_EQ(pairs(1, 0), 7);
    EXPECT_EQ(pairs(2, 0), 9);
    EXPECT_EQ(pairs(3, 0), 3);

    const CountTable pairsDrawnOnce = TableOf(std::vector<PickPair>{{7, 9}}, 3);
    EXPECT_EQ(pairsDrawnOnce(1, 0), 7);
    EXPECT_EQ(pairsDrawnOnce(2, 0), 9);
}

}  // namespace
}  // namespace ballhaven
