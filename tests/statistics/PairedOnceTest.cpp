#include "statistics/PairedOnce.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/Views.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::AllDraws;
using support::BonusPool;
using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;
using support::ViewOf;

using Pairs = std::vector<PickPair>;
using Picks = std::vector<std::int16_t>;
using Texts = std::vector<std::string>;

/// Puts the table on show as the hot selector would, and builds it.
void ShowPairedOnce() {
    appState.hotTableChoice = static_cast<std::int16_t>(HotTable::PairedOnce);
    ComputeHotTable();
}

/// The first column of the grid.
Texts Rows() {
    Texts rows;
    for (int row = 0; row < frmMainForm.hotRowCount; ++row) {
        rows.push_back(HotCellValue(row, 0).value_or("(null)"));
    }
    return rows;
}

std::string Caption() {
    return frmMainForm.grdHot.caption;
}

std::optional<RuntimeFailure::Kind> FailureOfPairedOnce() {
    try {
        ShowPairedOnce();
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
    return std::nullopt;
}

/// Numbers from one on by a step: in a square of ten rows of ten, a column by 10, a diagonal by 11 or 9.
DrawPicks Line(int first, int step, int count) {
    DrawPicks picks;
    for (int i = 0; i < count; ++i) {
        picks.push_back(first + i * step);
    }
    return picks;
}

TEST(FindPairsDrawnOnce, GivesThePairsOfOneDrawByTheirPicks) {
    const Table view = ViewOf({{30, 2, 9}, {9, 30, 1}});

    const FoundRows<PickPair> found =
        FindPairsDrawnOnce(AllDraws(view), Picks{30, 9, 2, 1}, {1, 49}, mostPairsDrawnOnce);

    EXPECT_EQ(found.rows, (Pairs{{1, 9}, {1, 30}, {2, 9}, {2, 30}}));
    EXPECT_EQ(found.failure, std::nullopt);
}

TEST(FindPairsDrawnOnce, NeedsTwoDraws) {
    EXPECT_TRUE(FindPairsDrawnOnce(AllDraws(ViewOf({{1, 2}})), Picks{1, 2}, {1, 9}, mostPairsDrawnOnce).rows.empty());
    EXPECT_EQ(FindPairsDrawnOnce(AllDraws(ViewOf({{1, 2}, {3}})), Picks{1, 2}, {1, 9}, mostPairsDrawnOnce).rows,
              (Pairs{{1, 2}}));
}

TEST(FindPairsDrawnOnce, WithoutCandidatesGivesNothing) {
    EXPECT_TRUE(FindPairsDrawnOnce(AllDraws(ViewOf({{1, 2}, {3}})), Picks{}, {0, 9}, mostPairsDrawnOnce).rows.empty());
}

TEST(ComputePairedOnce, OneGameHasNoPairsWhateverWasDrawn) {
    StartWith(NumberGame().Picks(6));
    ShowDraws({{1, 2, 3, 4, 5, 6}});

    ShowPairedOnce();

    EXPECT_EQ(appState.pairedOnceLast, -1);
    EXPECT_EQ(Caption(), "Paired once (none found)");
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
}

TEST(ComputePairedOnce, TwoEqualGamesHaveNone) {
    StartWith(NumberGame().Picks(6));
    ShowDraws({{5, 9, 14, 23, 30, 44}, {5, 9, 14, 23, 30, 44}});

    ShowPairedOnce();

    EXPECT_EQ(appState.pairedOnceLast, -1);
    EXPECT_EQ(Caption(), "Paired once (none found)");
}

TEST(ComputePairedOnce, ThePairsStandByTheirLowerAndThenTheirHigherPick) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{30, 2, 9}, {9, 30, 1}});

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"1, 9", "1, 30", "2, 9", "2, 30"}));
    EXPECT_EQ(Caption(), "Paired once in last 2 games");
    EXPECT_EQ(frmMainForm.hotRowCount, 4);
}

TEST(ComputePairedOnce, ABonusValueIsNoCandidateUnderMainButAMainValueCountsInTheBonusColumn) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 9}, {3, 4, 1}});
    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Main);

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"1, 2", "1, 3", "1, 4", "3, 4"}));
}

TEST(ComputePairedOnce, AGameThatHoldsAValueTwiceIsOneGame) {
    StartWith(NumberGame().Picks(3).From(1).To(9).WithDuplicates());
    ShowDraws({{4, 4, 5}, {6, 6, 6}});

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"4, 5"}));
}

TEST(ComputePairedOnce, CardGamesNeverShowAZeroPair) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{1, 23}, {2, 3}});

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"Ah, 10c", "2h, 3h"}));
}

