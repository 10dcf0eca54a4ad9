#include "platform/qt/grid/GridFrame.h"

#include "support/qt/GridOnScreen.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

constexpr QRgb paper = 0xFFFFFFFF;

class GridSurroundings : public testing::Test, protected support::LogOnScreen {
  protected:
    GridSurroundings() { Show(); }

    [[nodiscard]] QRgb Palette(QPalette::ColorRole role) const { return widget->palette().color(role).rgb(); }
};

TEST_F(GridSurroundings, AFrameRunsAroundTheGrid) {
    const QImage image = Draw();

    const int right = widget->width() - 1;
    const int bottom = widget->height() - 1;
    for (const QPoint edge : {QPoint(0, 100), QPoint(right, 100), QPoint(100, bottom), QPoint(100, 0)}) {
        EXPECT_EQ(support::PixelAt(image, edge), Palette(QPalette::Dark));
    }
}

TEST_F(GridSurroundings, ALineStandsBetweenThePanes) {
    const QImage image = Draw();

    EXPECT_EQ(support::PixelAt(image, {PaneView(1)->x() - 1, 100}), Palette(QPalette::Dark));
}

TEST_F(GridSurroundings, WithoutAMarginTheRowsBeginAtTheFrame) {
    grid.showsRowMargin = false;

    EXPECT_EQ(PaneView(0)->x(), 1);
}

TEST_F(GridSurroundings, TheMarginPointsAtTheCurrentRow) {
    grid.GoToRow(4);

    const QImage image = Draw();

    const QRgb mark = widget->palette().color(QPalette::ButtonText).rgb();
    EXPECT_EQ(support::PixelAt(image, {8, 15 + 4 * 15 + 7}), mark);
    EXPECT_NE(support::PixelAt(image, {8, 15 + 5 * 15 + 7}), mark);
}

TEST_F(GridSurroundings, BelowTheLastRowTheGridIsEmpty) {
    grid.SetRowCount(3);

    const QImage image = Draw();

    EXPECT_EQ(support::PixelAt(image, {100, 200}), paper);
    EXPECT_EQ(support::PixelAt(image, {8, 200}), paper);
}

TEST(GridCaption, ACaptionStandsAboveTheHeadings) {
    support::GridOnScreen hot;
    hot.grid.bounds = {150, 300, 3375, 1500};
    hot.grid.SetColumns(1);
    hot.grid.AddPane(0, 0);
    hot.grid.Column(0).heading = "Number";
    hot.cells = {{"7"}};
    hot.grid.SetRowCount(1);
    hot.Show();
    EXPECT_EQ(hot.grid.RowTop(0), 225);

    hot.grid.caption = "Hot Numbers";
    EXPECT_EQ(hot.grid.RowTop(0), 255 + 225);
}

}  // namespace
}  // namespace ballhaven::platform
