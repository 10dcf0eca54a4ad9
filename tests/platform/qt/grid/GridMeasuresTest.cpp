#include "platform/qt/grid/GridMeasures.h"

#include <gtest/gtest.h>

#include <numeric>

namespace ballhaven::platform {
namespace {

constexpr int bar = 14;

int Sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// A board of nine columns of 220 twips and rows of 180, without headings.
class BoardMeasures : public testing::Test {
  protected:
    BoardMeasures() {
        board.SetColumns(9);
        board.AddPane(0, 8);
        board.showsHeadings = false;
        board.rowHeight = 180;
        for (int column = 0; column < 9; ++column) {
            board.Column(column).width = 220;
        }
    }

    Grid board;
};

TEST_F(BoardMeasures, TwelveRowsHaveRoomIn2235Twips) {
    const GridMeasures measures = MeasureGrid(board, QSize(2040 / 15, 2235 / 15), 12, bar);

    EXPECT_TRUE(measures.scrollBar.isEmpty());
    EXPECT_TRUE(measures.panes[0].scrollBar.isEmpty());
    EXPECT_GE(measures.rows.height(), 12 * 12);
}

TEST_F(BoardMeasures, TwentyFourRowsHaveRoomIn4395Twips) {
    const GridMeasures measures = MeasureGrid(board, QSize(2040 / 15, 4395 / 15), 24, bar);

    EXPECT_TRUE(measures.scrollBar.isEmpty());
    EXPECT_TRUE(measures.panes[0].scrollBar.isEmpty());
    EXPECT_GE(measures.rows.height(), 24 * 12);
}

TEST_F(BoardMeasures, NineColumnsOf220TwipsAreTogetherAsWideAsTheirTwipsSay) {
    const GridMeasures measures = MeasureGrid(board, QSize(2040 / 15, 2235 / 15), 12, bar);

    EXPECT_EQ(Sum(measures.panes[0].columnWidths), 1980 / 15);
}

TEST_F(BoardMeasures, SixColumnsOf330TwipsHaveTheSameRoom) {
    for (int column = 0; column < 9; ++column) {
        board.Column(column).width = 330;
        board.Column(column).visible = column < 6;
    }

    const GridMeasures measures = MeasureGrid(board, QSize(2040 / 15, 4395 / 15), 24, bar);

    EXPECT_EQ(measures.panes[0].columnWidths, (std::vector<int>{22, 22, 22, 22, 22, 22}));
    EXPECT_TRUE(measures.panes[0].scrollBar.isEmpty());
}

TEST_F(BoardMeasures, OneRowMoreWantsAScrollBarAndThenTheColumnsWantOneToo) {
    const GridMeasures measures = MeasureGrid(board, QSize(2040 / 15, 2235 / 15), 13, bar);

    EXPECT_EQ(measures.scrollBar.width(), bar);
    EXPECT_EQ(measures.panes[0].scrollBar.height(), bar);
    EXPECT_EQ(measures.scrollBar.bottom() + 1, measures.panes[0].scrollBar.top());
}

/// A log of 381 by 481 pixels: a margin, a pane for the date and one for ten picks of 600 twips.
class LogMeasures : public testing::Test {
  protected:
    LogMeasures() {
        log.SetColumns(11);
        log.AddPane(0, 0);
        log.AddPane(1, 10);
        log.showsRowMargin = true;
        log.Pane(1).columnsWide = 6;
    }

    [[nodiscard]] GridMeasures Measure(int rows) const { return MeasureGrid(log, size, rows, bar); }

    Grid log;
    const QSize size{381, 481};
};

TEST_F(LogMeasures, HeadingsBeginAtTheUpperEdgeAndRowsFifteenPixelsBelow) {
    const GridMeasures measures = Measure(10);

    EXPECT_EQ(measures.panes[0].place.topLeft(), QPoint(17, 0));
    EXPECT_EQ(measures.rows.top(), 15);
}

TEST_F(LogMeasures, APaneThatCountsItsColumnsIsExactlySoWide) {
    EXPECT_EQ(Measure(10).panes[1].place.width(), 6 * 40);

    log.Pane(1).columnsWide = 5;
    EXPECT_EQ(Measure(10).panes[1].place.width(), 5 * 40);
}

TEST_F(LogMeasures, TheOtherPaneTakesTheRestAndItsColumnFillsIt) {
    // 381 less 17 for the margin, 240 for the picks, and 1 each for the line between the panes and the frame.
    EXPECT_EQ(Measure(10).panes[0].columnWidths, std::vector<int>{381 - 17 - 240 - 2});
    EXPECT_EQ(Measure(10).panes[0].place.width(), 381 - 17 - 240 - 2);
}

TEST_F(LogMeasures, TheVerticalBarTakesItsRoomFromThePaneThatTakesTheRest) {
    const GridMeasures measures = Measure(1000);

    EXPECT_EQ(measures.panes[0].place.width(), 381 - 17 - 240 - 2 - bar);
    EXPECT_EQ(measures.panes[1].place.width(), 240);
    EXPECT_EQ(measures.scrollBar, QRect(381 - 1 - bar, 15, bar, 481 - 15 - bar - 1));
}

TEST_F(LogMeasures, ColumnsWithoutRoomAreReachedByABarBelowTheirPane) {
    const GridMeasures measures = Measure(10);

    EXPECT_TRUE(measures.panes[0].scrollBar.isEmpty());
    EXPECT_EQ(measures.panes[1].scrollBar.width(), 240);
    EXPECT_EQ(measures.panes[0].place.height(), measures.panes[1].place.height());
}

TEST_F(LogMeasures, APaneThatCountsMoreColumnsThanItHasIsAsWideAsAll) {
    log.Pane(1).columnsWide = 5;
    for (int column = 4; column <= 10; ++column) {
        log.Column(column).visible = false;
    }

    EXPECT_EQ(Measure(10).panes[1].place.width(), 3 * 40);
    EXPECT_TRUE(Measure(10).panes[1].scrollBar.isEmpty());
}

TEST_F(LogMeasures, OnlyWholeRowsHaveRoom) {
    // 481 pixels less 15 for the headings, 14 for the lower bar and 1 for the frame are 30 rows and a rest.
    EXPECT_EQ(Measure(1000).rows.height(), 30 * 15);
}

TEST_F(LogMeasures, TooNarrowAGridCutsItsPanesOff) {
    const GridMeasures measures = MeasureGrid(log, QSize(100, 100), 5, bar);

    EXPECT_EQ(measures.panes[0].place.width(), 0);
    EXPECT_LE(measures.panes[1].place.right(), 99);
}

}  // namespace
}  // namespace ballhaven::platform
