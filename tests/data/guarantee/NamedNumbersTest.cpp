#include "data/guarantee/NamedNumbers.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven::data {
namespace {

using Numbers = std::vector<int>;

constexpr GameRules numberGame{.gameType = 0, .mainPickCount = 6, .mainLow = 0, .mainHigh = 49};
constexpr GameRules cardGame{.gameType = 3, .mainPickCount = 5, .mainLow = 1, .mainHigh = 52};

std::string RefusalOf(const GameRules& rules, std::string_view text) {
    try {
        const Numbers numbers = NamedNumbers(rules, text);
        return "none, but " + std::to_string(numbers.size()) + " numbers";
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

TEST(NamedNumbers, CommasAndBlanksStandBetweenThem) {
    EXPECT_EQ(NamedNumbers(numberGame, "7,3, 20 0"), (Numbers{0, 3, 7, 20}));
    EXPECT_EQ(NamedNumbers(numberGame, " 5 "), Numbers{5});
}

TEST(NamedNumbers, AHyphenNamesAStretchAndNoNumberComesTwice) {
    EXPECT_EQ(NamedNumbers(numberGame, "46-49,1-3,2,48"), (Numbers{1, 2, 3, 46, 47, 48, 49}));
    EXPECT_EQ(NamedNumbers(numberGame, "7-7"), Numbers{7});
}

TEST(NamedNumbers, CardsAreNamedInEitherCase) {
    EXPECT_EQ(NamedNumbers(cardGame, "Ks,10c,ah"), (Numbers{1, 23, 52}));
}

TEST(NamedNumbers, WhatTheGameDoesNotDrawIsRefused) {
    EXPECT_EQ(RefusalOf(numberGame, "7,50"),
              "\"50\" names no main picks of this game: name numbers from 0 to 49, such as 3,7,20-25.");
    for (const std::string text :
         {"", " , ", "x", "4x", "-5", "5-", "9-5", "1--3", "1-2-3", "99999999999", "48-50", "Ah"}) {
        EXPECT_EQ(RefusalOf(numberGame, text).find("\"" + text + "\" names no main picks"), 0U) << text;
    }
    for (const std::string text : {"7", "1h", "14h", "11c", "Ax", "h", "A", "10", "1-3", "99999999h", "Ah-Kh"}) {
        EXPECT_EQ(RefusalOf(cardGame, text),
                  "\"" + text + "\" names no main picks of this game: name cards as Ah, 10c, Kd or 2s.");
    }
}

}  // namespace
}  // namespace ballhaven::data
