#include "statistics/HotPairs.h"

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
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <utility>
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

using Picks = std::vector<std::int16_t>;
using Texts = std::vector<std::string>;

/// Puts the table on show as the hot selector would, and builds it.
void ShowHotPairs() {
    appState.hotTableChoice = static_cast<std::int16_t>(HotTable::HotPairs);
    ComputeHotTable();
}

/// The rows as "lower, higher xhits".
Texts Rows() {
    Texts rows;
    for (int row = 0; row <= appState.hotPairLast; ++row) {
        const CountTable& table = appState.hotPairTable;
        rows.push_back(std::to_string(table(1, row)) + ", " + std::to_string(table(2, row)) + " x" +
                       std::to_string(table(3, row)));
    }
    return rows;
}

Texts CellsOfRow(int row) {
    Texts cells;
    for (int column = 0; column < 4; ++column) {
        cells.push_back(HotCellValue(row, column).value_or("(null)"));
    }
    return cells;
}

std::string Caption() {
    return frmMainForm.grdHot.caption;
}

/// Draws with exactly 501 pairs in two games: eleven different tens of picks have 45 pairs each, and four picks have 6.
std::vector<DrawPicks> DrawsOf501Pairs() {
    std::vector<DrawPicks> draws;
    for (int group = 0; group < 9; ++group) {
        DrawPicks picks;
        for (int pick = 1; pick <= 10; ++pick) {
            picks.push_back(group * 10 + pick);
        }
        draws.insert(draws.end(), 2, picks);
    }
    // Two more tens whose picks come from different ones of the nine before.
    for (const int column : {1, 2}) {
        DrawPicks picks;
        for (int group = 0; group < 9; ++group) {
            picks.push_back(group * 10 + column);
        }
        picks.push_back(90 + column);
        draws.insert(draws.end(), 2, picks);
    }
    draws.insert(draws.end(), 2, DrawPicks{3, 13, 23, 33});
    return draws;
}

TEST(FindHotPairs, GivesThePairsOfTwoAndMoreDrawsWithMostHitsFirst) {
    const Table view = ViewOf({{1, 2, 3}, {3, 2, 9}, {2, 3, 1}, {8, 9}});

    const FoundRows<PairHits> found = FindHotPairs(AllDraws(view), Picks{3, 2, 9, 1, 8}, {1, 9}, mostHotPairs);

    EXPECT_EQ(found.rows, (std::vector<PairHits>{{{2, 3}, 3}, {{1, 2}, 2}, {{1, 3}, 2}}));
    EXPECT_EQ(found.failure, std::nullopt);
}

TEST(FindHotPairs, TakesNoPickThatIsNoCandidate) {
    const Table view = ViewOf({{1, 2, 3}, {1, 2, 3}});

    EXPECT_EQ(FindHotPairs(AllDraws(view), Picks{3, 1}, {1, 9}, mostHotPairs).rows,
              (std::vector<PairHits>{{{1, 3}, 2}}));
    EXPECT_TRUE(FindHotPairs(AllDraws(view), Picks{}, {1, 9}, mostHotPairs).rows.empty());
}

// Not a bug: PAIR-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkPairZeros1, FindHotPairsGivesZerosForAPairOutsideTheMainRange) {
    const Table view = ViewOf({{1, 2, 10}, {1, 2, 10}});

    EXPECT_EQ(FindHotPairs(AllDraws(view), Picks{1, 2, 10}, {1, 9}, mostHotPairs).rows,
              (std::vector<PairHits>{{{1, 2}, 2}, {{0, 0}, 0}, {{0, 0}, 0}}));
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, FindHotPairsEndsAtThe502ndPairWithThoseBeforeItAsFound) {
    std::vector<DrawPicks> draws = DrawsOf501Pairs();
    Picks descending(100);
    std::iota(descending.rbegin(), descending.rend(), 0);
    EXPECT_EQ(FindHotPairs(AllDraws(ViewOf(draws)), descending, {0, 99}, mostHotPairs).failure, std::nullopt);

    draws.insert(draws.end(), 2, DrawPicks{4, 14});
    const FoundRows<PairHits> found = FindHotPairs(AllDraws(ViewOf(draws)), descending, {0, 99}, mostHotPairs);

    EXPECT_EQ(found.failure, RuntimeFailure::Kind::SubscriptOutOfRange);
    EXPECT_EQ(found.rows.size(), 501U);
    EXPECT_EQ(found.rows.front(), (PairHits{{82, 92}, 2}));
}

