#include "screen/MainMenu.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using Texts = std::vector<std::string>;

const std::vector<Draw> threeDraws = {
    {"01/01/1990", {1, 2, 3, 4, 5, 6}}, {"01/02/1990", {2, 3, 4, 5, 6, 7}}, {"01/03/1990", {3, 4, 5, 6, 7, 8}}};

struct ToolButton {
    const char* name;
    const char* toolTip;
    int left;
    platform::MenuItem& entry;
};

const ToolButton toolButtons[] = {
    // clang-format off
    {"cmdButton(1)",  "Print Data",                             0, frmMainForm.mnuFileArray[0]},
    {"cmdButton(10)", "Add New Game",                          32, frmMainForm.mnuEditArray[0]},
    {"cmdButton(11)", "Delete This Game",                      64, frmMainForm.mnuEditArray[1]},
    {"cmdButton(0)",  "Alter Game Configuration",              96, frmMainForm.mnuEditArray[2]},
    {"cmdButton(2)",  "Add Record to Historical Log",         128, frmMainForm.mnuEditArray[4]},
    {"cmdButton(3)",  "Delete Record from Historical Log",    160, frmMainForm.mnuEditArray[5]},
    {"cmdButton(4)",  "View Date Ascending",                  192, frmMainForm.mnuViewArray[0]},
    {"cmdButton(5)",  "View Date Descending",                 224, frmMainForm.mnuViewArray[1]},
    {"cmdButton(14)", "Play Slips",                           256, frmMainForm.mnuViewArray[3]},
    {"cmdButton(8)",  "Erase all Play Slips for this Game",   288, frmMainForm.mnuEditArray[7]},
    {"cmdButton(12)", "Hi-Lite Winners on Play Slip(s)",      320, frmMainForm.mnuToolArray[2]},
    {"cmdButton(13)", "Erase Winner Hi-Lites on Play Slip(s)", 352, frmMainForm.mnuToolArray[3]},
    {"cmdButton(7)",  "Wheel or Shuffle",                     384, frmMainForm.mnuToolArray[0]},
    // clang-format on
};

class MainMenu : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.draws = threeDraws});
        StorePlay(1, {10, 11, 12});
        StoreShown(1, 1);
        Start();
    }

    /// The captions of a menu's entries, "-" for a separator.
    [[nodiscard]] Texts Captions(const char* menu) const {
        Texts captions;
        for (const QAction* entry : Find<QMenu>(menu).actions()) {
            captions.push_back(entry->isSeparator() ? "-" : entry->text().toStdString());
        }
        return captions;
    }

    [[nodiscard]] Texts Dates() const {
        Texts dates;
        for (int row = 0; row < RowsShown("grdHist"); ++row) {
            dates.push_back(CellText("grdHist", row, 0));
        }
        return dates;
    }

    void ExpectOrder(const std::string& digit, const Texts& dates) const {
        EXPECT_EQ(RecordColumns(0, 4, 1), digit);
        EXPECT_EQ(Dates(), dates);
        EXPECT_EQ(MenuEntry("mnuViewArray(0)").isChecked(), digit == "1");
        EXPECT_EQ(MenuEntry("mnuViewArray(1)").isChecked(), digit == "0");
        EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/03/1990") << "the newest draw is current";
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }

    void ExpectQuestion(BoxAnswer answer) {
        boxes.ExpectBeforeLoss("Erase ALL Play Slips for this game?", BoxIcon::Question, answer);
    }

    const Texts ascending = {"01/01/1990", "01/02/1990", "01/03/1990"};
    const Texts descending = {"01/03/1990", "01/02/1990", "01/01/1990"};
};

