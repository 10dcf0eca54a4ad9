#include "statistics/HotNumbers.h"

#include "forms/MainForm.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/Views.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
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

using Rows = std::vector<PickHits>;

Rows HotNumberRows() {
    Rows rows;
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        rows.push_back({static_cast<std::int16_t>(appState.hotNumberTable(1, row)), appState.hotNumberTable(2, row)});
    }
    return rows;
}

Rows RowsCounting(CountedPicks counted) {
    appState.hotSortChoice = static_cast<std::int16_t>(counted);
    ComputeHotTable();
    return HotNumberRows();
}

void Show(HotTable table) {
    appState.hotTableChoice = static_cast<std::int16_t>(table);
}

std::string Caption() {
    return frmMainForm.grdHot.caption;
}

TEST(CountedColumns, AreThoseOfTheChoiceInAGameWithBonusPicks) {
    for (const int gameType : {1, 2, 4, 5}) {
        EXPECT_EQ(CountedColumns(gameType, 7, 2, CountedPicks::Main), (PickColumns{1, 5}));
        EXPECT_EQ(CountedColumns(gameType, 7, 2, CountedPicks::Bonus), (PickColumns{6, 7}));
        EXPECT_EQ(CountedColumns(gameType, 7, 2, CountedPicks::All), (PickColumns{1, 7}));
    }
}

TEST(CountedColumns, AreAllInAGameWithoutBonusPicks) {
    for (const int gameType : {0, 3}) {
        for (const CountedPicks counted : {CountedPicks::Main, CountedPicks::Bonus, CountedPicks::All}) {
            EXPECT_EQ(CountedColumns(gameType, 7, 2, counted), (PickColumns{1, 7}));
        }
    }
}

TEST(FindHotNumbers, CountsThePicksOfSomeColumns) {
    const Table view = ViewOf({{9, 30, 4}, {30, 4, 8}, {30, 49, 9}});

    EXPECT_EQ(FindHotNumbers(AllDraws(view), 49), (Rows{{30, 3}, {4, 2}, {9, 2}, {8, 1}, {49, 1}}));
    EXPECT_EQ(FindHotNumbers({view, 3, {2, 2}}, 49), (Rows{{4, 1}, {30, 1}, {49, 1}}));
    EXPECT_EQ(FindHotNumbers({view, 2, {1, 3}}, 49), (Rows{{4, 2}, {30, 2}, {8, 1}, {9, 1}}));
}

TEST(FindHotNumbers, WithoutDrawsGivesNothing) {
    EXPECT_EQ(FindHotNumbers(AllDraws(ViewOf({})), 49), Rows());
}

TEST(FindHotNumbers, TakesPicksFrom0To1000) {
    const Table view = ViewOf({{0, 1000, -2, 1001}});

    EXPECT_EQ(FindHotNumbers(AllDraws(view), 2000), (Rows{{0, 1}, {1000, 1}}));
}

TEST(HotNumberPicks, StandInTheOrderOfTheTable) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{3, 9}, {9, 1}});
    ComputeHotTable();

    EXPECT_EQ(HotNumberPicks(), (std::vector<std::int16_t>{9, 1, 3}));
}

TEST(ComputeHotTable, AnEmptyLogGivesNoRowsAndSaysSo) {
    StartWith(NumberGame().Picks(6));
    ShowDraws({});

    ComputeHotTable();

    EXPECT_EQ(appState.hotNumberLast, -1);
    EXPECT_EQ(Caption(), "Hot Numbers (none found)");
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 0);
}

TEST(ComputeHotTable, AnEmptyLogOfACardGameSpeaksOfCards) {
    StartWith(CardGame().Picks(5));
    ShowDraws({});

    ComputeHotTable();

    EXPECT_EQ(Caption(), "Hot Cards (none found)");
}

TEST(ComputeHotTable, ATableThatFindsNothingKeepsItsOldArray) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{3, 4}});
    ComputeHotTable();
    const CountTable before = appState.hotNumberTable;

    ShowDraws({});
    ComputeHotTable();

    EXPECT_EQ(appState.hotNumberTable, before);
    EXPECT_EQ(appState.hotNumberLast, -1);
}

