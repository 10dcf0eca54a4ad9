#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "history/DrawCommands.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QApplication>
#include <QTest>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using Texts = std::vector<std::string>;

/// Six numbers of 1 to 49 and three draws; the program opens with the cursor on the first pick of the newest one.
class DrawCommands : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.draws = draws});
        StoreShown(1, 1);
        Start();
    }

    [[nodiscard]] Texts Dates() const {
        Texts dates;
        for (int row = 0; row < RowsShown("grdHist"); ++row) {
            dates.push_back(CellText("grdHist", row, 0));
        }
        return dates;
    }

    void ExpectQuestion(const std::string& date, BoxAnswer answer) {
        boxes.ExpectBeforeLoss("Delete record for " + date + "?", BoxIcon::Critical, answer);
    }

    void ExpectFile(const std::vector<Draw>& expected) const {
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(expected), directory.Read("GAME01.CDB")));
    }

    /// A click on a day of the month that the calendar shows.
    static void ClickDay(int day) {
        const auto first = std::chrono::sys_days{ahcCalendar.Today.year() / ahcCalendar.Today.month() / 1};
        const int cell = static_cast<int>(std::chrono::weekday{first}.iso_encoding()) - 1 + day - 1;
        const QPoint place(5 + cell % 7 * ahcCalendar.measures.cellWidth + ahcCalendar.measures.cellWidth / 2,
                           (cell / 7 + 2) * ahcCalendar.measures.rowHeight + ahcCalendar.measures.rowHeight / 2);
        QTest::mouseClick(&dynamic_cast<QWidget&>(*ahcCalendar.surface.view), Qt::LeftButton, {}, place);
    }

    /// A click on a date, and on the drop-down button that the current row has at its right end.
    void ClickDateButton(int row) const {
        ClickCell("grdHist", row, 0);
        const QRect place = CellPlace("grdHist", row, 0);
        ClickAt("grdHist", {place.right() - 5, place.center().y()});
    }

    void ExpectDateExists() {
        boxes.Expect("Ballhaven", "Date already exists,\nplease select another date.", BoxButtons::Ok,
                     BoxIcon::Information);
    }

    /// Waits until the timer has brought in the draw that waits for it.
    void WaitForTick() const {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&MainWindow()));
        EXPECT_TRUE(QTest::qWaitFor([] { return appState.pendingLogDate == 0; }));
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    }

    const std::vector<Draw> draws = {
        {"01/01/1990", {1, 2, 3, 4, 5, 6}}, {"01/02/1990", {2, 3, 4, 5, 6, 7}}, {"01/03/1990", {3, 4, 5, 6, 7, 8}}};
};

TEST_F(DrawCommands, TheMenuDeletesTheDrawOfTheCurrentRow) {
    ClickCell("grdHist", 1, 3);
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/03/1990"}));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/03/1990");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile({draws[0], draws[2]});
}

TEST_F(DrawCommands, TheToolbarDeletesTheDrawOfTheCurrentRow) {
    ExpectQuestion("01/03/1990", BoxAnswer::Yes);
    Click("cmdButton(3)");
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/02/1990"}));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile({draws[0], draws[1]});
}

TEST_F(DrawCommands, NoKeepsTheDraw) {
    ExpectQuestion("01/03/1990", BoxAnswer::No);
    Click("cmdButton(3)");
    EXPECT_EQ(Dates().size(), 3U);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile(draws);
}

TEST_F(DrawCommands, NoBringsTheHiLiteButtonOfTheRowBack) {
    ClickCell("grdHist", 1, 0);
    ASSERT_TRUE(Find("cmdColorHist").isVisible());

    ExpectQuestion("01/02/1990", BoxAnswer::No);
    Click("cmdButton(3)");

    EXPECT_TRUE(QTest::qWaitFor([this] { return Find("cmdColorHist").isVisible(); }));
}

TEST_F(DrawCommands, AllDrawsCanBeDeletedAndTheLogIsEmptyThen) {
    for (const char* date : {"01/03/1990", "01/02/1990", "01/01/1990"}) {
        ExpectQuestion(date, BoxAnswer::Yes);
        Click("cmdButton(3)");
    }
    Click("cmdButton(3)");
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_EQ(RowsShown("grdHot"), 0);
    EXPECT_FALSE(Find("cmdColorHist").isVisible());
    ExpectFile({});
}

TEST_F(DrawCommands, APickThatIsBeingTypedIsTakenBeforeItsDrawGoes) {
    ClickCell("grdHist", 2, 1);
    Type("49");
    ExpectQuestion("01/03/1990", BoxAnswer::No);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(appState.HistoryTable(1, 2), 49);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
}

TEST_F(DrawCommands, ARefusedPickKeepsTheCursorAndItsDraw) {
    ClickCell("grdHist", 2, 1);
    Type("50");
    boxes.Expect("Ballhaven", "Number out of range for this lottery game", BoxButtons::Ok, BoxIcon::None);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(EditorText("grdHist"), "50");
    EXPECT_EQ(RowsShown("grdHist"), 3);
    Press(Qt::Key_Escape);
}

