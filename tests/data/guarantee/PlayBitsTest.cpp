#include "data/guarantee/PlayBits.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using Words = std::vector<PlayBits::Word>;

Words WordsOf(std::span<const PlayBits::Word> words) {
    return {words.begin(), words.end()};
}

TEST(PlayBits, EachNumberHasTheBitsOfThePlaysThatHoldIt) {
    const std::vector<std::vector<int>> plays{{0, 2}, {1, 2}, {2}};
    const PlayBits bits(4, plays);

    EXPECT_EQ(bits.Numbers(), 4);
    EXPECT_EQ(bits.Plays(), 3);
    EXPECT_EQ(WordsOf(bits.PlaysWith(0)), Words{0b001});
    EXPECT_EQ(WordsOf(bits.PlaysWith(1)), Words{0b010});
    EXPECT_EQ(WordsOf(bits.PlaysWith(2)), Words{0b111});
    EXPECT_EQ(WordsOf(bits.PlaysWith(3)), Words{0});
}

TEST(PlayBits, TheSixtyFifthPlayBeginsASecondWord) {
    std::vector<std::vector<int>> plays(65);
    plays[63] = {0};
    plays[64] = {0};
    const PlayBits bits(1, plays);

    EXPECT_EQ(WordsOf(bits.PlaysWith(0)), (Words{0x8000'0000'0000'0000U, 1}));
}

TEST(PlayBits, WithoutPlaysASetOfThemHasNoWords) {
    const PlayBits bits(3, {});

    EXPECT_EQ(bits.Words(), 0U);
    EXPECT_TRUE(bits.PlaysWith(2).empty());
}

TEST(PlayBits, PlaysAreCountedOverAllWords) {
    EXPECT_EQ(CountPlays(Words{}), 0);
    EXPECT_EQ(CountPlays(Words{0b1011, 0, 0x8000'0000'0000'0001U}), 5);
}

TEST(PlayBits, TheFirstPlayMayStandInAnyWord) {
    EXPECT_EQ(FirstPlay(Words{0b1100, 1}), 2);
    EXPECT_EQ(FirstPlay(Words{0, 0b10}), 65);
    EXPECT_EQ(FirstPlay(Words{0, 0}), -1);
}

}  // namespace
}  // namespace ballhaven::data
