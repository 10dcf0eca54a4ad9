#include "platform/qt/grid/GridInput.h"

#include "support/qt/GridOnScreen.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

class GridMouse : public testing::Test, protected support::LogOnScreen {
  protected:
    GridMouse() { Show(); }

    /// A place on the drop-down button of a row's date.
    [[nodiscard]] QPoint ButtonOf(int row) const {
        const GridPaneView* pane = PaneView(0);
        return pane->viewport()->mapTo(widget, GridCellPainter::ButtonIn(pane->CellPlace({0, row, 0})).center());
    }
};

TEST_F(GridMouse, AClickTellsThePressTheClickTheMoveAndTheEnd) {
    const QPoint place = MiddleOf(2, 3);

    Click(place);

    EXPECT_EQ(TakeNotices(), (Notices{"press " + std::to_string(place.x() * 15) + "," + std::to_string(place.y() * 15),
                                      "click", "change 2,3", "settled"}));
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridMouse, APressMovesNothingUntilTheRelease) {
    PressOnly(MiddleOf(2, 3));
    EXPECT_EQ(TakeNotices().size(), 1U);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));

    ReleaseOnly(MiddleOf(2, 3));
    EXPECT_EQ(TakeNotices(), (Notices{"click", "change 2,3", "settled"}));
}

TEST_F(GridMouse, AClickOnTheCurrentCellReportsNoMove) {
    ClickCell(0, 0);

    const Notices told = TakeNotices();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[1], "click");
    EXPECT_EQ(told[2], "settled");
}

TEST_F(GridMouse, AClickOnAColumnThatCannotTakeTheFocusMovesNothing) {
    PaneView(1)->horizontalScrollBar()->setValue(4);

    ClickCell(2, 8);

    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
    EXPECT_EQ(TakeNotices().back(), "settled");
}

TEST_F(GridMouse, APressIsToldForTheHeadingsAndTheMarginToo) {
    Click({200, 7});
    EXPECT_EQ(TakeNotices(), (Notices{"press 3000,105", "click", "settled"}));

    Click({5, 50});
    EXPECT_EQ(TakeNotices(), (Notices{"press 75,750", "click", "settled"}));
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, AClickBesideTheCellsOfALockedLogIsTold) {
    grid.Pane(1).locked = true;

    Click({200, 7});

    EXPECT_EQ(TakeNotices(), (Notices{"press 3000,105", "click", "settled"}));
}

TEST_F(GridMouse, AClickBelowTheLastRowMovesNothing) {
    grid.SetRowCount(3);

    Click({100, 200});

    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, ThePlaceOfAPressTellsTheVisibleRow) {
    PaneView(0)->verticalScrollBar()->setValue(10);
    for (const int line : {0, 1, 7, 18}) {
        const QRect cell = PaneView(0)->CellPlace({0, 10 + line, 0});
        const int top = PaneView(0)->viewport()->mapTo(widget, cell.topLeft()).y();
        for (const int y : {top, top + cell.height() - 1}) {
            EXPECT_EQ(y * 15 / 225, line + 1);
        }
    }
}

TEST_F(GridMouse, ThePlaceOfAPressTellsTheVisibleRowAtTheEndOfTheLogToo) {
    PaneView(0)->verticalScrollBar()->setValue(PaneView(0)->verticalScrollBar()->maximum());

    for (int row = grid.FirstVisibleRow(); row < 40; ++row) {
        const QRect cell = PaneView(0)->CellPlace({0, row, 0});
        const int top = PaneView(0)->viewport()->mapTo(widget, cell.topLeft()).y();
        EXPECT_EQ(top, 15 * (row - grid.FirstVisibleRow() + 1));
        EXPECT_EQ(grid.RowTop(row), top * 15);
    }
}

TEST_F(GridMouse, TheMarginEndsWhereItsListenerSaysSo) {
    const QRect cell = PaneView(0)->CellPlace({0, 0, 0});

    EXPECT_EQ(PaneView(0)->viewport()->mapTo(widget, cell.topLeft()).x(), 255 / 15);
}

TEST_F(GridMouse, TheListenerOfAPressMayMoveTheCurrentCell) {
    grid.mousePress = [this](int, int y) { grid.GoToRow(grid.FirstVisibleRow() + y / 225 - 1); };

    Click({5, 15 + 4 * 15 + 7});

    EXPECT_EQ(TakeNotices(), (Notices{"change 4,0", "click", "settled"}));
}

