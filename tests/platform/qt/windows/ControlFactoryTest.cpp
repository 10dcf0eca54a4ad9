#include "platform/qt/windows/ControlFactory.h"

#include "platform/controls/CheckBox.h"
#include "platform/controls/Controls.h"
#include "platform/controls/DrawingSurface.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextArea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

class ControlFactoryTest : public testing::Test {
  protected:
    /// Builds a control; whether its widget is one of the toolkit's class.
    template <typename Widget>
    [[nodiscard]] bool BecomesA(Control& control) {
        BuildControl(control, clientArea);
        return dynamic_cast<Widget*>(control.view) != nullptr;
    }

    QWidget clientArea;
};

TEST_F(ControlFactoryTest, EveryKindOfControlGetsItsWidget) {
    Button button;
    CheckBox checkBox;
    DrawingSurface surface;
    DropDownList list;
    Frame frame;
    Grid grid;
    Label label;
    Line line;
    OptionButton option;
    Panel panel;
    Picture picture;
    TextArea area;
    TextBox box;
    EXPECT_TRUE(BecomesA<QPushButton>(button));
    EXPECT_TRUE(BecomesA<QCheckBox>(checkBox));
    EXPECT_TRUE(BecomesA<DrawingSurfaceView>(surface));
    EXPECT_TRUE(BecomesA<QComboBox>(list));
    EXPECT_TRUE(BecomesA<QGroupBox>(frame));
    EXPECT_TRUE(BecomesA<GridView>(grid));
    EXPECT_TRUE(BecomesA<QLabel>(label));
    EXPECT_TRUE(BecomesA<QWidget>(line));
    EXPECT_TRUE(BecomesA<QRadioButton>(option));
    EXPECT_TRUE(BecomesA<QWidget>(panel));
    EXPECT_TRUE(BecomesA<QWidget>(picture));
    EXPECT_TRUE(BecomesA<QPlainTextEdit>(area));
    EXPECT_TRUE(BecomesA<QLineEdit>(box));
}

TEST_F(ControlFactoryTest, AWidgetStandsInItsContainersElseInTheClientArea) {
    Panel panel;
    Frame frame;
    frame.container = &panel;
    Label label;
    label.container = &frame;
    BuildControl(panel, clientArea);
    BuildControl(frame, clientArea);
    BuildControl(label, clientArea);

    EXPECT_EQ(dynamic_cast<QWidget*>(panel.view)->parentWidget(), &clientArea);
    EXPECT_EQ(dynamic_cast<QWidget*>(frame.view)->parentWidget(), dynamic_cast<QWidget*>(panel.view));
    EXPECT_EQ(dynamic_cast<QWidget*>(label.view)->parentWidget(), dynamic_cast<QWidget*>(frame.view));
}

TEST_F(ControlFactoryTest, APartedControlIsAValueAgainAndItsWidgetSaysNothing) {
    Button button;
    int clicks = 0;
    button.click = [&clicks] { ++clicks; };
    BuildControl(button, clientArea);
    auto* const widget = dynamic_cast<QPushButton*>(button.view);
    PartControl(button);
    widget->click();

    EXPECT_EQ(button.view, nullptr);
    EXPECT_EQ(clicks, 0);
    PartControl(button);
}

}  // namespace
}  // namespace ballhaven::platform
