#include "history/GameSwitch.h"

#include "forms/MainForm.h"
#include "forms/ShuffleForm.h"
#include "history/HistoryFile.h"
#include "platform/files/FileSystem.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/IdleGridView.h"
#include "support/MessageScript.h"
#include "support/PointerKeeper.h"
#include "support/StoredGames.h"
#include "support/TemporaryDirectory.h"
#include "wheels/ShuffleFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

class SwitchingGames : public support::StoredGames {};

TEST_F(SwitchingGames, TheFirstStartOpensTheGameShownLast) {
    Configure(7, 0, 6, 0);
    StoreSystem("07", "1");
    SwitchGame();
    EXPECT_EQ(appState.currentGame, 7);
    EXPECT_EQ(frmMainForm.cboList[0].Selected(), 6);
    EXPECT_EQ(frmMainForm.cboList[0].Text(), "Game 7              ");
    EXPECT_TRUE(directory.Has("GAME07.CDB"));
    EXPECT_TRUE(directory.Has("PLAYS07.CDB"));
    EXPECT_FALSE(directory.Has("GAME01.CDB"));
}

TEST_F(SwitchingGames, AStoredSlotOutsideTheTwentyCountsAsTheFirst) {
    for (const char* slot : {"00", "21", "99", "xx", "  "}) {
        appState.currentGame = 0;
        StoreSystem(slot, "1");
        SwitchGame();
        EXPECT_EQ(appState.currentGame, 1) << slot;
    }
}

TEST_F(SwitchingGames, TheFirstAndTheLastSlotAreSlots) {
    for (const int slot : {1, 20}) {
        appState.currentGame = 0;
        StoreSystem(slot == 1 ? "01" : "20", "1");
        SwitchGame();
        EXPECT_EQ(appState.currentGame, slot);
    }
}

TEST_F(SwitchingGames, AFirstStartInAnEmptyFolderCreatesAllFourFilesInFullSize) {
    SwitchGame();
    EXPECT_EQ(directory.Read("LOTTOSYS").size(), 1344U);
    EXPECT_EQ(directory.Read("GAME01.CDB").size(), 64064U);
    EXPECT_EQ(directory.Read("PLAYS01.CDB").size(), 320000U);
    EXPECT_EQ(directory.Read("SHUFFLE.CDB").size(), 12800U);
    EXPECT_EQ(directory.Files().size(), 4U);
}

TEST_F(SwitchingGames, ALaterSwitchTakesTheSelectedGameAndStoresItsSlot) {
    Configure(12, 1, 5, 1);
    SwitchGame();
    Select(12);
    SwitchGame();
    EXPECT_EQ(appState.currentGame, 12);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 2), "12");
    EXPECT_EQ(appState.totalPicks, 6);
    EXPECT_EQ(frmMainForm.logLastColumn, 6);
}

TEST_F(SwitchingGames, AHistorySetOf1000SelectsTheLastEntryAndOneOf10TheFirst) {
    Configure(1, 0, 6, 0, "000");
    SwitchGame();
    EXPECT_EQ(frmMainForm.cboList[1].Selected(), 99);
    EXPECT_EQ(frmMainForm.cboList[1].Text(), "Last 1000 Games");
    Configure(1, 0, 6, 0, "010");
    appState.currentGame = 0;
    SwitchGame();
    EXPECT_EQ(frmMainForm.cboList[1].Selected(), 0);
}

TEST_F(SwitchingGames, AGameWithoutDrawsShowsNoneFoundAndNoRows) {
    Configure(1, 0, 6, 0);
    Configure(2, 3, 5, 0);
    SwitchGame();
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Numbers (none found)");
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 0);
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 0);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), -1);
    Select(2);
    SwitchGame();
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Cards (none found)");
}

TEST_F(SwitchingGames, TenOf25DrawsNewestFirstRunFromRow24DownToRow15) {
    Configure(1, 0, 2, 0, "010");
    StoreDraws(1, Days(25, 2));
    StoreSystem("01", "0");
    SwitchGame();
    ASSERT_EQ(appState.historyViewLast, 9);
    for (int row = 0; row < 10; ++row) {
        EXPECT_EQ(appState.historyView(0, row), appState.HistoryTable(0, 24 - row)) << row;
    }
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.newestDrawText, "01/25/1990");
}

TEST_F(SwitchingGames, TheNewestDrawIsCurrentInBothOrders) {
    Configure(1, 0, 2, 0, "010");
    StoreDraws(1, Days(25, 2));
    StoreSystem("01", "1");
    SwitchGame();
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 9);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
}

