#include "plays/PickSlots.h"

#include "plays/PlayMethodCode.h"
#include "support/Plays.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

TEST(Holds, LooksIntoEverySlot) {
    const std::vector<std::int16_t> slots = {4, -1, 9};
    EXPECT_TRUE(Holds(slots, 4));
    EXPECT_TRUE(Holds(slots, 9));
    EXPECT_FALSE(Holds(slots, 5));
    EXPECT_FALSE(Holds({}, 4));
}

TEST(EmptyPlay, TakesThePicksOfBothListsOutAndLeavesTheOtherPlays) {
    PlayPicks plays = support::EmptyPlays();
    for (const int play : {2, 3, 4}) {
        support::PutPicks(plays, mainPicks, play, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        support::PutPicks(plays, bonusPicks, play, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        plays(mainPicks, play, 0) = byShuffle;
    }
    EmptyPlay(plays, 3);
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        EXPECT_EQ(support::PicksText(plays, list, 2, 4), "1 2 3 4 5 6 7 8 9 10||1 2 3 4 5 6 7 8 9 10");
    }
    EXPECT_EQ(plays(mainPicks, 2, 0), byShuffle);
    EXPECT_EQ(plays(mainPicks, 3, 0), byHand);
    EXPECT_EQ(plays(mainPicks, 4, 0), byShuffle);
}

}  // namespace
}  // namespace ballhaven
