#include "history/HistoryEdits.h"

#include "forms/MainForm.h"
#include "history/HistoryView.h"
#include "platform/MessageBox.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "support/Games.h"
#include "support/HistoryLog.h"
#include "support/MainFormReset.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::BonusPool;
using support::CardGame;
using support::NumberGame;

class HistoryEdits : public testing::Test {
  protected:
    void SetUp() override { support::ResetMainForm(); }

    static void ShowDraws(const support::Game& game, const std::vector<support::Draw>& draws) {
        support::SetUpGame(game);
        support::SetUpDraws(draws);
        frmMainForm.logLastColumn = appState.totalPicks;
        frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
        BuildHistoryView();
    }

    /// Types a text into a cell of the current row, the check and the storing being those under test.
    static bool Type(int column, const std::string& text) {
        frmMainForm.grdHist.acceptEdit = IsPickInRange;
        frmMainForm.grdHist.edited = PostLogEdit;
        frmMainForm.grdHist.GoToColumn(column);
        return frmMainForm.grdHist.Edit(column, text);
    }
};

const std::vector<support::Draw> twoDraws = {{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {4, 5, 6}}};

TEST_F(HistoryEdits, AValueOfZeroIsRefusedWhereTheLowestNumberIsOne) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_FALSE(Type(2, "0"));
    EXPECT_EQ(appState.HistoryTable(2, 0), 2);
}

TEST_F(HistoryEdits, AnEmptiedCellIsAcceptedAndStoredAsMinusOne) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_TRUE(Type(2, "  "));
    EXPECT_EQ(appState.HistoryTable(2, 0), -1);
    EXPECT_EQ(appState.historyView(2, 0), -1);
}

TEST_F(HistoryEdits, BothEndsOfTheRangeAreAllowedAndWhatLiesBehindThemIsNot) {
    ShowDraws(NumberGame().Picks(3).From(1).To(49), twoDraws);
    EXPECT_TRUE(Type(1, "1"));
    EXPECT_TRUE(Type(1, "49"));
    EXPECT_FALSE(Type(1, "50"));
    EXPECT_FALSE(Type(1, "99999999999"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 49);
}

TEST_F(HistoryEdits, ALetterReadsAsZeroAndPassesOnlyWhereZeroIsAPick) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_FALSE(Type(1, "x"));
    ShowDraws(NumberGame().Picks(3).From(0).To(9), twoDraws);
    EXPECT_TRUE(Type(1, "x"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 0);
}

TEST_F(HistoryEdits, TheLeadingDigitsOfATextAreItsValue) {
    ShowDraws(NumberGame().Picks(3).From(1).To(49), twoDraws);
    EXPECT_TRUE(Type(1, " 1 2x9"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 12);
}

TEST_F(HistoryEdits, ABonusIsCheckedAgainstItsOwnLimits) {
    ShowDraws(NumberGame().Picks(2).From(1).To(49).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9), twoDraws);
    EXPECT_TRUE(Type(3, "0"));
    EXPECT_FALSE(Type(3, "10"));
    EXPECT_FALSE(Type(2, "0"));
    EXPECT_TRUE(Type(2, "10"));
}

TEST_F(HistoryEdits, InAGameWithoutBonusColumnsBehindTheMainPicksAreNotChecked) {
    ShowDraws(NumberGame().Picks(2).From(1).To(9), {{"01/01/1990", {1, 2}}});
    EXPECT_TRUE(IsPickInRange(3, "99"));
}

TEST_F(HistoryEdits, CardsAreNotChecked) {
    ShowDraws(CardGame().Picks(2), {{"01/01/1990", {1, 2}}});
    EXPECT_TRUE(IsPickInRange(1, "99"));
}

TEST_F(HistoryEdits, TwoRowsOfOneDateBothTakeTheValue) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9),
              {{"01/01/1990", {1, 2, 3}}, {"01/01/1990", {4, 5, 6}}, {"01/02/1990", {7, 8, 9}}});
    EXPECT_TRUE(Type(3, "7"));
    EXPECT_EQ(appState.HistoryTable(3, 0), 7);
    EXPECT_EQ(appState.HistoryTable(3, 1), 7);
    EXPECT_EQ(appState.HistoryTable(3, 2), 9);
    EXPECT_EQ(appState.historyView(3, 0), 7);
    EXPECT_EQ(appState.historyView(3, 1), 7);
}

