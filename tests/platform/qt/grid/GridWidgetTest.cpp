#include "platform/qt/grid/GridWidget.h"

#include "support/qt/GridOnScreen.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

class GridShown : public testing::Test, protected support::LogOnScreen {
  protected:
    GridShown() {
        grid.painted = [this] { ++paintings; };
        Show();
        LetItPaint();
    }

    /// Lets pending repaints, and the notices behind them, happen.
    static void LetItPaint() {
        for (int round = 0; round < 3; ++round) {
            QTest::qWait(1);
            QApplication::processEvents();
        }
    }

    [[nodiscard]] QImage Pixels() const { return PaneView(1)->viewport()->grab().toImage(); }

    int paintings = 0;
};

TEST_F(GridShown, ItsPartsBearTheNameOfTheGrid) {
    EXPECT_EQ(widget->objectName(), QStringLiteral("grid"));
    EXPECT_NE(window.findChild<QTableView*>(QStringLiteral("grid.pane(0)")), nullptr);
    EXPECT_NE(window.findChild<QTableView*>(QStringLiteral("grid.pane(1)")), nullptr);
}

TEST_F(GridShown, ItsPanesAreCalledByTheGridsAccessibleName) {
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Log"));
    EXPECT_EQ(PaneView(0)->accessibleName(), QStringLiteral("Log 1"));
    EXPECT_EQ(PaneView(1)->accessibleName(), QStringLiteral("Log 2"));
}

TEST_F(GridShown, ItStandsWhereTheLayoutPutsIt) {
    EXPECT_EQ(widget->geometry(), QRect(10, 20, 381, 320));

    grid.SetHeight(3000);
    EXPECT_EQ(widget->height(), 200);
}

TEST_F(GridShown, TheVisiblePartBeginsBelowTheHeadings) {
    // 320 pixels less 15 for the headings, 1 for the frame and a scroll bar of 10 to 19 hold 19 rows of 15.
    EXPECT_EQ(grid.FirstVisibleRow(), 0);
    EXPECT_EQ(grid.VisibleRows(), 19);
    EXPECT_EQ(grid.RowTop(0), 225);
    EXPECT_EQ(grid.RowTop(18), 225 * 19);
    EXPECT_EQ(grid.RowTop(19), std::nullopt);
}

TEST_F(GridShown, RowsOutsideTheVisiblePartHaveNoPlace) {
    PaneView(0)->verticalScrollBar()->setValue(5);

    EXPECT_EQ(grid.FirstVisibleRow(), 5);
    EXPECT_EQ(grid.RowTop(4), std::nullopt);
    EXPECT_EQ(grid.RowTop(5), 225);
}

TEST_F(GridShown, FewRowsAreAllThatIsVisible) {
    grid.SetRowCount(4);

    EXPECT_EQ(grid.VisibleRows(), 4);
    EXPECT_EQ(grid.RowTop(3), 225 * 4);
    EXPECT_EQ(grid.RowTop(4), std::nullopt);
}

TEST_F(GridShown, PanesScrollInStepWithTheBar) {
    auto* bar = widget->findChild<QScrollBar*>(QStringLiteral("grid.rows"));
    ASSERT_TRUE(bar->isVisible());

    bar->setValue(7);
    EXPECT_EQ(PaneView(0)->verticalScrollBar()->value(), 7);
    EXPECT_EQ(PaneView(1)->verticalScrollBar()->value(), 7);

    PaneView(1)->verticalScrollBar()->setValue(3);
    EXPECT_EQ(PaneView(0)->verticalScrollBar()->value(), 3);
    EXPECT_EQ(bar->value(), 3);
}

TEST_F(GridShown, TheBarGoesWhenAllRowsHaveRoom) {
    auto* bar = widget->findChild<QScrollBar*>(QStringLiteral("grid.rows"));

    grid.SetRowCount(10);

    EXPECT_FALSE(bar->isVisible());
}

TEST_F(GridShown, OnlyThePaneWithMoreColumnsThanItIsWideHasABarBelow) {
    EXPECT_FALSE(widget->findChild<QScrollBar*>(QStringLiteral("grid.columns(0)"))->isVisible());
    EXPECT_TRUE(widget->findChild<QScrollBar*>(QStringLiteral("grid.columns(1)"))->isVisible());
}

