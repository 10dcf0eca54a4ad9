#include "plays/PlaySlipsWindow.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/Plays.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QTest>

#include <string>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxIcon;
using support::PicksText;
using support::Settle;
using support::StoredGame;

const QColor black(0, 0, 0);
const QColor red(255, 0, 0);
const QColor white(255, 255, 255);

class PlaySlips : public support::RunningProgram {
  protected:
    /// Starts with a game and opens the window by the menu.
    void Open(const StoredGame& game) {
        Store(game);
        Start();
        platform::services.beep = [this] { ++beeps; };
        ChooseFromMenu("mnuView", "mnuViewArray(3)");
        ASSERT_TRUE(frmPlays.window.IsLoaded());
        Settle();
    }

    /// A cell of one of the five boards, as the column of all boards side by side.
    static int On(int board, int column) { return board * appState.slipColumns + column; }

    /// Clicks the cell of a number from 1 on a board of a game of numbers.
    void ClickNumber(int board, int number) { ClickCell("grdPlays(0)", (number - 1) / 9, On(board, (number - 1) % 9)); }

    /// Chooses an entry of this window's menus.
    static void Choose(platform::MenuItem& entry) {
        entry.click();
        Settle();
    }

    static std::string Main(int first, int last) { return PicksText(appState.PlayTable, mainPicks, first, last); }
    static std::string Slip() { return frmPlays.lblPlaySlip.text; }

    int beeps = 0;
};

TEST_F(PlaySlips, OpensOnTheFirstSlipWithItsTitle) {
    Open({.high = 49});
    EXPECT_TRUE(appState.playsWindowOpen);
    EXPECT_EQ(Slip(), " 1 Play Slip  ");
    EXPECT_EQ(*frmPlays.window.title, "Play Slips");
    EXPECT_EQ(RowsShown("grdPlays(0)"), 12);
    EXPECT_EQ(CellText("grdPlays(0)", 0, On(0, 0)), "1");
    EXPECT_EQ(CellText("grdPlays(0)", 5, On(4, 3)), "49");
}

TEST_F(PlaySlips, ASizeThatTheUserDragsGoesBack) {
    Open({.high = 49});
    const int width = frmPlays.window.Width();
    frmPlays.window.ResizeByUser(width + 300, 4000);
    EXPECT_EQ(frmPlays.window.Width(), width);
    EXPECT_EQ(frmPlays.window.Height(), 4380);
}

TEST_F(PlaySlips, ClicksFillPlaysInOnTheirOwnBoards) {
    Open({.mainPicks = 2, .high = 49});
    ClickNumber(0, 7);
    ClickNumber(2, 49);
    ClickNumber(2, 1);
    EXPECT_EQ(Main(1, 3), "6||48 0");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(2, 0)), black);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(1, 0)), white);
    ClickNumber(2, 49);
    EXPECT_EQ(Main(3, 3), "- 0");
    EXPECT_TRUE(appState.playsDirty);
}

TEST_F(PlaySlips, AClickBesideTheCellsTogglesNothing) {
    Open({.mainPicks = 2, .high = 49});
    const QPoint caption(CellPlace("grdPlays(0)", 0, On(2, 4)).center().x(), 4);
    const QPoint below(caption.x(), Find("grdPlays(0)").height() - 1);
    ClickAt("grdPlays(0)", caption);
    ClickAt("grdPlays(0)", below);
    EXPECT_EQ(support::PlaysInUse(appState.PlayTable, mainPicks), 0);
    EXPECT_FALSE(appState.playsDirty);
    ClickNumber(2, 7);
    ClickAt("grdPlays(0)", caption);
    ClickAt("grdPlays(0)", below);
    EXPECT_EQ(Main(1, 5), "||6||");
}

TEST_F(PlaySlips, AMoveWithoutAClickTogglesNothing) {
    Open({.high = 49});
    frmPlays.grdPlays[0].GoTo({3, 2, 2});
    frmPlays.grdPlays[0].settled();
    EXPECT_EQ(support::PlaysInUse(appState.PlayTable, mainPicks), 0);
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(PlaySlips, AFullPlaySaysSo) {
    Open({.mainPicks = 1, .high = 49});
    ClickNumber(1, 5);
    boxes.Expect("Ballhaven", "You already have enough main picks", platform::BoxButtons::Ok, BoxIcon::None);
    ClickNumber(1, 6);
    EXPECT_EQ(Main(2, 2), "4");
}

TEST_F(PlaySlips, PagingGoesToTheNextSlipAndBack) {
    Open({.mainPicks = 2, .high = 49});
    Click("cmdScrollPlaySlips(1)");
    EXPECT_EQ(Slip(), " 2 Play Slip  ");
    ClickNumber(1, 7);
    EXPECT_EQ(Main(7, 7), "6");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(1, 6)), black);
    Click("cmdScrollPlaySlips(0)");
    EXPECT_EQ(Slip(), " 1 Play Slip  ");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(1, 6)), white);
    EXPECT_EQ(appState.currentPlay, 1);
    EXPECT_EQ(beeps, 0);
}

