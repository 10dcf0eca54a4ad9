#include "platform/qt/grid/GridCellPainter.h"

#include "support/qt/GridOnScreen.h"

#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace ballhaven::platform {
namespace {

constexpr QRgb yellow = 0xFFFFFF00;
constexpr QRgb navy = 0xFF000080;
constexpr QRgb paper = 0xFFFFFFFF;

/// A log in which the picks of the third row are yellow with navy text.
class GridDrawing : public testing::Test, protected support::LogOnScreen {
  protected:
    GridDrawing() {
        grid.cellStyle = [this](const GridCell& cell, CellStyle& style) {
            styled.emplace_back(cell.row, cell.column);
            if (cell.row == 2 && cell.column <= 6) {
                style = {Color(0, 0, 128), Color(255, 255, 0)};
            }
        };
        Show();
        QTest::qWait(1);
    }

    /// Whether a colour stands anywhere in a cell.
    [[nodiscard]] bool Shows(const QImage& image, int row, int column, QRgb color) const {
        const int scale = static_cast<int>(image.devicePixelRatio());
        const QPoint middle = MiddleOf(row, column);
        for (int y = (middle.y() - 6) * scale; y < (middle.y() + 6) * scale; ++y) {
            for (int x = (middle.x() - 15) * scale; x < (middle.x() + 15) * scale; ++x) {
                if (image.pixel(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    std::vector<std::pair<int, int>> styled;
};

TEST_F(GridDrawing, RowsStandExactlyFifteenPixelsApart) {
    const QImage image = Draw();
    const int x = MiddleOf(2, 3).x() - 15;

    EXPECT_NE(support::PixelAt(image, {x, 15 + 2 * 15 - 2}), yellow);
    EXPECT_EQ(support::PixelAt(image, {x, 15 + 2 * 15}), yellow);
    EXPECT_EQ(support::PixelAt(image, {x, 15 + 2 * 15 + 13}), yellow);
    EXPECT_NE(support::PixelAt(image, {x, 15 + 3 * 15}), yellow);
}

TEST_F(GridDrawing, RowsStandExactlyAtDoubleScaleToo) {
    const QImage image = Draw(2);
    const int x = (MiddleOf(2, 3).x() - 15) * 2;

    EXPECT_NE(image.pixel(x, (15 + 2 * 15) * 2 - 1), yellow);
    EXPECT_EQ(image.pixel(x, (15 + 2 * 15) * 2), yellow);
    EXPECT_EQ(image.pixel(x, (15 + 2 * 15 + 14) * 2 - 1), yellow);
    EXPECT_TRUE(Shows(image, 2, 3, navy));
}

TEST_F(GridDrawing, AStyledCellHasTheColoursOfItsOwner) {
    const QImage image = Draw(2);  // fine enough for letters of the plain colour

    EXPECT_TRUE(Shows(image, 2, 3, yellow));
    EXPECT_TRUE(Shows(image, 2, 3, navy));
    EXPECT_FALSE(Shows(image, 1, 3, yellow));
}

TEST_F(GridDrawing, AColumnThatIsNotStyledAsksForNoColours) {
    styled.clear();

    const QImage image = Draw();

    EXPECT_FALSE(styled.empty());
    EXPECT_TRUE(std::ranges::none_of(styled, [](const auto& cell) { return cell.second == 0; }));
    EXPECT_EQ(support::PixelAt(image, MiddleOf(2, 0) + QPoint(20, 0)), paper);
}

TEST_F(GridDrawing, ACellWithoutColoursOfItsOwnHasThoseOfItsColumn) {
    PaneView(1)->horizontalScrollBar()->setValue(4);

    const QImage image = Draw();

    EXPECT_EQ(support::PixelAt(image, MiddleOf(2, 8)), widget->palette().color(QPalette::Window).rgb());
    EXPECT_EQ(support::PixelAt(image, MiddleOf(3, 6) - QPoint(15, 0)), paper);
}

TEST_F(GridDrawing, TheMarkOfTheCurrentCellLeavesItsColours) {
    grid.TakeFocus();
    grid.GoTo(2, 3);

    const QImage image = Draw(2);

    EXPECT_TRUE(Shows(image, 2, 3, yellow));
    EXPECT_TRUE(Shows(image, 2, 3, navy));
    EXPECT_EQ(support::PixelAt(image, PaneView(1)->mapTo(widget, QPoint(80, 15 + 2 * 15 + 5))),
              widget->palette().color(QPalette::Highlight).rgb());
}

TEST_F(GridDrawing, APaneThatMarksNoCellShowsNoMark) {
    grid.TakeFocus();
    grid.Pane(1).marksCurrentCell = false;
    grid.GoTo(2, 3);

    const QImage image = Draw();

    EXPECT_EQ(support::PixelAt(image, PaneView(1)->mapTo(widget, QPoint(80, 15 + 2 * 15 + 5))), yellow);
}

/// A grid at one scale: how many pixels of the screen each of its lines has.
class GridAtScale : public GridDrawing, public testing::WithParamInterface<std::pair<double, int>> {
  protected:
    /// The lengths of the runs of the lines' colour along a stretch of the image, which is given in pixels of scale 1.
    [[nodiscard]] std::vector<int> Runs(QPoint from, QPoint to) {
        const double scale = GetParam().first;
        const QImage image = Draw(scale);
        const QPoint first(qRound(from.x() * scale), qRound(from.y() * scale));
        const QPoint last(qRound(to.x() * scale), qRound(to.y() * scale));
        const QPoint step(last.x() > first.x() ? 1 : 0, last.y() > first.y() ? 1 : 0);
        std::vector<int> runs;
        bool inLine = false;
        for (QPoint place = first; place != last; place += step) {
            const bool isLine = image.pixel(place) == qRgb(214, 211, 203);
            if (isLine && !inLine) {
                runs.push_back(0);
            }
            if (isLine) {
                ++runs.back();
            }
            inLine = isLine;
        }
        return runs;
    }
};

TEST_P(GridAtScale, AllLinesOfItsCellsHaveTheSameThickness) {
    const QPoint cell = MiddleOf(5, 1);
    EXPECT_EQ(Runs(cell - QPoint(15, 0), cell + QPoint(-15, 10 * 15)), std::vector<int>(10, GetParam().second));
    const QPoint above(0, -6);  // of the texts
    EXPECT_EQ(Runs(cell + above, MiddleOf(5, 6) + above), std::vector<int>(5, GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(Scales, GridAtScale,
                         testing::Values(std::pair(1.0, 1), std::pair(1.25, 1), std::pair(1.5, 2), std::pair(1.75, 2),
                                         std::pair(2.0, 2)));

TEST_F(GridDrawing, OnlyTheCurrentRowHasADropDownButton) {
    grid.GoToRow(4);

    const QImage image = Draw();

    const QRgb face = widget->palette().color(QPalette::Button).rgb();
    const auto button = [this](int row) {
        const QRect cell = PaneView(0)->CellPlace({0, row, 0});
        const QRect place = GridCellPainter::ButtonIn(cell);
        return PaneView(0)->viewport()->mapTo(widget, place.topLeft() + QPoint(2, 2));
    };
    EXPECT_EQ(support::PixelAt(image, button(4)), face);
    EXPECT_EQ(support::PixelAt(image, button(5)), paper);
}

}  // namespace
}  // namespace ballhaven::platform
