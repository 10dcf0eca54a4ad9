#include "history/GameSwitch.h"

#include "forms/MainForm.h"
#include "forms/ShuffleForm.h"
#include "history/HistoryFile.h"
#include "platform/files/FileSystem.h"
#include "plays/PlayFile.h"
#include "screen/HotCells.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/Games.h"
#include "support/IdleGridView.h"
#include "support/MessageScript.h"
#include "support/PointerKeeper.h"
#include "support/TemporaryDirectory.h"
#include "wheels/ShuffleFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxButtons;
using platform::BoxIcon;

/// A program directory, and the main window without a toolkit as the program wires it for reading.
class SwitchingGames : public testing::Test {
  protected:
    void SetUp() override {
        LayOutMainForm();
        appState.programDirectory = directory.Path();
        frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
        frmMainForm.grdHot.cellText = platform::ByRowAndColumn(HotCellValue);
    }

    /// Stores a configured game in a slot of the game table.
    static void Configure(int slot, int gameType, int mainPicks, int bonusPicks, const std::string& setSize = "010") {
        OpenGameTable();
        appState.gameRecord = BuildDefaultGameRecord(slot, gameType);
        modUTILS::SetColumns(appState.gameRecord, 4, modUTILS::FixedWidth("Game " + std::to_string(slot), 20));
        modUTILS::SetColumns(appState.gameRecord, 27, setSize);
        modUTILS::SetColumns(appState.gameRecord, 46, modUTILS::ZeroPadded(mainPicks, 2));
        modUTILS::SetColumns(appState.gameRecord, 49, std::to_string(bonusPicks));
        SaveGameRecord(slot);
    }

    static void StoreDraws(int slot, const std::vector<support::Draw>& draws) {
        appState.currentGame = static_cast<std::int16_t>(slot);
        LoadGameRecord(slot);
        LoadHistory();
        support::SetUpDraws(draws);
        SaveHistory(0);
        appState.currentGame = 0;
    }

    /// Days in a row from 1 January 1990, with picks that tell the rows apart.
    static std::vector<support::Draw> Days(int count, int picks) {
        std::vector<support::Draw> draws;
        for (int day = 0; day < count; ++day) {
            const int month = day / 28 + 1;
            const std::string date = modUTILS::ZeroPadded(month, 2) + "/" + modUTILS::ZeroPadded(day % 28 + 1, 2);
            draws.push_back({date + "/1990", std::vector<int>(static_cast<std::size_t>(picks), day % 40 + 1)});
        }
        return draws;
    }

    /// Columns 1-2 and 4 of the system's record: the slot shown last and the order.
    static void StoreSystem(const std::string& slot, const std::string& order) {
        OpenGameTable();
        modUTILS::SetColumns(appState.systemRecord, 1, slot);
        modUTILS::SetColumns(appState.systemRecord, 4, order);
        SaveSystemRecord();
    }

    static void Select(int slot) {
        frmMainForm.gameLoading = true;
        frmMainForm.cboList[0].Select(slot - 1);
        frmMainForm.gameLoading = false;
    }

    support::TemporaryDirectory directory;
};

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
    appState.colorMode = 2;
    appState.nextLogDate = 77;
    appState.hotSortChoice = 1;
    appState.hotTableChoice = 3;
    appState.currentSlip = 9;
    appState.currentPlay = 44;
    appState.hiLiteWinners = true;
    appState.pendingLogDate = -1;
    appState.helpTopic = 2;
    appState.gameDialogMode = 2;
    appState.gameDialogSlot = 5;
    frmMainForm.txtHiLite[0].text = "7";
    SwitchGame();
    EXPECT_EQ(appState.colorMode, 0);
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
    EXPECT_EQ(appState.gameDialogMode, 2);
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

class RefreshingTheHistory : public SwitchingGames {
  protected:
    void SetUp() override {
        SwitchingGames::SetUp();
        Configure(1, 0, 2, 0, "010");
        StoreDraws(1, Days(25, 2));
        StoreSystem("01", "1");
        SwitchGame();
    }
};

TEST_F(RefreshingTheHistory, SavesADirtyHistoryOnly) {
    const std::string before = directory.Read("GAME01.CDB");
    appState.HistoryTable(1, 0) = 40;
    RefreshHistory(-1);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    appState.historyDirty = true;
    RefreshHistory(-1);
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(64 + 5, 2), "40");
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(RefreshingTheHistory, GoesToTheDateThatIsAskedFor) {
    RefreshHistory(support::SerialOf("01/20/1990"));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/20/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
    appState.pendingLogDate = support::SerialOf("01/21/1990");
    RefreshHistory(support::SerialOf("01/21/1990"));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/21/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
}

