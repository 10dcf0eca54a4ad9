#include "platform/qt/TextBoxWidget.h"

#include <gtest/gtest.h>

#include <QTest>

#include "support/qt/TestWindow.h"

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

}  // namespace
}  // namespace ballhaven::platform