TEST_F(PlaySlips, AtBothEndsItOnlyBeeps) {
    Open({.high = 49});
    Click("cmdScrollPlaySlips(0)");
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(appState.currentSlip, 1);
    appState.currentSlip = 1000;
    Click("cmdScrollPlaySlips(1)");
    EXPECT_EQ(beeps, 2);
    EXPECT_EQ(appState.currentSlip, 1000);
}

TEST_F(PlaySlips, AnEraseButtonEmptiesItsLineWithoutAQuestion) {
    Open({.mainPicks = 2, .high = 49});
    Click("cmdScrollPlaySlips(1)");
    for (int board = 0; board < 5; ++board) {
        ClickNumber(board, board + 1);
    }
    appState.playsDirty = false;
    Click("cmdErasePlay(3)");
    EXPECT_EQ(Main(6, 10), "0|1||3|4");
    EXPECT_TRUE(appState.playsDirty);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(2, 2)), white);
}

TEST_F(PlaySlips, TheEraseButtonsStandAboveTheirBoards) {
    Open({.high = 49});
    for (int board = 0; board < 5; ++board) {
        const QRect cell = CellPlace("grdPlays(0)", 0, On(board, 0));
        const QWidget& button = Usable(("cmdErasePlay(" + std::to_string(board + 1) + ")").c_str());
        const int left = Find("grdPlays(0)").x() + cell.x();
        EXPECT_NEAR(button.x(), left + 3, 2) << board;
        EXPECT_LE(button.geometry().bottom(), Find("grdPlays(0)").y()) << board;
    }
}

TEST_F(PlaySlips, ErasingTheSlipAsksAndNoChangesNothing) {
    Open({.mainPicks = 2, .high = 49});
    ClickNumber(0, 1);
    ClickNumber(4, 2);
    appState.playsDirty = false;
    boxes.ExpectBeforeLoss("Erase Play Slip # 1?", BoxIcon::Question, BoxAnswer::No);
    Click("cmdErasePlay(0)");
    EXPECT_EQ(Main(1, 5), "0||||1");
    EXPECT_FALSE(appState.playsDirty);
    boxes.ExpectBeforeLoss("Erase Play Slip # 1?", BoxIcon::Question, BoxAnswer::Yes);
    Click("cmdErasePlay(0)");
    EXPECT_EQ(Main(1, 5), "||||");
    EXPECT_TRUE(appState.playsDirty);
}

TEST_F(PlaySlips, ClearingAllSlipsAsks) {
    Open({.mainPicks = 2, .high = 49});
    ClickNumber(0, 1);
    support::PutPicks(appState.PlayTable, mainPicks, 4000, {5});
    boxes.ExpectBeforeLoss("Erase ALL Play Slips?", BoxIcon::Question, BoxAnswer::No);
    Click("cmdToolbar(2)");
    EXPECT_EQ(support::PlaysInUse(appState.PlayTable, mainPicks), 2);
    boxes.ExpectBeforeLoss("Erase ALL Play Slips?", BoxIcon::Question, BoxAnswer::Yes);
    Choose(frmPlays.mnuClear);
    EXPECT_EQ(support::PlaysInUse(appState.PlayTable, mainPicks), 0);
}

TEST_F(PlaySlips, WhatIsErasedHereIsGoneOnTheMainWindowToo) {
    Open({.mainPicks = 2, .high = 49});
    ClickNumber(0, 1);
    frmMainForm.grdPlay.ReadAgain();
    EXPECT_EQ(CellColor("grdPlay", 0, 0), black);
    Click("cmdErasePlay(1)");
    EXPECT_EQ(CellColor("grdPlay", 0, 0), white);
}

TEST_F(PlaySlips, TheLegendShowsInAGameOfOrderOnly) {
    Open({.high = 49, .inOrder = true});
    EXPECT_TRUE(Find("imgOrder").isVisible());
    EXPECT_TRUE(Find("lblPickOrder").isVisible());
    Choose(frmPlays.mnuClose);
    appState.orderMatters = false;
    ChooseFromMenu("mnuView", "mnuViewArray(3)");
    EXPECT_FALSE(*frmPlays.imgOrder.visible);
    EXPECT_FALSE(*frmPlays.lblPickOrder.visible);
}

