#include "history/DrawDates.h"

#include "forms/MainForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryEdits.h"
#include "history/HistoryFile.h"
#include "platform/MessageBox.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/HistoryLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using std::chrono::January;
using std::chrono::March;
using std::chrono::year;
using std::chrono::year_month_day;
using support::DailyDraws;
using support::Draw;
using support::Game;
using support::SerialOf;
using Texts = std::vector<std::string>;

const year_month_day today = year{1990} / March / 5;

Game ThreeOfNine() {
    return support::NumberGame().Picks(3).From(1).To(9).OldestFirst();
}

class DrawDates : public support::HistoryLogTest {
  protected:
    void ExpectDateExists() {
        boxes.Expect("Ballhaven", "Date already exists,\nplease select another date.", BoxButtons::Ok,
                     BoxIcon::Information);
    }

    void ExpectChangeQuestion(BoxAnswer answer) {
        boxes.Expect("Ballhaven", "Are you sure you want to change this date?", BoxButtons::YesNo, BoxIcon::None,
                     answer);
    }

    void ExpectNotInSet() {
        boxes.Expect("Ballhaven",
                     "The record you have added cannot be displayed within the selected history set.\n"
                     "If you wish to see this record, select larger history set.",
                     BoxButtons::Ok, BoxIcon::None);
    }

    /// A new draw as the menu, the calendar and the timer add it.
    static void AddDraw(const std::string& date) {
        static_cast<void>(BeginNewDraw());
        EXPECT_TRUE(TakeChosenDate(date));
        EndDateChoice();
        BringInChosenDraw();
    }

    /// A change of the current row's date up to the calendar's answer; whether the calendar closes.
    static bool ChangeDate(const std::string& date) {
        static_cast<void>(BeginDateChange());
        const bool closes = TakeChosenDate(date);
        EndDateChoice();
        return closes;
    }
};

using OfferedDate = DrawDates;
using NewDraw = DrawDates;
using DateChange = DrawDates;
using ChosenDraw = DrawDates;
using QuirkOfferedDate1 = DrawDates;
using QuirkFullLog1 = DrawDates;
using QuirkEntryOrder1 = DrawDates;
using QuirkFirstDay1 = DrawDates;

TEST_F(OfferedDate, IsTodayOnAnEmptyHistory) {
    ShowLog(ThreeOfNine(), {});
    EXPECT_EQ(BeginNewDraw(), today);
    EXPECT_EQ(appState.nextLogDate, SerialOf("03/05/1990"));
    EXPECT_EQ(appState.pendingLogDate, -1);
    EXPECT_EQ(appState.logDateText, "");
}

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

// Not a bug: OFFERED-DATE-1 in docs/not-bugs.md.
TEST_F(QuirkOfferedDate1, TheFirstOfferOfAGameIsTodayWhateverTheDrawsAre) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    EXPECT_EQ(BeginNewDraw(), today);
    EndDateChoice();
    EXPECT_EQ(BeginNewDraw(), year{1990} / January / 5) << "also when no date was taken";
}

TEST_F(OfferedDate, FollowsTheTableNotTheOrderOfTheScreen) {
    ShowLog(ThreeOfNine().NewestFirst(), DailyDraws(4));
    appState.nextLogDate = 1;
    EXPECT_EQ(BeginNewDraw(), year{1990} / January / 5);
}

TEST_F(OfferedDate, IsReadInTheUsersOrderOfDates) {
    ShowLog(ThreeOfNine(), {{"01/01/1990", {1, 2, 3}}, {"02/28/1992", {4, 5, 6}}});
    appState.shortDateFormat = "d.m.y";
    appState.nextLogDate = 1;
    EXPECT_EQ(BeginNewDraw(), year{1992} / 2 / 29);
    EXPECT_TRUE(TakeChosenDate("29.02.1992"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("02/29/1992"));
}

TEST_F(OfferedDate, BehindTheRangeOfDatesIsAnOverflow) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    appState.HistoryTable(0, 1) = INT16_MAX;
    appState.nextLogDate = 1;
    EXPECT_THROW(static_cast<void>(BeginNewDraw()), RuntimeFailure);
}

TEST_F(OfferedDate, OfAChangeIsTheDateOfTheRow) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    GoToDate("01/03/1990");
    frmMainForm.grdHist.GoToColumn(2);
    EXPECT_EQ(BeginDateChange(), year{1990} / January / 3);
    EXPECT_EQ(appState.logDateText, "01/03/1990");
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(OfferedDate, OfAChangeWithoutADateIsToday) {
    ShowLog(ThreeOfNine(), {});
    EXPECT_EQ(BeginDateChange(), today);
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
    appState.historyDirty = true;
    SaveWhatIsDirty();
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}, {"01/09/1990", {7, 8, -1}}}));
}

