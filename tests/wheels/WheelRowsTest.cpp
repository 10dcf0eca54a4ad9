#include "wheels/WheelRows.h"

#include "plays/PlayMethodCode.h"
#include "support/Combinations.h"
#include "support/Plays.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>
#include <string>

namespace ballhaven {
namespace {

using Pool = std::vector<std::int16_t>;

/// Rows as text: picks with blanks between them, a bar between rows.
std::string Text(WheelRows& rows, int first, int last, int picks) {
    std::string text;
    for (int row = first; row <= last; ++row) {
        text += row == first ? "" : "|";
        for (int slot = 1; slot <= picks; ++slot) {
            text += (slot == 1 ? "" : " ") + std::to_string(rows[row][static_cast<std::size_t>(slot)]);
        }
    }
    return text;
}

TEST(FillWheelRows, ThePicksStandInTheOrderInWhichTheyWereChosenAndTheLastRunsFastest) {
    PlayStretch plays{1, 5000, 5000};
    WheelRows rows = FillWheelRows({mainPicks, Pool{7, 3, 9, 1}, 2}, plays);

    EXPECT_EQ(Text(rows, 1, 6, 2), "7 3|7 9|7 1|3 9|3 1|9 1");
    EXPECT_TRUE(rows.done);
    EXPECT_EQ(rows.endRow, 6);
    EXPECT_EQ(plays.lastPlay, 6);
    EXPECT_EQ(plays.plannedLast, 6);
}

TEST(FillWheelRows, EachWrittenRowIsMarkedAndNoOther) {
    PlayStretch plays{3, 5000, 5000};
    WheelRows rows = FillWheelRows({mainPicks, Pool{1, 2, 3}, 2}, plays);

    EXPECT_EQ(rows[2][0], 0);
    EXPECT_EQ(rows[3][0], byFullWheel);
    EXPECT_EQ(rows[5][0], byFullWheel);
    EXPECT_EQ(rows[6][0], 0);
    EXPECT_EQ(Text(rows, 3, 6, 2), "1 2|1 3|2 3|0 0");
}

TEST(FillWheelRows, AWalkThatRunsOutOfRowsEndsBehindThem) {
    PlayStretch plays{1, 4, 4};
    WheelRows rows = FillWheelRows({mainPicks, Pool{1, 2, 3, 4}, 2}, plays);

    EXPECT_FALSE(rows.done);
    EXPECT_EQ(rows.endRow, 5);
    EXPECT_EQ(plays.lastPlay, 4);
    EXPECT_EQ(Text(rows, 1, 5, 2), "1 2|1 3|1 4|2 3|0 0");
}

TEST(FillWheelRows, AWheelWithAsManyCombinationsAsRowsIsDoneOnTheLastRow) {
    PlayStretch plays{1, 6, 6};
    const WheelRows rows = FillWheelRows({mainPicks, Pool{1, 2, 3, 4}, 2}, plays);

    EXPECT_TRUE(rows.done);
    EXPECT_EQ(rows.endRow, 6);
    EXPECT_EQ(plays.lastPlay, 6);
}

TEST(FillWheelRows, AStretchWithoutPlaysEndsAtItsBeginning) {
    PlayStretch plays{9, 0, 5000};
    WheelRows rows = FillWheelRows({bonusPicks, Pool{1, 2}, 1}, plays);

    EXPECT_FALSE(rows.done);
    EXPECT_EQ(rows.endRow, 9);
    EXPECT_EQ(rows[9][0], 0);
}

TEST(FillWheelRows, BonusCombinationsStartOverUntilThePlannedEnd) {
    PlayStretch plays{2, 8, 8};
    WheelRows rows = FillWheelRows({bonusPicks, Pool{4, 5, 6}, 1}, plays);

    EXPECT_EQ(Text(rows, 2, 8, 1), "4|5|6|4|5|6|4");
    EXPECT_EQ(rows.endRow, 9);
    EXPECT_FALSE(rows.done);
    EXPECT_EQ(plays.lastPlay, 8);
}

TEST(FillWheelRows, BonusCombinationsThatEndAtThePlannedEndAreDone) {
    PlayStretch plays{1, 6, 6};
    WheelRows rows = FillWheelRows({bonusPicks, Pool{4, 5, 6}, 1}, plays);

    EXPECT_TRUE(rows.done);
    EXPECT_EQ(rows.endRow, 6);
    EXPECT_EQ(Text(rows, 1, 6, 1), "4|5|6|4|5|6");
}

TEST(PutRowIntoPlay, TheMethodAndThePicksOfThePassReplaceThePlaysOwnAndTheOtherSlotsStay) {
    PlayStretch plays{1, 5000, 5000};
    const PickPass pass{bonusPicks, Pool{7, 3, 9}, 2};
    WheelRows rows = FillWheelRows(pass, plays);
    PlayPicks table = support::EmptyPlays();
    support::PutPicks(table, bonusPicks, 40, {1, 2, 5});
    PutRowIntoPlay(rows[2], pass, table, 40);

    EXPECT_EQ(support::PicksText(table, bonusPicks, 39, 41), "|7 9 5|");
    EXPECT_EQ(support::PicksText(table, mainPicks, 40, 40), "");
    EXPECT_EQ(table(bonusPicks, 40, 0), byFullWheel);
}

RC_GTEST_PROP(FillWheelRows, GivesWhatAPlainEnumerationGives, ()) {
    const int k = *rc::gen::inRange(1, 7);
    const int n = *rc::gen::inRange(k + 1, 14);
    const int first = *rc::gen::inRange(1, 40);
    const int last = *rc::gen::inRange(first, 200);
    const PickColumn list = *rc::gen::element(mainPicks, bonusPicks);
    Pool pool(static_cast<std::size_t>(n));
    std::iota(pool.begin(), pool.end(), std::int16_t{10});
    PlayStretch plays{first, last, last};
    WheelRows rows = FillWheelRows({list, pool, k}, plays);

    const auto combinations = support::AllCombinations({pool.begin(), pool.end()}, k);
    const auto count = static_cast<int>(combinations.size());
    const int written = list == mainPicks ? std::min(last + 1 - first, count) : last + 1 - first;
    for (int i = 0; i < written; ++i) {
        const auto& picks = combinations[static_cast<std::size_t>(i % count)];
        for (int slot = 1; slot <= k; ++slot) {
            RC_ASSERT(rows[first + i][static_cast<std::size_t>(slot)] == picks[static_cast<std::size_t>(slot - 1)]);
        }
    }
    RC_ASSERT(rows[first + written][0] == 0);
}

// The proof that users care for: every combination of the chosen picks stands in exactly one row.
TEST(FillWheelRows, AFullWheelHoldsEveryCombinationOnceForAllPicksThatFit) {
    int wheels = 0;
    for (int k = 1; k <= picksPerPlay; ++k) {
        for (int n = k + 1; n <= chosenPicks; ++n) {
            Pool pool(static_cast<std::size_t>(n));
            std::iota(pool.begin(), pool.end(), std::int16_t{0});
            PlayStretch plays{1, playCount, playCount};
            WheelRows rows = FillWheelRows({mainPicks, pool, k}, plays);
            if (!rows.done) {
                break;  // more combinations than plays, for all larger pools too
            }
            support::Combinations combinations;
            for (int row = 1; row <= rows.endRow; ++row) {
                const auto picks = rows[row].subspan(1, static_cast<std::size_t>(k));
                combinations.emplace_back(picks.begin(), picks.end());
            }
            support::ExpectEachOnce(combinations, n, k);
            ++wheels;
        }
    }
    // Pools with 5000 combinations or fewer, of one pick to ten.
    EXPECT_EQ(wheels, 99 + 98 + 29 + 16 + 11 + 8 + 7 + 6 + 5 + 5);
}

}  // namespace
}  // namespace ballhaven