TEST_F(HistoryEdits, AValueGoesToTheDrawOfTheCurrentRowInBothTablesWhateverTheOrder) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9).NewestFirst(), twoDraws);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
    EXPECT_TRUE(Type(1, "9"));
    EXPECT_EQ(appState.historyView(1, 0), 9);
    EXPECT_EQ(appState.HistoryTable(1, 1), 9);
    EXPECT_EQ(appState.HistoryTable(1, 0), 1);
}

TEST_F(HistoryEdits, StoringAPickMarksTheFourTablesStale) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_TRUE(Type(1, "9"));
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

TEST_F(HistoryEdits, ACardGoesToTheCurrentColumnOfTheDrawInBothTables) {
    ShowDraws(CardGame().Picks(3).NewestFirst(), twoDraws);
    frmMainForm.grdHist.GoToColumn(2);
    SetLogCard(52);
    EXPECT_EQ(appState.historyView(2, 0), 52);
    EXPECT_EQ(appState.HistoryTable(2, 1), 52);
    EXPECT_EQ(appState.HistoryTable(2, 0), 2);
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(HistoryEdits, ACardGoesToBothRowsOfOneDate) {
    ShowDraws(CardGame().Picks(2), {{"01/01/1990", {1, 2}}, {"01/01/1990", {3, 4}}, {"01/02/1990", {5, 6}}});
    frmMainForm.grdHist.GoTo(1, 1);
    SetLogCard(40);
    for (const Table* table : {&appState.HistoryTable, &appState.historyView}) {
        EXPECT_EQ((*table)(1, 0), 40);
        EXPECT_EQ((*table)(1, 1), 40);
        EXPECT_EQ((*table)(1, 2), 5);
    }
}

TEST_F(HistoryEdits, ACardIsStoredOnlyInTheColumnsOfThePicks) {
    ShowDraws(CardGame().Picks(2), twoDraws);
    const Table before = appState.HistoryTable;
    appState.noHitterStale = false;
    for (const int column : {0, 3, 10}) {
        frmMainForm.grdHist.GoToColumn(column);
        ASSERT_EQ(frmMainForm.grdHist.CurrentColumn(), column);
        SetLogCard(40);
        EXPECT_EQ(appState.HistoryTable, before) << column;
        EXPECT_FALSE(appState.noHitterStale) << column;
    }
}

// Not a bug: LOG-DIRTY-1 in docs/not-bugs.md.
TEST(QuirkLogDirty1, TypingAloneLeavesTheHistoryAsCleanAsItWas) {
    support::ResetMainForm();
    support::SetUpGame(NumberGame().Picks(3).From(1).To(9));
    support::SetUpDraws(twoDraws);
    frmMainForm.logLastColumn = 3;
    frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
    frmMainForm.grdHist.edited = PostLogEdit;
    BuildHistoryView();
    frmMainForm.grdHist.GoToColumn(1);
    EXPECT_TRUE(frmMainForm.grdHist.Edit(1, "9"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 9);
    EXPECT_FALSE(appState.historyDirty);
}

using Texts = std::vector<std::string>;

class DeletingADraw : public support::HistoryLogTest {
  protected:
    static support::Game ThreeOfNine() { return NumberGame().Picks(3).From(1).To(9).OldestFirst().HistorySet(10); }

    void ExpectQuestion(const std::string& date, BoxAnswer answer) {
        boxes.ExpectBeforeLoss("Delete record for " + date + "?", BoxIcon::Critical, answer);
    }
};

TEST_F(DeletingADraw, TakesTheDrawOutOfLogTableAndFileOnYes) {
    ShowLog(ThreeOfNine(), support::DailyDraws(4));
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(ShownDates(), (Texts{"01/01/1990", "01/03/1990", "01/04/1990"}));
    EXPECT_EQ(appState.historyLast, 2);
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 2, 3}}, {"01/03/1990", {3, 4, 5}}, {"01/04/1990", {4, 5, 6}}}));
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(DeletingADraw, ChangesNothingOnNo) {
    ShowLog(ThreeOfNine(), support::DailyDraws(4));
    const std::string before = directory.Read("GAME01.CDB");
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::No);
    DeleteDraw();
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
    EXPECT_EQ(appState.historyLast, 3);
    EXPECT_FALSE(appState.historyDirty);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
}