TEST_F(GridShown, TheBarBelowReachesTheLastColumn) {
    auto* bar = widget->findChild<QScrollBar*>(QStringLiteral("grid.columns(1)"));

    bar->setValue(bar->maximum());

    EXPECT_TRUE(PaneView(1)->viewport()->rect().contains(PaneView(1)->CellPlace({1, 0, 10})));
    EXPECT_FALSE(PaneView(1)->viewport()->rect().intersects(PaneView(1)->CellPlace({1, 0, 4})));
}

TEST_F(GridShown, AMoveByTheProgramScrollsTheCellIntoView) {
    grid.GoTo(35, 3);

    EXPECT_TRUE(grid.RowTop(35).has_value());
    EXPECT_EQ(PaneView(0)->verticalScrollBar()->value(), PaneView(1)->verticalScrollBar()->value());
}

TEST_F(GridShown, AMoveToTheCurrentCellScrollsItBackIntoView) {
    PaneView(0)->verticalScrollBar()->setValue(20);

    grid.GoToRow(0);

    EXPECT_EQ(grid.FirstVisibleRow(), 0);
}

TEST_F(GridShown, ReadingAgainKeepsTheCurrentCellAndTheVisiblePart) {
    grid.GoTo(12, 3);
    PaneView(0)->verticalScrollBar()->setValue(6);
    (void)TakeNotices();

    grid.ReadAgain();

    EXPECT_EQ(Current(), (GridCell{1, 12, 3}));
    EXPECT_EQ(grid.FirstVisibleRow(), 6);
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(GridShown, RepaintingAsksForTextsAndNotForRows) {
    cells.resize(12);

    grid.Repaint();
    LetItPaint();

    EXPECT_EQ(PaneView(0)->model()->rowCount(), 40);
}

TEST_F(GridShown, OnlyTheVisibleRowsAreDrawn) {
    cellsRead = 0;

    grid.Repaint();
    LetItPaint();

    // 20 rows at the most are in view, each with a date and six picks.
    EXPECT_GT(cellsRead, 0);
    EXPECT_LE(cellsRead, 20 * 7);
}

TEST_F(GridShown, AMoveOfTheCurrentCellDrawsTwoRows) {
    grid.GoTo(4, 3);
    LetItPaint();
    cellsRead = 0;

    grid.GoTo(9, 3);
    LetItPaint();

    // A date and six picks in each of the two.
    EXPECT_EQ(cellsRead, 2 * 7);
}

TEST_F(GridShown, StylingAColumnPlacesNoPartAnew) {
    int placings = 0;
    QHeaderView* headings = PaneView(1)->horizontalHeader();
    QObject::connect(headings, &QHeaderView::sectionResized, widget, [&] { ++placings; });
    const int width = headings->sectionSize(9);
    headings->resizeSection(9, width + 5);
    placings = 0;

    grid.Column(10).background = platform::windowColor;
    grid.Column(10).heading = "+";
    EXPECT_EQ(placings, 0);

    grid.Column(10).width = 750;
    EXPECT_EQ(headings->sectionSize(9), 50);
}

TEST_F(GridShown, ARepaintIsToldOnceForAllPanes) {
    paintings = 0;

    grid.Repaint();
    LetItPaint();

    EXPECT_EQ(paintings, 1);
}

TEST_F(GridShown, ScrollingAndMovingAreRepaints) {
    paintings = 0;
    PaneView(0)->verticalScrollBar()->setValue(3);
    LetItPaint();
    EXPECT_EQ(paintings, 1);

    grid.GoToRow(5);
    LetItPaint();
    EXPECT_EQ(paintings, 2);
}

TEST_F(GridShown, WhatItsListenerMovesOverTheGridIsNotToldAgain) {
    QWidget sibling(&window);
    sibling.setGeometry(widget->x() + 2, widget->y() + 20, 19, 16);
    sibling.show();
    grid.painted = [&] {
        ++paintings;
        sibling.move(sibling.x(), sibling.y() + 1);
        sibling.raise();
    };
    paintings = 0;

    grid.Repaint();
    LetItPaint();
    LetItPaint();

    EXPECT_EQ(paintings, 1);
}

TEST_F(GridShown, WhileOffNothingIsReadDrawnOrTold) {
    const GridPause pause(grid);
    cellsRead = 0;
    paintings = 0;

    grid.SetRowCount(30);
    grid.ReadAgain();
    grid.Repaint();
    grid.GoToRow(20);
    grid.Column(2).heading = "+";
    PaneView(1)->viewport()->repaint();
    (void)Pixels();
    LetItPaint();

    EXPECT_EQ(cellsRead, 0);
    EXPECT_EQ(paintings, 0);
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(GridShown, BackOnItShowsWhatHasChangedMeanwhile) {
    {
        const GridPause pause(grid);
        cells.resize(30);
        grid.SetRowCount(30);
        grid.GoToRow(25);
    }

    EXPECT_EQ(PaneView(0)->model()->rowCount(), 30);
    EXPECT_TRUE(grid.RowTop(25).has_value());
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(GridShown, TheKeyboardFollowsTheCurrentPane) {
    grid.TakeFocus();
    EXPECT_EQ(QApplication::focusWidget(), PaneView(0));

    grid.GoToPane(1);
    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridShown, AMoveByTheProgramTakesNoKeyboardFromOthers) {
    before->setFocus();

    grid.GoTo(5, 3);

    EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(GridShown, AChangedCountOfColumnsInViewIsTakenOver) {
    const int width = PaneView(1)->width();

    grid.Pane(1).columnsWide = 5;

    EXPECT_EQ(width, 6 * 40);
    EXPECT_EQ(PaneView(1)->width(), 5 * 40);
}

TEST_F(GridShown, ItCanBeHiddenAndDisabled) {
    grid.visible = false;
    EXPECT_FALSE(widget->isVisible());
    grid.visible = true;
    grid.enabled = false;
    EXPECT_TRUE(widget->isVisible());
    EXPECT_FALSE(widget->isEnabled());
}

class BoardsShown : public testing::Test, protected support::BoardsOnScreen {
  protected:
    BoardsShown() { Show(); }
};

TEST_F(BoardsShown, AllRowsAndColumnsOfFiveBoardsHaveRoom) {
    EXPECT_EQ(grid.VisibleRows(), 24);
    for (int board = 0; board < 5; ++board) {
        EXPECT_TRUE(PaneView(board)->viewport()->rect().contains(PaneView(board)->CellPlace({board, 23, 8}))) << board;
    }
}

TEST_F(BoardsShown, TheyStandSideBySide) {
    // 671 pixels less 2 on each side and 4 between the boards are 663: 132 for each, and 3 over.
    EXPECT_EQ(grid.PaneLeft(0), 2 * 15);
    EXPECT_EQ(grid.PaneLeft(1), (2 + 132 + 1) * 15);
    EXPECT_EQ(PaneView(1)->x(), 2 + 132 + 1);
}

TEST_F(BoardsShown, EachBearsItsOwnersName) {
    EXPECT_EQ(PaneView(0)->accessibleName(), QStringLiteral("Line A"));
    EXPECT_EQ(PaneView(4)->accessibleName(), QStringLiteral("Line E"));
}

TEST_F(BoardsShown, OnlyTheCellOfTheRightBoardHasItsColours) {
    chosen = {3, 2, 1};
    grid.cellText = [](const GridCell&) { return std::string(); };
    grid.Repaint();

    const QImage image = Draw();

    for (int board = 0; board < 5; ++board) {
        const QRgb expected = board == 3 ? 0xFF000000 : 0xFFFFFFFF;
        EXPECT_EQ(support::PixelAt(image, MiddleOf({board, 2, 1})), expected) << board;
    }
}

TEST_F(BoardsShown, OnlyTheBoardOfTheCurrentCellHasAMark) {
    grid.TakeFocus();
    grid.GoTo({1, 5, 4});

    EXPECT_TRUE(PaneView(1)->currentIndex().isValid());
    EXPECT_FALSE(PaneView(0)->currentIndex().isValid());
    EXPECT_FALSE(PaneView(2)->currentIndex().isValid());
}

}  // namespace
}  // namespace ballhaven::platform
