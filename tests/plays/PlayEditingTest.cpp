#include "plays/PlayEditing.h"

#include "forms/MainForm.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "support/Games.h"
#include "support/IdleGridView.h"
#include "support/MainScreen.h"
#include "support/MessageScript.h"
#include "support/Plays.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using platform::CellStyle;
using support::BonusPool;
using support::CardGame;
using support::Game;
using support::NumberGame;
using support::PicksText;

const CellStyle picked{{255, 255, 255}, {0, 0, 0}};
const CellStyle winner{{255, 255, 255}, {255, 0, 0}};
const CellStyle plain{{0, 0, 0}, {255, 255, 255}};

/// A board that counts how often it is read again.
class CountingBoard : public support::IdleGridView {
  public:
    void ReadAgain() override { ++readings; }

    int readings = 0;
};

/// A board of a game beside which no window stands, and the plays 1 and 2.
class PlayEditing : public ::testing::Test {
  protected:
    void Play(const Game& game) {
        support::StartWith(game);
        appState.slipColumns = IsCardGame(appState.gameType) ? 6 : 9;
        board.SetColumns(appState.slipColumns);
        board.AddPane(0, appState.slipColumns - 1);
        board.SetRowCount(24);
        board.view = &counter;
    }

    void Click(int cell, int play = 1) {
        board.GoTo(cell / appState.slipColumns, cell % appState.slipColumns);
        appState.playsDirty = false;
        TogglePick(play, board);
        EXPECT_TRUE(appState.playsDirty) << cell;
    }

    static std::string Main(int play = 1) { return PicksText(appState.PlayTable, mainPicks, play, play); }
    static std::string Bonus(int play = 1) { return PicksText(appState.PlayTable, bonusPicks, play, play); }

    static CellStyle StyleOf(int cell, int play = 1) {
        CellStyle style{{1, 2, 3}, {4, 5, 6}};
        PlayCellStyle(play, cell, style);
        return style;
    }

    CountingBoard counter;
    platform::Grid board;
    support::MessageScript boxes;
};

TEST_F(PlayEditing, AClickTwiceLeavesAHoleThatTheNextPickTakes) {
    Play(NumberGame().Picks(4));
    for (const int cell : {10, 11, 12}) {
        Click(cell);
    }
    Click(11);
    EXPECT_EQ(Main(), "10 - 12");
    Click(40);
    EXPECT_EQ(Main(), "10 40 12");
    Click(0);
    EXPECT_EQ(Main(), "10 40 12 0");
    EXPECT_EQ(Main(2), "");
}

TEST_F(PlayEditing, AFullPlaySaysSoAndGivesUpAChosenPick) {
    Play(NumberGame().Picks(2));
    Click(3);
    Click(4);
    counter.readings = 0;
    boxes.Expect("Ballhaven", "You already have enough main picks", platform::BoxButtons::Ok, platform::BoxIcon::None);
    Click(5);
    EXPECT_EQ(Main(), "3 4");
    EXPECT_EQ(counter.readings, 0);
    Click(3);
    EXPECT_EQ(Main(), "- 4");
    EXPECT_EQ(counter.readings, 1);
}

TEST_F(PlayEditing, AFullListOfBonusPicksSaysSo) {
    Play(NumberGame().Picks(2).Bonus(1, BonusPool::Separate).BonusTo(20));
    Click(108);
    boxes.Expect("Ballhaven", "You already have enough bonus picks", platform::BoxButtons::Ok, platform::BoxIcon::None);
    Click(109);
    EXPECT_EQ(Bonus(), "0");
}

TEST_F(PlayEditing, CellsWithoutAPickDoNothing) {
    Play(NumberGame().Picks(3).To(40).Bonus(1, BonusPool::Separate).BonusTo(10));
    for (const int cell : {40, 98, 99, 101, 103, 105, 107, 118, 200}) {
        Click(cell);
    }
    EXPECT_EQ(Main(), "");
    EXPECT_EQ(Bonus(), "");
    EXPECT_EQ(counter.readings, 0);
}

