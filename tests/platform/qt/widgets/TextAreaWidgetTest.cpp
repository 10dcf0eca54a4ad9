#include "platform/qt/widgets/TextAreaWidget.h"

#include "support/qt/TestWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QStyleHints>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class TextAreaWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string text;
        for (int line = 1; line <= 200; ++line) {
            text += " Line " + std::to_string(line) + "\r\n";
        }
        area.name = "txtText";
        area.bounds = Bounds{150, 480, 5415, 3000};
        area.text = text;
        form.Show();
        widget = form.Find<QPlainTextEdit>("txtText");
        ASSERT_NE(widget, nullptr);
        area.TakeFocus();
        ASSERT_TRUE(widget->hasFocus());
    }

    [[nodiscard]] int Scrolled() const { return widget->verticalScrollBar()->value(); }

    /// How many pixels differ between two grabs.
    static int Difference(const QImage& first, const QImage& second) {
        int pixels = 0;
        for (int y = 0; y < first.height(); ++y) {
            for (int x = 0; x < first.width(); ++x) {
                pixels += first.pixel(x, y) != second.pixel(x, y) ? 1 : 0;
            }
        }
        return pixels;
    }

    TextArea area;
    TestWindow form{&area};
    QPlainTextEdit* widget = nullptr;
};

TEST_F(TextAreaWidgetTest, ACarriageReturnAndALineFeedEndOneLine) {
    EXPECT_EQ(widget->blockCount(), 201);
    EXPECT_EQ(widget->document()->findBlockByNumber(1).text(), QStringLiteral(" Line 2"));
}

TEST_F(TextAreaWidgetTest, NothingCanBeTypedInIt) {
    QTest::keyClicks(widget, "abc");
    QTest::keyClick(widget, Qt::Key_Delete);

    EXPECT_TRUE(widget->toPlainText().startsWith(QStringLiteral(" Line 1\n")));
    EXPECT_TRUE(area.text->starts_with(" Line 1\r\n"));
}

TEST_F(TextAreaWidgetTest, ShowsNoCaretWhileItHasTheFocus) {
    const QImage focused = widget->viewport()->grab().toImage();
    QTest::qWait(QGuiApplication::styleHints()->cursorFlashTime() / 2 + 50);

    EXPECT_EQ(Difference(focused, widget->viewport()->grab().toImage()), 0) << "a caret blinks";
    EXPECT_FALSE(widget->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
}

TEST_F(TextAreaWidgetTest, ItsKeysScrollTheText) {
    QTest::keyClick(widget, Qt::Key_Down);
    EXPECT_EQ(Scrolled(), 1);
    QTest::keyClick(widget, Qt::Key_PageDown);
    EXPECT_GT(Scrolled(), 5);
    QTest::keyClick(widget, Qt::Key_End);
    EXPECT_EQ(Scrolled(), widget->verticalScrollBar()->maximum());
    QTest::keyClick(widget, Qt::Key_Home);
    EXPECT_EQ(Scrolled(), 0);
}

TEST_F(TextAreaWidgetTest, WhatTheMouseHasMarkedCanBeCopied) {
    QTest::mouseDClick(widget->viewport(), Qt::LeftButton, {}, QPoint(15, 10));
    QTest::keyClick(widget, Qt::Key_C, Qt::ControlModifier);

    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Line"));
}

TEST_F(TextAreaWidgetTest, HasALetterHeightOfItsOwn) {
    EXPECT_EQ(widget->font().pixelSize(), 11);
    area.fontHeight = 9;
    EXPECT_EQ(widget->font().pixelSize(), 9);
}

TEST_F(TextAreaWidgetTest, AWordThatIsWiderThanTheBoxGoesOnBelowAndIsNotScrolledTo) {
    area.text = std::string(400, '-') + "\r\n";

    EXPECT_GT(widget->document()->firstBlock().layout()->lineCount(), 1);
    EXPECT_FALSE(widget->horizontalScrollBar()->isVisible());
}

TEST_F(TextAreaWidgetTest, AnotherChangeKeepsThePlaceInTheText) {
    QTest::keyClick(widget, Qt::Key_PageDown);
    const int scrolled = Scrolled();
    area.toolTip = "Instructions";
    EXPECT_EQ(Scrolled(), scrolled);
    area.text = "About";
    EXPECT_EQ(widget->toPlainText(), QStringLiteral("About"));
}

}  // namespace
}  // namespace ballhaven::platform
