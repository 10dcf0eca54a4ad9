#include "history/DrawCommands.h"

#include "forms/MainForm.h"
#include "history/DrawDates.h"
#include "history/HistoryFile.h"
#include "history/HistoryRefresh.h"
#include "history/UnsavedWork.h"
#include "platform/MessageBox.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/qt/TypedLog.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using std::chrono::March;
using std::chrono::year;
using support::DailyDraws;
using support::Draw;
using support::Game;
using support::SerialOf;
using Texts = std::vector<std::string>;

const std::chrono::year_month_day today = year{1990} / March / 5;

const std::string notInSet =
    "The record you have added cannot be displayed within the selected history set.\n"
    "If you wish to see this record, select larger history set.";

Game ThreeOfNine() {
    return support::NumberGame().Picks(3).From(1).To(9).OldestFirst();
}

class DrawCommands : public support::TypedLogTest {
  protected:
    void ExpectChangeQuestion(BoxAnswer answer) {
        boxes.Expect("Ballhaven", "Are you sure you want to change this date?", BoxButtons::YesNo, BoxIcon::None,
                     answer);
    }

    void ExpectNotInSet() { boxes.Expect("Ballhaven", notInSet, BoxButtons::Ok, BoxIcon::None); }

    /// A new draw as the menu and the calendar leave it for the timer.
    static void ChooseNewDraw(const std::string& date) {
        static_cast<void>(BeginNewDraw());
        EXPECT_TRUE(TakeChosenDate(date));
        EndDateChoice();
    }

    static void AddDraw(const std::string& date) {
        ChooseNewDraw(date);
        BringInChosenDraw();
    }

    /// A change of the current row's date up to the calendar's answer; whether the calendar closes.
    static bool ChangeDate(const std::string& date) {
        static_cast<void>(BeginDateChange(frmMainForm.grdHist.Text(0)));
        const bool closes = TakeChosenDate(date);
        EndDateChoice();
        return closes;
    }
};

using OfferedDate = DrawCommands;
using NewDraw = DrawCommands;
using DateChange = DrawCommands;
using ChosenDraw = DrawCommands;
using QuirkFullLog1 = DrawCommands;
using QuirkEntryOrder1 = DrawCommands;
using QuirkFirstDay1 = DrawCommands;

TEST_F(OfferedDate, OfASecondAddIsTheDayAfterTheLastDrawOnlyWhereThereAreTwo) {
    ShowLog(ThreeOfNine(), {});
    AddDraw("01/10/1990");
    EXPECT_EQ(BeginNewDraw(), today) << "one row";
    EXPECT_TRUE(TakeChosenDate("01/31/1990"));
    EndDateChoice();
    BringInChosenDraw();
    EXPECT_EQ(BeginNewDraw(), year{1990} / 2 / 1) << "two rows";
    EXPECT_EQ(appState.nextLogDate, SerialOf("02/01/1990"));
}

TEST_F(NewDraw, OnAnEmptyHistoryGoesToRowZero) {
    ShowLog(ThreeOfNine(), {});
    AddDraw("03/05/1990");
    EXPECT_EQ(appState.historyLast, 0);
    EXPECT_EQ(appState.HistoryTable(0, 0), SerialOf("03/05/1990"));
    EXPECT_EQ(CurrentRow(), (Texts{"03/05/1990", "", "", ""}));
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
    EXPECT_TRUE(FileHolds({{"03/05/1990", {}}}));
}

TEST_F(NewDraw, HasBlankPicksAndTakesTypedOnesInTheFile) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    AddDraw("01/09/1990");
    EXPECT_TRUE(TypePick(1, "7"));
    EXPECT_TRUE(TypePick(2, "8"));
    frmMainForm.grdHist.GoToColumn(1);
    SaveWhatIsDirty();
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}, {"01/09/1990", {7, 8, -1}}}));
}

TEST_F(NewDraw, OlderThanTheShownSetIsKeptAndSaidNotToBeShown) {
    ShowLog(ThreeOfNine().HistorySet(10), DailyDraws(12));
    ExpectNotInSet();
    AddDraw("12/25/1989");
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(appState.historyLast, 12);
    EXPECT_EQ(appState.HistoryTable(0, 0), SerialOf("12/25/1989"));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/12/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
    LoadHistory();
    EXPECT_EQ(appState.historyLast, 12) << "in the file as well";
}

