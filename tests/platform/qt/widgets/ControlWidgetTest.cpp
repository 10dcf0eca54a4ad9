#include "platform/qt/widgets/ControlWidget.h"

#include "platform/controls/Controls.h"
#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class ControlWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        button.name = "cmdButton(3)";
        button.bounds = Bounds{150, 300, 900, 375};
        form.Show();
    }

    [[nodiscard]] QString Name() const { return form.Find("cmdButton(3)")->accessibleName(); }

    Button button;
    TestWindow form{&button};
};

TEST_F(ControlWidgetTest, StandsAtTheControlsPlaceInPixels) {
    EXPECT_EQ(form.Find("cmdButton(3)")->geometry(), QRect(10, 20, 60, 25));
    button.SetLeft(0);
    EXPECT_EQ(form.Find("cmdButton(3)")->x(), 0);
}

TEST_F(ControlWidgetTest, FollowsVisibilitySwitchAndToolTip) {
    button.toolTip = "Delete Record";
    EXPECT_EQ(form.Find("cmdButton(3)")->toolTip(), QStringLiteral("Delete Record"));
    button.enabled = false;
    EXPECT_FALSE(form.Find("cmdButton(3)")->isEnabled());
    button.visible = false;
    EXPECT_FALSE(form.Find("cmdButton(3)")->isVisible());
}

TEST_F(ControlWidgetTest, IsCalledByItsOwnNameElseByATextWithALetterElseByItsToolTip) {
    button.toolTip = "Next play";
    button.caption = ">";
    EXPECT_EQ(Name(), QStringLiteral("Next play"));
    button.caption = "&Next";
    EXPECT_EQ(Name(), QStringLiteral("Next"));
    button.accessibleName = "The next play";
    EXPECT_EQ(Name(), QStringLiteral("The next play"));
}

TEST_F(ControlWidgetTest, TellsItsPlaceOnTheScreen) {
    const QPoint corner = form.Find("cmdButton(3)")->mapToGlobal(QPoint(0, 0));

    EXPECT_EQ(button.ScreenPlace(), (Bounds{corner.x() * 15, corner.y() * 15, 900, 375}));
}

TEST_F(ControlWidgetTest, AnActOfAControlWhoseWindowIsGoneLeadsToNothing) {
    int clicks = 0;
    button.click = [&clicks] { ++clicks; };
    QWidget* const widget = form.Find("cmdButton(3)");
    form.window.Unload();
    QTest::mouseClick(widget, Qt::LeftButton);

    EXPECT_EQ(clicks, 0);
}

TEST(IsClick, IsTheLeftButtonsReleaseWithinTheWidget) {
    QWidget widget;
    widget.resize(10, 10);
    const auto release = [](QPointF place, Qt::MouseButton mouseButton) {
        return QMouseEvent(QEvent::MouseButtonRelease, place, place, mouseButton, Qt::NoButton, Qt::NoModifier);
    };

    EXPECT_TRUE(IsClick(release({0, 0}, Qt::LeftButton), widget));
    EXPECT_TRUE(IsClick(release({9.9, 9.9}, Qt::LeftButton), widget));
    EXPECT_FALSE(IsClick(release({10, 5}, Qt::LeftButton), widget));
    EXPECT_FALSE(IsClick(release({5, -0.1}, Qt::LeftButton), widget));
    EXPECT_FALSE(IsClick(release({5, 5}, Qt::RightButton), widget));
}

}  // namespace
}  // namespace ballhaven::platform