TEST_F(SwitchingGames, TheHotTableIsHeadedForHotNumbersAndStandsAtItsTop) {
    Configure(1, 0, 2, 0, "010");
    StoreDraws(1, Days(25, 2));
    SwitchGame();
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Numbers in last 10 games");
    EXPECT_EQ(*frmMainForm.grdHot.Column(2).heading, "%");
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 10);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 2);
}

TEST_F(SwitchingGames, ACardGameFillsItsListsAndHeadsItsTableWithCards) {
    Configure(1, 4, 5, 1, "050");
    StoreDraws(1, Days(25, 6));
    SwitchGame();
    EXPECT_EQ(frmMainForm.cboList[2].Entries(),
              (std::vector<std::string>{"Hot Cards", "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"}));
    EXPECT_EQ(frmMainForm.cboList[2].Selected(), 0);
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Cards in last 25 games");
    EXPECT_EQ(*frmMainForm.grdHot.Column(0).heading, "Card");
    EXPECT_TRUE(frmMainForm.optHot[2].visible);
    EXPECT_EQ(appState.slipColumns, 6);
}

TEST_F(SwitchingGames, ASwitchResetsWhatBelongsToTheOldGameAndKeepsTheRest) {
    SwitchGame();
    appState.colorMode = ColorMode::Drawing;
    appState.nextLogDate = 77;
    appState.hotSortChoice = 1;
    appState.hotTableChoice = 3;
    appState.currentSlip = 9;
    appState.currentPlay = 44;
    appState.hiLiteWinners = true;
    appState.pendingLogDate = -1;
    appState.helpTopic = 2;
    appState.gameDialogMode = GameDialogMode::Altering;
    appState.gameDialogSlot = 5;
    frmMainForm.txtHiLite[0].text = "7";
    SwitchGame();
    EXPECT_EQ(appState.colorMode, ColorMode::None);
    EXPECT_EQ(appState.nextLogDate, 0);
    EXPECT_EQ(appState.hotSortChoice, 2);
    EXPECT_EQ(appState.hotTableChoice, 1);
    EXPECT_EQ(appState.currentSlip, 1);
    EXPECT_EQ(appState.currentPlay, 1);
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
    EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "");
    EXPECT_EQ(*frmMainForm.lblPlay.text, "1.A");
    EXPECT_TRUE(appState.hiLiteWinners);
    EXPECT_EQ(appState.pendingLogDate, -1);
    EXPECT_EQ(appState.helpTopic, 2);
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Altering);
    EXPECT_EQ(appState.gameDialogSlot, 5);
    EXPECT_EQ(appState.shortDateFormat, "m/d/y");
}

TEST_F(SwitchingGames, TheSelectorsAreToldOfALoadingGameAndOfItsEnd) {
    bool sawLoading = false;
    frmMainForm.cboList[0].change = [&] { sawLoading = frmMainForm.gameLoading; };
    SwitchGame();
    EXPECT_TRUE(sawLoading);
    EXPECT_FALSE(frmMainForm.gameLoading);
}

TEST_F(SwitchingGames, ALoadedGameLeavesTheWinnersDisplayAsItWas) {
    Configure(1, 0, 2, 0, "010");
    StoreDraws(1, Days(25, 2));
    int moves = 0;
    frmMainForm.grdHist.currentCellChanged = [&moves] { ++moves; };
    SwitchGame();
    EXPECT_EQ(moves, 0);
}

TEST_F(SwitchingGames, ASlotIsMadeCurrentWithoutAListToTakeItFrom) {
    Configure(12, 1, 5, 1);
    SwitchGame();
    frmMainForm.cboList[0].Fill({});
    SwitchGameTo(12);
    EXPECT_EQ(appState.currentGame, 12);
    EXPECT_EQ(appState.totalPicks, 6);
    EXPECT_EQ(frmMainForm.cboList[0].Selected(), 11);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 2), "01") << "the selector alone stores the slot";
}

// Else the hot table reads its cells of a game that is only half loaded.
TEST_F(SwitchingGames, BothTablesAreOffWhileEventsAreLetIn) {
    Configure(1, 3, 5, 0);
    StoreDraws(1, Days(25, 5));
    SwitchGame();
    for (const char* file : {"GAME01.CDB", "PLAYS01.CDB", "SHUFFLE.CDB"}) {
        directory.Write(file, "");
    }
    support::PointerKeeper toolkit;
    int calls = 0;
    toolkit.pendingEvents = [&calls] {
        ++calls;
        EXPECT_FALSE(frmMainForm.grdHist.IsOn());
        EXPECT_FALSE(frmMainForm.grdHot.IsOn());
    };
    SwitchGame();
    EXPECT_EQ(calls, 3);
    EXPECT_TRUE(frmMainForm.grdHist.IsOn());
    EXPECT_TRUE(frmMainForm.grdHot.IsOn());
}

