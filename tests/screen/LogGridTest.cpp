#include "screen/LogGrid.h"

#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "platform/Application.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using Texts = std::vector<std::string>;

constexpr const char* outOfRange = "Number out of range for this lottery game";
const platform::Grid& log = frmMainForm.grdHist;

std::string January(int day) {
    return std::string(day < 10 ? "01/0" : "01/") + std::to_string(day) + "/1990";
}

/// Draws of six numbers, the first one 1 to 6, the second one 2 to 7, and so on, from 1 January 1990 on.
std::vector<Draw> Days(int count) {
    std::vector<Draw> draws;
    for (int day = 1; day <= count; ++day) {
        draws.push_back({January(day), {day, day + 1, day + 2, day + 3, day + 4, day + 5}});
    }
    return draws;
}

/// Six numbers of 1 to 49, five draws; the program opens with the cursor on the first pick of the newest one.
class LogGrid : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.draws = Days(draws)});
        Start();
    }

    [[nodiscard]] Texts Row(int row) const {
        Texts cells;
        for (int column = 0; column <= 6; ++column) {
            cells.push_back(CellText("grdHist", row, column));
        }
        return cells;
    }

    void ExpectCursor(int pane, int row, int column) const {
        EXPECT_EQ(log.CurrentPane(), pane);
        EXPECT_EQ(log.CurrentRow(), row);
        EXPECT_EQ(log.CurrentColumn(), column);
        const std::string name = "grdHist.pane(" + std::to_string(pane) + ")";
        const QWidget* const focused = QApplication::focusWidget();
        EXPECT_TRUE(focused != nullptr && (focused == &Find(name.c_str()) || Find(name.c_str()).isAncestorOf(focused)));
    }

    void ExpectRefusal() { boxes.Expect("Ballhaven", outOfRange, BoxButtons::Ok, BoxIcon::None); }

    /// The game dialog has gone with another slot in the list of games, which is to be loaded.
    void LoadSlotByActivation(int slot) {
        frmMainForm.gameLoading = true;
        frmMainForm.cboList[0].Select(slot - 1);
        frmMainForm.gameLoading = false;
        appState.gameDialogMode = GameDialogMode::Altering;
        boxes.Expect(
            "Ballhaven",
            "You need to configure game number " + std::to_string(slot) + ".\nWould you like to set up the game now?",
            BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::No);
        frmMainForm.window.activate();
        platform::ProcessPendingEvents();
    }

    void ExpectFile(const std::vector<Draw>& expected) const {
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(expected), directory.Read("GAME01.CDB")));
    }

    /// A press and release at a place of the log, in pixels.
    void ClickLog(int x, int y) const { ClickAt("grdHist", {x, y}); }

    static constexpr int draws = 5;

    /// A place in the margin, in pixels, that the hi-lite button leaves free.
    static constexpr int leftOfButton = 1;
};

using QuirkLogDirty1 = LogGrid;