TEST(ComputeHotPairs, OneGameHasNoPairsWhateverWasDrawn) {
    StartWith(NumberGame().Picks(6));
    ShowDraws({{1, 2, 3, 4, 5, 6}});

    ShowHotPairs();

    EXPECT_EQ(appState.hotPairLast, -1);
    EXPECT_EQ(Caption(), "Pairs (none found)");
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
}

TEST(ComputeHotPairs, TwoEqualGamesOfSixPicksHaveFifteenPairsInOrder) {
    StartWith(NumberGame().Picks(6));
    ShowDraws({{5, 9, 14, 23, 30, 44}, {44, 30, 23, 14, 9, 5}});

    ShowHotPairs();

    EXPECT_EQ(Rows(),
              (Texts{"5, 9 x2", "5, 14 x2", "5, 23 x2", "5, 30 x2", "5, 44 x2", "9, 14 x2", "9, 23 x2", "9, 30 x2",
                     "9, 44 x2", "14, 23 x2", "14, 30 x2", "14, 44 x2", "23, 30 x2", "23, 44 x2", "30, 44 x2"}));
    EXPECT_EQ(Caption(), "Hot Pairs in last 2 games");
    EXPECT_EQ(frmMainForm.hotRowCount, 15);
    EXPECT_EQ(CellsOfRow(0), (Texts{"5, 9", "2", "100", "1.0"}));
    EXPECT_EQ(CellsOfRow(14), (Texts{"30, 44", "2", "100", "1.0"}));
}

TEST(ComputeHotPairs, PairsWithMoreHitsStandFirst) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {8, 9}, {1, 2}, {8, 9}, {8, 9}, {3, 4}});

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"8, 9 x3", "1, 2 x2"}));
}

TEST(ComputeHotPairs, ABonusValueIsNoCandidateUnderMain) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 9}, {1, 2, 9}});
    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Main);

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"1, 2 x2"}));
}

TEST(ComputeHotPairs, UnderMainAMainValueThatCameUpAsABonusStandsInThatGame) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 9}, {1, 3, 2}});
    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Main);

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"1, 2 x2"}));
}

TEST(ComputeHotPairs, UnderBonusOnlyBonusValuesAreCandidates) {
    StartWith(NumberGame().Picks(2).Bonus(2, BonusPool::Same));
    ShowDraws({{1, 2, 8, 9}, {1, 2, 8, 9}});
    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Bonus);

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"8, 9 x2"}));
}

TEST(ComputeHotPairs, HitsAreGamesAndNotOccurrences) {
    StartWith(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    ShowDraws({{4, 4, 5}, {4, 5, 5}});

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"4, 5 x2"}));
}

TEST(ComputeHotPairs, TheLowerPickComesFirstWhateverItsHits) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{9, 3}, {9, 3}, {9, 4}, {9, 5}});

    ShowHotPairs();

    ASSERT_EQ(appState.hotNumberTable(1, 0), 9);
    EXPECT_EQ(Rows(), (Texts{"3, 9 x2"}));
}

TEST(ComputeHotPairs, APairDrawnOnceLeavesNoTrace) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {3, 4}});

    ShowHotPairs();

    EXPECT_EQ(appState.hotPairLast, -1);
    EXPECT_EQ(Caption(), "Pairs (none found)");
}

TEST(ComputeHotPairs, CardsArePairedByTheirCodes) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{23, 1}, {1, 23}});

    ShowHotPairs();

    EXPECT_EQ(CellsOfRow(0), (Texts{"Ah, 10c", "2", "100", "1.0"}));
}