TEST_F(MainMenu, HasFiveMenusWithEveryEntryAndItsAccessKey) {
    Texts menus;
    for (const QAction* menu : Usable<QMenuBar>("menuBar").actions()) {
        menus.push_back(menu->text().toStdString());
    }
    EXPECT_EQ(menus, (Texts{"&File", "&Edit", "&View", "&Tools", "&Help"}));
    EXPECT_EQ(Captions("mnuFile"), (Texts{"&Print Data", "-", "E&xit"}));
    EXPECT_EQ(Captions("mnuEdit"), (Texts{"Add &New Game", "Delete &This Game", "Alter &Game Configuration", "-",
                                          "&Add Record to Historical Log", "&Delete Record from Historical Log", "-",
                                          "&Erase all Play Slips for this Game"}));
    EXPECT_EQ(Captions("mnuTools"), (Texts{"&Wheel or Shuffle", "-", "&Hi-Lite Winners on Play Slip(s)",
                                           "&Erase Winner Hi-Lites on Play Slip(s)"}));
    EXPECT_EQ(Captions("mnuHelp"), (Texts{"&Instructions for Ballhaven", "-", "&About Ballhaven"}));
}

using QuirkViewMenu1 = MainMenu;

// Not a bug: VIEW-MENU-1 in docs/not-bugs.md.
TEST_F(QuirkViewMenu1, TheMenuSaysDecendingAndTheToolTipDescending) {
    EXPECT_EQ(Captions("mnuView"), (Texts{"Date &Ascending", "Date &Decending", "-", "Play &Slips"}));
    EXPECT_EQ(Usable("cmdButton(5)").toolTip(), QStringLiteral("View Date Descending"));
}

TEST_F(MainMenu, NoEntryAndNoButtonIsEverSwitchedOff) {
    for (const char* menu : {"mnuFile", "mnuEdit", "mnuView", "mnuTools", "mnuHelp"}) {
        for (const QAction* entry : Find<QMenu>(menu).actions()) {
            EXPECT_TRUE(entry->isEnabled() && entry->isVisible()) << entry->objectName().toStdString();
        }
    }
}

TEST_F(MainMenu, TheToolbarHasThirteenButtonsWithTheirToolTips) {
    for (const ToolButton& each : toolButtons) {
        const auto& button = Usable<QPushButton>(each.name);
        EXPECT_EQ(button.toolTip().toStdString(), each.toolTip);
        EXPECT_EQ(button.geometry(), QRect(each.left, 0, 33, 33)) << each.name;
        EXPECT_TRUE(button.text().isEmpty()) << each.name;
    }
    for (const char* name : {"cmdButton(6)", "cmdButton(9)"}) {
        EXPECT_EQ(MainWindow().findChild<QWidget*>(QLatin1String(name)), nullptr);
    }
}

TEST_F(MainMenu, AToolbarButtonRunsItsEntryUnderTheHourglass) {
    for (const ToolButton& each : toolButtons) {
        const auto command = each.entry.click;
        int runs = 0;
        each.entry.click = [&runs] {
            ++runs;
            ASSERT_NE(QApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        };
        Click(each.name);
        each.entry.click = command;
        EXPECT_EQ(runs, 1) << each.name;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << each.name;
    }
}

TEST_F(MainMenu, TheViewMenuOrdersTheLog) {
    ExpectOrder("1", ascending);
    ChooseFromMenu("mnuView", "mnuViewArray(1)");
    ExpectOrder("0", descending);
    ChooseFromMenu("mnuView", "mnuViewArray(0)");
    ExpectOrder("1", ascending);
}

TEST_F(MainMenu, TheToolbarOrdersTheLog) {
    Click("cmdButton(5)");
    ExpectOrder("0", descending);
    Click("cmdButton(4)");
    ExpectOrder("1", ascending);
}

TEST_F(MainMenu, TheAccessKeysOrderTheLog) {
    Press(Qt::Key_V, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D);
    ExpectOrder("0", descending);
}

TEST_F(MainMenu, TheOrderThatTheLogHasAlreadySavesNothing) {
    ClickCell("grdHist", 1, 2);
    WatchSaves();
    Click("cmdButton(4)");
    ChooseFromMenu("mnuView", "mnuViewArray(0)");
    EXPECT_TRUE(saved.empty());
    EXPECT_TRUE(appState.historyDirty) << "neither is the changed history";
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 1);
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 2);
    EXPECT_TRUE(MenuEntry("mnuViewArray(0)").isChecked());
}

