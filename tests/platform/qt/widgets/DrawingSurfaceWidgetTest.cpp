#include "platform/qt/widgets/DrawingSurfaceWidget.h"

#include "platform/qt/widgets/Conversions.h"
#include "support/qt/TestWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

std::string Told(const char* what, PixelPoint place) {
    return std::string(what) + " " + std::to_string(place.x) + "," + std::to_string(place.y);
}

const char* NameOf(MouseButton button) {
    if (button == MouseButton::Left) {
        return "left";
    }
    return button == MouseButton::Right ? "right" : "other";
}

class DrawingSurfaceWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        surface.name = "surface";
        surface.bounds = Bounds{150, 150, 1500, 750};
        surface.mouseDown = [this](MouseButton button, PixelPoint place) {
            notices.push_back(Told("down", place) + " " + NameOf(button));
        };
        surface.mouseMove = [this](bool leftHeld, PixelPoint place) {
            notices.push_back(Told("move", place) + (leftHeld ? " held" : ""));
        };
        surface.mouseUp = [this](MouseButton button, PixelPoint place) {
            notices.push_back(Told("up", place) + " " + NameOf(button));
        };
        surface.keyDown = [this](SurfaceKey key) {
            notices.emplace_back(key == SurfaceKey::Escape ? "escape" : "other key");
            return key == SurfaceKey::Escape;
        };
        form.Show();
        widget = form.Find("surface");
        ASSERT_NE(widget, nullptr);
    }

    [[nodiscard]] QImage Drawn() const { return widget->grab().toImage(); }

    DrawingSurface surface;
    support::TestWindow form{&surface};
    QWidget* widget = nullptr;
    Notices notices;
};

TEST_F(DrawingSurfaceWidgetTest, TheMouseIsReportedInPixelsWithItsButtons) {
    QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(3, 4));
    QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(5, 6));
    QTest::mouseClick(widget, Qt::RightButton, {}, QPoint(1, 0));
    QTest::mouseClick(widget, Qt::MiddleButton, {}, QPoint(99, 49));
    EXPECT_EQ(notices, (Notices{"down 3,4 left", "up 5,6 left", "down 1,0 right", "up 1,0 right", "down 99,49 other",
                                "up 99,49 other"}));
}

TEST_F(DrawingSurfaceWidgetTest, APlaceWithinAPixelIsThatPixelOnFinelyScaledScreensToo) {
    const QPointF place(3.5, 4.75);
    QMouseEvent press(QEvent::MouseButtonPress, place, widget->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &press);
    const QPointF outside(-0.5, 49.5);
    QMouseEvent release(QEvent::MouseButtonRelease, outside, widget->mapToGlobal(outside), Qt::LeftButton, Qt::NoButton,
                        {});
    QApplication::sendEvent(widget, &release);
    EXPECT_EQ(notices, (Notices{"down 3,4 left", "up -1,49 left"}));
}

TEST_F(DrawingSurfaceWidgetTest, ASecondQuickPressIsAPressLikeAnyOther) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(3, 4));
    QTest::mouseDClick(widget, Qt::LeftButton, {}, QPoint(3, 4));
    EXPECT_EQ(std::count(notices.begin(), notices.end(), "down 3,4 left"), 2);
}

TEST_F(DrawingSurfaceWidgetTest, KeysAreReported) {
    QTest::keyClick(widget, Qt::Key_Escape);
    QTest::keyClick(widget, Qt::Key_A);
    EXPECT_EQ(notices, (Notices{"escape", "other key"}));
}

TEST_F(DrawingSurfaceWidgetTest, ASurfaceWithoutHandlersDoesNothing) {
    surface.mouseDown = nullptr;
    surface.mouseUp = nullptr;
    surface.mouseMove = nullptr;
    surface.keyDown = nullptr;
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::keyClick(widget, Qt::Key_Escape);
    EXPECT_EQ(notices, Notices{});
}

