#include "platform/qt/grid/GridLines.h"

#include <QImage>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace ballhaven::platform {
namespace {

/// The lines of a grid at one scale: how many pixels of the screen each has.
class GridLinesAtScale : public testing::TestWithParam<std::pair<double, int>> {
  protected:
    GridLinesAtScale() { image.fill(Qt::white); }

    [[nodiscard]] static std::vector<int> Runs(const std::vector<QRgb>& pixels) {
        std::vector<int> runs;
        QRgb last = 0xFFFFFFFF;
        for (const QRgb pixel : pixels) {
            if (pixel == 0xFF000000 && last != pixel) {
                runs.push_back(0);
            }
            if (pixel == 0xFF000000) {
                ++runs.back();
            }
            last = pixel;
        }
        return runs;
    }

    QImage image{400, 400, QImage::Format_RGB32};
};

TEST_P(GridLinesAtScale, AllHaveTheSameThickness) {
    const auto [scale, thickness] = GetParam();
    {
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.translate(3, 3);
        for (int line = 0; line < 12; ++line) {
            FillLine(painter, {15 * line + 14, 0, 1, 50}, Qt::black);
            FillLine(painter, {0, 60 + 11 * line, 5, 1}, Qt::black);
        }
    }
    std::vector<QRgb> across;
    std::vector<QRgb> down;
    for (int place = 0; place < 400; ++place) {
        across.push_back(image.pixel(place, qRound(20 * scale)));
        down.push_back(image.pixel(qRound(5 * scale), place));
    }

    EXPECT_EQ(Runs(across), std::vector<int>(12, thickness));
    EXPECT_EQ(Runs(down), std::vector<int>(12, thickness));
}

TEST_P(GridLinesAtScale, EachEndsWhereTheNextCellBegins) {
    const auto [scale, thickness] = GetParam();
    {
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.fillRect(15, 0, 15, 15, Qt::red);
        FillLine(painter, {14, 0, 1, 15}, Qt::black);
    }
    const int end = qRound(15 * scale);

    EXPECT_EQ(image.pixel(end, 5), 0xFFFF0000);
    EXPECT_EQ(image.pixel(end - 1, 5), 0xFF000000);
    EXPECT_EQ(image.pixel(end - thickness - 1, 5), 0xFFFFFFFF);
}

INSTANTIATE_TEST_SUITE_P(Scales, GridLinesAtScale,
                         testing::Values(std::pair(1.0, 1), std::pair(1.25, 1), std::pair(1.5, 2), std::pair(1.75, 2),
                                         std::pair(2.0, 2)));

TEST(GridLineFrame, RunsJustInsideItsPlace) {
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);

    DrawLineFrame(painter, {2, 3, 10, 8}, Qt::black);

    EXPECT_EQ(image.pixel(2, 3), 0xFF000000);
    EXPECT_EQ(image.pixel(11, 10), 0xFF000000);
    EXPECT_EQ(image.pixel(1, 3), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(12, 10), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(5, 6), 0xFFFFFFFF);
}

}  // namespace
}  // namespace ballhaven::platform
