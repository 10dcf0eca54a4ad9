#include "platform/qt/widgets/OptionWidget.h"

#include "support/qt/TestWindow.h"

#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

class OptionWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        const char* const captions[] = {"Main", "Bonus, mega, plus..", "All"};
        for (int index = 0; index < 3; ++index) {
            OptionButton& option = options[static_cast<std::size_t>(index)];
            option.name = "optHot(" + std::to_string(index) + ")";
            option.caption = captions[index];
            option.bounds = Bounds{120, 240 * index, 1875, 195};
            option.group = options;
            option.click = [this, index] { clicks.push_back(index); };
        }
        options[2].Choose();
        clicks.clear();
        form.Show();
    }

    QRadioButton* Button(int index) {
        return form.Find<QRadioButton>(options[static_cast<std::size_t>(index)].name.c_str());
    }

    void Click(int index) { QTest::mouseClick(Button(index), Qt::LeftButton, {}, QPoint(6, 6)); }

    std::array<OptionButton, 3> options;
    TestWindow form{&options[0], &options[1], &options[2]};
    std::vector<int> clicks;
};

TEST_F(OptionWidgetTest, AClickChoosesTheButtonAndFreesTheOthers) {
    Click(0);

    EXPECT_TRUE(options[0].IsChosen());
    EXPECT_TRUE(Button(0)->isChecked());
    EXPECT_FALSE(Button(2)->isChecked());
    EXPECT_EQ(clicks, std::vector<int>{0});
}

TEST_F(OptionWidgetTest, AClickOnTheChosenButtonLeavesItChosenAndIsReported) {
    Click(2);

    EXPECT_TRUE(Button(2)->isChecked());
    EXPECT_EQ(clicks, std::vector<int>{2});
}

TEST_F(OptionWidgetTest, TheProgramsChoiceOfTheChosenButtonIsNotReported) {
    options[2].Choose();

    EXPECT_TRUE(Button(2)->isChecked());
    EXPECT_TRUE(clicks.empty());
}

TEST_F(OptionWidgetTest, AChoiceByTheProgramIsReportedAsOneByTheUser) {
    options[1].Choose();

    EXPECT_TRUE(Button(1)->isChecked());
    EXPECT_FALSE(Button(2)->isChecked());
    EXPECT_EQ(clicks, std::vector<int>{1});
}

TEST_F(OptionWidgetTest, TheChoiceIsInTheValueWhenTheHandlerRuns) {
    bool wasChosen = false;
    options[1].click = [&] { wasChosen = options[1].IsChosen() && !options[2].IsChosen(); };
    Click(1);

    EXPECT_TRUE(wasChosen);
}

TEST_F(OptionWidgetTest, TheArrowKeysChooseTheNeighboursRoundTheGroup) {
    Button(2)->setFocus();
    QTest::keyClick(Button(2), Qt::Key_Down);
    EXPECT_TRUE(options[0].IsChosen());
    EXPECT_TRUE(Button(0)->hasFocus());

    QTest::keyClick(Button(0), Qt::Key_Up);
    EXPECT_TRUE(options[2].IsChosen());
    EXPECT_EQ(clicks, (std::vector<int>{0, 2}));
}

TEST_F(OptionWidgetTest, TheArrowKeysPassAHiddenButtonOver) {
    options[0].visible = false;
    Button(2)->setFocus();
    QTest::keyClick(Button(2), Qt::Key_Down);

    EXPECT_TRUE(options[1].IsChosen());
}

TEST_F(OptionWidgetTest, TheTabKeyStopsAtTheChosenButtonAlone) {
    EXPECT_EQ(Button(2)->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(Button(0)->focusPolicy(), Qt::ClickFocus);

    Click(0);

    EXPECT_EQ(Button(0)->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(Button(1)->focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(Button(2)->focusPolicy(), Qt::ClickFocus);
}

TEST_F(OptionWidgetTest, TheSpaceBarChooses) {
    Button(1)->setFocus();
    QTest::keyClick(Button(1), Qt::Key_Space);

    EXPECT_TRUE(options[1].IsChosen());
}

TEST_F(OptionWidgetTest, TheWholeCaptionHasRoom) {
    const QRadioButton* const widest = Button(1);

    EXPECT_LE(widest->sizeHint().width(), widest->width());
}

}  // namespace
}  // namespace ballhaven::platform