TEST(ComputeHotTable, DrawsOfBlankPicksOnlyGiveNoRows) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{}, {}});

    ComputeHotTable();

    EXPECT_EQ(appState.hotNumberLast, -1);
    EXPECT_EQ(Caption(), "Hot Numbers (none found)");
}

TEST(ComputeHotTable, MostHitsComeFirstAndEqualOnesByAscendingValue) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{9, 30, 4}, {30, 4, 8}, {30, 49, 9}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{30, 3}, {4, 2}, {9, 2}, {8, 1}, {49, 1}}));
    EXPECT_EQ(appState.hotNumberTable.Columns(), 4);
}

TEST(ComputeHotTable, TheOrderOfTheLogDoesNotChangeTheTable) {
    const std::vector<DrawPicks> draws{{9, 30, 4}, {30, 4, 8}, {30, 49, 9}, {1, 2, 3}};
    StartWith(NumberGame().Picks(3).NewestFirst());
    ShowDraws(draws);
    ComputeHotTable();
    const Rows newestFirst = HotNumberRows();

    StartWith(NumberGame().Picks(3).OldestFirst());
    ShowDraws(draws);
    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), newestFirst);
}

TEST(ComputeHotTable, CardsStandByTheirCodesNotByRank) {
    StartWith(CardGame().Picks(3));
    ShowDraws({{14, 52, 13}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{13, 1}, {14, 1}, {52, 1}}));
}

TEST(ComputeHotTable, TheChoiceOfPicksTakesInMainOrBonusColumnsOrBoth) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{7, 8, 9}, {9, 10, 11}});

    EXPECT_EQ(RowsCounting(CountedPicks::Main), (Rows{{7, 1}, {8, 1}, {9, 1}, {10, 1}}));
    EXPECT_EQ(RowsCounting(CountedPicks::Bonus), (Rows{{9, 1}, {11, 1}}));
    EXPECT_EQ(RowsCounting(CountedPicks::All), (Rows{{9, 2}, {7, 1}, {8, 1}, {10, 1}, {11, 1}}));
}

TEST(ComputeHotTable, TheChoiceOfPicksChangesNothingWithoutBonusPicks) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{7, 8}});
    const Rows all{{7, 1}, {8, 1}};

    EXPECT_EQ(RowsCounting(CountedPicks::Main), all);
    EXPECT_EQ(RowsCounting(CountedPicks::Bonus), all);
    EXPECT_EQ(RowsCounting(CountedPicks::All), all);
}

TEST(ComputeHotTable, ABonusCountInTheRecordOfAGameWithoutBonusPicksChangesNothing) {
    StartWith(NumberGame().Picks(2));
    appState.bonusPickCount = 1;
    ShowDraws({{7, 8}});

    EXPECT_EQ(RowsCounting(CountedPicks::Main), (Rows{{7, 1}, {8, 1}}));
}

TEST(ComputeHotTable, ABlankPickCountsForNothingAndDoesNotStopItsGame) {
    StartWith(NumberGame().Picks(4));
    ShowDraws({{5, -1, 6, 5}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{5, 2}, {6, 1}}));
}

TEST(ComputeHotTable, APickThatStandsTwiceInOneDrawCountsTwice) {
    StartWith(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    ShowDraws({{4, 4, 7}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{4, 2}, {7, 1}}));
}

TEST(ComputeHotTable, ZeroIsListedLikeAnyOtherValue) {
    StartWith(NumberGame().Picks(3).From(0).To(9));
    ShowDraws({{0, 5, 9}, {0, 1, 2}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{0, 2}, {1, 1}, {2, 1}, {5, 1}, {9, 1}}));
}

