#include "printing/PlaySort.h"

#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "support/Games.h"
#include "support/Plays.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::EmptyPlays;
using support::NumberGame;
using support::PicksText;
using support::PutPicks;
using support::SetUpGame;
using support::SetUpPlay;

constexpr PlaySortRules sixOf49{
    .mainPickCount = 6, .bonusPickCount = 0, .mostPicks = 6, .mainHigh = 49, .bonusHigh = 0};

// Not a bug: PLAY-SORT-1 in docs/not-bugs.md.
TEST(PlaySort, CellsWithoutAPickHoldTheFirstCellInAllPlays) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {48, 3, 20});
    plays(mainPicks, 1, 0) = 3;

    const PlayPicks sorted = SortedPlays(plays, 1, sixOf49);

    EXPECT_EQ(PicksText(sorted, mainPicks, 1, 2), "3 20 48 0 0 0 0 0 0 0|0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(PicksText(sorted, bonusPicks, 1, 1), "0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(PicksText(sorted, mainPicks, 5000, 5000), "0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(sorted(mainPicks, 1, 0), 0);
}

TEST(PlaySort, APlayWithABlankCellInTheMiddleClosesUp) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {30, -1, 7, -1, 0, 49});
    EXPECT_EQ(PicksText(SortedPlays(plays, 1, sixOf49), mainPicks, 1, 1), "0 7 30 49 0 0 0 0 0 0");
}

TEST(PlaySort, EqualPicksStayAndThoseAboveTheHighestGo) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {50, 9, 2, 9, 49, 99});
    EXPECT_EQ(PicksText(SortedPlays(plays, 1, sixOf49), mainPicks, 1, 1), "2 9 9 49 0 0 0 0 0 0");
}

TEST(PlaySort, SlotsBehindThePicksOfTheGameAreLeftOut) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {6, 5, 4, 3, 2, 1, 8, 9});
    EXPECT_EQ(PicksText(SortedPlays(plays, 1, sixOf49), mainPicks, 1, 1), "1 2 3 4 5 6 0 0 0 0");
}

TEST(PlaySort, NoMorePicksAreKeptThanTheGameHasInAll) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {6, 5, 4});
    const PlaySortRules rules{.mainPickCount = 3, .bonusPickCount = 0, .mostPicks = 2, .mainHigh = 9, .bonusHigh = 0};
    EXPECT_EQ(PicksText(SortedPlays(plays, 1, rules), mainPicks, 1, 1), "4 5 0 0 0 0 0 0 0 0");
}

TEST(PlaySort, BonusPicksAreSortedByTheirOwnLimit) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 2, {40, 12});
    PutPicks(plays, bonusPicks, 2, {12, 13, 1});
    const PlaySortRules rules{.mainPickCount = 5, .bonusPickCount = 3, .mostPicks = 8, .mainHigh = 45, .bonusHigh = 12};
    const PlayPicks sorted = SortedPlays(plays, 2, rules);
    EXPECT_EQ(PicksText(sorted, mainPicks, 2, 2), "12 40 0 0 0 0 0 0 0 0");
    EXPECT_EQ(PicksText(sorted, bonusPicks, 2, 2), "1 12 0 0 0 0 0 0 0 0");
}

TEST(PlaySort, CountsBeyondTheSlotsAreHeldAtTen) {
    PlayPicks plays = EmptyPlays();
    PutPicks(plays, mainPicks, 1, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
    const PlaySortRules rules{
        .mainPickCount = 99, .bonusPickCount = 0, .mostPicks = 99, .mainHigh = 49, .bonusHigh = 0};
    EXPECT_EQ(PicksText(SortedPlays(plays, 1, rules), mainPicks, 1, 1), "1 2 3 4 5 6 7 8 9 10");
}

/// The routine on the plays in memory.
class PlaySortInMemory : public testing::Test {
  protected:
    static void SetOrder(const char* mark) {
        appState.gameRecord = BuildDefaultGameRecord(1, appState.gameType);
        SetField(appState.gameRecord, gameField::order, mark);
    }
};

TEST_F(PlaySortInMemory, SortsWithoutMarkingThePlaysAsChanged) {
    SetUpGame(NumberGame().Picks(5).To(45).Bonus(2, BonusPool::Separate).BonusTo(12));
    SetOrder("N");
    SetUpPlay(1, {44, 1}, {11, 4});
    sortPlaysForReport(1);
    EXPECT_EQ(PicksText(appState.PlayTable, mainPicks, 1, 1), "1 44 0 0 0 0 0 0 0 0");
    EXPECT_EQ(PicksText(appState.PlayTable, bonusPicks, 1, 1), "4 11 0 0 0 0 0 0 0 0");
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(PlaySortInMemory, InAMendedFolderOnlyThePlaysThatAreGivenBackAreSorted) {
    SetUpGame(NumberGame().Picks(5).To(45).Bonus(2, BonusPool::Separate).BonusTo(12));
    support::MendFolder();
    SetOrder("N");
    SetUpPlay(1, {44, 1}, {11, 4});
    const PlayPicks before = appState.PlayTable;
    const PlayPicks sorted = sortPlaysForReport(1);
    EXPECT_EQ(PicksText(sorted, mainPicks, 1, 1), "1 44 0 0 0 0 0 0 0 0");
    EXPECT_EQ(PicksText(sorted, bonusPicks, 1, 1), "4 11 0 0 0 0 0 0 0 0");
    EXPECT_EQ(appState.PlayTable, before);
}

TEST_F(PlaySortInMemory, InAGameWithoutBonusTheBonusPicksAreNotTaken) {
    SetUpGame(NumberGame().Picks(5).To(45));
    SetOrder("N");
    appState.bonusPickCount = 2;  // as a record may hold it
    appState.bonusHigh = 12;
    SetUpPlay(1, {44, 1}, {11, 4});
    sortPlaysForReport(1);
    EXPECT_EQ(PicksText(appState.PlayTable, bonusPicks, 1, 1), "0 0 0 0 0 0 0 0 0 0");
}

TEST_F(PlaySortInMemory, LeavesAGameWhoseOrderMattersAlone) {
    SetUpGame(NumberGame().Picks(5).To(45));
    SetOrder("Y");
    SetUpPlay(1, {44, 1});
    sortPlaysForReport(1);
    EXPECT_EQ(PicksText(appState.PlayTable, mainPicks, 1, 2), "44 1|");
}

TEST_F(PlaySortInMemory, AsksTheRecordWhetherTheOrderMatters) {
    SetUpGame(NumberGame().Picks(5).To(45));
    SetOrder("N");
    appState.orderMatters = true;
    SetUpPlay(1, {44, 1});
    sortPlaysForReport(1);
    EXPECT_EQ(PicksText(appState.PlayTable, mainPicks, 1, 1), "1 44 0 0 0 0 0 0 0 0");
}

TEST_F(PlaySortInMemory, LeavesPlaysAloneOfWhichNoneIsUsed) {
    SetUpGame(NumberGame().Picks(5).To(45));
    SetOrder("N");
    const PlayPicks before = appState.PlayTable;
    sortPlaysForReport(0);
    EXPECT_EQ(appState.PlayTable, before);
}

}  // namespace
}  // namespace ballhaven
