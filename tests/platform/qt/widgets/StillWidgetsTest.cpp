#include "platform/qt/widgets/StillWidgets.h"

#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

TEST(PanelWidget, CarriesTheControlsThatStandOnIt) {
    Panel panel;
    panel.name = "picToolbar(0)";
    panel.bounds = Bounds{150, 300, 3000, 3000};
    Label label;
    label.name = "lblPlay";
    label.container = &panel;
    label.bounds = Bounds{15, 30, 600, 255};
    TestWindow form{&panel, &label};
    form.Show();

    EXPECT_EQ(form.Find("lblPlay")->parentWidget(), form.Find("picToolbar(0)"));
    EXPECT_EQ(form.Find("lblPlay")->pos(), QPoint(1, 2));
    EXPECT_EQ(form.Find("picToolbar(0)")->pos(), QPoint(10, 20));
}

TEST(LineWidget, AFlatLineIsARuleOverItsWholeWidth) {
    Line line;
    line.name = "Line1";
    line.bounds = Bounds{0, 300, 2220, 0};
    TestWindow form{&line};
    form.Show();

    const QImage drawn = form.Find("Line1")->grab().toImage();
    EXPECT_EQ(drawn.width(), 148);
    EXPECT_EQ(drawn.pixelColor(0, 0), form.Widget()->palette().color(QPalette::Dark));
    EXPECT_EQ(drawn.pixelColor(147, 0), form.Widget()->palette().color(QPalette::Dark));
}

TEST(PictureWidget, APictureStandsInTheMiddleOfItsPlaceAtItsOwnSize) {
    Picture picture;
    picture.name = "Picture1";
    picture.bounds = Bounds{0, 0, 3375, 2175};
    picture.picture = "haven-picture";
    TestWindow form{&picture};
    form.Show();

    const QImage drawn = form.Find("Picture1")->grab().toImage();
    const QColor face = form.Widget()->palette().color(QPalette::Window);
    EXPECT_EQ(drawn.size(), QSize(225, 145));
    EXPECT_EQ(drawn.pixelColor(1, 1), face) << "221 by 141 pixels leave two on each side";
    EXPECT_NE(drawn.pixelColor(112, 72), face);
}

TEST(PictureWidget, APictureThatThereIsNotLeavesItsPlaceEmpty) {
    Picture picture;
    picture.name = "Picture1";
    picture.bounds = Bounds{0, 0, 300, 300};
    picture.picture = "no-such-picture";
    TestWindow form{&picture};
    form.Show();

    const QImage drawn = form.Find("Picture1")->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(10, 10), form.Widget()->palette().color(QPalette::Window));
}

class PictureClicks : public testing::Test {
  protected:
    void SetUp() override {
        picture.name = "picCards(0)";
        picture.bounds = Bounds{600, 300, 1290, 3030};
        picture.click = [this](double x, double y) { places.emplace_back(x, y); };
        form.Show();
        widget = form.Find("picCards(0)");
        ASSERT_NE(widget, nullptr);
    }

    Picture picture;
    TestWindow form{&picture};
    QWidget* widget = nullptr;
    std::vector<std::pair<double, double>> places;
};

TEST_F(PictureClicks, AreToldInTwipsFromTheTopLeftCorner) {
    for (const QPoint& place : {QPoint(0, 0), QPoint(27, 36), QPoint(85, 201)}) {
        QTest::mouseClick(form.Widget()->windowHandle(), Qt::LeftButton, {}, widget->pos() + place);
    }
    EXPECT_EQ(places, (std::vector<std::pair<double, double>>{{0, 0}, {405, 540}, {1275, 3015}}));
}

TEST_F(PictureClicks, ArriveFromTheLeftButtonReleasedWithinThePicture) {
    QTest::mouseClick(widget, Qt::RightButton, {}, QPoint(5, 5));
    QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(places.empty()) << "not before the release";
    QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(86, 5));
    EXPECT_TRUE(places.empty());
}

}  // namespace
}  // namespace ballhaven::platform