TEST_F(PlaySlips, AnOpenWindowComesToTheFrontAsItIs) {
    Open({.high = 49});
    Click("cmdScrollPlaySlips(1)");
    ChooseFromMenu("mnuView", "mnuViewArray(3)");
    EXPECT_EQ(Slip(), " 2 Play Slip  ");
}

TEST_F(PlaySlips, OpenedAnewItBeginsWithTheFirstSlipAgain) {
    Open({.high = 49});
    Click("cmdScrollPlaySlips(1)");
    Choose(frmPlays.mnuClose);
    EXPECT_FALSE(appState.playsWindowOpen);
    EXPECT_FALSE(frmPlays.window.IsLoaded());
    EXPECT_EQ(appState.currentSlip, 2);
    Click("cmdButton(14)");
    EXPECT_EQ(Slip(), " 1 Play Slip  ");
}

TEST_F(PlaySlips, AnotherGameClosesItAndSavesItsPlays) {
    Store({.slot = 2, .name = "Cards", .gameType = 3, .mainPicks = 5, .high = 52});
    Open({.slot = 1, .mainPicks = 2, .high = 49});
    ClickNumber(0, 3);
    ChooseEntry("cboList(0)", 1);
    EXPECT_FALSE(frmPlays.window.IsLoaded());
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(0, 10), "      2   ");
}

TEST_F(PlaySlips, ACardGameHasSixColumnsOfCardsOnEachBoard) {
    Open({.gameType = 4, .mainPicks = 5, .bonusPicks = 1, .high = 52, .bonusHigh = 52});
    EXPECT_EQ(RowsShown("grdPlays(0)"), 24);
    EXPECT_EQ(CellText("grdPlays(0)", 0, On(0, 0)), "Ah");
    EXPECT_EQ(CellText("grdPlays(0)", 8, On(4, 3)), "Ks");
    EXPECT_EQ(CellText("grdPlays(0)", 11, On(2, 0)), "");
    ClickCell("grdPlays(0)", 12, On(3, 1));
    EXPECT_EQ(PicksText(appState.PlayTable, bonusPicks, 4, 4), "1");
}

const std::vector<support::Draw> twoDraws = {{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {7, 8, 9}}};

TEST_F(PlaySlips, WinnersTurnRedOnBothWindowsAndBack) {
    Open({.mainPicks = 3, .high = 49, .draws = twoDraws});
    ClickNumber(0, 7);
    ClickNumber(0, 1);
    Click("cmdToolbar(4)");
    EXPECT_TRUE(appState.hiLiteWinners);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 6)), red);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 0)), black);
    EXPECT_EQ(CellColor("grdPlay", 0, 6), red);
    Click("cmdToolbar(5)");
    EXPECT_FALSE(appState.hiLiteWinners);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 6)), black);
    EXPECT_EQ(CellColor("grdPlay", 0, 6), black);
}

TEST_F(PlaySlips, TheMainWindowsCommandsReachBothWindowsToo) {
    Open({.mainPicks = 3, .high = 49, .draws = twoDraws});
    ClickNumber(0, 7);
    Click("cmdButton(12)");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 6)), red);
    EXPECT_EQ(CellColor("grdPlay", 0, 6), red);
    Click("cmdButton(13)");
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 6)), black);
    EXPECT_EQ(CellColor("grdPlay", 0, 6), black);
}

TEST_F(PlaySlips, AMoveInTheLogEndsTheWinners) {
    Open({.mainPicks = 3, .high = 49, .draws = twoDraws});
    ClickNumber(0, 7);
    Click("cmdToolbar(4)");
    ClickCell("grdHist", 0, 1);
    EXPECT_FALSE(appState.hiLiteWinners);
    EXPECT_EQ(CellColor("grdPlays(0)", 0, On(0, 6)), black);
}

TEST_F(PlaySlips, WithoutADrawTheCommandsDoNothing) {
    Open({.mainPicks = 3, .high = 49});
    Click("cmdToolbar(4)");
    EXPECT_FALSE(appState.hiLiteWinners);
    Click("cmdButton(12)");
    EXPECT_FALSE(appState.hiLiteWinners);
    appState.hiLiteWinners = true;
    Click("cmdButton(13)");
    EXPECT_FALSE(appState.hiLiteWinners);
}

TEST_F(PlaySlips, ClosingTheProgramClosesItAndSavesThePlays) {
    Open({.mainPicks = 2, .high = 49});
    ClickNumber(1, 49);
    Close();
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(64, 10), "     48   ");
    EXPECT_FALSE(frmPlays.window.IsLoaded());
    EXPECT_EQ(exitCodes.size(), 1U);
}

}  // namespace
}  // namespace ballhaven