TEST_F(SwitchingGames, TheWindowIsArrangedForTheKindOfGame) {
    Configure(1, 0, 10, 0);
    Configure(2, 4, 5, 1);
    StoreSystem("01", "0");
    SwitchGame();
    frmMainForm.picCards[0].visible = true;
    frmMainForm.cardClicked = true;
    Select(2);
    SwitchGame();
    EXPECT_TRUE(frmMainForm.grdHist.Pane(pickPane).locked);
    EXPECT_EQ(*frmMainForm.grdHist.Column(6).heading, "+");
    EXPECT_TRUE(frmMainForm.grdHist.Column(7).locked);
    EXPECT_TRUE(frmMainForm.txtHiLite[5].visible);
    EXPECT_FALSE(frmMainForm.txtHiLite[6].visible);
    EXPECT_TRUE(frmMainForm.txtHiLite[0].locked);
    EXPECT_FALSE(frmMainForm.picCards[0].visible);
    EXPECT_FALSE(frmMainForm.cardClicked);
    EXPECT_TRUE(frmMainForm.mnuViewArray[1].checked);
    EXPECT_FALSE(frmMainForm.mnuViewArray[0].checked);
    Select(1);
    SwitchGame();
    EXPECT_FALSE(frmMainForm.grdHist.Pane(pickPane).locked);
    EXPECT_TRUE(frmMainForm.txtHiLite[9].visible);
    EXPECT_FALSE(frmMainForm.optHot[2].visible);
}

TEST_F(SwitchingGames, ThePlaysAndTheChosenPicksAreThoseOfTheGame) {
    Configure(1, 0, 6, 0);
    Configure(2, 0, 6, 0);
    SwitchGame();
    appState.PlayTable(mainPicks, 1, 1) = 12;
    SavePlayFile();
    appState.ShuffleTable(mainPicks, 1) = 30;
    SaveShuffleFile();
    Select(2);
    SwitchGame();
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 1), -1);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), -1);
    Select(1);
    SwitchGame();
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 1), 12);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), 30);
}

/// A view of a board that only counts how often its cells are asked for anew.
class BoardReadings : public support::IdleGridView {
  public:
    void ReadAgain() override { ++readings; }

    int readings = 0;
};

TEST_F(SwitchingGames, AGameLoadedAnewReadsTheOpenBoardOfChosenPicksAgain) {
    Configure(1, 0, 6, 0);
    SwitchGame();
    appState.ShuffleTable(mainPicks, 2) = 30;
    SaveShuffleFile();
    BoardReadings board;
    frmShuffle.grdShuffle.view = &board;
    SwitchGame();
    EXPECT_EQ(board.readings, 0);
    appState.shuffleWindowOpen = true;
    SwitchGame();
    EXPECT_EQ(board.readings, 1);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), 30);
    frmShuffle.grdShuffle.view = nullptr;
}

TEST_F(SwitchingGames, TheHourglassStandsMeanwhile) {
    support::PointerKeeper toolkit;
    bool sawHourglass = false;
    toolkit.pendingEvents = [&] { sawHourglass = toolkit.hourglass; };
    SwitchGame();
    EXPECT_TRUE(sawHourglass);
    EXPECT_FALSE(toolkit.hourglass);
}

TEST_F(SwitchingGames, AllFourHeadingsOfTheHotTableAreThoseOfItsFirstTable) {
    Configure(1, 0, 6, 0);
    Configure(2, 3, 5, 0);
    SwitchGame();
    for (const int slot : {2, 1}) {
        for (int column = 0; column < 4; ++column) {
            frmMainForm.grdHot.Column(column).heading = "of another table";
        }
        Select(slot);
        SwitchGame();
        std::vector<std::string> headings;
        for (int column = 0; column < 4; ++column) {
            headings.push_back(frmMainForm.grdHot.Column(column).heading);
        }
        EXPECT_EQ(headings, (std::vector<std::string>{slot == 2 ? "Card" : "Number", "Hits", "%", "Game Interval"}));
    }
}

}  // namespace
}  // namespace ballhaven