TEST_F(MainMenu, ANewOrderSavesTheChangedHistory) {
    ClickCell("grdHist", 0, 1);
    Type("49");
    Press(Qt::Key_Return);
    Click("cmdButton(5)");
    EXPECT_EQ(CellText("grdHist", 2, 1), "49");
    EXPECT_FALSE(appState.historyDirty);
    std::vector<Draw> draws = threeDraws;
    draws[0].picks[0] = 49;
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")))
        << "the file keeps the order of its draws";
}

TEST_F(MainMenu, ANewOrderSavesAPickThatIsStillBeingTyped) {
    ClickCell("grdHist", 0, 1);
    Type("49");
    ChooseFromMenu("mnuView", "mnuViewArray(1)");
    EXPECT_EQ(CellText("grdHist", 2, 1), "49");
    Close();
    std::vector<Draw> draws = threeDraws;
    draws[0].picks[0] = 49;
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")));
}

TEST_F(MainMenu, ANewOrderDropsARefusedPickThatIsStillBeingTyped) {
    ClickCell("grdHist", 0, 1);
    Type("50");
    boxes.Expect("Ballhaven", "Number out of range for this lottery game", BoxButtons::Ok, BoxIcon::None);
    ChooseFromMenu("mnuView", "mnuViewArray(1)");
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
    ExpectOrder("0", descending);
    EXPECT_EQ(CellText("grdHist", 2, 1), "1");
}

TEST_F(MainMenu, TheOrderLastsUntilTheNextStart) {
    Click("cmdButton(5)");
    Close();
    Start();
    ExpectOrder("0", descending);
}

TEST_F(MainMenu, NothingIsOrderedWhileTheWindowIsStarting) {
    frmMainForm.windowStarting = true;
    Click("cmdButton(5)");
    frmMainForm.windowStarting = false;
    ExpectOrder("1", ascending);
}

TEST_F(MainMenu, YesErasesAllPlaysAndTheFileFollowsAtTheEnd) {
    ExpectQuestion(BoxAnswer::Yes);
    ChooseFromMenu("mnuEdit", "mnuEditArray(7)");
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 1), -1);
    EXPECT_TRUE(appState.playsDirty);
    WatchSaves();
    Close();
    EXPECT_EQ(saved, (Texts{"PLAYS01.CDB"}));
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(MainMenu, NoKeepsAllPlays) {
    const auto files = directory.Files();
    ExpectQuestion(BoxAnswer::No);
    Click("cmdButton(8)");
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 1), 10);
    EXPECT_FALSE(appState.playsDirty);
    Close();
    EXPECT_EQ(directory.Files(), files);
}

TEST_F(MainMenu, ExitClosesTheWindowAndEndsTheProcess) {
    ClickCell("grdHist", 1, 1);
    Type("48");
    ChooseFromMenu("mnuFile", "mnuFileArray(2)");
    EXPECT_EQ(exitCodes, (std::vector<int>{0}));
    EXPECT_FALSE(frmMainForm.window.IsLoaded());
    std::vector<Draw> draws = threeDraws;
    draws[1].picks[0] = 48;
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")));
}

TEST_F(MainMenu, AnEntryWithoutACommandChangesNothing) {
    const auto files = directory.Files();
    const auto withoutCommand = [](platform::MenuItem& entry) { entry.click = nullptr; };
    for (const ToolButton& each : toolButtons) {
        withoutCommand(each.entry);
        Click(each.name);
    }
    ChooseFromMenu("mnuFile", "mnuFileArray(0)");
    ChooseFromMenu("mnuTools", "mnuToolArray(0)");
    EXPECT_EQ(directory.Files(), files);
    EXPECT_EQ(Dates(), ascending);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace ballhaven