TEST(ComputeHotTable, AGameWhoseLowestValueIsOneNeverShowsZero) {
    StartWith(NumberGame().Picks(3).From(1).To(9));
    ShowDraws({{1, 5, 9}, {-1, -1, -1}});

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{1, 1}, {5, 1}, {9, 1}}));
}

// Not a bug: HOT-NUMBERS-1 in docs/not-bugs.md.
TEST(QuirkHotNumbers1, BonusValuesAboveTheHighestMainPickAreNotListed) {
    StartWith(NumberGame().Picks(2).To(9).Bonus(1, BonusPool::Separate).BonusTo(20));
    ShowDraws({{1, 9, 9}, {2, 3, 10}, {2, 4, 20}});

    EXPECT_EQ(RowsCounting(CountedPicks::Bonus), (Rows{{9, 1}}));
    EXPECT_EQ(RowsCounting(CountedPicks::All), (Rows{{2, 2}, {9, 2}, {1, 1}, {3, 1}, {4, 1}}));
}

TEST(ComputeHotTable, TheCaptionTellsTheGamesThatTheViewReallyHas) {
    StartWith(NumberGame().Picks(2).HistorySet(500));
    ShowDraws(std::vector<DrawPicks>(30, DrawPicks{1, 2}));

    ComputeHotTable();

    EXPECT_EQ(Caption(), "Hot Numbers in last 30 games");
    EXPECT_EQ(HotNumberRows(), (Rows{{1, 30}, {2, 30}}));
}

TEST(ComputeHotTable, OnlyTheDrawsOfTheHistorySetCount) {
    StartWith(NumberGame().Picks(1).HistorySet(10));
    std::vector<DrawPicks> draws(15, DrawPicks{7});
    draws.resize(25, DrawPicks{8});
    ShowDraws(draws);

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{8, 10}}));
}

TEST(ComputeHotTable, ACardGameCaptionSpeaksOfCards) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{1, 2}});

    ComputeHotTable();

    EXPECT_EQ(Caption(), "Hot Cards in last 1 games");
}

TEST(ComputeHotTable, TheGridGetsTheRowsAndStandsOnTheThirdColumnOfTheFirst) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{1, 2, 3}});
    frmMainForm.grdHot.SetRowCount(9);
    frmMainForm.grdHot.GoTo(5, 0);

    ComputeHotTable();

    EXPECT_EQ(frmMainForm.hotRowCount, 3);
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 3);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 2);
}

TEST(ComputeHotTable, HotNumbersAreCountedWhileAnotherTableIsOnShow) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}});
    Show(HotTable::HotPairs);
    frmMainForm.grdHot.caption = "Hot Pairs in last 1 games";

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{1, 1}, {2, 1}}));
    EXPECT_NE(Caption(), "Hot Numbers in last 1 games");
}

TEST(ComputeHotTable, RebuildsTheShownTableWhetherItIsStaleOrNotAndNoOther) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {1, 2}, {3, 4}});
    MarkHotTablesStale();
    Show(HotTable::HotPairs);

    ComputeHotTable();
    EXPECT_EQ(frmMainForm.hotRowCount, 1);
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 1);
    EXPECT_EQ(Caption(), "Hot Pairs in last 3 games");
    EXPECT_FALSE(appState.hotPairStale);
    EXPECT_TRUE(appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);

    appState.hotPairTable(1, 0) = 77;
    ComputeHotTable();
    EXPECT_EQ(appState.hotPairTable(1, 0), 1);
}

TEST(ComputeHotTable, GivesTheGridTheRowsOfWhicheverTableIsOnShow) {
    StartWith(NumberGame().Picks(2).To(9));
    ShowDraws({{1, 2}, {1, 2}, {3, 4}});
    const std::vector<std::pair<HotTable, int>> rowCounts{{HotTable::HotNumbers, 4},
                                                          {HotTable::HotPairs, 1},
                                                          {HotTable::PairedOnce, 1},
                                                          {HotTable::Repeaters, 2},
                                                          {HotTable::NoHitters, 5}};
    for (const auto& [table, rows] : rowCounts) {
        Show(table);
        ComputeHotTable();
        EXPECT_EQ(frmMainForm.hotRowCount, rows) << static_cast<int>(table);
        EXPECT_EQ(frmMainForm.grdHot.RowCount(), rows) << static_cast<int>(table);
    }
}