TEST_F(RefreshingTheHistory, SaysSoWhereTheDateIsNotInTheSetAndGoesToTheNewestDraw) {
    support::MessageScript boxes;
    boxes.Expect("Ballhaven",
                 "The record you have added cannot be displayed within the selected history set.\n"
                 "If you wish to see this record, select larger history set.",
                 BoxButtons::Ok, BoxIcon::None);
    RefreshHistory(support::SerialOf("01/02/1990"));
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(RefreshingTheHistory, FindsTheDrawInTheFirstRowOfTheSetToo) {
    const support::MessageScript boxes;
    RefreshHistory(support::SerialOf("01/16/1990"));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/16/1990");
}

TEST_F(RefreshingTheHistory, SaysNothingWhileANewDrawsDateIsBeingChosen) {
    support::MessageScript boxes;
    appState.pendingLogDate = -1;
    RefreshHistory(support::SerialOf("01/02/1990"));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
}

TEST_F(RefreshingTheHistory, AnEmptyHistoryHasTablesOfOneRow) {
    appState.historyLast = -1;
    frmMainForm.cmdColorHist.visible = true;
    RefreshHistory(-1);
    EXPECT_FALSE(frmMainForm.cmdColorHist.visible);
    EXPECT_EQ(appState.historyView.Rows(), 1);
    EXPECT_EQ(appState.hotNumberTable.Rows(), 1);
    EXPECT_EQ(appState.hotPairTable.Rows(), 1);
    EXPECT_EQ(appState.pairedOnceTable.Rows(), 1);
    EXPECT_EQ(appState.repeaterTable.Rows(), 1);
    EXPECT_TRUE(appState.hotNumberTable.Has(3, 0));
    EXPECT_TRUE(appState.hotPairTable.Has(3, 0));
    EXPECT_TRUE(appState.pairedOnceTable.Has(2, 0));
    EXPECT_TRUE(appState.repeaterTable.Has(2, 0));
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 0);
    EXPECT_EQ(frmMainForm.grdHot.RowCount(), 0);
}

TEST_F(RefreshingTheHistory, BeforeAReloadTheChosenPicksAreSavedTooIfTheirWindowIsOpen) {
    appState.PlayTable(mainPicks, 1, 1) = 12;
    appState.playsDirty = true;
    appState.ShuffleTable(mainPicks, 1) = 30;
    SaveBeforeReload();
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(5, 2), "12");
    EXPECT_EQ(directory.Read("SHUFFLE.CDB").substr(0, 2), "  ");
    appState.shuffleWindowOpen = true;
    SaveBeforeReload();
    EXPECT_EQ(directory.Read("SHUFFLE.CDB").substr(0, 2), "30");
}

TEST_F(RefreshingTheHistory, DirtyPlaysAndDrawsAreSavedHistoryFirst) {
    appState.HistoryTable(1, 0) = 33;
    appState.historyDirty = true;
    appState.PlayTable(mainPicks, 1, 1) = 12;
    appState.playsDirty = true;
    std::vector<std::string> saved;
    platform::fileSystem.rename = [&saved](const std::string& from, const std::string& to) {
        saved.push_back(to.substr(to.rfind('/') + 1));
        return platform::SystemFiles().rename(from, to);
    };
    SaveWhatIsDirty();
    platform::fileSystem = platform::SystemFiles();
    EXPECT_EQ(saved, (std::vector<std::string>{"GAME01.CDB", "PLAYS01.CDB"}));
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(64 + 5, 2), "33");
    EXPECT_EQ(directory.Read("PLAYS01.CDB").substr(5, 2), "12");
    EXPECT_FALSE(appState.historyDirty || appState.playsDirty);
}

TEST_F(RefreshingTheHistory, TheMarkOfTheFilesHeaderStaysWhenItIsSaved) {
    const auto saved = [this](void (*save)()) {
        directory.Write("GAME01.CDB", directory.Read("GAME01.CDB").replace(11, 2, "AB"));
        appState.historyDirty = true;
        save();
        return directory.Read("GAME01.CDB").substr(11, 2);
    };
    EXPECT_EQ(saved([] { RefreshHistory(-1); }), "AB");
    EXPECT_EQ(saved(SaveWhatIsDirty), "AB");
}

}  // namespace
}  // namespace ballhaven
