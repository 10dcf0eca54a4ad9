#include "platform/Chance.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace ballhaven::platform {
namespace {

TEST(Chance, NumbersLieFrom0UpToBelow1) {
    Chance chance;
    for (int draw = 0; draw < 100000; ++draw) {
        const float number = chance.Next();
        ASSERT_GE(number, 0.0F);
        ASSERT_LT(number, 1.0F);
    }
}

TEST(Chance, EveryTenthIsMetAboutEquallyOften) {
    Chance chance;
    chance.Reseed(2002);
    std::array<int, 10> met{};
    for (int draw = 0; draw < 100000; ++draw) {
        ++met.at(static_cast<std::size_t>(chance.Next() * 10));
    }
    for (const int count : met) {
        EXPECT_NEAR(count, 10000, 500);
    }
}

TEST(Chance, AReseedFromTheSameTickKeepsOnGivingOtherNumbers) {
    Chance chance;
    std::set<float> numbers;
    for (int draw = 0; draw < 1000; ++draw) {
        chance.Reseed(7);
        numbers.insert(chance.Next());
    }
    EXPECT_GT(numbers.size(), 990U);
}

TEST(Chance, AReseedFromTicksThatCountUpByOneSpreadsOverTheWholeRange) {
    Chance chance;
    std::array<int, 4> met{};
    for (std::uint64_t tick = 0; tick < 4000; ++tick) {
        chance.Reseed(tick);
        ++met.at(static_cast<std::size_t>(chance.Next() * 4));
    }
    for (const int count : met) {
        EXPECT_NEAR(count, 1000, 150);
    }
}

TEST(Chance, WhatIsStirredInDecidesWhatComes) {
    Chance first;
    Chance second;
    Chance other;
    first.Reseed(1);
    second.Reseed(1);
    other.Reseed(2);

    const float number = first.Next();
    EXPECT_EQ(second.Next(), number);
    EXPECT_NE(other.Next(), number);
}

TEST(Chance, AReseedKeepsWhatWasStirredInBefore) {
    Chance first;
    Chance second;
    first.Reseed(1);
    first.Reseed(3);
    second.Reseed(2);
    second.Reseed(3);

    EXPECT_NE(first.Next(), second.Next());
}

}  // namespace
}  // namespace ballhaven::platform
