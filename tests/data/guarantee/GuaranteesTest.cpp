#include "data/guarantee/Guarantees.h"

#include "support/Combinations.h"
#include "support/Wheels.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace ballhaven::data {
namespace {

using support::AllCombinations;
using support::NumbersBelow;
using support::PlaysThatHit;
using support::PlaysWithout;
using support::WheelPlays;

const ShareReport nobody = [](double) {};

Guarantee Find(int numbers, const WheelPlays& plays, int drawn, int hits) {
    return FindGuarantees(PlayBits(numbers, plays), drawn, hits, hits, nobody).at(0);
}

bool Holds(int numbers, const WheelPlays& plays, int drawn, int hits) {
    return Find(numbers, plays, drawn, hits).missed == 0;
}

/// Whether each play is needed: without it, three drawn numbers would not always stand in one play.
bool EveryPlayIsNeededForThree(int numbers, const WheelPlays& plays) {
    for (std::size_t left = 0; left < plays.size(); ++left) {
        WheelPlays rest = plays;
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(left));
        if (Holds(numbers, rest, 3, 3)) {
            return false;
        }
    }
    return true;
}

/// The plainest reckoning: every set against every play.
Guarantee FindPlainly(int numbers, const WheelPlays& plays, int drawn, int hits) {
    Guarantee found{.drawn = drawn, .hits = hits, .leastPlays = static_cast<int>(plays.size()) + 1};
    for (const std::vector<int>& set : AllCombinations(NumbersBelow(numbers), drawn)) {
        const int hitting = PlaysThatHit(plays, set, hits);
        ++found.sets;
        found.missed += hitting == 0 ? 1 : 0;
        if (hitting < found.leastPlays) {
            found.leastPlays = hitting;
            found.weakest = set;
        }
    }
    return found;
}

TEST(Guarantees, OnePlayOfTwoInThreeNumbers) {
    const WheelPlays plays{{0, 1}};

    EXPECT_EQ(Find(3, plays, 2, 2),
              (Guarantee{.drawn = 2, .hits = 2, .sets = 3, .missed = 2, .leastPlays = 0, .weakest = {0, 2}}));
    EXPECT_EQ(Find(3, plays, 2, 1),
              (Guarantee{.drawn = 2, .hits = 1, .sets = 3, .missed = 0, .leastPlays = 1, .weakest = {0, 1}}));
}

TEST(Guarantees, WithoutPlaysEverySetIsMissed) {
    EXPECT_EQ(Find(5, {}, 3, 2),
              (Guarantee{.drawn = 3, .hits = 2, .sets = 10, .missed = 10, .leastPlays = 0, .weakest = {0, 1, 2}}));
}

TEST(Guarantees, AFullWheelGuaranteesEverything) {
    const WheelPlays plays = AllCombinations(NumbersBelow(8), 5);

    for (int drawn = 1; drawn <= 5; ++drawn) {
        for (int hits = 1; hits <= drawn; ++hits) {
            EXPECT_TRUE(Holds(8, plays, drawn, hits)) << hits << " in " << drawn;
        }
    }
    EXPECT_EQ(Find(8, plays, 5, 5).leastPlays, 1);
    EXPECT_EQ(Find(8, plays, 5, 4).leastPlays, 1 + 5 * 3);
    EXPECT_EQ(Find(8, plays, 3, 3).leastPlays, 10);  // the other two picks out of the other five numbers
}

TEST(Guarantees, AFullWheelWithoutOnePlayMissesJustThat) {
    WheelPlays plays = AllCombinations(NumbersBelow(8), 5);
    const std::vector<int> lost = plays[17];
    plays.erase(plays.begin() + 17);

    const Guarantee five = Find(8, plays, 5, 5);
    EXPECT_EQ(five.missed, 1U);
    EXPECT_EQ(five.weakest, lost);
    EXPECT_TRUE(Holds(8, plays, 5, 4));
}

// The fewest plays of six picks in which any three of the numbers stand together have long been known: 1 for six
// numbers, 4 for seven and for eight, 7 for nine, 10 for ten. Each wheel is told by what its plays leave out.
struct Covering {
    int numbers;
    std::size_t plays;
    WheelPlays leftOut;
};

