#include "history/DrawDates.h"

#include "forms/MainForm.h"
#include "history/HistoryFile.h"
#include "platform/MessageBox.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/HistoryLog.h"
#include "support/PointerKeeper.h"

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

    /// A change of the current row's date up to the calendar's answer; whether the calendar closes.
    static bool ChangeDate(const std::string& date) {
        static_cast<void>(BeginDateChange(frmMainForm.grdHist.Text(0)));
        const bool closes = TakeChosenDate(date);
        EndDateChoice();
        return closes;
    }
};

using OfferedDate = DrawDates;
using NewDraw = DrawDates;
using DateChange = DrawDates;
using QuirkOfferedDate1 = DrawDates;

TEST_F(OfferedDate, IsTodayOnAnEmptyHistory) {
    ShowLog(ThreeOfNine(), {});
    EXPECT_EQ(BeginNewDraw(), today);
    EXPECT_EQ(appState.nextLogDate, SerialOf("03/05/1990"));
    EXPECT_EQ(appState.pendingLogDate, -1);
    EXPECT_EQ(appState.logDateText, "");
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

TEST_F(OfferedDate, OfAChangeIsTheDateOfTheDraw) {
    ShowLog(ThreeOfNine(), DailyDraws(4));
    EXPECT_EQ(BeginDateChange("01/03/1990"), year{1990} / January / 3);
    EXPECT_EQ(appState.logDateText, "01/03/1990");
    EXPECT_EQ(appState.pendingLogDate, 0);
}

TEST_F(OfferedDate, OfAChangeWithoutADateIsToday) {
    ShowLog(ThreeOfNine(), {});
    EXPECT_EQ(BeginDateChange(""), today);
}

// A row that the log does not show yet is counted only where the log is short: a delete beside it finds its place.
TEST_F(NewDraw, IsCountedAsARowOfTheViewAtOnceWhileThatHasFewerThanElevenRows) {
    for (const int draws : {9, 10, 11, 12}) {
        ShowLog(ThreeOfNine().HistorySet(20).To(49), DailyDraws(draws));
        ASSERT_EQ(appState.historyViewLast, draws - 1);
        static_cast<void>(BeginNewDraw());
        EXPECT_TRUE(TakeChosenDate("03/09/1990"));
        EndDateChoice();
        EXPECT_EQ(appState.historyViewLast, draws <= 10 ? draws : draws - 1) << draws;
    }
}

TEST_F(NewDraw, IsNotCountedInAViewThatShowsMoreThanItsRow) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    appState.historyViewLast = 5;
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("03/09/1990"));
    EXPECT_EQ(appState.historyViewLast, 5);
}

TEST_F(NewDraw, ShowsTheHourglassWhileItIsSaved) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    const support::PointerKeeper pointer;
    bool sawHourglass = false;
    platform::fileSystem.rename = [&](const std::string& from, const std::string& to) {
        sawHourglass = pointer.hourglass;
        return platform::SystemFiles().rename(from, to);
    };
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("03/09/1990"));
    EXPECT_TRUE(sawHourglass);
    EXPECT_FALSE(pointer.hourglass);
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

TEST_F(NewDraw, LeavesTheMarkOfTheFilesHeader) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    directory.Write("GAME01.CDB", directory.Read("GAME01.CDB").replace(11, 2, "AB"));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("03/09/1990"));
    EXPECT_EQ(directory.Read("GAME01.CDB").substr(11, 2), "AB");
}

TEST_F(NewDraw, InAFullTableTakesThePlaceOfTheFirstOne) {
    std::vector<support::Draw> draws = DailyDraws(1000);
    for (support::Draw& draw : draws) {
        draw.picks = {1, 2, 3};
    }
    ShowLog(ThreeOfNine(), draws);
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("01/01/2000"));
    EXPECT_EQ(appState.historyLast, 999);
    EXPECT_EQ(appState.HistoryTable(0, 0), SerialOf("01/01/2000"));
    EXPECT_EQ(appState.HistoryTable(0, 999), SerialOf("01/01/1990") + 999);
}

TEST_F(NewDraw, CanHaveTheSecondDayOfTheCalendarAndNotTheFirst) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("01/01/1984"));
    EXPECT_EQ(appState.historyLast, 1);
    EXPECT_TRUE(TakeChosenDate("01/02/1984"));
    EXPECT_EQ(appState.historyLast, 2);
    EXPECT_EQ(appState.HistoryTable(0, 2), 1);
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

TEST_F(NewDraw, WithoutADateLeavesNothingPending) {
    ShowLog(ThreeOfNine(), DailyDraws(2));
    static_cast<void>(BeginNewDraw());
    EndDateChoice();
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(appState.historyLast, 1);
}

// Not a bug: FULL-LOG-1 in docs/not-bugs.md.
// Not a bug: ENTRY-ORDER-1 in docs/not-bugs.md.
// Not a bug: FIRST-DAY-1 in docs/not-bugs.md.
// Not a bug: DATE-BEFORE-1984-1 in docs/not-bugs.md.
TEST_F(NewDraw, BeforeTheYear1984HasTheDateThatWasHandledJustBefore) {
    ShowLog(ThreeOfNine(), {});
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("12/31/1983"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("03/05/1990")) << "the date that was offered";
}

TEST_F(DateChange, ToTheSameDateClosesWithoutAQuestion) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    EXPECT_TRUE(ChangeDate(" 01/02/1990 "));
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(appState.pendingLogDate, 0);
}

TEST_F(DateChange, WaitsForTheTimerUnderItsNewDate) {
    ShowLog(ThreeOfNine(), DailyDraws(3));
    GoToDate("01/02/1990");
    ExpectChangeQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(ChangeDate("01/09/1990"));
    EXPECT_EQ(appState.pendingLogDate, SerialOf("01/09/1990"));
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

TEST_F(NewDraw, ThatWaitsIsFoundByTheNextChoiceOnALogThatHadNone) {
    ShowLog(ThreeOfNine(), {});
    static_cast<void>(BeginNewDraw());
    EXPECT_TRUE(TakeChosenDate("03/05/1990"));
    ExpectDateExists();
    EXPECT_FALSE(TakeChosenDate("03/05/1990"));
    EXPECT_EQ(appState.historyLast, 0);
}

}  // namespace
}  // namespace ballhaven
