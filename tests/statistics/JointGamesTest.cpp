#include "statistics/JointGames.h"

#include "support/Views.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace ballhaven {
namespace {

using support::AllDraws;
using support::ViewOf;

using Picks = std::vector<std::int16_t>;

TEST(CountJointGames, CountsTheGamesOfTwoPicksByTheirPlacesAmongTheCandidates) {
    const Table games = CountJointGames(AllDraws(ViewOf({{1, 2}, {2, 1}, {3, 2}})), Picks{2, 1, 3});

    ASSERT_EQ(games.Columns(), 3);
    ASSERT_EQ(games.Rows(), 3);
    EXPECT_EQ(games(1, 0), 2);  // 2 and 1
    EXPECT_EQ(games(2, 0), 1);  // 2 and 3
    EXPECT_EQ(games(2, 1), 0);  // 1 and 3
    EXPECT_EQ(games(0, 1), 0);  // below the diagonal
}

TEST(CountJointGames, OnTheDiagonalStandTheGamesOfOnePick) {
    const Table games = CountJointGames(AllDraws(ViewOf({{4, 4}, {4, 5}})), Picks{4, 5});

    EXPECT_EQ(games(0, 0), 2);
    EXPECT_EQ(games(1, 1), 1);
}

TEST(CountJointGames, AGameCountsOnceHoweverOftenItHoldsAPick) {
    const Table games = CountJointGames(AllDraws(ViewOf({{4, 5, 4, 5, 4}})), Picks{4, 5});

    EXPECT_EQ(games(1, 0), 1);
    EXPECT_EQ(games(0, 0), 1);
}

TEST(CountJointGames, BlankCellsAndPicksThatAreNoCandidatesCountForNothing) {
    const Table games = CountJointGames(AllDraws(ViewOf({{1, -1, 2, 30}})), Picks{1, 2});

    ASSERT_EQ(games.Rows(), 2);
    EXPECT_EQ(games(0, 0), 1);
    EXPECT_EQ(games(1, 0), 1);
    EXPECT_EQ(games(1, 1), 1);
}

TEST(CountJointGames, TheLowestAndTheHighestValueOfAPickCount) {
    const Table games = CountJointGames(AllDraws(ViewOf({{0, 1000}, {-2, 1001}})), Picks{0, 1000});

    EXPECT_EQ(games(0, 0), 1);
    EXPECT_EQ(games(1, 0), 1);
}

TEST(CountJointGames, WithoutCandidatesThereIsNothing) {
    EXPECT_EQ(CountJointGames(AllDraws(ViewOf({{1, 2}})), Picks{}).Rows(), 0);
}

}  // namespace
}  // namespace ballhaven