TEST_F(NewDraw, InACardGameLeavesTheCursorOnTheDate) {
    ShowLog(support::CardGame().Picks(3), {});
    AddDraw("03/05/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(NewDraw, BehindTheRangeOfDatesIsAnOverflowAndChangesNothing) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("09/17/2073"));
    EXPECT_EQ(appState.pendingLogDate, INT16_MAX);
    BringInChosenDraw();
    EXPECT_THROW(static_cast<void>(TakeChosenDate("09/18/2073")), RuntimeFailure);
    EXPECT_EQ(appState.historyLast, 2);
}

TEST_F(QuirkFullLog1, ANewDrawReplacesTheOldestOneWithoutAWord) {
    std::vector<Draw> draws = DailyDraws(1000);
    ShowLog(ThreeOfNine().To(99), {});
    for (Draw& draw : draws) {
        draw.picks = {1, 2, 3};
    }
    ShowLog(ThreeOfNine().To(99), draws);
    AddDraw("12/31/1995");
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(appState.historyLast, 999);
    draws.front() = {"12/31/1995", {}};
    EXPECT_TRUE(FileHolds(draws)) << "in the place of the oldest draw";
    EXPECT_EQ(appState.HistoryTable(0, 0), SerialOf("01/02/1990"));
    EXPECT_EQ(appState.HistoryTable(0, 999), SerialOf("12/31/1995"));
    EXPECT_EQ(CurrentRow(), (Texts{"12/31/1995", "", "", ""}));
}

TEST_F(QuirkEntryOrder1, TheFileHoldsTheDrawsInTheOrderOfEntryUntilAnotherSave) {
    const std::vector<Draw> inOrderOfEntry = {{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}, {"12/31/1989", {}}};
    ShowLog(ThreeOfNine(), DailyDraws(2));
    AddDraw("12/31/1989");
    EXPECT_EQ(ShownDates(), (Texts{"12/31/1989", "01/01/1990", "01/02/1990"}));
    EXPECT_TRUE(FileHolds(inOrderOfEntry));
    LoadHistory();
    RefreshHistory(-1);
    EXPECT_EQ(ShownDates(), (Texts{"01/01/1990", "01/02/1990", "12/31/1989"}));
}

TEST_F(NewDraw, IsSavedInOrderOfDateByTheTimerWhereTheHistoryIsDirty) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1989"));
    EndDateChoice();
    appState.historyDirty = true;
    BringInChosenDraw();
    EXPECT_TRUE(FileHolds({{"12/31/1989", {}}, {"01/01/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}}));
}

TEST_F(QuirkFirstDay1, ChoosingTheFirstOfJanuary1984ClosesTheCalendarAndChangesNothing) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    const std::string before = directory.Read("GAME01.CDB");
    AddDraw("01/01/1984");
    EXPECT_TRUE(ChangeDate("01/01/1984"));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(appState.historyLast, 1);
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    AddDraw("01/02/1984");
    EXPECT_EQ(ShownDates(), (Texts{"01/02/1984", "01/01/1990", "01/02/1990"}));
}

TEST_F(DateChange, KeepsThePicksAndIsSavedAtOnce) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/01/1990");
    ExpectChangeQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ChangeDate("01/09/1990"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("01/09/1990"));
    EXPECT_TRUE(FileHolds({{"01/09/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}, {"01/03/1990", {3, 4, 5}}}));
    BringInChosenDraw();
    EXPECT_EQ(ShownDates(), (Texts{"01/02/1990", "01/03/1990", "01/09/1990"}));
    EXPECT_EQ(CurrentRow(), (Texts{"01/09/1990", "1", "2", "3"}));
    EXPECT_EQ(appState.pendingLogDate, 0);
}

TEST_F(ChosenDraw, WaitsWhileTheWindowStarts) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    frmMainForm.windowStarting = true;
    appState.pendingLogDate = SerialOf("01/02/1990");
    BringInChosenDraw();
    EXPECT_EQ(appState.pendingLogDate, SerialOf("01/02/1990"));
}

TEST_F(ChosenDraw, DoesNothingWhileADateIsBeingChosenOrNoneIs) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    frmMainForm.gameLoading = true;
    for (const int pending : {-1, 0}) {
        appState.pendingLogDate = pending;
        BringInChosenDraw();
        EXPECT_EQ(appState.pendingLogDate, pending);
        EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
        EXPECT_TRUE(frmMainForm.gameLoading);
    }
}

TEST_F(ChosenDraw, ComesIntoViewOnceAndEndsTheLoading) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    frmMainForm.gameLoading = true;
    appState.pendingLogDate = SerialOf("01/02/1990");
    BringInChosenDraw();
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
    EXPECT_FALSE(frmMainForm.gameLoading);
}

TEST_F(ChosenDraw, LeavesTheHistoryDirtyWhereItIsNew) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    ChooseNewDraw("12/31/1989");
    EXPECT_FALSE(appState.historyDirty);
    BringInChosenDraw();
    EXPECT_TRUE(appState.historyDirty);
}

TEST_F(ChosenDraw, LeavesTheHistoryAsCleanAsItWasWhereOnlyItsDateIsNew) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    ExpectChangeQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ChangeDate("01/20/1990"));
    BringInChosenDraw();
    EXPECT_FALSE(appState.historyDirty);
}

