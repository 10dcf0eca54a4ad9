#include "platform/qt/widgets/PlainScrollBarStyle.h"

#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <gtest/gtest.h>

#include <set>

namespace ballhaven::platform {
namespace {

class PlainScrollBar : public testing::Test {
  protected:
    PlainScrollBar() {
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(10, 0, 0));
        palette.setColor(QPalette::Dark, QColor(20, 0, 0));
        palette.setColor(QPalette::Mid, QColor(30, 0, 0));
        palette.setColor(QPalette::Midlight, QColor(40, 0, 0));
        palette.setColor(QPalette::Active, QPalette::ButtonText, QColor(50, 0, 0));
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(60, 0, 0));
        option.palette = palette;
        option.rect = QRect(0, 0, 14, 200);
        option.orientation = Qt::Vertical;
        option.state = QStyle::State_Enabled;
        option.minimum = 0;
        option.maximum = 100;
        option.pageStep = 20;
        option.subControls = QStyle::SC_All;
    }

    [[nodiscard]] QImage Draw() const {
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, nullptr);
        return image;
    }

    [[nodiscard]] QPoint MiddleOf(QStyle::SubControl part) const {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, part, nullptr).center();
    }

    /// The reds of all pixels.
    [[nodiscard]] static std::set<int> Reds(const QImage& image) {
        std::set<int> reds;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                reds.insert(qRed(image.pixel(x, y)));
            }
        }
        return reds;
    }

    PlainScrollBarStyle style{QStyleFactory::create(QStringLiteral("Fusion"))};
    QStyleOptionSlider option;
};

TEST_F(PlainScrollBar, HasTheColoursOfThePaletteAloneAndNoShadesOfThem) {
    EXPECT_EQ(Reds(Draw()), (std::set<int>{10, 20, 40, 50}));
}

TEST_F(PlainScrollBar, LyingDownItHasThemToo) {
    option.rect = QRect(0, 0, 200, 14);
    option.orientation = Qt::Horizontal;

    EXPECT_EQ(Reds(Draw()), (std::set<int>{10, 20, 40, 50}));
}

TEST_F(PlainScrollBar, ItsSliderStandsWhereTheMouseFindsIt) {
    option.sliderPosition = 60;

    const QImage image = Draw();

    EXPECT_EQ(qRed(image.pixel(MiddleOf(QStyle::SC_ScrollBarSlider))), 10);
    EXPECT_EQ(qRed(image.pixel(MiddleOf(QStyle::SC_ScrollBarSubPage))), 40);
    EXPECT_EQ(qRed(image.pixel(MiddleOf(QStyle::SC_ScrollBarAddPage))), 40);
}

TEST_F(PlainScrollBar, APressedSliderIsDarker) {
    option.state |= QStyle::State_Sunken;
    option.activeSubControls = QStyle::SC_ScrollBarSlider;

    EXPECT_EQ(qRed(Draw().pixel(MiddleOf(QStyle::SC_ScrollBarSlider))), 30);
}

TEST_F(PlainScrollBar, WithNothingToScrollItHasNoSliderAndPaleArrows) {
    option.maximum = 0;

    const QImage image = Draw();

    EXPECT_EQ(qRed(image.pixel(7, 100)), 40);
    EXPECT_EQ(Reds(image), (std::set<int>{10, 20, 40, 60}));
}

TEST_F(PlainScrollBar, ItsArrowsPointOutwards) {
    const QImage image = Draw();
    const auto widthAt = [&image](int y) {
        int width = 0;
        for (int x = 0; x < image.width(); ++x) {
            width += qRed(image.pixel(x, y)) == 50 ? 1 : 0;
        }
        return width;
    };
    const int upper = MiddleOf(QStyle::SC_ScrollBarSubLine).y();
    const int lower = MiddleOf(QStyle::SC_ScrollBarAddLine).y();

    EXPECT_EQ(widthAt(upper - 2), 1);
    EXPECT_EQ(widthAt(upper + 1), 7);
    EXPECT_EQ(widthAt(lower + 2), 1);
    EXPECT_EQ(widthAt(lower - 1), 7);
}

}  // namespace
}  // namespace ballhaven::platform
