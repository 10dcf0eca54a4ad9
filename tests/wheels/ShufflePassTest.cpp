#include "wheels/ShufflePass.h"

#include "plays/PlayMethodCode.h"
#include "support/Plays.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <deque>
#include <random>
#include <set>

namespace ballhaven {
namespace {

using support::EmptyPlays;
using support::PicksText;
using support::PlaysInUse;
using support::PutPicks;

using Pool = std::vector<std::int16_t>;

/// Numbers that are drawn in their order; one more than there are fails the test.
class Numbers {
  public:
    explicit Numbers(std::deque<float> drawn) : numbers(std::move(drawn)) {}

    float operator()() {
        if (numbers.empty()) {
            ADD_FAILURE() << "drawn once too often";
            throw std::runtime_error("no number is left");
        }
        const float next = numbers.front();
        numbers.pop_front();
        return next;
    }

    [[nodiscard]] std::size_t Left() const { return numbers.size(); }

  private:
    std::deque<float> numbers;
};

class Shuffle : public ::testing::Test {
  protected:
    void Deal(PickColumn list, const Pool& pool, int slots, std::deque<float> numbers) {
        Numbers drawn(std::move(numbers));
        ShufflePass({list, pool, slots}, plays, table, std::ref(drawn));
        EXPECT_EQ(drawn.Left(), 0U);
    }

    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 1, 1};
};

TEST_F(Shuffle, SlotsTakeThePicksInTheOrderOfTheDraws) {
    Deal(mainPicks, {10, 20, 30, 40}, 3, {0.75F, 0.0F, 0.5F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 2), "40 10 30|");
    EXPECT_EQ(table(mainPicks, 1, 0), byShuffle);
    EXPECT_EQ(table(mainPicks, 2, 0), 0);
}

TEST_F(Shuffle, EachPickOfThePoolHasAnEqualShareOfTheNumbers) {
    plays.lastPlay = 6;
    Deal(mainPicks, {10, 20, 30}, 1, {0.0F, 0.333F, 0.334F, 0.666F, 0.667F, 0.99999994F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 6), "10|10|20|20|30|30");
}

TEST_F(Shuffle, APickThatThePlayHasIsDrawnAgain) {
    Deal(mainPicks, {10, 20, 30}, 2, {0.0F, 0.1F, 0.2F, 0.5F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 1), "10 20");
}

TEST_F(Shuffle, PlaysMayComeOutEqual) {
    plays.lastPlay = 2;
    Deal(mainPicks, {10, 20, 30}, 2, {0.0F, 0.5F, 0.0F, 0.5F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 2), "10 20|10 20");
}

TEST_F(Shuffle, HolesAreFilledFirstAndPicksThatStandThereStay) {
    PutPicks(table, mainPicks, 1, {-1, 77});
    Deal(mainPicks, {10, 20, 30}, 3, {0.0F, 0.5F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 1), "10 77 20");
}

TEST_F(Shuffle, OnlyTheSlotsOfTheGameAreLookedAt) {
    PutPicks(table, mainPicks, 1, {-1, -1, 10});
    Deal(mainPicks, {10, 20, 30}, 2, {0.0F, 0.5F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 1), "10 20 10");
}

TEST_F(Shuffle, TheBonusPassMarksThePlaysToo) {
    Deal(bonusPicks, {5, 6}, 1, {0.9F});

    EXPECT_EQ(PicksText(table, bonusPicks, 1, 1), "6");
    EXPECT_EQ(table(mainPicks, 1, 0), byShuffle);
    EXPECT_EQ(table(bonusPicks, 1, 0), 0);
}

// Not a bug: SHUFFLE-FULL-PLAY-1 in docs/not-bugs.md.
TEST_F(Shuffle, QuirkShuffleFullPlay1ThePickDrawnForAFullPlayOpensTheNextOneUnasked) {
    plays.lastPlay = 2;
    PutPicks(table, bonusPicks, 1, {8});
    PutPicks(table, bonusPicks, 2, {9, -1});
    Deal(bonusPicks, {5, 6, 7}, 1, {0.0F, 0.4F});

    // The second play is full too, with the pick of the first: its own goes on behind the stretch.
    EXPECT_EQ(PicksText(table, bonusPicks, 1, 3), "8|5|6");
}

TEST_F(Shuffle, QuirkShuffleFullPlay1APlayWhoseHoleIsNotItsLastSlotIsFullWhenItIsComeTo) {
    plays.lastPlay = 2;
    PutPicks(table, mainPicks, 1, {-1, 77});
    Deal(mainPicks, {10, 20, 30}, 2, {0.0F, 0.4F, 0.7F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 2), "10 77|20 30");
}

TEST_F(Shuffle, NothingIsWrittenBehindTheLastPlay) {
    plays = {5000, 5000, 5000};
    PutPicks(table, mainPicks, 5000, {1, 2});
    PutPicks(table, bonusPicks, 1, {3});
    PlayPicks expected = table;
    expected(mainPicks, 5000, 0) = byShuffle;
    EXPECT_NO_THROW(Deal(mainPicks, {10, 20, 30}, 2, {0.0F}));

    EXPECT_TRUE(table == expected);
}

TEST_F(Shuffle, APlayThatHasTheWholePoolIsLeftAsFarAsItIsFilled) {
    plays.lastPlay = 2;
    PutPicks(table, mainPicks, 1, {10, -1, 20});
    Deal(mainPicks, {10, 20, 10, 20}, 3, {0.0F, 0.0F, 0.3F, 0.0F});

    EXPECT_EQ(PicksText(table, mainPicks, 1, 2), "10 - 20|10 20");
}

RC_GTEST_PROP(ShufflePass, FillsEveryPlayWithDifferentPicksOfThePool, ()) {
    const int slots = *rc::gen::inRange(1, 11);
    const int size = *rc::gen::inRange(slots + 1, 60);
    const int first = *rc::gen::inRange(1, 4990);
    const int last = *rc::gen::inRange(first, std::min(first + 60, 5001));
    Pool pool;
    for (int pick = 0; pick < size; ++pick) {
        pool.push_back(static_cast<std::int16_t>(3 * pick));
    }
    PlayPicks table = EmptyPlays();
    std::mt19937 source(*rc::gen::arbitrary<unsigned>());
    ShufflePass({mainPicks, pool, slots}, {first, last, last}, table,
                [&source] { return static_cast<float>(source() >> 8U) / 16777216.0F; });

    RC_ASSERT(PlaysInUse(table, mainPicks) == last + 1 - first);
    for (int play = first; play <= last; ++play) {
        const auto picks = table.Slots(mainPicks, play).first(static_cast<std::size_t>(slots));
        const std::set<std::int16_t> different(picks.begin(), picks.end());
        RC_ASSERT(std::ssize(different) == slots);
        for (const std::int16_t pick : different) {
            RC_ASSERT(pick % 3 == 0 && 0 <= pick && pick < 3 * size);
        }
    }
}

}  // namespace
}  // namespace ballhaven
