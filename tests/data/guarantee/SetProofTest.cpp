#include "data/guarantee/SetProof.h"

#include "support/Combinations.h"
#include "support/Wheels.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace ballhaven::data {
namespace {

using support::AllCombinations;
using support::NumbersBelow;
using support::WheelPlays;
using Set = std::vector<int>;

/// The sets that nobody hits.
std::vector<Set> Missed(int numbers, const WheelPlays& plays, int drawn, int hits) {
    std::vector<Set> sets;
    TellSets(PlayBits(numbers, plays), drawn, hits,
             {.missed = [&](std::span<const int> set) { sets.emplace_back(set.begin(), set.end()); }, .hit = {}});
    return sets;
}

TEST(SetProof, TheMissedSetsOfTwoPlays) {
    EXPECT_EQ(Missed(4, {{0, 1}, {2, 3}}, 2, 2), (std::vector<Set>{{0, 2}, {0, 3}, {1, 2}, {1, 3}}));
    EXPECT_EQ(Missed(4, {{0, 1}, {2, 3}}, 3, 2), (std::vector<Set>{}));
    EXPECT_EQ(Missed(3, {}, 1, 1), (std::vector<Set>{{0}, {1}, {2}}));
}

RC_GTEST_PROP(SetProof, EverySetIsToldInOrderWithAPlayThatHitsItOrAsMissed, ()) {
    const int numbers = *rc::gen::inRange(1, 10);
    const WheelPlays all = AllCombinations(NumbersBelow(numbers), *rc::gen::inRange(1, numbers + 1));
    const auto plays = *rc::gen::container<WheelPlays>(rc::gen::elementOf(all));
    const int drawn = *rc::gen::inRange(1, std::min(numbers, 6) + 1);
    const int hits = *rc::gen::inRange(1, drawn + 1);

    std::vector<Set> told;
    std::vector<Set> missed;
    bool everyPlayHits = true;
    TellSets(PlayBits(numbers, plays), drawn, hits,
             {.missed =
                  [&](std::span<const int> set) {
                      told.emplace_back(set.begin(), set.end());
                      missed.push_back(told.back());
                  },
              .hit =
                  [&](std::span<const int> set, int play) {
                      told.emplace_back(set.begin(), set.end());
                      const WheelPlays one{plays.at(static_cast<std::size_t>(play))};
                      everyPlayHits = everyPlayHits && support::PlaysThatHit(one, told.back(), hits) == 1;
                  }});

    RC_ASSERT(told == AllCombinations(NumbersBelow(numbers), drawn));
    RC_ASSERT(everyPlayHits);
    std::erase_if(told, [&](const Set& set) { return support::PlaysThatHit(plays, set, hits) > 0; });
    RC_ASSERT(missed == told);
    RC_ASSERT(Missed(numbers, plays, drawn, hits) == told);
}

}  // namespace
}  // namespace ballhaven::data
