#include "platform/qt/grid/GridPaneView.h"

#include "support/qt/GridOnScreen.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

class GridPaneViews : public testing::Test, protected support::LogOnScreen {
  protected:
    GridPaneViews() {
        Show();
        QTest::qWait(1);
    }

    /// What stands on the screen in the pick pane.
    [[nodiscard]] QImage OnScreen() const {
        const QImage all = window.screen()->grabWindow(window.winId()).toImage();
        const QWidget* viewport = PaneView(1)->viewport();
        return all.copy(QRect(viewport->mapTo(&window, QPoint(0, 0)), viewport->size()));
    }

    [[nodiscard]] QModelIndex IndexIn(int pane, int row, int column) const {
        return PaneView(pane)->model()->index(row, column);
    }
};

TEST_F(GridPaneViews, TheLastPixelsStayWhileTheGridIsOff) {
    const QImage drawn = OnScreen();
    const GridPause pause(grid);
    cells[0][1] = "77";

    PaneView(1)->viewport()->repaint();

    EXPECT_EQ(OnScreen(), drawn);
}

TEST_F(GridPaneViews, BackOnTheyAreDrawnAnew) {
    const QImage drawn = OnScreen();
    {
        const GridPause pause(grid);
        cells[0][1] = "77";
    }
    QTest::qWait(1);

    EXPECT_NE(OnScreen(), drawn);
}

TEST_F(GridPaneViews, AWindowThatComesToTheFrontOrLeavesItLetsNoCellBeDrawnAnew) {
    PaneView(1)->setFocus();
    QTest::qWait(1);
    for (const QEvent::Type change : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        cellsRead = 0;
        QEvent event(change);
        QApplication::sendEvent(PaneView(1), &event);
        QApplication::sendEvent(PaneView(1)->viewport(), &event);
        QTest::qWait(1);
        EXPECT_EQ(cellsRead, 0) << change;
    }
}

TEST_F(GridPaneViews, TheKeyboardComesAndGoesWithTheMarkOfOneCell) {
    grid.GoTo(1, 1);
    PaneView(0)->setFocus();
    QTest::qWait(1);
    const QImage without = OnScreen();
    cellsRead = 0;
    PaneView(1)->setFocus();
    QTest::qWait(1);
    EXPECT_NE(OnScreen(), without);
    EXPECT_GT(cellsRead, 0);
    EXPECT_LT(cellsRead, 10) << "the cell, and those that its mark touches";
    PaneView(0)->setFocus();
    QTest::qWait(1);
    EXPECT_EQ(OnScreen(), without);
}

TEST_F(GridPaneViews, APlaceThatWasNeverDrawnIsEmptyWhileTheGridIsOff) {
    const GridPause pause(grid);
    cellsRead = 0;

    PaneView(1)->resize(PaneView(1)->width() - 40, PaneView(1)->height());
    PaneView(1)->viewport()->repaint();

    const QImage drawn = OnScreen();
    EXPECT_EQ(drawn.pixel(10, 10), 0xFFFFFFFF);
    EXPECT_EQ(drawn.pixel(100, 100), 0xFFFFFFFF);
    EXPECT_EQ(cellsRead, 0);
}

TEST_F(GridPaneViews, TheTableOfTheCurrentPaneAloneHasACurrentCell) {
    grid.TakeFocus();
    grid.GoTo(2, 3);
    EXPECT_EQ(PaneView(1)->currentIndex(), IndexIn(1, 2, 2));
    EXPECT_FALSE(PaneView(0)->currentIndex().isValid());

    grid.GoTo(4, 0);
    EXPECT_EQ(PaneView(0)->currentIndex(), IndexIn(0, 4, 0));
    EXPECT_FALSE(PaneView(1)->currentIndex().isValid());
}

TEST_F(GridPaneViews, WithoutTheKeyboardNoTableHasACurrentCell) {
    grid.GoTo(2, 3);
    EXPECT_FALSE(PaneView(1)->currentIndex().isValid());

    grid.TakeFocus();
    EXPECT_EQ(PaneView(1)->currentIndex(), IndexIn(1, 2, 2));

    before->setFocus();
    EXPECT_FALSE(PaneView(1)->currentIndex().isValid());
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridPaneViews, AClickThatBringsTheKeyboardIsForTheCellOnWhichItFell) {
    grid.GoTo(2, 3);
    PaneView(1)->verticalScrollBar()->setValue(10);
    ClickCell(12, 3);
    EXPECT_EQ(Current(), (GridCell{1, 12, 3}));
    EXPECT_EQ(PaneView(1)->verticalScrollBar()->value(), 10);
}

TEST_F(GridPaneViews, AMoveFromOutsideIsTheUsers) {
    PaneView(1)->setCurrentIndex(IndexIn(1, 2, 2));

    EXPECT_EQ(TakeNotices(), (Notices{"change 2,3"}));
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridPaneViews, AMoveFromOutsideCannotReachAColumnWithoutFocus) {
    PaneView(1)->setCurrentIndex(IndexIn(1, 2, 9));

    EXPECT_EQ(TakeNotices(), Notices{});
    EXPECT_FALSE(PaneView(1)->currentIndex().isValid());
}

TEST_F(GridPaneViews, ARefusedValueStopsAMoveFromOutside) {
    grid.TakeFocus();
    grid.GoTo(2, 3);
    Type("99");

    PaneView(1)->setCurrentIndex(IndexIn(1, 5, 0));

    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
    EXPECT_NE(PaneView(1)->currentIndex(), IndexIn(1, 5, 0));
}

TEST_F(GridPaneViews, ReadingAgainKeepsTheTablesCurrentCell) {
    grid.TakeFocus();
    grid.GoTo(2, 3);

    grid.ReadAgain();

    EXPECT_EQ(PaneView(1)->currentIndex(), IndexIn(1, 2, 2));
}

}  // namespace
}  // namespace ballhaven::platform