TEST_F(DeletingADraw, GoesToTheRowBehindIt) {
    ShowLog(ThreeOfNine(), support::DailyDraws(4));
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/03/1990", "3", "4", "5"}));
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(DeletingADraw, GoesToTheRowBeforeItFromTheLastRowOfTheView) {
    ShowLog(ThreeOfNine(), support::DailyDraws(4));
    GoToDate("01/04/1990");
    ExpectQuestion("01/04/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/03/1990", "3", "4", "5"}));
}

TEST_F(DeletingADraw, FollowsTheOrderOfTheScreen) {
    ShowLog(ThreeOfNine().NewestFirst(), support::DailyDraws(4));
    GoToDate("01/03/1990");
    ExpectQuestion("01/03/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/02/1990", "2", "3", "4"}));
    GoToDate("01/01/1990");
    ExpectQuestion("01/01/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/02/1990", "2", "3", "4"}));
}

TEST_F(DeletingADraw, TheOnlyRowLeavesAnEmptyHistoryEmptyTablesAndTheSameSet) {
    ShowLog(ThreeOfNine(), support::DailyDraws(1));
    ExpectQuestion("01/01/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(appState.historyLast, -1);
    EXPECT_EQ(appState.historyViewLast, -1);
    EXPECT_EQ(appState.hotNumberLast, -1);
    EXPECT_EQ(appState.historySetSize, 10);
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 0);
    EXPECT_TRUE(FileHolds({}));
}

TEST_F(DeletingADraw, AsksNothingInALogWithoutDraws) {
    ShowLog(ThreeOfNine(), {});
    DeleteDraw();
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(appState.historyLast, -1);
}

TEST_F(DeletingADraw, AnOlderDrawComesIntoTheSet) {
    ShowLog(ThreeOfNine(), support::DailyDraws(12));
    GoToDate("01/08/1990");
    ExpectQuestion("01/08/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(ShownDates().size(), 10U);
    EXPECT_EQ(ShownDates().front(), "01/02/1990");
}

TEST_F(DeletingADraw, OfTwoDrawsOfOneDateTheFirstGoes) {
    ShowLog(ThreeOfNine(), {{"01/01/1990", {1, 2, 3}}, {"01/01/1990", {4, 5, 6}}, {"01/02/1990", {7, 8, 9}}});
    GoToDate("01/01/1990");
    ExpectQuestion("01/01/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_TRUE(FileHolds({{"01/01/1990", {4, 5, 6}}, {"01/02/1990", {7, 8, 9}}}));
    EXPECT_EQ(CurrentRow(), (Texts{"01/01/1990", "4", "5", "6"}));
}

TEST_F(DeletingADraw, SavesWhatWasTypedBeforeItToo) {
    ShowLog(ThreeOfNine(), support::DailyDraws(2));
    GoToDate("01/01/1990");
    EXPECT_TRUE(TypePick(2, "9"));
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 9, 3}}}));
}

TEST_F(DeletingADraw, MarksTheTablesStaleAndCountsAgain) {
    ShowLog(ThreeOfNine(), {{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {7, 8, 9}}});
    EXPECT_EQ(appState.hotNumberLast, 5);
    appState.hotPairStale = appState.pairedOnceStale = appState.repeaterStale = appState.noHitterStale = false;
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(appState.hotNumberLast, 2);
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

}  // namespace
}  // namespace ballhaven