TEST_F(NewDraw, IsSavedAtOnceAndWaitsForTheTimer) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1989"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("12/31/1989"));
    EXPECT_TRUE(FileHolds({{"01/01/1990", {1, 2, 3}}, {"01/02/1990", {2, 3, 4}}, {"12/31/1989", {}}}));
    EXPECT_EQ(ShownDates(), (Texts{"01/01/1990", "01/02/1990"})) << "the log is as it was";
    EndDateChoice();
    EXPECT_EQ(appState.pendingLogDate, SerialOf("12/31/1989"));
}

TEST_F(NewDraw, WithADateThatExistsIsRefusedAndTheCalendarStaysForAnother) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    const std::string before = directory.Read("GAME01.CDB");
    static_cast<void>(BeginNewDraw());
    ExpectDateExists();
    EXPECT_FALSE(TakeChosenDate("01/02/1990"));
    EXPECT_EQ(appState.pendingLogDate, -1);
    EXPECT_EQ(appState.historyLast, 3);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    EXPECT_TRUE(TakeChosenDate("01/20/1990"));
    EXPECT_EQ(appState.historyLast, 4);
}

TEST_F(NewDraw, WithADateThatExistsOutsideTheShownSetIsRefusedToo) {
    ShowLog(ThreeOfNine().HistorySet(10), DailyDraws(25));
    static_cast<void>(BeginNewDraw());
    ExpectDateExists();
    EXPECT_FALSE(TakeChosenDate("01/01/1990"));
    EXPECT_EQ(appState.historyLast, 24);
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

TEST_F(NewDraw, WithoutADateLeavesNothingPending) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EndDateChoice();
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(appState.historyLast, 1);
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

// Not a bug: FULL-LOG-1 in docs/not-bugs.md.
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

// Not a bug: ENTRY-ORDER-1 in docs/not-bugs.md.
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

// Not a bug: FIRST-DAY-1 in docs/not-bugs.md.
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

// Not a bug: DATE-BEFORE-1984-1 in docs/not-bugs.md.
TEST_F(NewDraw, BeforeTheYear1984HasTheDateThatWasHandledJustBefore) {
    ShowLog(ThreeOfNine(), {});
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1983"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("03/05/1990")) << "the date that was offered";
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

TEST_F(DateChange, ToTheSameDateClosesWithoutAQuestion) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    EXPECT_TRUE(ChangeDate(" 01/02/1990 "));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(appState.pendingLogDate, 0);
}

TEST_F(DateChange, AnsweredWithNoClosesAndChangesNothing) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    ExpectChangeQuestion(BoxAnswer::No);
    EXPECT_TRUE(ChangeDate("01/09/1990"));
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_TRUE(FileHolds(DailyDraws(3)));
}

TEST_F(DateChange, ToADateThatExistsIsRefused) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    ExpectDateExists();
    EXPECT_FALSE(ChangeDate("01/03/1990"));
    EXPECT_TRUE(FileHolds(DailyDraws(3)));
}

TEST_F(DateChange, OfTwoDrawsOfOneDateTheFirstIsChanged) {
    ShowLog(ThreeOfNine(), {{"01/01/1990", {1, 2, 3}}, {"01/01/1990", {4, 5, 6}}});
    ExpectChangeQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ChangeDate("01/09/1990"));
    EXPECT_TRUE(FileHolds({{"01/09/1990", {1, 2, 3}}, {"01/01/1990", {4, 5, 6}}}));
}

TEST_F(DateChange, OfARowWhileADrawWaitsBringsItInAndStaysWithTheRow) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1989"));
    EndDateChoice();
    GoToDate("01/02/1990");
    EXPECT_EQ(BeginDateChange(), year{1990} / January / 2);
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 2);
}

TEST_F(NewDraw, WhileAnotherOneWaitsBringsItIn) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1989"));
    EndDateChoice();
    static_cast<void>(BeginNewDraw());
    EndDateChoice();
    EXPECT_EQ(ShownDates(), (Texts{"12/31/1989", "01/01/1990", "01/02/1990", "01/03/1990"}));
}

TEST_F(NewDraw, ThatWaitsIsFoundByTheNextChoiceOnALogThatHadNone) {
    ShowLog(ThreeOfNine(), {});
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("03/05/1990"));
    ExpectDateExists();
    EXPECT_FALSE(TakeChosenDate("03/05/1990"));
    EXPECT_EQ(appState.historyLast, 0);
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

}  // namespace
}  // namespace ballhaven
