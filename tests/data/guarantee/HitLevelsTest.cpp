#include "data/guarantee/HitLevels.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

class HitLevelsTest : public testing::Test {
  protected:
    /// The plays with at least so many hits, one bit a play.
    [[nodiscard]] PlayBits::Word AtLeast(int level, int hits) const { return levels.AtLeast(level, hits)[0]; }

    const std::vector<std::vector<int>> plays{{0, 1, 2}, {1, 2, 3}, {0, 3, 4}};
    const PlayBits bits{5, plays};
    HitLevels levels{bits, 3, 3};
};

TEST_F(HitLevelsTest, EveryPlayHitsNoneOrMoreFromTheStart) {
    for (int level = 0; level <= 3; ++level) {
        EXPECT_EQ(AtLeast(level, 0), 0b111U) << level;
    }
    EXPECT_EQ(AtLeast(0, -1), 0b111U);
    EXPECT_EQ(AtLeast(0, 1), 0U);
}

TEST_F(HitLevelsTest, EachNumberOfTheSetRaisesTheHitsOfItsPlays) {
    levels.Add(1, 1);
    levels.Add(2, 2);
    levels.Add(3, 3);

    EXPECT_EQ(AtLeast(1, 1), 0b011U);
    EXPECT_EQ(AtLeast(1, 2), 0U);
    EXPECT_EQ(AtLeast(2, 2), 0b011U);
    EXPECT_EQ(AtLeast(3, 1), 0b111U);
    EXPECT_EQ(AtLeast(3, 2), 0b011U);
    EXPECT_EQ(AtLeast(3, 3), 0b010U);
}

TEST_F(HitLevelsTest, AnotherNumberAtALevelTakesThePlaceOfTheOneBefore) {
    levels.Add(1, 0);
    levels.Add(2, 1);
    levels.Add(2, 3);

    EXPECT_EQ(AtLeast(2, 1), 0b111U);
    EXPECT_EQ(AtLeast(2, 2), 0b100U);
    EXPECT_EQ(AtLeast(1, 1), 0b101U);
}

TEST(HitLevels, HitsAboveTheHighestWantedAreNotKept) {
    const std::vector<std::vector<int>> plays{{0, 1}, {0}};
    const PlayBits bits(2, plays);
    HitLevels levels(bits, 2, 1);
    levels.Add(1, 0);
    levels.Add(2, 1);

    EXPECT_EQ(levels.AtLeast(2, 1)[0], 0b11U);
    EXPECT_EQ(levels.AtLeast(1, 1)[0], 0b11U);
}

}  // namespace
}  // namespace ballhaven::data