TEST(ComputeHotTable, BeforeAnyTableIsChosenTheGridKeepsItsRowsAndItsPlace) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}});
    appState.hotTableChoice = 0;
    frmMainForm.hotRowCount = 4;
    frmMainForm.grdHot.SetRowCount(4);
    frmMainForm.grdHot.GoTo(3, 1);

    ComputeHotTable();

    EXPECT_EQ(frmMainForm.hotRowCount, 4);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 3);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 1);
}

TEST(ComputeHotTable, AViewWithFewerColumnsThanTheGameIsCountedAsFarAsItGoes) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}});
    appState.totalPicks = 6;

    ComputeHotTable();

    EXPECT_EQ(HotNumberRows(), (Rows{{1, 1}, {2, 1}}));
}

// The plain reckoning: for each count from the highest possible one down, each value in turn is looked for in every
// counted cell.

std::pair<int, int> CountedColumns() {
    const bool hasBonus = appState.gameType != 0 && appState.gameType != 3;
    const int mainColumns = appState.totalPicks - appState.bonusPickCount;
    if (hasBonus && appState.hotSortChoice == 0) {
        return {1, mainColumns};
    }
    if (hasBonus && appState.hotSortChoice == 1) {
        return {mainColumns + 1, appState.totalPicks};
    }
    return {1, appState.totalPicks};
}

int HitsOf(int value, const std::vector<DrawPicks>& draws) {
    const auto [first, last] = CountedColumns();
    int hits = 0;
    for (const DrawPicks& draw : draws) {
        for (int column = first; column <= last; ++column) {
            hits += draw[static_cast<std::size_t>(column - 1)] == value ? 1 : 0;
        }
    }
    return hits;
}

Rows RowsByNestedWalks(const std::vector<DrawPicks>& draws) {
    Rows rows;
    const int mostHits = static_cast<int>(draws.size()) * appState.totalPicks;
    for (int hits = mostHits; hits >= 1; --hits) {
        for (int value = 0; value <= appState.mainHigh; ++value) {
            if (HitsOf(value, draws) == hits) {
                rows.push_back({static_cast<std::int16_t>(value), static_cast<std::int16_t>(hits)});
            }
        }
    }
    return rows;
}

/// One of the six kinds of game, of 3 main picks and 2 bonus picks where it has any.
support::Game GameOfKind(int gameType) {
    support::Game game = gameType < 3 ? NumberGame().From(0).To(12) : CardGame();
    game.Picks(3).BonusFrom(0).BonusTo(15);
    if (gameType % 3 == 1) {
        game.Bonus(2, BonusPool::Same);
    } else if (gameType % 3 == 2) {
        game.Bonus(2, BonusPool::Separate);
    }
    return game;
}

RC_GTEST_PROP(ComputeHotTable, GivesWhatNestedWalksGiveInEveryKindOfGame, ()) {
    StartWith(GameOfKind(*rc::gen::inRange(0, 6)));
    appState.hotSortChoice = static_cast<std::int16_t>(*rc::gen::inRange(0, 3));
    const auto lowest = -1;  // a blank cell
    const int highest = std::max(appState.mainHigh, appState.bonusHigh);
    const auto draw = rc::gen::container<DrawPicks>(static_cast<std::size_t>(appState.totalPicks),
                                                    rc::gen::inRange(lowest, highest + 1));
    const auto draws = *rc::gen::container<std::vector<DrawPicks>>(draw);
    ShowDraws(draws);

    ComputeHotTable();

    const Rows expected = RowsByNestedWalks(draws);
    RC_ASSERT(HotNumberRows() == expected);
    RC_ASSERT(frmMainForm.hotRowCount == static_cast<int>(expected.size()));
}

}  // namespace
}  // namespace ballhaven