TEST_F(LogGrid, OpensOnTheFirstPickOfTheNewestDrawWithTheKeyboard) {
    EXPECT_EQ(RowsShown("grdHist"), 5);
    EXPECT_EQ(Row(0), (Texts{"01/01/1990", "1", "2", "3", "4", "5", "6"}));
    ExpectCursor(pickPane, 4, 1);
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(LogGrid, HasTheDateAndTenPickColumnsInTwoPanes) {
    EXPECT_EQ(Headings("grdHist"), (Texts{"Historical Log", "", "", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(Usable<QTableView>("grdHist.pane(0)").model()->columnCount(), 1);
    EXPECT_EQ(Usable<QTableView>("grdHist.pane(1)").model()->columnCount(), 10);
}

TEST_F(LogGrid, ATypedPickIsTakenAndCounted) {
    Type("49");
    EXPECT_EQ(EditorText("grdHist"), "49");
    EXPECT_EQ(appState.HistoryTable(1, 4), 5) << "not before the cell is left";
    Press(Qt::Key_Return);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
    EXPECT_EQ(Row(4), (Texts{"01/05/1990", "49", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(appState.HistoryTable(1, 4), 49);
    EXPECT_EQ(appState.historyView(1, 4), 49);
    EXPECT_EQ(CellText("grdHot", RowsShown("grdHot") - 1, 0), "49") << "drawn once";
    EXPECT_EQ(boxes.Answered(), 0U);
}

TEST_F(LogGrid, AValueOfZeroIsRefusedWithOneBoxTheOldValueAndTheCursorInTheCell) {
    ExpectRefusal();
    Type("0");
    Press(Qt::Key_Return);
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(EditorText("grdHist"), "0");
    ExpectCursor(pickPane, 4, 1);
    EXPECT_EQ(appState.HistoryTable(1, 4), 5);
    EXPECT_EQ(appState.historyView(1, 4), 5);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Row(4)[1], "5");
}

TEST_F(LogGrid, EveryWayOutOfACellWithARefusedValueShowsOneBoxAndStays) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Left}) {
        ExpectRefusal();
        Type("50");
        if (key == Qt::Key_Left) {
            Press(Qt::Key_Home);
        }
        Press(key);
        EXPECT_EQ(boxes.Left(), 0U) << key;
        EXPECT_EQ(EditorText("grdHist"), "50") << key;
        ExpectCursor(pickPane, 4, 1);
        Press(Qt::Key_Escape);
    }
    EXPECT_EQ(Row(4)[1], "5");
}

TEST_F(LogGrid, AClickOnAnotherCellLeavesARefusedValueWhereItIs) {
    ExpectRefusal();
    Type("77");
    ClickCell("grdHist", 1, 3);
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(EditorText("grdHist"), "77");
    ExpectCursor(pickPane, 4, 1);
    EXPECT_EQ(Row(4)[1], "5");
}

TEST_F(LogGrid, AClickOnASelectorLeavesARefusedValueWhereItIsAndDoesNothing) {
    ExpectRefusal();
    Type("77");
    ClickAt("cboList(2)", {5, 5});
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_FALSE(Find<QComboBox>("cboList(2)").view()->isVisible());
    EXPECT_EQ(EditorText("grdHist"), "77");
    ExpectCursor(pickPane, 4, 1);
}

TEST_F(LogGrid, AClickOnAnotherCellTakesAValueInRange) {
    Type("17");
    ClickCell("grdHist", 1, 3);
    ExpectCursor(pickPane, 1, 3);
    EXPECT_EQ(Row(4)[1], "17");
}

TEST_F(LogGrid, ATextWithoutLeadingDigitsIsZeroAndRefused) {
    ExpectRefusal();
    Type("x9");
    Press(Qt::Key_Return);
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(EditorText("grdHist"), "x9");
}

TEST_F(LogGrid, AnEmptiedCellIsAcceptedAndStoresNoPick) {
    Press(Qt::Key_Delete);
    EXPECT_EQ(EditorText("grdHist"), "");
    Press(Qt::Key_Return);
    EXPECT_EQ(boxes.Answered(), 0U);
    EXPECT_EQ(Row(4)[1], "");
    EXPECT_EQ(appState.HistoryTable(1, 4), -1);
    EXPECT_EQ(appState.historyView(1, 4), -1);
}

TEST_F(LogGrid, TheLastPickOfARowReturnsTheCursorToTheDate) {
    ClickCell("grdHist", 2, 6);
    Type("40");
    Press(Qt::Key_Return);
    ExpectCursor(datePane, 2, 0);
    EXPECT_EQ(Row(2)[6], "40");
}

TEST_F(LogGrid, TabBehindTheLastPickReturnsToTheDateOfTheSameRow) {
    ClickCell("grdHist", 2, 6);
    Type("40");
    Press(Qt::Key_Tab);
    ExpectCursor(datePane, 2, 0);
}

TEST_F(LogGrid, EveryOtherPickLeavesTheCursorWhereItIs) {
    for (int column = 1; column <= 5; ++column) {
        ClickCell("grdHist", 2, column);
        Type("40");
        Press(Qt::Key_Return);
        ExpectCursor(pickPane, 2, column);
        EXPECT_EQ(Row(2)[static_cast<std::size_t>(column)], "40");
    }
}

TEST_F(LogGrid, AWholeDrawIsTypedWithTabsOnly) {
    for (const char* pick : {"11", "12", "13", "14", "15", "16"}) {
        Type(pick);
        Press(Qt::Key_Tab);
    }
    EXPECT_EQ(Row(4), (Texts{"01/05/1990", "11", "12", "13", "14", "15", "16"}));
    ExpectCursor(datePane, 4, 0);
    Press(Qt::Key_Tab);
    ExpectCursor(pickPane, 4, 1);
}

TEST_F(LogGrid, TwoRowsOfOneDateBothGetTheValue) {
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    std::vector<Draw> twins = Days(2);
    twins.push_back({January(2), {21, 22, 23, 24, 25, 26}});
    Store({.draws = twins});
    Start();
    ClickCell("grdHist", 1, 2);
    Type("33");
    Press(Qt::Key_Return);
    EXPECT_EQ(Row(1)[2], "33");
    EXPECT_EQ(Row(2)[2], "33");
    EXPECT_EQ(Row(0)[2], "2");
    twins[1].picks[1] = twins[2].picks[1] = 33;
    Close();
    ExpectFile(twins);
}

// Not a bug: LOG-DIRTY-1 in docs/not-bugs.md.
TEST_F(QuirkLogDirty1, APickTypedWithoutAPressOfTheMouseIsNotSaved) {
    Type("49");
    Press(Qt::Key_Return);
    EXPECT_EQ(appState.HistoryTable(1, 4), 49);
    EXPECT_FALSE(appState.historyDirty);
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    ExpectFile(Days(5));
}

TEST_F(QuirkLogDirty1, InAMendedFolderAPickTypedWithoutAPressOfTheMouseIsSavedAtTheEnd) {
    Close();
    exitCodes.clear();
    MendFiles();
    Start();
    Type("49");
    Press(Qt::Key_Return);
    EXPECT_TRUE(appState.historyDirty);
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    std::vector<Draw> expected = Days(5);
    expected[4].picks[0] = 49;
    std::string file = support::HistoryFileOf(expected);
    file[63] = 'M';
    EXPECT_TRUE(support::historyFileFormat.Same(file, directory.Read("GAME01.CDB")));
}

TEST_F(QuirkLogDirty1, AMereClickMarksTheHistoryAsChanged) {
    WatchSaves();
    ClickCell("grdHist", 1, 3);
    EXPECT_TRUE(appState.historyDirty);
    EXPECT_TRUE(saved.empty());
    ChooseEntry("cboList(1)", 20);
    EXPECT_FALSE(appState.historyDirty) << "the next chance to save";
}

TEST_F(LogGrid, APickTypedAfterAPressIsSavedAtTheEnd) {
    ClickCell("grdHist", 1, 3);
    Type("44");
    Press(Qt::Key_Return);
    Close();
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    std::vector<Draw> expected = Days(5);
    expected[1].picks[2] = 44;
    ExpectFile(expected);
}

TEST_F(LogGrid, APickThatIsStillBeingTypedIsTakenAtTheEnd) {
    ClickCell("grdHist", 1, 3);
    Type("44");
    Close();
    std::vector<Draw> expected = Days(5);
    expected[1].picks[2] = 44;
    ExpectFile(expected);
}

TEST_F(LogGrid, ARefusedPickThatIsStillBeingTypedIsNotSavedAtTheEnd) {
    ClickCell("grdHist", 1, 3);
    Type("99");
    ExpectRefusal();
    Close();
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(exitCodes, std::vector<int>{0});
    ExpectFile(Days(5));
}

TEST_F(LogGrid, APickThatIsStillBeingTypedStaysInItsGameWhenAnotherOneIsLoaded) {
    ClickCell("grdHist", 1, 3);
    Type("44");
    LoadSlotByActivation(2);
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
    std::vector<Draw> expected = Days(5);
    expected[1].picks[2] = 44;
    ExpectFile(expected);
}

TEST_F(LogGrid, ARefusedPickThatIsStillBeingTypedIsDroppedWhenAnotherGameIsLoaded) {
    ClickCell("grdHist", 1, 3);
    Type("99");
    ExpectRefusal();
    LoadSlotByActivation(2);
    EXPECT_EQ(boxes.Answered(), 2U);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
    ExpectFile(Days(5));
}

TEST_F(LogGrid, InsertSelectsTheWholeTextOfTheCell) {
    Press(Qt::Key_Insert);
    ASSERT_EQ(EditorText("grdHist"), "5");
    EXPECT_TRUE(log.HasSelectedText());
    Type("8");
    Press(Qt::Key_Return);
    EXPECT_EQ(Row(4)[1], "8");
}

TEST_F(LogGrid, LeftInTheFirstPickGoesToTheDateUnlessTextIsSelected) {
    Press(Qt::Key_Insert);
    Press(Qt::Key_Left);
    ExpectCursor(pickPane, 4, 1);
    Press(Qt::Key_Left);
    ExpectCursor(datePane, 4, 0);
}

TEST_F(LogGrid, RightAndTabGoFromTheDateToTheFirstPick) {
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Tab}) {
        Press(Qt::Key_Left);
        ExpectCursor(datePane, 4, 0);
        Press(key);
        ExpectCursor(pickPane, 4, 1);
    }
}

TEST_F(LogGrid, TheArrowsGoBetweenTheRows) {
    Press(Qt::Key_Up);
    ExpectCursor(pickPane, 3, 1);
    Press(Qt::Key_Right);
    ExpectCursor(pickPane, 3, 2);
    Press(Qt::Key_Down);
    ExpectCursor(pickPane, 4, 2);
}

TEST_F(LogGrid, NothingCanBeTypedInTheDate) {
    Press(Qt::Key_Left);
    Type("1");
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
    Press(Qt::Key_Insert);
    EXPECT_EQ(EditorText("grdHist"), std::nullopt);
}

TEST_F(LogGrid, AClickInTheMarginSelectsTheRowBesideIt) {
    Press(Qt::Key_Left);
    for (const int row : {0, 3, 1}) {
        ClickLog(leftOfButton, 15 + row * 15 + 7);
        ExpectCursor(datePane, row, 0);
    }
    EXPECT_TRUE(appState.historyDirty);
}

TEST_F(LogGrid, TheMarginsRowsBeginAndEndAtTheirPixels) {
    Press(Qt::Key_Left);
    ClickLog(leftOfButton, 29);
    ExpectCursor(datePane, 0, 0);
    ClickLog(leftOfButton, 30);
    ExpectCursor(datePane, 1, 0);
    ClickLog(leftOfButton, 15);
    ExpectCursor(datePane, 0, 0);
    ClickLog(leftOfButton, 45);
    ClickLog(leftOfButton, 14);
    ExpectCursor(datePane, 2, 0);
}

TEST_F(LogGrid, AMarginClickBelowTheLastRowOrFromThePicksSelectsNothing) {
    ClickLog(leftOfButton, 15);
    ExpectCursor(pickPane, 4, 1);
    Press(Qt::Key_Left);
    ClickLog(leftOfButton, 15 + 5 * 15 - 1);
    ExpectCursor(datePane, 4, 0);
    ClickLog(leftOfButton, 15);
    ClickLog(leftOfButton, 15 + 5 * 15);
    ExpectCursor(datePane, 0, 0);
}

// The margin is as wide as 255 twips: the press itself moves the row up to there, and a cell only takes its click.
TEST_F(LogGrid, ThePressMovesTheRowUpToThePixelOf255TwipsAndNoFurther) {
    Press(Qt::Key_Left);
    QWindow* const window = MainWindow().windowHandle();
    const QPoint corner = Usable("grdHist").mapTo(&MainWindow(), QPoint(0, 0));
    const QPoint away(0, -5);
    for (const auto& [x, row] : std::vector<std::pair<int, int>>{{0, 0}, {17, 0}, {18, 4}}) {
        ClickLog(leftOfButton, 15 + 4 * 15);
        QTest::mousePress(window, Qt::LeftButton, {}, corner + QPoint(x, 15));
        EXPECT_EQ(log.CurrentRow(), row) << x;
        QTest::mouseRelease(window, Qt::LeftButton, {}, corner + away);
    }
}

TEST_F(LogGrid, MovingTheCurrentCellEndsTheWinnersDisplay) {
    appState.hiLiteWinners = true;
    Press(Qt::Key_Up);
    EXPECT_FALSE(appState.hiLiteWinners);
    appState.hiLiteWinners = true;
    ClickCell("grdHist", 0, 2);
    EXPECT_FALSE(appState.hiLiteWinners);
    appState.hiLiteWinners = true;
    ClickCell("grdHist", 0, 2);
    EXPECT_TRUE(appState.hiLiteWinners) << "nothing has moved";
}

TEST_F(LogGrid, AClickOnTheDatesButtonMakesTheDatePaneCurrent) {
    const QRect cell = CellPlace("grdHist", 4, 0);
    InModal(ahcCalendar.window, [this] { ClickToClose("cmdCal(0)"); });
    ClickLog(cell.right() - 8, cell.center().y());
    ExpectCursor(datePane, 4, 0);
}

TEST_F(LogGrid, GreyColumnsCannotTakeTheFocus) {
    ClickCell("grdHist", 2, 3);
    for (const int column : {7, 10}) {
        ClickCell("grdHist", 1, column);
        ExpectCursor(pickPane, 2, 3);
    }
    ClickCell("grdHist", 2, 6);
    Press(Qt::Key_Right);
    ExpectCursor(pickPane, 2, 6);
    Press(Qt::Key_End);
    ExpectCursor(pickPane, 2, 6);
}

/// Two main numbers of 1 to 49 and a bonus of its own pool, 1 to 5.
class LogGridOfABonusGame : public LogGrid {
  protected:
    void SetUp() override {
        Store({.gameType = 2, .mainPicks = 2, .bonusPicks = 1, .bonusHigh = 5, .draws = {{January(1), {7, 8, 3}}}});
        Start();
    }
};

TEST_F(LogGridOfABonusGame, HeadsTheBonusPicksWithAPlus) {
    EXPECT_EQ(Headings("grdHist"), (Texts{"Historical Log", "", "", "+", "", "", "", "", "", "", ""}));
}

TEST_F(LogGridOfABonusGame, ChecksABonusPickAgainstItsOwnPool) {
    ClickCell("grdHist", 0, 3);
    ExpectRefusal();
    Type("6");
    Press(Qt::Key_Return);
    EXPECT_EQ(boxes.Answered(), 1U);
    Press(Qt::Key_Escape);
    Type("5");
    Press(Qt::Key_Return);
    EXPECT_EQ(CellText("grdHist", 0, 3), "5");
    ExpectCursor(datePane, 0, 0);
}

/// A game whose record tells no number of picks: it has one column of picks, and no main pick.
class LogGridWithoutMainPicks : public LogGrid {
  protected:
    void SetUp() override {
        Store({.mainPicks = 0, .draws = {{January(1), {5}}}});
        Start();
    }
};

TEST_F(LogGridWithoutMainPicks, TakesAnyNumberBehindThem) {
    ClickCell("grdHist", 0, 1);
    Type("99");
    Press(Qt::Key_Return);
    EXPECT_EQ(CellText("grdHist", 0, 1), "99");
    EXPECT_EQ(appState.HistoryTable(1, 0), 99);
}

/// Ten numbers of 1 to 49, more than the pane of the picks is wide.
class LogGridOfTenPicks : public LogGrid {
  protected:
    void SetUp() override {
        Store({.mainPicks = 10, .draws = {{January(1), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}}});
        Start();
    }

    /// Whether the whole cell that is being typed in is in sight.
    [[nodiscard]] bool EditorIsInSight() const {
        const auto& editor = Usable<QLineEdit>("grdHist.editor");
        return editor.visibleRegion().boundingRect() == editor.rect();
    }
};

TEST_F(LogGridOfTenPicks, AWholeDrawIsTypedWithTabsOnlyAndScrollsIntoSight) {
    for (const char* pick : {"11", "12", "13", "14", "15", "16", "17", "18", "19", "20"}) {
        Type(pick);
        EXPECT_TRUE(EditorIsInSight()) << pick;
        Press(Qt::Key_Tab);
    }
    ExpectCursor(datePane, 0, 0);
    for (int column = 1; column <= 10; ++column) {
        EXPECT_EQ(CellText("grdHist", 0, column), std::to_string(10 + column));
    }
    Press(Qt::Key_Tab);
    Type("21");
    ExpectCursor(pickPane, 0, 1);
    EXPECT_TRUE(EditorIsInSight());
}

/// Two cards: the ace of hearts (1), the two of clubs (15), the three of diamonds (29) and the four of spades (43).
class LogGridOfCards : public LogGrid {
  protected:
    void SetUp() override {
        Store({.gameType = 3, .mainPicks = 2, .high = 52, .draws = {{January(1), {1, 15}}, {January(2), {29, 43}}}});
        Start();
    }
};

TEST_F(LogGridOfCards, NothingCanBeTyped) {
    ClickCell("grdHist", 1, 1);
    for (const Qt::Key key : {Qt::Key_9, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Insert}) {
        Press(key);
        EXPECT_EQ(EditorText("grdHist"), std::nullopt) << key;
    }
    EXPECT_EQ(CellText("grdHist", 1, 1), "3d");
    Close();
    ExpectFile({{January(1), {1, 15}}, {January(2), {29, 43}}});
}

}  // namespace
}  // namespace ballhaven