// Not a bug: PAIRED-ONCE-1 in docs/not-bugs.md.
TEST(QuirkPairedOnce1, TheBeginningOfTheMainRangeSaysWhereTheInnerWalkStarts) {
    const Table view = ViewOf({{5, 6, 7}, {8}});
    const auto pairsFrom = [&view](std::int16_t low) {
        return FindPairsDrawnOnce(AllDraws(view), Picks{5, 6, 7, 8}, {low, 9}, mostPairsDrawnOnce).rows;
    };

    EXPECT_EQ(pairsFrom(0), (Pairs{{0, 0}, {0, 0}, {0, 0}, {5, 6}, {5, 7}, {6, 7}}));
    EXPECT_EQ(pairsFrom(1), (Pairs{{5, 6}, {5, 7}, {6, 7}}));
    EXPECT_EQ(pairsFrom(2), (Pairs{{5, 7}}));
    EXPECT_EQ(pairsFrom(3), Pairs());
}

// Not a bug: PAIRED-ONCE-1 in docs/not-bugs.md.
TEST(QuirkPairedOnce1, AValueDrawnInOneGameOnlyShowsAsZeroZeroWhereTheLowestNumberIsZero) {
    StartWith(NumberGame().Picks(3).From(0).To(9));
    ShowDraws({{0, 4, 7}, {0, 4, 8}});

    ShowPairedOnce();

    // 7 has the row of zeros. 8, the last row of Hot Numbers, begins no walk and has none.
    EXPECT_EQ(Rows(), (Texts{"0, 0", "0, 7", "0, 8", "4, 7", "4, 8"}));
}

// Not a bug: PAIRED-ONCE-1 in docs/not-bugs.md.
TEST(QuirkPairedOnce1, TheZeroRowsOfAllSuchValuesStandFirst) {
    StartWith(NumberGame().Picks(2).From(0).To(9));
    ShowDraws({{1, 2}, {3, 4}});

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"0, 0", "0, 0", "0, 0", "1, 2", "3, 4"}));
}

// Not a bug: PAIRED-ONCE-1 in docs/not-bugs.md.
TEST(QuirkPairedOnce1, WhereTheLowestNumberIsTwoTheRowAfterEachOneIsLeftOut) {
    StartWith(NumberGame().Picks(3).From(2).To(9));
    ShowDraws({{2, 3, 4}, {6, 7, 8}});

    ShowPairedOnce();

    // Hot Numbers lists 2, 3, 4, 6, 7, 8: neighbours there are not looked at.
    EXPECT_EQ(Rows(), (Texts{"2, 4", "6, 8"}));
}

// Not a bug: PAIR-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkPairZeros1, APairOfOneGameBelowTheMainRangeLeavesARowOfZerosAtTheEnd) {
    StartWith(NumberGame().Picks(2).From(1).To(9).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9));
    ShowDraws({{1, 2, 0}, {3, 4, 4}});

    ShowPairedOnce();

    EXPECT_EQ(Rows(), (Texts{"1, 2", "3, 4", "0, 0", "0, 0"}));
}

/// Draws of ten picks in which 900 pairs stand in one game each: the rows and the columns of a square of 100 numbers.
std::vector<DrawPicks> DrawsOf900Pairs() {
    std::vector<DrawPicks> draws;
    for (int i = 0; i < 10; ++i) {
        draws.push_back(Line(i * 10, 1, 10));
        draws.push_back(Line(i, 10, 10));
    }
    return draws;
}

/// The same with the two diagonals of the square, 990 pairs, and with eleven more.
std::vector<DrawPicks> DrawsOf1001Pairs() {
    std::vector<DrawPicks> draws = DrawsOf900Pairs();
    draws.push_back(Line(0, 11, 10));
    draws.push_back(Line(9, 9, 10));
    draws.push_back(Line(1, 11, 5));
    draws.push_back(Line(2, 11, 2));
    return draws;
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, FindPairsDrawnOnceEndsAtThe1002ndPairWithThoseBeforeItAsFound) {
    Picks descending(100);
    std::iota(descending.rbegin(), descending.rend(), 0);
    // The main range begins with 1, so that no value meets itself: 1001 pairs of 100 values.
    std::vector<DrawPicks> draws = DrawsOf1001Pairs();
    EXPECT_EQ(FindPairsDrawnOnce(AllDraws(ViewOf(draws)), descending, {1, 99}, mostPairsDrawnOnce).failure,
              std::nullopt);

    draws.push_back({5, 16});
    const FoundRows<PickPair> found =
        FindPairsDrawnOnce(AllDraws(ViewOf(draws)), descending, {1, 99}, mostPairsDrawnOnce);

    EXPECT_EQ(found.failure, RuntimeFailure::Kind::SubscriptOutOfRange);
    EXPECT_EQ(found.rows.size(), 1001U);
    EXPECT_EQ(found.rows.front(), (PickPair{98, 99}));
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, PairedOnceTakes1001Pairs) {
    StartWith(NumberGame().Picks(10).From(1).To(99));
    std::vector<DrawPicks> draws = DrawsOf1001Pairs();
    for (DrawPicks& picks : draws) {
        std::ranges::replace(picks, 0, -1);
    }
    // The value 0 had 9 pairs with its row, 9 with its column and 9 on the diagonal; here are as many again.
    draws.push_back(Line(3, 11, 7));
    draws.push_back(Line(4, 11, 4));
    ShowDraws(draws);

    EXPECT_EQ(FailureOfPairedOnce(), std::nullopt);
    EXPECT_EQ(appState.pairedOnceLast, 1000);
    EXPECT_EQ(Rows().front(), "1, 2");
    EXPECT_FALSE(appState.pairedOnceStale);
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, The1002ndPairDrawnOnceFailsWithThePairsBeforeItCounted) {
    StartWith(NumberGame().Picks(10).From(0).To(99));
    std::vector<DrawPicks> draws = DrawsOf1001Pairs();
    draws.push_back({5, 16});
    ShowDraws(draws);
    ComputeHotTable();
    appState.pairedOnceStale = true;

    EXPECT_EQ(FailureOfPairedOnce(), RuntimeFailure::Kind::SubscriptOutOfRange);
    EXPECT_EQ(appState.pairedOnceLast, 1000);
    EXPECT_EQ(appState.pairedOnceTable.Rows(), 0);
    EXPECT_TRUE(appState.pairedOnceStale);
}

