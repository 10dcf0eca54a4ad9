#include "platform/qt/widgets/ButtonWidget.h"

#include "support/qt/TestWindow.h"

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class ButtonWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        button.name = "cmdPlayBttn(0)";
        button.caption = "<";
        button.toolTip = "Previous play";
        button.bounds = Bounds{1560, 2685, 300, 300};
        button.click = [this] { ++clicks; };
        form.Show();
        widget = form.Find<QPushButton>("cmdPlayBttn(0)");
        ASSERT_NE(widget, nullptr);
    }

    Button button;
    TestWindow form{&button};
    QPushButton* widget = nullptr;
    int clicks = 0;
};

TEST_F(ButtonWidgetTest, ClicksByMouseSpaceAndEnterAreReported) {
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::keyClick(widget, Qt::Key_Space);
    QTest::keyClick(widget, Qt::Key_Return);

    EXPECT_EQ(clicks, 3);
}

TEST_F(ButtonWidgetTest, AButtonForTheMouseAloneAnswersNoKeyAndTakesNoFocus) {
    button.caption = "&Save";
    button.answersKeys = false;
    QTest::keyClick(form.Widget(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(widget->shortcut().isEmpty());
    EXPECT_EQ(clicks, 0);

    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonWidgetTest, TheReleaseOfEachMouseButtonOverItIsReported) {
    std::vector<MouseButton> released;
    button.mouseUp = [&released](MouseButton mouseButton) { released.push_back(mouseButton); };
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::mouseClick(widget, Qt::RightButton);
    QTest::mouseClick(widget, Qt::MiddleButton);
    QTest::mousePress(widget, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(-1, 3));
    EXPECT_EQ(released, (std::vector{MouseButton::Left, MouseButton::Right, MouseButton::Other}));
}

TEST_F(ButtonWidgetTest, AClickMayLetTheWindowGoAndTheEventsThatFollow) {
    int releases = 0;
    button.mouseUp = [&releases](MouseButton) { ++releases; };
    button.click = [this] {
        form.window.Unload();
        support::Settle();
    };
    QTest::mouseClick(form.Widget()->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(form.Widget(), widget->rect().center()));

    EXPECT_FALSE(form.window.IsLoaded());
    EXPECT_EQ(releases, 0);
}

TEST_F(ButtonWidgetTest, AButtonThatIsOffReportsNothing) {
    button.enabled = false;
    QTest::mouseClick(widget, Qt::LeftButton);

    EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonWidgetTest, AButtonWithoutAHandlerDoesNothing) {
    button.click = nullptr;
    QTest::mouseClick(widget, Qt::LeftButton);

    EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonWidgetTest, ACaptionWithoutALetterIsSpokenAsTheToolTip) {
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Previous play"));

    button.caption = "&Save";
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Save"));

    button.accessibleName = "Save the game";
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Save the game"));
}

TEST_F(ButtonWidgetTest, TheAccessKeyOfItsCaptionClicksIt) {
    button.caption = "&Save";
    QTest::keyClick(form.Widget(), Qt::Key_S, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([this] { return clicks == 1; }));
}

TEST_F(ButtonWidgetTest, APictureOfTheResourcesIsDrawnOnIt) {
    const QImage without = widget->grab().toImage();
    button.caption = "";
    button.picture = "erase-play";

    EXPECT_NE(widget->grab().toImage(), without);
}

TEST_F(ButtonWidgetTest, APictureThatThereIsNotLeavesAnEmptyButton) {
    button.caption = "";
    const QImage empty = widget->grab().toImage();
    button.picture = "no-such-picture";

    EXPECT_EQ(widget->grab().toImage(), empty);
}

TEST_F(ButtonWidgetTest, APictureIsDrawnAtItsOwnSizeInTheMiddleAndHidesWhatIsBehindIt) {
    button.caption = "";
    button.picture = "erase-play";
    const QColor face = widget->palette().color(QPalette::Button);
    QWidget& behind = *form.Find("clientArea");
    QPalette reds = behind.palette();
    reds.setColor(QPalette::Window, Qt::red);
    behind.setPalette(reds);
    behind.setAutoFillBackground(true);
    widget->setPalette(QApplication::palette());
    widget->clearFocus();
    const QImage drawn =
        form.Widget()->grab(QRect(widget->mapTo(form.Widget(), QPoint(0, 0)), widget->size())).toImage();

    ASSERT_EQ(drawn.size(), QSize(20, 20));
    for (int edge = 0; edge < 20; ++edge) {
        EXPECT_EQ(drawn.pixelColor(edge, 0), face);
        EXPECT_EQ(drawn.pixelColor(1, edge), face);
        EXPECT_EQ(drawn.pixelColor(18, edge), face) << "16 pixels leave two on each side";
    }
}

}  // namespace
}  // namespace ballhaven::platform
