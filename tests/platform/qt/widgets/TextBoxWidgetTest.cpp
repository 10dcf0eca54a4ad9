#include "platform/qt/widgets/TextBoxWidget.h"

#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class TextBoxWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        box.name = "txtHiLite(0)";
        box.maxLength = 2;
        box.bounds = Bounds{7560, 195, 375, 285};
        form.Show();
        edit = form.Find<QLineEdit>("txtHiLite(0)");
        ASSERT_NE(edit, nullptr);
        edit->setFocus();
    }

    TextBox box;
    TestWindow form{&box};
    QLineEdit* edit = nullptr;
};

TEST_F(TextBoxWidgetTest, WhatIsTypedIsInTheValueAtOnce) {
    QTest::keyClick(edit, Qt::Key_7);

    EXPECT_EQ(*box.text, "7");
}

TEST_F(TextBoxWidgetTest, NoMoreThanTheLongestTextCanBeTyped) {
    QTest::keyClicks(edit, "123");

    EXPECT_EQ(*box.text, "12");
}

TEST_F(TextBoxWidgetTest, ALengthOfZeroIsNoLimit) {
    box.maxLength = 0;
    QTest::keyClicks(edit, "1234567890");

    EXPECT_EQ(*box.text, "1234567890");
}

TEST_F(TextBoxWidgetTest, ALockedBoxTakesNoKeysAndShowsWhatTheProgramSets) {
    box.locked = true;
    QTest::keyClick(edit, Qt::Key_7);
    EXPECT_EQ(*box.text, "");

    box.text = "Ks";
    EXPECT_EQ(edit->text(), QStringLiteral("Ks"));
}

TEST_F(TextBoxWidgetTest, AClickIsReportedByALockedBoxToo) {
    int clicks = 0;
    box.click = [&clicks] { ++clicks; };
    QTest::mouseClick(edit, Qt::LeftButton, {}, edit->rect().center());
    EXPECT_EQ(clicks, 1);

    box.locked = true;
    QTest::mouseClick(edit, Qt::LeftButton, {}, edit->rect().center());
    EXPECT_EQ(clicks, 2);
}

TEST_F(TextBoxWidgetTest, TheRightButtonAndAReleaseBesideTheBoxAreNoClicks) {
    int clicks = 0;
    box.click = [&clicks] { ++clicks; };
    QTest::mouseClick(edit, Qt::RightButton, {}, edit->rect().center());
    QTest::mousePress(edit, Qt::LeftButton, {}, edit->rect().center());
    QTest::mouseRelease(edit, Qt::LeftButton, {}, edit->rect().bottomRight() + QPoint(1, 0));
    EXPECT_EQ(clicks, 0);
}

TEST_F(TextBoxWidgetTest, ALockedBoxReportsItsKeys) {
    std::string keys;
    box.keyPress = [&keys](char key) {
        keys += key;
        return true;
    };
    box.locked = true;
    QTest::keyClicks(edit, "7x");
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(keys, "7x\r");
}

TEST_F(TextBoxWidgetTest, ACharacterWithoutAByteShowsAsTheQuestionMarkThatItBecame) {
    QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString::fromUtf8("\xC5\x82"), Qt::NoModifier);

    EXPECT_EQ(*box.text, "?");
    EXPECT_EQ(edit->text(), QStringLiteral("?"));
}

TEST_F(TextBoxWidgetTest, ThePointerOverItIsTheOneThatItAsksFor) {
    box.pointer = PointerShape::Cross;
    EXPECT_EQ(edit->cursor().shape(), Qt::CrossCursor);

    box.pointer = PointerShape::IBeam;
    EXPECT_EQ(edit->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(TextBoxWidgetTest, TwoDigitsHaveRoom) {
    box.text = "88";
    const QMargins frame(4, 2, 4, 2);

    EXPECT_LE(edit->fontMetrics().horizontalAdvance(edit->text()), edit->rect().marginsRemoved(frame).width());
    EXPECT_LE(edit->fontMetrics().height(), edit->rect().marginsRemoved(frame).height());
}

TEST_F(TextBoxWidgetTest, TypingGoesOnBehindWhatWasTyped) {
    box.maxLength = 0;
    QTest::keyClicks(edit, "abc");
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClicks(edit, "xy");

    EXPECT_EQ(*box.text, "xyabc");
    EXPECT_EQ(box.Selection(), (TextSelection{2, 0}));
}

TEST_F(TextBoxWidgetTest, WhatTheProgramMarksIsMarkedAndReplacedByTheNextKey) {
    box.maxLength = 0;
    box.text = "5001";
    box.Select({0, 4});
    EXPECT_EQ(edit->selectedText(), QStringLiteral("5001"));
    QTest::keyClick(edit, Qt::Key_7);

    EXPECT_EQ(*box.text, "7");
    EXPECT_EQ(box.Selection(), (TextSelection{1, 0}));
}

TEST_F(TextBoxWidgetTest, AMarkOfTheProgramStaysWhenTheBoxTakesTheFocus) {
    box.text = "50";
    edit->clearFocus();
    box.Select({0, 2});
    box.TakeFocus();

    EXPECT_EQ(edit->selectedText(), QStringLiteral("50"));
}

TEST_F(TextBoxWidgetTest, TheUsersMarkIsInTheValue) {
    box.text = "50";
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.Selection(), (TextSelection{0, 1}));

    box.toolTip = "Total Plays";
    EXPECT_EQ(edit->selectedText(), QStringLiteral("5")) << "another change leaves it";
}

TEST_F(TextBoxWidgetTest, ANewTextFromTheProgramIsNotMarked) {
    box.text = "50";
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    box.text = "Ks";

    EXPECT_FALSE(edit->hasSelectedText());
}

TEST_F(TextBoxWidgetTest, ItsGroundHasTheColourThatIsAskedForAlsoWhenItIsSwitchedOff) {
    const auto ground = [this] { return edit->grab().toImage().pixelColor(5, 9); };
    const QColor plain = ground();
    box.background = buttonFaceColor;
    EXPECT_EQ(ground(), QGuiApplication::palette().color(QPalette::Window));
    box.enabled = false;
    EXPECT_EQ(ground(), QGuiApplication::palette().color(QPalette::Window));

    box.background = windowColor;
    EXPECT_EQ(ground(), QGuiApplication::palette().color(QPalette::Disabled, QPalette::Base));
    box.enabled = true;
    EXPECT_EQ(ground(), plain);
}

TEST_F(TextBoxWidgetTest, ABoxThatIsSwitchedOffTakesNoKeys) {
    box.enabled = false;
    QTest::keyClick(edit, Qt::Key_7);

    EXPECT_EQ(*box.text, "");
    EXPECT_FALSE(edit->hasFocus());
}

}  // namespace
}  // namespace ballhaven::platform
