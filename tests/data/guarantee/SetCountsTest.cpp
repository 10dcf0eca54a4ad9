#include "data/guarantee/SetCounts.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

TEST(SetCounts, TheCountsOfKnownLotteries) {
    const SetCounts counts;

    EXPECT_EQ(counts(49, 6), 13'983'816U);
    EXPECT_EQ(counts(52, 5), 2'598'960U);
    EXPECT_EQ(counts(16, 5), 4368U);
    EXPECT_EQ(counts(99, 10), 15'579'278'510'796U);
}

TEST(SetCounts, AGameFrom0To99HasAHundredNumbers) {
    const SetCounts counts;
    EXPECT_EQ(counts(100, 1), 100U);
    EXPECT_EQ(counts(100, 2), 4950U);
    EXPECT_EQ(counts(100, 6), 1'192'052'400U);
    EXPECT_EQ(counts(100, 10), 17'310'309'456'440U);
}

TEST(SetCounts, ThereIsOneSetOfNoneAndOneOfAllAndNoneOfMoreThanThereAre) {
    const SetCounts counts;

    EXPECT_EQ(counts(0, 0), 1U);
    EXPECT_EQ(counts(99, 0), 1U);
    EXPECT_EQ(counts(10, 10), 1U);
    EXPECT_EQ(counts(9, 10), 0U);
    EXPECT_EQ(counts(0, 1), 0U);
}

}  // namespace
}  // namespace ballhaven::data