const std::vector<Covering> smallestCoverings = {
    {6, 1, {{}}},
    {7, 4, {{0}, {1}, {2}, {3}}},
    {8, 4, {{0, 1}, {2, 3}, {4, 5}, {6, 7}}},
    {9, 7, {{0, 1, 2}, {0, 1, 3}, {0, 2, 3}, {1, 2, 3}, {4, 5, 6}, {4, 7, 8}, {5, 6, 7}}},
    {10,
     10,
     {{0, 1, 2, 3},
      {0, 1, 2, 4},
      {0, 1, 3, 4},
      {0, 2, 3, 4},
      {1, 2, 3, 4},
      {5, 6, 7, 8},
      {5, 6, 7, 9},
      {5, 6, 8, 9},
      {5, 7, 8, 9},
      {6, 7, 8, 9}}}};

TEST(Guarantees, TheSmallestCoveringsOfThreesBySixesHoldAndNeedEveryPlay) {
    for (const Covering& covering : smallestCoverings) {
        SCOPED_TRACE(covering.numbers);
        const WheelPlays plays = PlaysWithout(covering.numbers, covering.leftOut);
        ASSERT_EQ(plays.size(), covering.plays);
        EXPECT_TRUE(Holds(covering.numbers, plays, 3, 3));
        EXPECT_TRUE(EveryPlayIsNeededForThree(covering.numbers, plays));
    }
}

// The published bound of 132 plays for five in five of twelve numbers, where every five stand in one play alone.
TEST(Guarantees, TheSteinerWheelOfTwelveNumbersHitsEveryFiveOnce) {
    WheelPlays plays = support::SteinerPlaysOfTwelve();
    ASSERT_EQ(plays.size(), 132U);

    const Guarantee five = Find(12, plays, 5, 5);
    EXPECT_EQ(five.sets, 792U);
    EXPECT_EQ(five.missed, 0U);
    EXPECT_EQ(five.leastPlays, 1);
    EXPECT_EQ(Find(12, plays, 4, 4).leastPlays, 4);
    EXPECT_EQ(Find(12, plays, 6, 6).missed, 924U - 132U);

    plays.pop_back();
    EXPECT_EQ(Find(12, plays, 5, 5).missed, 6U);
}

TEST(Guarantees, SeveralNumbersOfHitsAtOnceGiveWhatEachGivesAlone) {
    const WheelPlays plays = PlaysWithout(9, smallestCoverings[3].leftOut);
    const std::vector<Guarantee> together = FindGuarantees(PlayBits(9, plays), 5, 2, 5, nobody);

    ASSERT_EQ(together.size(), 4U);
    for (int hits = 2; hits <= 5; ++hits) {
        EXPECT_EQ(together[static_cast<std::size_t>(hits - 2)], Find(9, plays, 5, hits)) << hits;
    }
}

TEST(Guarantees, TheShareGrowsToOne) {
    for (const int drawn : {1, 2, 3, 5}) {
        std::vector<double> shares;
        const WheelPlays plays{{0, 1, 2}, {3, 4, 5}};
        const auto found =
            FindGuarantees(PlayBits(7, plays), drawn, 1, drawn, [&](double share) { shares.push_back(share); });
        ASSERT_FALSE(shares.empty()) << drawn;
        EXPECT_TRUE(std::ranges::is_sorted(shares)) << drawn;
        EXPECT_DOUBLE_EQ(shares.back(), 1.0) << drawn;
    }
}

RC_GTEST_PROP(Guarantees, AgreeWithThePlainestReckoning, ()) {
    const int numbers = *rc::gen::inRange(1, 11);
    const int picks = *rc::gen::inRange(1, numbers + 1);
    const WheelPlays all = AllCombinations(NumbersBelow(numbers), picks);
    const auto count = static_cast<std::size_t>(*rc::gen::weightedElement<int>({{3, 12}, {1, 130}}));
    const auto plays =
        *rc::gen::resize(static_cast<int>(count), rc::gen::container<WheelPlays>(rc::gen::elementOf(all)));
    const int drawn = *rc::gen::inRange(1, std::min(numbers, 6) + 1);
    const int fewest = *rc::gen::inRange(1, drawn + 1);

    const std::vector<Guarantee> found = FindGuarantees(PlayBits(numbers, plays), drawn, fewest, drawn, nobody);
    for (const Guarantee& guarantee : found) {
        RC_ASSERT(guarantee == FindPlainly(numbers, plays, drawn, guarantee.hits));
    }
    RC_ASSERT(std::ssize(found) == drawn - fewest + 1);
}

}  // namespace
}  // namespace ballhaven::data
