#include "history/HistoryEditing.h"

#include <QApplication>
#include <QTest>

#include "screen/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using Texts = std::vector<std::string>;

/// Six numbers of 1 to 49 and three draws; the program opens with the cursor on the first pick of the newest one.
class HistoryEditing : public support::RunningProgram {
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
        boxes.Expect("Ballhaven", "Delete record for " + date + "?", BoxButtons::YesNo, BoxIcon::Critical, answer);
    }

    void ExpectFile(const std::vector<Draw>& expected) const {
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(expected), directory.Read("GAME01.CDB")));
    }

    /// Waits until the timer has brought in the draw that waits for it.
    static void WaitForTick() {
        EXPECT_TRUE(QTest::qWaitFor([] { return appState.pendingLogDate == 0; }));
    }

    const std::vector<Draw> draws = {
        {"01/01/1990", {1, 2, 3, 4, 5, 6}}, {"01/02/1990", {2, 3, 4, 5, 6, 7}}, {"01/03/1990", {3, 4, 5, 6, 7, 8}}};
};

TEST_F(HistoryEditing, TheMenuDeletesTheDrawOfTheCurrentRow) {
    ClickCell("grdHist", 1, 3);
    ExpectQuestion("01/02/1990", BoxAnswer::Yes);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/03/1990"}));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/03/1990");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile({draws[0], draws[2]});
}

TEST_F(HistoryEditing, TheToolbarDeletesTheDrawOfTheCurrentRow) {
    ExpectQuestion("01/03/1990", BoxAnswer::Yes);
    Click("cmdButton(3)");
    EXPECT_EQ(Dates(), (Texts{"01/01/1990", "01/02/1990"}));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile({draws[0], draws[1]});
}

TEST_F(HistoryEditing, NoKeepsTheDraw) {
    ExpectQuestion("01/03/1990", BoxAnswer::No);
    Click("cmdButton(3)");
    EXPECT_EQ(Dates().size(), 3U);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ExpectFile(draws);
}

TEST_F(HistoryEditing, AllDrawsCanBeDeletedAndTheLogIsEmptyThen) {
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

TEST_F(HistoryEditing, APickThatIsBeingTypedIsTakenBeforeItsDrawGoes) {
    ClickCell("grdHist", 2, 1);
    Type("49");
    ExpectQuestion("01/03/1990", BoxAnswer::No);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(appState.HistoryTable(1, 2), 49);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
}

TEST_F(HistoryEditing, ARefusedPickKeepsTheCursorAndItsDraw) {
    ClickCell("grdHist", 2, 1);
    Type("50");
    boxes.Expect("Ballhaven", "Number out of range for this lottery game", BoxButtons::Ok, BoxIcon::None);
    ChooseFromMenu("mnuEdit", "mnuEditArray(5)");
    EXPECT_EQ(EditorText("grdHist"), "50");
    EXPECT_EQ(RowsShown("grdHist"), 3);
    Press(Qt::Key_Escape);
}

TEST_F(HistoryEditing, TheTimerSortsTheDrawsAndGoesToTheOneWhoseDateWasTaken) {
    appState.HistoryTable(0, 0) = support::SerialOf("02/01/1990");
    appState.pendingLogDate = support::SerialOf("02/01/1990");
    WaitForTick();
    EXPECT_EQ(Dates(), (Texts{"01/02/1990", "01/03/1990", "02/01/1990"}));
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "02/01/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 1) << "typing can begin at the first pick";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace ballhaven
