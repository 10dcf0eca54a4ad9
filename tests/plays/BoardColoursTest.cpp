#include "plays/BoardColours.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::CellStyle;
using platform::Color;

using List = std::vector<std::int16_t>;

const CellStyle plain{{0, 0, 0}, {255, 255, 255}};
const CellStyle red{{255, 0, 0}, {255, 255, 255}};
const CellStyle paleBlue{{0, 0, 0}, {192, 192, 255}};
const CellStyle grey{{192, 192, 192}, {255, 255, 255}};
const CellStyle picked{{255, 255, 255}, {0, 0, 0}};

const GameRules sixOf49{.gameType = 0, .mainPickCount = 6, .mainLow = 1, .mainHigh = 49};

GameRules WithBonus(int gameType) {
    return {.gameType = gameType,
            .mainPickCount = 5,
            .bonusPickCount = 1,
            .mainLow = 1,
            .mainHigh = 49,
            .bonusLow = 1,
            .bonusHigh = 49};
}

CellStyle StyleOf(const GameRules& rules, int cell, const List& main = {}, const List& bonus = {}) {
    return BoardCellStyle(rules, {main, bonus}, cell);
}

/// Which cells of a run have red text: "r", "." for black text, "b" on pale blue.
std::string Grounds(const GameRules& rules, int first, int last) {
    std::string grounds;
    for (int cell = first; cell <= last; ++cell) {
        const CellStyle style = StyleOf(rules, cell);
        grounds += style == plain ? '.' : style == red ? 'r' : style == paleBlue ? 'b' : '?';
    }
    return grounds;
}

TEST(BoardCellStyle, NumbersAreBlackOnWhite) {
    EXPECT_EQ(Grounds(sixOf49, 0, 107), std::string(108, '.'));
}

TEST(BoardCellStyle, TheRowOfTheWordIsPaleBlueInAGameWithBonusPicks) {
    for (const int gameType : {1, 2}) {
        EXPECT_EQ(Grounds(WithBonus(gameType), 97, 109), "..bbbbbbbbb..") << gameType;
    }
    for (const int gameType : {4, 5}) {
        EXPECT_EQ(Grounds(WithBonus(gameType), 64, 71), "..bbbbbb") << gameType;
    }
    EXPECT_EQ(Grounds({.gameType = 3}, 64, 71), "........");
}

TEST(BoardCellStyle, HeartsAndDiamondsAreRedInBothAreas) {
    const std::string suits = std::string(13, 'r') + std::string(13, '.') + std::string(13, 'r') + std::string(13, '.');
    EXPECT_EQ(Grounds({.gameType = 3}, 0, 51), suits);
    EXPECT_EQ(Grounds(WithBonus(5), 72, 123), suits);
}

TEST(BoardCellStyle, TheRunsOfAGameWithDuplicatesAlternateInRedAndBlack) {
    const GameRules fromZero{.gameType = 0, .mainPickCount = 3, .mainHigh = 4, .duplicatesAllowed = true};
    EXPECT_EQ(Grounds(fromZero, 0, 14), "rrrrr.....rrrrr");
    const GameRules fromOne{.gameType = 0, .mainPickCount = 3, .mainLow = 1, .mainHigh = 4, .duplicatesAllowed = true};
    EXPECT_EQ(Grounds(fromOne, 0, 11), "rrrr....rrrr");
}

TEST(BoardCellStyle, TheBonusRunsOfAGameFromZeroBeginInRed) {
    GameRules rules = WithBonus(2);
    rules.duplicatesAllowed = true;
    rules.bonusLow = 0;
    rules.bonusHigh = 3;
    EXPECT_EQ(Grounds(rules, 108, 119), "rrrr....rrrr");
    rules.mainLow = 0;
    rules.mainHigh = 9;
    EXPECT_EQ(Grounds(rules, 98, 108), ".bbbbbbbbbr");
}

// Not a bug: BONUS-RUNS-1 in docs/not-bugs.md.
TEST(QuirkBonusRuns1, TheBonusRunsOfAGameFromOneAreCountedFromTheFirstCellOfTheBoard) {
    GameRules rules = WithBonus(2);
    rules.duplicatesAllowed = true;
    rules.bonusHigh = 10;
    // Cell 108 stands in run 10 of ten cells, 110 in run 11, 120 in run 12.
    EXPECT_EQ(Grounds(rules, 108, 121), "rr..........rr");
}

TEST(BoardCellStyle, APoolWithoutNumbersHasNoRuns) {
    GameRules rules = WithBonus(2);
    rules.duplicatesAllowed = true;
    rules.bonusHigh = 0;
    EXPECT_EQ(Grounds(rules, 108, 110), "...");
}

TEST(BoardCellStyle, APickIsWhiteOnBlackInItsOwnArea) {
    EXPECT_EQ(StyleOf(sixOf49, 7, {3, 7}), picked);
    EXPECT_EQ(StyleOf(sixOf49, 8, {3, 7}), plain);
    EXPECT_EQ(StyleOf(WithBonus(2), 112, {}, {4}), picked);
    EXPECT_EQ(StyleOf(WithBonus(2), 4, {}, {4}), plain);
    EXPECT_EQ(StyleOf({.gameType = 3}, 0, {0}), picked) << "the first cell, a heart";
}

TEST(BoardCellStyle, PicksInSlotsThatTheGameNoLongerHasShowToo) {
    EXPECT_EQ(StyleOf(sixOf49, 30, {-1, -1, -1, -1, -1, -1, -1, -1, -1, 30}), picked);
}

TEST(BoardCellStyle, WhereTheOrderMattersTheColourTellsTheSlot) {
    GameRules rules = sixOf49;
    rules.orderMatters = true;
    const List picks{10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
    const Color backgrounds[] = {{0, 0, 0},     {0, 128, 0}, {128, 128, 128}, {128, 128, 0}, {128, 0, 0},
                                 {0, 128, 128}, {0, 0, 255}, {128, 0, 128},   {0, 0, 128},   {255, 0, 255}};
    for (int slot = 1; slot <= 10; ++slot) {
        const CellStyle style = StyleOf(rules, 9 + slot, picks);
        EXPECT_EQ(style.background, backgrounds[slot - 1]) << slot;
        EXPECT_EQ(style.foreground, slot == 10 ? Color(0, 0, 0) : Color(255, 255, 255)) << slot;
    }
    EXPECT_EQ(StyleOf(rules, 20, picks), picked) << "an eleventh pick";
}

TEST(BoardCellStyle, WhatTheOtherListHasTakenIsGreyWhereTheListsAreKeptApart) {
    EXPECT_EQ(StyleOf(WithBonus(1), 11, {}, {11}), grey);
    EXPECT_EQ(StyleOf(WithBonus(1), 108 + 11, {11}), grey);
    EXPECT_EQ(StyleOf({.gameType = 3}, 11, {}, {11}), grey);
    EXPECT_EQ(StyleOf(WithBonus(2), 11, {}, {11}), plain);
    EXPECT_EQ(StyleOf(WithBonus(4), 20, {}, {20}), plain);
}

TEST(SlotOfCell, IsTheFirstSlotThatHoldsThePick) {
    const List main{5, 7, 7};
    const List bonus{2, 9};
    EXPECT_EQ(SlotOfCell(WithBonus(2), {main, bonus}, 7), 2);
    EXPECT_EQ(SlotOfCell(WithBonus(2), {main, bonus}, 117), 2);
    EXPECT_EQ(SlotOfCell(WithBonus(2), {main, bonus}, 9), std::nullopt);
}

}  // namespace
}  // namespace ballhaven
