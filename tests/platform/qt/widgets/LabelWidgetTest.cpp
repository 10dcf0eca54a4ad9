#include "platform/qt/widgets/LabelWidget.h"

#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace ballhaven::platform