TEST_F(GridMouse, AReleaseOutsideTheGridIsNoClick) {
    PressOnly(MiddleOf(2, 3));

    ReleaseOnly({10, -10});

    EXPECT_EQ(TakeNotices().size(), 1U);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, ADragToAnotherCellIsNoClick) {
    PressOnly(MiddleOf(2, 3));
    MoveTo(MiddleOf(3, 3));
    ReleaseOnly(MiddleOf(3, 3));

    EXPECT_EQ(TakeNotices().size(), 1U);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, ADragFromTheHeadingsToACellIsNoClick) {
    PressOnly({100, 5});
    ReleaseOnly(MiddleOf(2, 3));

    EXPECT_EQ(TakeNotices().size(), 1U);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, AMoveWithinTheCellIsStillAClick) {
    PressOnly(MiddleOf(2, 3) - QPoint(5, 3));
    ReleaseOnly(MiddleOf(2, 3) + QPoint(5, 3));

    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridMouse, AnotherButtonOnlyTellsItsPress) {
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, widget->mapTo(&window, MiddleOf(2, 3)));

    EXPECT_EQ(TakeNotices().size(), 1U);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, AClickGivesTheGridTheKeyboard) {
    ClickCell(2, 3);

    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridMouse, ADoubleClickOpensTheEditor) {
    ClickCell(2, 3);

    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, MiddleOf(2, 3)));

    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(grid.HasSelectedText());
}

TEST_F(GridMouse, AClickOnTheButtonOfTheCurrentRowAsksForTheListLast) {
    Click(ButtonOf(0));

    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"click", "settled", "drop 0"}));
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridMouse, TheButtonOfTheCurrentRowServesFromTheOtherPaneToo) {
    grid.GoTo(3, 2);
    (void)TakeNotices();

    Click(ButtonOf(3));

    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"click", "change 3,0", "settled", "drop 0"}));
}

TEST_F(GridMouse, OtherRowsHaveNoButton) {
    Click(ButtonOf(5));

    EXPECT_EQ(TakeNotices().back(), "settled");
    EXPECT_EQ(Current(), (GridCell{0, 5, 0}));
}

TEST_F(GridMouse, TheWheelScrollsAllPanes) {
    QWheelEvent turn(QPointF(50, 50), PaneView(1)->viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, -120}, {}, {},
                     Qt::NoScrollPhase, false);

    QApplication::sendEvent(PaneView(1)->viewport(), &turn);

    EXPECT_GT(grid.FirstVisibleRow(), 0);
    EXPECT_EQ(PaneView(1)->verticalScrollBar()->value(), grid.FirstVisibleRow());
}

TEST_F(GridMouse, WhileOffAClickIsNotTold) {
    const GridPause pause(grid);

    ClickCell(2, 3);

    EXPECT_EQ(TakeNotices(), Notices{});
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridMouse, TheGridMayGoWhileItsClickIsTold) {
    grid.click = [this] {
        notices.emplace_back("click");
        grid.view = nullptr;
        delete widget;
    };

    ClickCell(2, 3);

    EXPECT_EQ(TakeNotices().back(), "click");
}

class GridKeys : public testing::Test, protected support::LogOnScreen {
  protected:
    GridKeys() {
        Show();
        grid.TakeFocus();
    }

    void Begin(int row, int column) {
        grid.GoTo(row, column);
        (void)TakeNotices();
    }
};

TEST_F(GridKeys, AKeyIsToldBeforeTheCurrentCellMoves) {
    Key(Qt::Key_Down);

    EXPECT_EQ(TakeNotices(), (Notices{"key Other", "change 1,0"}));
}

TEST_F(GridKeys, TheKeysThatAnOwnerServesAreToldByName) {
    Begin(0, 3);
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Left, Qt::Key_Right, Qt::Key_Tab}) {
        Key(key);
    }

    EXPECT_EQ(TakeNotices(),
              (Notices{"key Insert", "key Left", "change 0,2", "key Right", "change 0,3", "key Tab", "change 0,4"}));
}

TEST_F(GridKeys, AServedKeyDoesNothingMore) {
    grid.keyDown = [this](GridKey) {
        grid.GoToPane(1);
        return true;
    };

    Key(Qt::Key_Right);

    EXPECT_EQ(TakeNotices(), (Notices{"change 0,1"}));
    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridKeys, ArrowsGoOnInTheNextPane) {
    Key(Qt::Key_Right);
    EXPECT_EQ(Current(), (GridCell{1, 0, 1}));
    Key(Qt::Key_Left);
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
    EXPECT_EQ(QApplication::focusWidget(), PaneView(0));
}

TEST_F(GridKeys, ArrowsStopAtColumnsThatCannotTakeTheFocus) {
    Begin(0, 6);

    Key(Qt::Key_Right);

    EXPECT_EQ(TakeNotices(), (Notices{"key Right"}));
}

TEST_F(GridKeys, TheFirstRowHasNoneAboveIt) {
    Key(Qt::Key_Up);

    EXPECT_EQ(TakeNotices(), (Notices{"key Other"}));
}

TEST_F(GridKeys, PagesAreAsLongAsTheVisiblePart) {
    const int page = grid.VisibleRows();

    Key(Qt::Key_PageDown);
    EXPECT_EQ(grid.CurrentRow(), page);
    Key(Qt::Key_PageUp);
    EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST_F(GridKeys, HomeAndEndGoToTheEndsOfTheirPane) {
    Begin(4, 3);

    Key(Qt::Key_End);
    EXPECT_EQ(Current(), (GridCell{1, 4, 6}));
    Key(Qt::Key_Home);
    EXPECT_EQ(Current(), (GridCell{1, 4, 1}));
    Key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Current(), (GridCell{1, 39, 6}));
    Key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Current(), (GridCell{1, 0, 1}));
}