// Not a bug: ENTRY-ORDER-1 in docs/not-bugs.md, but in a mended folder.
TEST_F(ChosenDraw, QuirkEntryOrder1InAMendedFolderAnotherDateIsSavedInItsOrder) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    support::MendFolder();
    ExpectChangeQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ChangeDate("01/20/1990"));
    BringInChosenDraw();
    EXPECT_TRUE(appState.historyDirty);
    SaveWhatIsDirty();
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(64, 4), std::to_string(SerialOf("01/01/1990")));
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(3 * 64, 4), std::to_string(SerialOf("01/20/1990")));
}

TEST_F(ChosenDraw, IsBroughtInOnceThoughTheTimerTicksBehindItsMessage) {
    ShowLog(ThreeOfNine().HistorySet(10), DailyDraws(12));
    ChooseNewDraw("12/25/1989");
    Texts told;
    platform::services.showMessageBox = [&told](const platform::MessageBoxRequest& box) {
        told.push_back(box.text);
        if (told.size() < 3) {
            BringInChosenDraw();
        }
        return BoxAnswer::Ok;
    };
    BringInChosenDraw();
    EXPECT_EQ(told, Texts{notInSet});
    EXPECT_EQ(appState.pendingLogDate, 0);
    ChooseNewDraw("12/24/1989");
    BringInChosenDraw();
    EXPECT_EQ(told, (Texts{notInSet, notInSet})) << "the next one is brought in as ever";
}

class DeletingADraw : public support::TypedLogTest {
  protected:
    static Game ThreeOfNine() { return support::NumberGame().Picks(3).From(1).To(9).OldestFirst().HistorySet(10); }

    void ExpectQuestion(const std::string& date, BoxAnswer answer) {
        boxes.ExpectBeforeLoss("Delete record for " + date + "?", BoxIcon::Critical, answer);
    }
};

TEST_F(DeletingADraw, TakesTheDrawOutOfLogTableAndFileOnYes) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(ShownDates(), (Texts{"01/01/1990", "01/03/1990", "01/04/1990"}));
    EXPECT_EQ(appState.historyLast, 2);
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 2, 3}}, {"01/03/1990", {3, 4, 5}}, {"01/04/1990", {4, 5, 6}}}));
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(DeletingADraw, ChangesNothingOnNo) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
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
    ShowLog(ThreeOfNine(), DailyDraws(4));
    GoToDate("01/02/1990");
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/03/1990", "3", "4", "5"}));
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(DeletingADraw, GoesToTheRowBeforeItFromTheLastRowOfTheView) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    GoToDate("01/04/1990");
    ExpectQuestion("01/04/1990", BoxAnswer::Yes);
    DeleteDraw();
    EXPECT_EQ(CurrentRow(), (Texts{"01/03/1990", "3", "4", "5"}));
}

TEST_F(DeletingADraw, FollowsTheOrderOfTheScreen) {
    ShowLog(ThreeOfNine().NewestFirst(), DailyDraws(4));
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
    ShowLog(ThreeOfNine(), DailyDraws(1));
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
    ShowLog(ThreeOfNine(), DailyDraws(12));
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
    ShowLog(ThreeOfNine(), DailyDraws(2));
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
