#include "screen/HiLite.h"

#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::CellStyle;
using platform::Color;
using support::BonusPool;
using support::FillBox;
using support::NumberGame;
using support::StartWith;

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

std::optional<int> BoxHolding(const std::string& text, BoxRange boxes) {
    return FindBox(boxes, [&text](const std::string& box) { return box == text; });
}

TEST(HiLiteBackground, TheTenBoxesHaveTheirColoursFromLeftToRight) {
    const std::vector<Color> expected{{255, 0, 255}, {255, 255, 0}, {255, 0, 0},   {0, 255, 255}, {0, 255, 0},
                                      {0, 128, 128}, {128, 0, 128}, {128, 128, 0}, {0, 0, 255},   {0, 0, 0}};
    for (int box = 0; box < hiLiteBoxes; ++box) {
        EXPECT_EQ(HiLiteBackground(box), expected[static_cast<std::size_t>(box)]) << box;
    }
}

TEST(HiLiteBackground, IsTheColourOfTheSwatchAboveTheBox) {
    StartWith(NumberGame());
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
    StartWith(NumberGame().Picks(5).Bonus(2, BonusPool::Separate));

    EXPECT_EQ(MainBoxes(), (BoxRange{0, 4}));
    EXPECT_EQ(BonusBoxes(), (BoxRange{5, 6}));
    EXPECT_EQ(AllBoxes(), (BoxRange{0, 6}));
}

TEST(FindBox, TheFirstBoxOfTheRunThatHoldsTheTextIsFound) {
    StartWith(NumberGame().Picks(6));
    appState.colorMode = 1;
    FillBox(1, "7");
    FillBox(4, "7");

    EXPECT_EQ(BoxHolding("7", {0, 5}), 1);
    EXPECT_EQ(BoxHolding("7", {2, 5}), 4);
    EXPECT_EQ(BoxHolding("7", {2, 3}), std::nullopt);
}

TEST(FindBox, NothingIsFoundWithTheHiLiteOff) {
    StartWith(NumberGame().Picks(6));
    FillBox(1, "7");

    appState.colorMode = 0;
    EXPECT_EQ(BoxHolding("7", {0, 5}), std::nullopt);

    appState.colorMode = 2;
    EXPECT_EQ(BoxHolding("7", {0, 5}), 1);
}

TEST(FindBox, ARunBeyondTheTenthBoxEndsThere) {
    StartWith(NumberGame().Picks(6));
    appState.colorMode = 1;
    FillBox(9, "7");

    EXPECT_EQ(BoxHolding("7", {0, 40}), 9);
    EXPECT_EQ(BoxHolding("8", {0, 40}), std::nullopt);
}

}  // namespace
}  // namespace ballhaven