TEST_F(DrawingSurfaceWidgetTest, LinesEndBeforeTheirLastPixelInEveryDirection) {
    surface.paint = [](Canvas& canvas) {
        canvas.DrawLine({10, 10}, {14, 10}, red);
        canvas.DrawLine({24, 10}, {20, 10}, red);
        canvas.DrawLine({30, 10}, {30, 14}, red);
        canvas.DrawLine({40, 14}, {40, 10}, red);
        canvas.DrawPixel({50, 10}, blue);
        canvas.FillBox({60, 10}, 3, 2, blue);
    };
    surface.Repaint();
    const QImage drawn = Drawn();
    const auto count = [&drawn](const QRect& area, const QColor& color) {
        int pixels = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                pixels += drawn.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return pixels;
    };
    EXPECT_EQ(count({10, 10, 4, 1}, Qt::red), 4);
    EXPECT_EQ(count({21, 10, 4, 1}, Qt::red), 4);
    EXPECT_EQ(count({30, 10, 1, 4}, Qt::red), 4);
    EXPECT_EQ(count({40, 11, 1, 4}, Qt::red), 4);
    EXPECT_EQ(count({50, 10, 1, 1}, Qt::blue), 1);
    EXPECT_EQ(count({60, 10, 3, 2}, Qt::blue), 6);
    EXPECT_EQ(count(drawn.rect(), Qt::red), 16);
    EXPECT_EQ(count(drawn.rect(), Qt::blue), 7);
}

TEST_F(DrawingSurfaceWidgetTest, SystemColoursAreThoseOfThePalette) {
    surface.paint = [](Canvas& canvas) {
        canvas.FillBox({0, 0}, 10, 10, buttonFaceColor);
        canvas.FillBox({10, 0}, 10, 10, buttonShadowColor);
    };
    surface.Repaint();
    EXPECT_EQ(Drawn().pixelColor(5, 5), widget->palette().color(QPalette::Window));
    EXPECT_EQ(Drawn().pixelColor(15, 5), widget->palette().color(QPalette::Dark));
}

TEST_F(DrawingSurfaceWidgetTest, TextStandsInsideItsMeasure) {
    surface.fontHeight = 13;
    surface.paint = [](Canvas& canvas) { canvas.DrawText({20, 10}, "777", red); };
    surface.Repaint();
    const QImage drawn = Drawn();
    const QColor ground = drawn.pixelColor(0, 0);
    const QRect cell(20, 10, surface.TextWidth("777"), surface.TextHeight());
    bool printed = false;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const bool inked = drawn.pixelColor(x, y) != ground;
            printed = printed || inked;
            ASSERT_TRUE(!inked || cell.contains(x, y)) << x << ", " << y;
        }
    }
    EXPECT_TRUE(printed);
}

TEST_F(DrawingSurfaceWidgetTest, AFocusRectangleInvertsEverySecondPixelOfItsFrameAndASecondOneTakesItOff) {
    const QImage plain = Drawn();
    surface.DrawFocusRect({10, 10, 20, 18});
    const QImage framed = Drawn();
    int changed = 0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            if (framed.pixelColor(x, y) != plain.pixelColor(x, y)) {
                ++changed;
                EXPECT_TRUE(x == 10 || x == 19 || y == 10 || y == 17) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(changed, 16) << "half of the 2 * 10 + 2 * 6 pixels";
    surface.DrawFocusRect({10, 10, 20, 18});
    EXPECT_EQ(Drawn(), plain);
}

TEST_F(DrawingSurfaceWidgetTest, AControlTellsItsPlaceOnTheScreen) {
    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    EXPECT_EQ(surface.ScreenPlace(), (Bounds{ToTwips(corner.x()), ToTwips(corner.y()), 1500, 750}));
    form.window.Unload();
    EXPECT_FALSE(surface.ScreenPlace().has_value());
}

}  // namespace
}  // namespace ballhaven::platform
