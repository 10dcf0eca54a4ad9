#include "history/LogEntry.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/qt/TypedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;

class LogEntry : public support::TypedLogTest {
  protected:
    /// The log of a game with its first row as the current one, and no table stale.
    void ShowDraws(const support::Game& game, const std::vector<support::Draw>& draws) {
        ShowLog(game, draws);
        frmMainForm.grdHist.GoToRow(0);
        appState.hotPairStale = appState.pairedOnceStale = appState.repeaterStale = appState.noHitterStale = false;
    }
};

const std::vector<support::Draw> twoDraws = {{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {4, 5, 6}}};

TEST_F(LogEntry, AValueOfZeroIsRefusedWhereTheLowestNumberIsOne) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_FALSE(TypePick(2, "0"));
    EXPECT_EQ(appState.HistoryTable(2, 0), 2);
}

TEST_F(LogEntry, AnEmptiedCellIsAcceptedAndStoredAsMinusOne) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_TRUE(TypePick(2, "  "));
    EXPECT_EQ(appState.HistoryTable(2, 0), -1);
    EXPECT_EQ(appState.historyView(2, 0), -1);
}

TEST_F(LogEntry, BothEndsOfTheRangeAreAllowedAndWhatLiesBehindThemIsNot) {
    ShowDraws(NumberGame().Picks(3).From(1).To(49), twoDraws);
    EXPECT_TRUE(TypePick(1, "1"));
    EXPECT_TRUE(TypePick(1, "49"));
    EXPECT_FALSE(TypePick(1, "50"));
    EXPECT_FALSE(TypePick(1, "99999999999"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 49);
}

TEST_F(LogEntry, ALetterReadsAsZeroAndPassesOnlyWhereZeroIsAPick) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_FALSE(TypePick(1, "x"));
    ShowDraws(NumberGame().Picks(3).From(0).To(9), twoDraws);
    EXPECT_TRUE(TypePick(1, "x"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 0);
}

TEST_F(LogEntry, TheLeadingDigitsOfATextAreItsValue) {
    ShowDraws(NumberGame().Picks(3).From(1).To(49), twoDraws);
    EXPECT_TRUE(TypePick(1, " 1 2x9"));
    EXPECT_EQ(appState.HistoryTable(1, 0), 12);
}

TEST_F(LogEntry, ABonusIsCheckedAgainstItsOwnLimits) {
    ShowDraws(NumberGame().Picks(2).From(1).To(49).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9), twoDraws);
    EXPECT_TRUE(TypePick(3, "0"));
    EXPECT_FALSE(TypePick(3, "10"));
    EXPECT_FALSE(TypePick(2, "0"));
    EXPECT_TRUE(TypePick(2, "10"));
}

TEST_F(LogEntry, TwoRowsOfOneDateBothTakeTheValue) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9),
              {{"01/01/1990", {1, 2, 3}}, {"01/01/1990", {4, 5, 6}}, {"01/02/1990", {7, 8, 9}}});
    EXPECT_TRUE(TypePick(3, "7"));
    EXPECT_EQ(appState.HistoryTable(3, 0), 7);
    EXPECT_EQ(appState.HistoryTable(3, 1), 7);
    EXPECT_EQ(appState.HistoryTable(3, 2), 9);
    EXPECT_EQ(appState.historyView(3, 0), 7);
    EXPECT_EQ(appState.historyView(3, 1), 7);
}

TEST_F(LogEntry, AValueGoesToTheDrawOfTheCurrentRowInBothTablesWhateverTheOrder) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9).NewestFirst(), twoDraws);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
    EXPECT_TRUE(TypePick(1, "9"));
    EXPECT_EQ(appState.historyView(1, 0), 9);
    EXPECT_EQ(appState.HistoryTable(1, 1), 9);
    EXPECT_EQ(appState.HistoryTable(1, 0), 1);
}

TEST_F(LogEntry, StoringAPickMarksTheFourTablesStale) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    EXPECT_TRUE(TypePick(1, "9"));
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

TEST_F(LogEntry, ACardGoesToTheCurrentColumnOfTheDrawInBothTables) {
    ShowDraws(CardGame().Picks(3).NewestFirst(), twoDraws);
    frmMainForm.grdHist.GoToColumn(2);
    SetLogCard(52);
    EXPECT_EQ(appState.historyView(2, 0), 52);
    EXPECT_EQ(appState.HistoryTable(2, 1), 52);
    EXPECT_EQ(appState.HistoryTable(2, 0), 2);
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(LogEntry, ACardGoesToBothRowsOfOneDate) {
    ShowDraws(CardGame().Picks(2), {{"01/01/1990", {1, 2}}, {"01/01/1990", {3, 4}}, {"01/02/1990", {5, 6}}});
    frmMainForm.grdHist.GoTo(1, 1);
    SetLogCard(40);
    for (const Table* table : {&appState.HistoryTable, &appState.historyView}) {
        EXPECT_EQ((*table)(1, 0), 40);
        EXPECT_EQ((*table)(1, 1), 40);
        EXPECT_EQ((*table)(1, 2), 5);
    }
}

TEST_F(LogEntry, ACardIsStoredOnlyInTheColumnsOfThePicks) {
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
TEST_F(LogEntry, TypingAloneLeavesTheHistoryAsCleanAsItWas) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    for (const bool dirty : {false, true}) {
        appState.historyDirty = dirty;
        EXPECT_TRUE(TypePick(1, "9"));
        EXPECT_EQ(appState.historyDirty, dirty);
    }
}

TEST_F(LogEntry, TheDateOfTheCurrentRowIsLeftInTheState) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    GoToDate("01/02/1990");
    EXPECT_EQ(LogDate(), support::SerialOf("01/02/1990"));
    EXPECT_EQ(appState.dateSerial, support::SerialOf("01/02/1990"));
    EXPECT_EQ(appState.dateWeekday, 2) << "a Tuesday";
}

TEST_F(LogEntry, AnEmptyLogHasTheDateOfTheCallBefore) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), {});
    appState.dateSerial = 1234;
    EXPECT_EQ(LogDate(), 1234);
}

TEST_F(LogEntry, AValueBeyond16BitsIsAnOverflow) {
    ShowDraws(NumberGame().Picks(3).From(1).To(9), twoDraws);
    PostLogEdit(1, "32767");
    EXPECT_EQ(appState.HistoryTable(1, 0), 32767);
    EXPECT_THROW(PostLogEdit(1, "32768"), RuntimeFailure);
}

}  // namespace
}  // namespace ballhaven
