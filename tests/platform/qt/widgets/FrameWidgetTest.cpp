#include "platform/qt/widgets/FrameWidget.h"

#include "support/qt/TestWindow.h"

#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace ballhaven::platform {
namespace {

using support::TestWindow;

/// Two frames, the one with two options of a group of their own, the other with a button.
class FrameWidgetTest : public testing::Test {
  protected:
    void SetUp() override {
        mode.name = "fraShuffle(1)";
        mode.caption = "Configuration";
        mode.bounds = Bounds{150, 150, 3000, 1500};
        output.name = "fraShuffle(2)";
        output.caption = "Output: Plays";
        output.bounds = Bounds{150, 1800, 3000, 1500};
        for (std::size_t index = 0; index < options.size(); ++index) {
            options[index].name = "optShuffle(" + std::to_string(index) + ")";
            options[index].caption = "Mode " + std::to_string(index);
            options[index].bounds = Bounds{150, 300 + 450 * static_cast<int>(index), 1500, 300};
            options[index].container = &mode;
            options[index].group = options;
        }
        button.name = "cmdStart";
        button.bounds = Bounds{150, 300, 900, 375};
        button.container = &output;
        form.Show();
    }

    Frame mode;
    Frame output;
    std::array<OptionButton, 2> options;
    Button button;
    TestWindow form{&mode, &output, &options[0], &options[1], &button};
};

TEST_F(FrameWidgetTest, ShowsItsTitleAndIsCalledByIt) {
    const auto* const frame = form.Find<QGroupBox>("fraShuffle(1)");
    EXPECT_EQ(frame->title(), QStringLiteral("Configuration"));
    EXPECT_EQ(frame->accessibleName(), QStringLiteral("Configuration"));
    mode.caption = "Input";
    EXPECT_EQ(frame->title(), QStringLiteral("Input"));
}

TEST_F(FrameWidgetTest, CarriesItsControlsAtTheirPlacesWithinIt) {
    EXPECT_EQ(form.Find("cmdStart")->parentWidget(), form.Find("fraShuffle(2)"));
    EXPECT_EQ(form.Find("cmdStart")->mapTo(form.Find("clientArea"), QPoint(0, 0)), QPoint(20, 140));
}

TEST_F(FrameWidgetTest, TakesItsControlsWithItWhenItIsHiddenOrSwitchedOff) {
    output.enabled = false;
    EXPECT_FALSE(form.Find("cmdStart")->isEnabled());
    EXPECT_TRUE(form.Find("optShuffle(0)")->isEnabled());
    output.visible = false;
    EXPECT_FALSE(form.Find("cmdStart")->isVisible());
}

TEST_F(FrameWidgetTest, OptionsOnAFrameAreAGroupOfTheirOwn) {
    options[0].Choose();
    QTest::mouseClick(form.Find("optShuffle(1)"), Qt::LeftButton, {}, QPoint(6, 10));

    EXPECT_TRUE(options[1].IsChosen());
    EXPECT_FALSE(form.Find<QRadioButton>("optShuffle(0)")->isChecked());
}

TEST_F(FrameWidgetTest, ItsTitleStandsAboveWhatItCarries) {
    const auto* const frame = form.Find<QGroupBox>("fraShuffle(1)");

    EXPECT_LE(frame->fontMetrics().height(), form.Find("optShuffle(0)")->y());
}

}  // namespace
}  // namespace ballhaven::platform