TEST_F(DrawCommands, TheTimerSortsTheDrawsAndGoesToTheOneWhoseDateWasTaken) {
    appState.HistoryTable(0, 0) = support::SerialOf("02/01/1990");
    appState.pendingLogDate = support::SerialOf("02/01/1990");
    WaitForTick();
    EXPECT_EQ(Dates(), (Texts{"01/02/1990", "01/03/1990", "02/01/1990"}));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "02/01/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1) << "typing can begin at the first pick";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DrawCommands, ADrawIsAddedThroughTheCalendarAndItsPicksAreTyped) {
    platform::services.today = [] { return std::chrono::year{1990} / std::chrono::January / 20; };
    InModal(ahcCalendar.window, [this] {
        EXPECT_EQ(ahcCalendar.Today, std::chrono::year{1990} / std::chrono::January / 20);
        EXPECT_EQ(appState.pendingLogDate, -1);
        ClickDay(9);
        ClickToClose("cmdCal(1)");
    });
    Click("cmdButton(2)");
    ExpectFile({draws[0], draws[1], draws[2], {"01/09/1990", {}}});
    WaitForTick();
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/09/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1);
    for (const char* pick : {"11", "12", "13", "14", "15", "16"}) {
        Type(pick);
        Press(Qt::Key_Tab);
    }
    Close();
    ExpectFile({draws[0], draws[1], draws[2], {"01/09/1990", {11, 12, 13, 14, 15, 16}}});
}

TEST_F(DrawCommands, ADateThatExistsKeepsTheCalendarOpenForAnother) {
    platform::services.today = [] { return std::chrono::year{1990} / std::chrono::January / 2; };
    ExpectDateExists();
    InModal(ahcCalendar.window, [this] {
        Click("cmdCal(1)");
        EXPECT_EQ(boxes.Answered(), 1U);
        EXPECT_TRUE(ahcCalendar.Loaded());
        ClickDay(10);
        ClickToClose("cmdCal(1)");
    });
    Click("cmdButton(2)");
    WaitForTick();
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/02/1990", "01/03/1990", "01/10/1990"}));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DrawCommands, ADrawThatWaitsIsBroughtInByTheNextAdd) {
    platform::services.today = [] { return std::chrono::year{1990} / std::chrono::January / 20; };
    InModal(ahcCalendar.window, [this] {
        ClickDay(9);
        ClickToClose("cmdCal(1)");
    });
    Click("cmdButton(2)");
    appState.pendingLogDate = support::SerialOf("01/09/1990");
    InModal(ahcCalendar.window, [this] {
        EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/09/1990");
        EXPECT_EQ(appState.pendingLogDate, -1);
        ClickToClose("cmdCal(0)");
    });
    Click("cmdButton(2)");
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/02/1990", "01/03/1990", "01/09/1990"}));
}

TEST_F(DrawCommands, AChangeOfADateBringsInTheDrawThatWaitsAndStaysWithItsRow) {
    appState.HistoryTable(0, 2) = support::SerialOf("12/31/1989");
    appState.pendingLogDate = support::SerialOf("12/31/1989");
    InModal(ahcCalendar.window, [this] {
        EXPECT_EQ(Dates(), (Texts{"12/31/1989", "01/01/1990", "01/02/1990"}));
        EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/02/1990");
        EXPECT_EQ(ahcCalendar.Today, std::chrono::year{1990} / std::chrono::January / 2);
        ClickToClose("cmdCal(0)");
    });
    frmMainForm.grdHist.GoToRow(1);
    frmMainForm.grdHist.dropDown(0);
    EXPECT_EQ(appState.pendingLogDate, 0);
}

TEST_F(DrawCommands, ACancelledCalendarAddsNothingAndLeavesNothingPending) {
    InModal(ahcCalendar.window, [this] { ClickToClose("cmdCal(0)"); });
    Click("cmdButton(2)");
    EXPECT_EQ(appState.pendingLogDate, 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile(draws);
}

TEST_F(DrawCommands, TheDateButtonChangesTheDateOfItsRow) {
    boxes.Expect("Ballhaven", "Are you sure you want to change this date?", BoxButtons::YesNo, BoxIcon::None,
                 BoxAnswer::Yes);
    InModal(ahcCalendar.window, [this] {
        EXPECT_EQ(ahcCalendar.Today, std::chrono::year{1990} / std::chrono::January / 2);
        ClickDay(31);
        ClickToClose("cmdCal(1)");
    });
    ClickDateButton(1);
    WaitForTick();
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/03/1990", "01/31/1990"}));
    EXPECT_EQ(CellText("grdHist", 2, 1), "2") << "the picks go with the date";
    ExpectFile({draws[0], {"01/31/1990", draws[1].picks}, draws[2]});
}

}  // namespace
}  // namespace ballhaven
