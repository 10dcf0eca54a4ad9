#include "statistics/JointGames.h"

#include "state/AppState.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTables.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

TEST(CountJointGames, CountsTheGamesOfTwoPicksByTheirRowsInHotNumbers) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {2, 1}, {3, 2}});
    ComputeHotTable();  // 2 with three hits, 1 with two, 3 with one

    const Table games = CountJointGames();

    ASSERT_EQ(games.Columns(), 3);
    ASSERT_EQ(games.Rows(), 3);
    EXPECT_EQ(games(1, 0), 2);  // 2 and 1
    EXPECT_EQ(games(2, 0), 1);  // 2 and 3
    EXPECT_EQ(games(2, 1), 0);  // 1 and 3
}

TEST(CountJointGames, OnTheDiagonalStandTheGamesOfOnePick) {
    StartWith(NumberGame().Picks(2).WithDuplicates());
    ShowDraws({{4, 4}, {4, 5}});
    ComputeHotTable();

    const Table games = CountJointGames();

    EXPECT_EQ(games(0, 0), 2);
    EXPECT_EQ(games(1, 1), 1);
}

TEST(CountJointGames, AGameCountsOnceHoweverOftenItHoldsAPick) {
    StartWith(NumberGame().Picks(4).WithDuplicates());
    ShowDraws({{4, 4, 5, 5}});
    ComputeHotTable();

    EXPECT_EQ(CountJointGames()(1, 0), 1);
}

TEST(CountJointGames, BlankCellsAndPicksThatAreNoCandidatesCountForNothing) {
    StartWith(NumberGame().Picks(3).To(9).Bonus(1, BonusPool::Separate).BonusTo(30));
    ShowDraws({{1, -1, 2, 30}});
    ComputeHotTable();

    const Table games = CountJointGames();

    ASSERT_EQ(games.Rows(), 2);
    EXPECT_EQ(games(1, 0), 1);
}

TEST(CountJointGames, WithoutCandidatesThereIsNothing) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({});
    ComputeHotTable();

    EXPECT_EQ(CountJointGames().Rows(), 0);
}

TEST(PairOfRows, PutsTheLowerPickFirstWhateverTheOrderOfTheRows) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 9}, {9, 2}});
    ComputeHotTable();  // 9, 1, 2

    EXPECT_EQ(PairOfRows(0, 1), (PickPair{1, 9}));
    EXPECT_EQ(PairOfRows(1, 0), (PickPair{1, 9}));
    EXPECT_EQ(PairOfRows(1, 2), (PickPair{1, 2}));
}

TEST(IsOfMainPicks, BothPicksHaveToLieInTheMainRange) {
    StartWith(NumberGame().From(1).To(9));

    EXPECT_TRUE(IsOfMainPicks({1, 9}));
    EXPECT_FALSE(IsOfMainPicks({0, 9}));
    EXPECT_FALSE(IsOfMainPicks({1, 10}));
}

}  // namespace
}  // namespace ballhaven