/// 1000 pairs without the values 98 and 99, which stand alone in one game each and end Hot Numbers: 98 has a row of
/// zeros, which is found after all pairs.
std::vector<DrawPicks> DrawsOf1000PairsAndAZeroRow() {
    std::vector<DrawPicks> draws = DrawsOf1001Pairs();
    for (DrawPicks& picks : draws) {
        std::ranges::replace(picks, 98, -1);
        std::ranges::replace(picks, 99, -1);
    }
    // They took 17 pairs from their row, 18 from their columns and 9 from the diagonal; here are 43.
    draws.push_back(Line(3, 11, 7));
    draws.push_back(Line(4, 11, 6));
    draws.push_back(Line(5, 11, 4));
    draws.push_back({6, 17});
    draws.push_back({98});
    draws.push_back({99});
    return draws;
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, AZeroRowTakesThe1001stPlace) {
    StartWith(NumberGame().Picks(10).From(0).To(99));
    ShowDraws(DrawsOf1000PairsAndAZeroRow());

    EXPECT_EQ(FailureOfPairedOnce(), std::nullopt);
    EXPECT_EQ(appState.pairedOnceLast, 1000);
    EXPECT_EQ(Rows()[0], "0, 0");
    EXPECT_EQ(Rows()[1], "0, 1");
}

TEST(QuirkPairLimit1, InAMendedFolderTheMorePairsDrawnOnceHaveTheirRows) {
    StartWith(NumberGame().Picks(10).From(0).To(99));
    support::MendFolder();
    std::vector<DrawPicks> draws = DrawsOf1001Pairs();
    draws.push_back({5, 16});
    ShowDraws(draws);

    EXPECT_EQ(FailureOfPairedOnce(), std::nullopt);
    EXPECT_EQ(appState.pairedOnceLast, 1001);
    EXPECT_EQ(std::ranges::count(Rows(), "5, 16"), 1);
    EXPECT_FALSE(appState.pairedOnceStale);
}

TEST(QuirkPairLimit1, InAMendedFolderAZeroRowMayStandInThe1002ndPlace) {
    StartWith(NumberGame().Picks(10).From(0).To(99));
    support::MendFolder();
    std::vector<DrawPicks> draws = DrawsOf1000PairsAndAZeroRow();
    draws.push_back({7, 18});
    ShowDraws(draws);

    ASSERT_EQ(FailureOfPairedOnce(), std::nullopt);
    EXPECT_EQ(appState.pairedOnceLast, 1001);
    EXPECT_EQ(Rows()[0], "0, 0");
    EXPECT_EQ(std::ranges::count(Rows(), "7, 18"), 1);
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, AZeroRowInThe1002ndPlaceFailsWhenItIsSorted) {
    StartWith(NumberGame().Picks(10).From(0).To(99));
    std::vector<DrawPicks> draws = DrawsOf1000PairsAndAZeroRow();
    draws.push_back({7, 18});
    ShowDraws(draws);
    ComputeHotTable();
    appState.pairedOnceStale = true;

    EXPECT_EQ(FailureOfPairedOnce(), RuntimeFailure::Kind::SubscriptOutOfRange);
    EXPECT_EQ(appState.pairedOnceLast, 1001);
    EXPECT_EQ(appState.pairedOnceTable.Rows(), 1002);
    EXPECT_EQ(Caption(), "Paired once in last 31 games");
    EXPECT_TRUE(appState.pairedOnceStale);
}

}  // namespace
}  // namespace ballhaven
