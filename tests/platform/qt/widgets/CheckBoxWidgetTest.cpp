#include "platform/qt/widgets/CheckBoxWidget.h"

#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class CheckBoxWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        box.name = "chkPrint(6)";
        box.caption = "Print All Plays  (on standard paper)";
        box.bounds = Bounds{240, 2520, 3495, 375};
        box.click = [this] { ticks.push_back(box.IsTicked()); };
        form.Show();
        widget = form.Find<QCheckBox>("chkPrint(6)");
        ASSERT_NE(widget, nullptr);
    }

    void Click() { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(6, widget->height() / 2)); }

    CheckBox box;
    TestWindow form{&box};
    QCheckBox* widget = nullptr;
    std::vector<bool> ticks;
};

TEST_F(CheckBoxWidgetTest, AClickTicksItAndTheNextOneClearsIt) {
    Click();
    EXPECT_TRUE(widget->isChecked());
    Click();

    EXPECT_FALSE(widget->isChecked());
    EXPECT_EQ(ticks, (std::vector<bool>{true, false})) << "the value is in place when the notice comes";
}

TEST_F(CheckBoxWidgetTest, TheSpaceBarTicksIt) {
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Space);

    EXPECT_TRUE(box.IsTicked());
}

TEST_F(CheckBoxWidgetTest, WhatTheProgramTicksIsShownAndReported) {
    box.Tick(true);

    EXPECT_TRUE(widget->isChecked());
    EXPECT_EQ(ticks, std::vector<bool>{true});
}

TEST_F(CheckBoxWidgetTest, ABoxThatIsSwitchedOffTakesNoClick) {
    box.enabled = false;
    Click();

    EXPECT_TRUE(ticks.empty());
}

TEST_F(CheckBoxWidgetTest, IsCalledByItsCaptionWhichHasRoom) {
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Print All Plays  (on standard paper)"));
    EXPECT_LE(widget->sizeHint().width(), widget->width());
}

}  // namespace
}  // namespace ballhaven::platform