TEST_F(GridKeys, AMoveScrollsTheCellIntoView) {
    Key(Qt::Key_End, Qt::ControlModifier);

    EXPECT_TRUE(grid.RowTop(39).has_value());
}

TEST_F(GridKeys, TabLeavesTheGridBehindTheLastColumnOfItsPane) {
    Begin(0, 5);

    Key(Qt::Key_Tab);
    EXPECT_EQ(Current(), (GridCell{1, 0, 6}));
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
}

TEST_F(GridKeys, ShiftAndTabLeaveItBeforeTheFirstColumn) {
    Key(Qt::Key_Backtab, Qt::ShiftModifier);

    EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(GridKeys, TabComesIntoTheCurrentPane) {
    Begin(0, 2);
    before->setFocus();

    Key(Qt::Key_Tab);

    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridKeys, TwoKeysAskForTheListOfACellWithAButton) {
    Key(Qt::Key_F4);
    Key(Qt::Key_Down, Qt::AltModifier);

    EXPECT_EQ(TakeNotices(), (Notices{"key Other", "drop 0", "key Other", "drop 0"}));
    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
}

TEST_F(GridKeys, ACellWithoutAButtonHasNoList) {
    Begin(0, 1);

    Key(Qt::Key_F4);
    Key(Qt::Key_Down, Qt::AltModifier);

    EXPECT_EQ(TakeNotices(), (Notices{"key Other", "key Other"}));
}

TEST_F(GridKeys, WhileOffAKeyIsNotTold) {
    const GridPause pause(grid);

    Key(Qt::Key_Down);

    EXPECT_EQ(TakeNotices(), Notices{});
    EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST_F(GridKeys, WithoutRowsKeysMoveNothing) {
    grid.SetRowCount(0);

    Key(Qt::Key_Down);
    Key(Qt::Key_5);

    EXPECT_EQ(grid.CurrentRow(), -1);
    EXPECT_EQ(Editor(), nullptr);
}

class BoardInput : public testing::Test, protected support::BoardsOnScreen {
  protected:
    BoardInput() { Show(); }
};

TEST_F(BoardInput, AClickMovesToItsBoardBeforeItIsSettled) {
    const QPoint place = MiddleOf({3, 7, 2});

    Click(place);

    EXPECT_EQ(TakeNotices(), (Notices{"press " + std::to_string(place.x() * 15) + "," + std::to_string(place.y() * 15),
                                      "click", "change 3,7,2", "settled"}));
    EXPECT_EQ(Current(), (GridCell{3, 7, 2}));
    EXPECT_EQ(grid.Text(grid.CurrentColumn()), "D65");
}

TEST_F(BoardInput, AClickOnTheSameCellOfAnotherBoardIsAMove) {
    Click(MiddleOf({0, 0, 0}));
    (void)TakeNotices();

    Click(MiddleOf({1, 0, 0}));

    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"click", "change 1,0,0", "settled"}));
}

TEST_F(BoardInput, ADragFromBoardToBoardIsNoClick) {
    PressOnly(MiddleOf({0, 3, 3}));
    (void)TakeNotices();

    MoveTo(MiddleOf({4, 3, 3}));
    ReleaseOnly(MiddleOf({4, 3, 3}));

    EXPECT_EQ(Current(), (GridCell{0, 0, 0}));
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(BoardInput, AClickBesideTheCellsOfABoardIsNone) {
    Click(MiddleOf({2, 5, 3}));
    (void)TakeNotices();

    Click(MiddleOf({2, 23, 3}) + QPoint(0, 10));
    Click({2, 0});

    const Notices told = TakeNotices();
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].substr(0, 6) + told[1].substr(0, 6), "press press ");
    EXPECT_EQ(Current(), (GridCell{2, 5, 3}));
}

TEST_F(BoardInput, WhereSomethingCanBeTypedAClickBesideTheCellsIsOne) {
    grid.Pane(3).locked = false;

    Click(MiddleOf({2, 23, 3}) + QPoint(0, 10));

    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"click", "settled"}));
}

TEST_F(BoardInput, ArrowsCrossToTheNextBoardWithTheKeyboard) {
    Click(MiddleOf({1, 2, 8}));

    Key(Qt::Key_Right);
    EXPECT_EQ(Current(), (GridCell{2, 2, 0}));
    EXPECT_EQ(QApplication::focusWidget(), PaneView(2));
    Key(Qt::Key_Left);
    EXPECT_EQ(Current(), (GridCell{1, 2, 8}));
}

TEST_F(BoardInput, NothingCanBeTypedOnALockedBoard) {
    Click(MiddleOf({2, 1, 1}));

    Key(Qt::Key_5);

    EXPECT_EQ(Editor(), nullptr);
}

}  // namespace
}  // namespace ballhaven::platform
