#include "platform/qt/widgets/LabelWidget.h"

#include "support/qt/TestWindow.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class LabelWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        label.name = "lblLabel(0)";
        label.text = "Select Game";
        label.bounds = Bounds{360, 80, 1455, 255};
        form.Show();
        widget = form.Find<QLabel>("lblLabel(0)");
        ASSERT_NE(widget, nullptr);
    }

    [[nodiscard]] QColor Middle() const {
        return widget->grab().toImage().pixelColor(widget->width() / 2, widget->height() / 2);
    }

    Label label;
    TestWindow form{&label};
    QLabel* widget = nullptr;
};

TEST_F(LabelWidgetTest, ShowsItsTextAtItsPlaceInTheProgramsFont) {
    EXPECT_EQ(widget->text(), QStringLiteral("Select Game"));
    EXPECT_EQ(widget->geometry(), QRect(24, 5, 97, 17));
    EXPECT_EQ(widget->font().pixelSize(), 11);
    EXPECT_FALSE(widget->font().bold());
}

TEST_F(LabelWidgetTest, ABoldLabelIsBold) {
    label.bold = true;

    EXPECT_TRUE(widget->font().bold());
}

TEST_F(LabelWidgetTest, TextThatNeedsMoreLinesThanItsPlaceHoldsIsNotCutOff) {
    label.bounds = Bounds{360, 80, 735, 375};
    label.text = "Enter --> Numbers";

    EXPECT_EQ(widget->width(), 49);
    EXPECT_GE(widget->height(), 2 * widget->fontMetrics().lineSpacing());
}

TEST_F(LabelWidgetTest, AWordWiderThanItsPlaceIsNotCutOff) {
    label.bounds = Bounds{360, 80, 150, 255};
    label.text = "Historical";

    EXPECT_GE(widget->width(), widget->fontMetrics().horizontalAdvance(QStringLiteral("Historical")));
}

TEST_F(LabelWidgetTest, ASwatchIsFilledWithItsColourInsideABorder) {
    label.text = "";
    label.background = Color(255, 0, 255);
    label.bordered = true;

    EXPECT_EQ(Middle(), QColor(255, 0, 255));
    EXPECT_NE(widget->grab().toImage().pixelColor(0, 0), QColor(255, 0, 255));
}

TEST_F(LabelWidgetTest, AnAmpersandIsALetterLikeOthers) {
    label.text = "Wheel & Shuffle";

    EXPECT_EQ(widget->text(), QStringLiteral("Wheel & Shuffle"));
}

TEST_F(LabelWidgetTest, AHiddenLabelIsNotThere) {
    label.visible = false;
    EXPECT_FALSE(widget->isVisible());

    label.visible = true;
    EXPECT_TRUE(widget->isVisible());
}

/// The first and the last column of pixels that letters have touched.
std::pair<int, int> InkOf(const QImage& drawn) {
    int first = drawn.width();
    int last = -1;
    for (int x = 0; x < drawn.width(); ++x) {
        for (int y = 0; y < drawn.height(); ++y) {
            if (drawn.pixelColor(x, y).lightness() < 100) {
                first = std::min(first, x);
                last = x;
            }
        }
    }
    return {first, last};
}

TEST_F(LabelWidgetTest, ACentredLabelHasTheSameRoomOnBothSidesOfItsText) {
    EXPECT_LT(InkOf(widget->grab().toImage()).first, 3);

    label.alignment = TextAlignment::Centre;
    const auto [first, last] = InkOf(widget->grab().toImage());
    EXPECT_GT(first, 10);
    EXPECT_NEAR(first, widget->width() - 1 - last, 2);
}

TEST_F(LabelWidgetTest, IsReadAsItsText) {
    const QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(widget);
    EXPECT_EQ(read->role(), QAccessible::StaticText);
    EXPECT_EQ(read->text(QAccessible::Name), QStringLiteral("Select Game"));
}

TEST_F(LabelWidgetTest, ALabelAlignedToTheRightEndsThere) {
    label.alignment = TextAlignment::Right;
    const auto [first, last] = InkOf(widget->grab().toImage());
    EXPECT_GT(first, 20);
    EXPECT_GT(last, widget->width() - 4);
}

TEST_F(LabelWidgetTest, HasALetterHeightOfItsOwn) {
    label.bold = true;
    label.fontHeight = 16;

    EXPECT_EQ(widget->font().pixelSize(), 16);
    EXPECT_TRUE(widget->font().bold());
}

}  // namespace
}  // namespace ballhaven::platform