TEST_F(PlayEditing, WithoutACurrentCellNothingHappens) {
    Play(NumberGame().Picks(3));
    board.SetRowCount(0);
    TogglePick(1, board);
    EXPECT_EQ(Main(), "");
    EXPECT_TRUE(appState.playsDirty);
}

TEST_F(PlayEditing, ANumberOfTheSamePoolStandsInOneListOnly) {
    Play(NumberGame().Picks(3).Bonus(1, BonusPool::Same));
    Click(108 + 11);
    Click(11);
    EXPECT_EQ(Main(), "");
    EXPECT_EQ(Bonus(), "11");
    EXPECT_EQ(StyleOf(11), (CellStyle{{192, 192, 192}, {255, 255, 255}}));
    Click(108 + 11);
    Click(11);
    EXPECT_EQ(Main(), "11");
}

TEST_F(PlayEditing, InACardGameOfOneDeckTheSameCardCanBeChosenInBothAreas) {
    Play(CardGame().Picks(3).Bonus(1, BonusPool::Same));
    Click(5);
    Click(72 + 5);
    EXPECT_EQ(Main(), "5");
    EXPECT_EQ(Bonus(), "5");
}

TEST_F(PlayEditing, AMainPickMakesThePlayOneByHand) {
    Play(NumberGame().Picks(3));
    appState.PlayTable(mainPicks, 1, 0) = byShuffle;
    Click(8);
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), byHand);
    appState.PlayTable(mainPicks, 1, 0) = byShuffle;
    Click(8);
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), byHand);
}

// Not a bug: BONUS-KEEPS-METHOD-1 in docs/not-bugs.md.
TEST_F(PlayEditing, QuirkBonusKeepsMethod1ABonusPickLeavesTheWayInWhichThePlayWasMade) {
    Play(NumberGame().Picks(3).Bonus(1, BonusPool::Separate).BonusTo(20));
    appState.PlayTable(mainPicks, 1, 0) = byFullWheel;
    Click(110);
    EXPECT_EQ(Bonus(), "2");
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), byFullWheel);
    Click(110);
    EXPECT_EQ(Bonus(), "");
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), byFullWheel);
}

TEST_F(PlayEditing, PicksInSlotsAboveTheGamesCountShowButCannotBeTakenOff) {
    Play(NumberGame().Picks(2));
    support::PutPicks(appState.PlayTable, mainPicks, 1, {1, 2, -1, -1, -1, -1, -1, 30});
    EXPECT_EQ(StyleOf(30), picked);
    boxes.Expect("Ballhaven", "You already have enough main picks", platform::BoxButtons::Ok, platform::BoxIcon::None);
    Click(30);
    EXPECT_EQ(Main(), "1 2 - - - - - 30");
}

TEST_F(PlayEditing, APlayThatDoesNotExistIsEmptyAndStaysSo) {
    Play(NumberGame().Picks(2));
    const PlayPicks before = appState.PlayTable;
    for (const int play : {-4, 0, 5001}) {
        Click(3, play);
        EXPECT_EQ(StyleOf(3, play), plain);
        EXPECT_FALSE(IsChosen(play, 3));
        ErasePlay(play);
    }
    EXPECT_TRUE(appState.PlayTable == before);
}

