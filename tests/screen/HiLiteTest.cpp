#include "screen/HiLite.h"

#include "forms/MainForm.h"
#include "support/FreshStart.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace ballhaven {
namespace {

using platform::CellStyle;
using platform::Color;

constexpr Color black = platform::black;
constexpr Color white = platform::white;
constexpr Color red = platform::red;
constexpr Color blue = platform::blue;

Color ForegroundOn(Color background) {
    CellStyle style{blue, background};
    ContrastRule(style);
    EXPECT_EQ(style.background, background);
    return style.foreground;
}

std::optional<int> BoxHolding(std::string_view text, const HiLites& hiLites, BoxRange boxes) {
    return FindBox(hiLites, boxes, [text](std::string_view box) { return box == text; });
}

TEST(HiLiteBackground, TheTenBoxesHaveTheirColoursFromLeftToRight) {
    const std::vector<Color> expected{{255, 0, 255}, {255, 255, 0}, {255, 0, 0},   {0, 255, 255}, {0, 255, 0},
                                      {0, 128, 128}, {128, 0, 128}, {128, 128, 0}, {0, 0, 255},   {0, 0, 0}};
    for (int box = 0; box < hiLiteBoxes; ++box) {
        EXPECT_EQ(HiLiteBackground(box), expected[static_cast<std::size_t>(box)]) << box;
    }
}

TEST(HiLiteBackground, IsTheColourOfTheSwatchAboveTheBox) {
    support::LayOutAfresh();
    for (int box = 0; box < hiLiteBoxes; ++box) {
        EXPECT_EQ(HiLiteBackground(box), *frmMainForm.lblColor[static_cast<std::size_t>(box)].background) << box;
    }
}

TEST(ContrastRule, LightColoursBearBlackText) {
    EXPECT_EQ(ForegroundOn({255, 0, 255}), black);
    EXPECT_EQ(ForegroundOn({255, 255, 0}), black);
    EXPECT_EQ(ForegroundOn({0, 255, 255}), black);
    EXPECT_EQ(ForegroundOn({0, 255, 0}), black);
}

TEST(ContrastRule, DarkColoursBearWhiteText) {
    EXPECT_EQ(ForegroundOn({255, 0, 0}), white);
    EXPECT_EQ(ForegroundOn({0, 128, 128}), white);
    EXPECT_EQ(ForegroundOn({128, 0, 128}), white);
    EXPECT_EQ(ForegroundOn({128, 128, 0}), white);
    EXPECT_EQ(ForegroundOn({0, 0, 255}), white);
    EXPECT_EQ(ForegroundOn({0, 0, 0}), white);
}

TEST(ContrastRule, AnyOtherBackgroundLeavesTheTextAsItIs) {
    EXPECT_EQ(ForegroundOn(white), blue);
    EXPECT_EQ(ForegroundOn({1, 2, 3}), blue);
    EXPECT_EQ(ForegroundOn(platform::windowColor), blue);
}

TEST(LogContrastRule, TheSystemsWindowColourBearsRedText) {
    CellStyle style{black, platform::windowColor};

    LogContrastRule(style);

    EXPECT_EQ(style.foreground, red);
}

TEST(LogContrastRule, AFixedWhiteIsNotTheSystemsWindowColour) {
    CellStyle style{black, white};

    LogContrastRule(style);

    EXPECT_EQ(style.foreground, black);
}

TEST(LogContrastRule, TheTenColoursBearTheirUsualText) {
    CellStyle style{red, {255, 255, 0}};

    LogContrastRule(style);

    EXPECT_EQ(style.foreground, black);
}

TEST(BoxRanges, MainAndBonusBoxesStandSideBySide) {
    EXPECT_EQ(MainBoxes(5), (BoxRange{0, 4}));
    EXPECT_EQ(BonusBoxes(5, 2), (BoxRange{5, 6}));
    EXPECT_EQ(AllBoxes(5, 2), (BoxRange{0, 6}));
}

TEST(FindBox, TheFirstBoxOfTheRunThatHoldsTheTextIsFound) {
    const HiLites hiLites{true, {"", "7", "", "", "7"}};

    EXPECT_EQ(BoxHolding("7", hiLites, {0, 5}), 1);
    EXPECT_EQ(BoxHolding("7", hiLites, {2, 5}), 4);
    EXPECT_EQ(BoxHolding("7", hiLites, {2, 4}), 4);
    EXPECT_EQ(BoxHolding("7", hiLites, {2, 3}), std::nullopt);
}

TEST(FindBox, NothingIsFoundWithTheHiLiteOff) {
    EXPECT_EQ(BoxHolding("7", {false, {"", "7"}}, {0, 5}), std::nullopt);
    EXPECT_EQ(BoxHolding("7", {true, {"", "7"}}, {0, 5}), 1);
}

TEST(FindBox, ARunBeyondTheTenBoxesEndsThere) {
    const HiLites hiLites{true, {"1", "", "", "", "", "", "", "", "", "7"}};

    EXPECT_EQ(BoxHolding("7", hiLites, {0, 40}), 9);
    EXPECT_EQ(BoxHolding("8", hiLites, {0, 40}), std::nullopt);
    EXPECT_EQ(BoxHolding("1", hiLites, {-3, 40}), 0);
}

}  // namespace
}  // namespace ballhaven