// Not a bug: PAIR-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkPairZeros1, APairBelowTheMainRangeLeavesARowOfZerosAtTheEnd) {
    StartWith(NumberGame().Picks(2).From(1).To(9).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9));
    ShowDraws({{1, 2, 0}, {1, 2, 0}});

    ShowHotPairs();

    EXPECT_EQ(Rows(), (Texts{"1, 2 x2", "0, 0 x0", "0, 0 x0"}));
    EXPECT_EQ(CellsOfRow(1), (Texts{"0, 0", "0", "0", ""}));
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, HotPairsTakes501Pairs) {
    StartWith(NumberGame().Picks(10).To(99));
    ShowDraws(DrawsOf501Pairs());

    ShowHotPairs();

    EXPECT_EQ(appState.hotPairLast, 500);
    EXPECT_EQ(Rows().front(), "1, 2 x2");
    EXPECT_FALSE(appState.hotPairStale);
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, The502ndHotPairFailsWithThePairsBeforeItCounted) {
    StartWith(NumberGame().Picks(10).To(99));
    std::vector<DrawPicks> draws = DrawsOf501Pairs();
    draws.insert(draws.end(), 2, DrawPicks{4, 14});
    ShowDraws(draws);
    ComputeHotTable();
    appState.hotPairStale = true;

    std::optional<RuntimeFailure::Kind> failure;
    try {
        ShowHotPairs();
    } catch (const RuntimeFailure& raised) {
        failure = raised.GetKind();
    }

    EXPECT_EQ(failure, RuntimeFailure::Kind::SubscriptOutOfRange);
    EXPECT_EQ(appState.hotPairLast, 500);
    EXPECT_EQ(appState.hotPairTable.Rows(), 0);
    EXPECT_TRUE(appState.hotPairStale);
}

TEST(QuirkPairLimit1, FindHotPairsGivesAllPairsWithoutALimit) {
    // 100 numbers in each of two draws.
    DrawPicks all(100);
    std::iota(all.begin(), all.end(), 0);
    Picks candidates(100);
    std::iota(candidates.begin(), candidates.end(), std::int16_t{0});

    const FoundRows<PairHits> found = FindHotPairs(AllDraws(ViewOf({all, all})), candidates, {0, 99}, noLimit);

    EXPECT_EQ(found.failure, std::nullopt);
    EXPECT_EQ(found.rows.size(), 4950U);
    EXPECT_EQ(found.rows.front(), (PairHits{{0, 1}, 2}));
    EXPECT_EQ(found.rows.back(), (PairHits{{98, 99}, 2}));
}

TEST(QuirkPairLimit1, InAMendedFolderHotPairsTakesTheMore) {
    StartWith(NumberGame().Picks(10).To(99));
    support::MendFolder();
    std::vector<DrawPicks> draws = DrawsOf501Pairs();
    draws.insert(draws.end(), 2, DrawPicks{4, 14});
    ShowDraws(draws);

    ShowHotPairs();

    EXPECT_EQ(appState.hotPairLast, 501);
    EXPECT_EQ(Rows().size(), 502U);
    EXPECT_EQ(std::ranges::count(Rows(), "4, 14 x2"), 1);
    EXPECT_FALSE(appState.hotPairStale);
}

/// 200 draws of six out of 49.
std::vector<DrawPicks> TwoHundredDraws() {
    std::mt19937 chance(649);
    std::vector<int> numbers(49);
    std::iota(numbers.begin(), numbers.end(), 1);
    std::vector<DrawPicks> draws;
    for (int i = 0; i < 200; ++i) {
        for (std::size_t place = 0; place < 6; ++place) {
            std::swap(numbers[place], numbers[place + chance() % (numbers.size() - place)]);
        }
        draws.emplace_back(numbers.begin(), numbers.begin() + 6);
    }
    return draws;
}

// Not a bug: PAIR-LIMIT-1 in docs/not-bugs.md.
TEST(QuirkPairLimit1, SixOutOf49Over200DrawsIsBeyondIt) {
    StartWith(NumberGame().Picks(6).To(49));
    ShowDraws(TwoHundredDraws());

    EXPECT_THROW(ShowHotPairs(), RuntimeFailure);
}

TEST(QuirkPairLimit1, InAMendedFolderSixOutOf49Over200DrawsHasEachPairThatIsCountedTwice) {
    StartWith(NumberGame().Picks(6).To(49));
    support::MendFolder();
    const std::vector<DrawPicks> draws = TwoHundredDraws();
    ShowDraws(draws);

    ShowHotPairs();

    int pairs = 0;
    for (int lower = 1; lower < 49; ++lower) {
        for (int higher = lower + 1; higher <= 49; ++higher) {
            const auto holdsBoth = [lower, higher](const DrawPicks& picks) {
                return std::ranges::count(picks, lower) > 0 && std::ranges::count(picks, higher) > 0;
            };
            pairs += std::ranges::count_if(draws, holdsBoth) >= 2 ? 1 : 0;
        }
    }
    EXPECT_GT(pairs, 501);
    EXPECT_EQ(appState.hotPairLast + 1, pairs);
}

}  // namespace
}  // namespace ballhaven