TEST_F(PlayEditing, ErasingEmptiesAllSlotsOfAPlayAndReadsNoBoard) {
    Play(NumberGame().Picks(2).Bonus(1, BonusPool::Separate));
    support::PutPicks(appState.PlayTable, mainPicks, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    support::PutPicks(appState.PlayTable, bonusPicks, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    appState.PlayTable(mainPicks, 2, 0) = byShuffle;
    support::PutPicks(appState.PlayTable, mainPicks, 1, {1});
    appState.playsDirty = false;
    ErasePlay(2);

    EXPECT_EQ(Main(2), "");
    EXPECT_EQ(Bonus(2), "");
    EXPECT_EQ(appState.PlayTable(mainPicks, 2, 0), byHand);
    EXPECT_EQ(Main(1), "1");
    EXPECT_TRUE(appState.playsDirty);
    EXPECT_EQ(counter.readings, 0);
}

/// Draws of three numbers on two days, the oldest first, of which the log shows the later one.
class Winners : public PlayEditing {
  protected:
    void SetUp() override {
        Play(NumberGame().Picks(3).To(49).OldestFirst());
        support::ShowDraws({{1, 2, 3}, {3, 2, 1}, {7, 8, 9}});
        frmMainForm.grdHist.cellText = [](const platform::GridCell& cell) -> std::optional<std::string> {
            const char* const dates[] = {"01/01/1990", "01/02/1990", "01/03/1990"};
            return cell.column == 0 ? dates[cell.row] : "";
        };
        support::PutPicks(appState.PlayTable, mainPicks, 1, {0, 1, 6});
        appState.hiLiteWinners = true;
    }
};

TEST_F(Winners, PicksThatTheCurrentDrawHoldsAreRed) {
    frmMainForm.grdHist.GoToRow(1);
    EXPECT_EQ(StyleOf(0), winner);
    EXPECT_EQ(StyleOf(1), winner);
    EXPECT_EQ(StyleOf(6), picked);
    frmMainForm.grdHist.GoToRow(2);
    EXPECT_EQ(StyleOf(0), picked);
    EXPECT_EQ(StyleOf(6), winner);
}

TEST_F(Winners, CellsThatAreNoPicksNeverTurnRed) {
    frmMainForm.grdHist.GoToRow(1);
    EXPECT_EQ(StyleOf(2), plain);
    EXPECT_EQ(StyleOf(0, 2), plain);
}

TEST_F(Winners, NothingIsRedWhileTheHiLiteIsOff) {
    frmMainForm.grdHist.GoToRow(1);
    appState.hiLiteWinners = false;
    EXPECT_EQ(StyleOf(0), picked);
}

TEST_F(Winners, WhereTheOrderMattersOnlyTheSecondOfThreeTurnedRoundIsRed) {
    appState.orderMatters = true;
    support::PutPicks(appState.PlayTable, mainPicks, 1, {0, 1, 2});
    frmMainForm.grdHist.GoToRow(1);
    EXPECT_EQ(StyleOf(0).background, platform::Color(0, 0, 0));
    EXPECT_EQ(StyleOf(1), winner);
    EXPECT_EQ(StyleOf(2).background, platform::Color(128, 128, 128));
}

TEST_F(Winners, WithoutACurrentRowTheNewestDrawCounts) {
    frmMainForm.grdHist.SetRowCount(0);
    EXPECT_EQ(StyleOf(6), winner);
    EXPECT_EQ(StyleOf(0), picked);
}

TEST_F(Winners, ADateThatNoDrawHasGivesNoRedCells) {
    frmMainForm.grdHist.GoToRow(1);
    appState.HistoryTable(0, 1) = 1;
    EXPECT_EQ(StyleOf(0), picked);
    EXPECT_EQ(StyleOf(6), picked);
}

TEST_F(Winners, OfTwoDrawsOfOneDateTheOneFurtherDownCounts) {
    frmMainForm.grdHist.GoToRow(1);
    appState.HistoryTable(0, 2) = appState.HistoryTable(0, 1);
    EXPECT_EQ(StyleOf(6), winner);
    EXPECT_EQ(StyleOf(0), picked);
}

TEST_F(Winners, DrawingLeavesTheDateThatWasHandledLast) {
    frmMainForm.grdHist.GoToRow(1);
    appState.dateSerial = 77;
    EXPECT_EQ(StyleOf(0), winner);
    EXPECT_EQ(appState.dateSerial, 77);
}

}  // namespace
}  // namespace ballhaven
