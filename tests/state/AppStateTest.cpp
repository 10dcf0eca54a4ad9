#include "state/AppState.h"

#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <set>

namespace ballhaven {
namespace {

using Failure = std::optional<RuntimeFailure::Kind>;

/// The kind of failure that looking into a cell of the plays ends in.
Failure FailureAt(int pickColumn, int play, int slot) {
    const PlayPicks plays;
    try {
        static_cast<void>(plays(pickColumn, play, slot));
        return std::nullopt;
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
}

TEST(PlayPicks, StartWithZeroInEveryCell) {
    const PlayPicks plays;
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int play = 0; play <= 5000; ++play) {
            for (int slot = 0; slot <= 10; ++slot) {
                ASSERT_EQ(plays(pickColumn, play, slot), 0) << pickColumn << ' ' << play << ' ' << slot;
            }
        }
    }
}

TEST(PlayPicks, EveryCellHasAPlaceOfItsOwn) {
    PlayPicks plays;
    std::set<const std::int16_t*> places;
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int play = 0; play <= 5000; ++play) {
            for (int slot = 0; slot <= 10; ++slot) {
                places.insert(&plays(pickColumn, play, slot));
            }
        }
    }
    EXPECT_EQ(places.size(), 2U * 5001 * 11);
}

TEST(PlayPicks, AnswerWithWhatWasPutIntoACell) {
    PlayPicks plays;
    plays(bonusPicks, 5000, 10) = 42;
    plays(mainPicks, 5000, 10) = 7;

    const PlayPicks& read = plays;
    EXPECT_EQ(read(bonusPicks, 5000, 10), 42);
    EXPECT_EQ(read(mainPicks, 5000, 10), 7);
    EXPECT_EQ(read(bonusPicks, 5000, 9), 0);
}

TEST(PlayPicks, RefuseEachSubscriptBeyondItsRange) {
    EXPECT_EQ(FailureAt(mainPicks, 0, 0), std::nullopt);
    EXPECT_EQ(FailureAt(bonusPicks, 5000, 10), std::nullopt);

    constexpr Failure outOfRange = RuntimeFailure::Kind::SubscriptOutOfRange;
    EXPECT_EQ(FailureAt(-1, 1, 1), outOfRange);
    EXPECT_EQ(FailureAt(2, 1, 1), outOfRange);
    EXPECT_EQ(FailureAt(mainPicks, -1, 1), outOfRange);
    EXPECT_EQ(FailureAt(mainPicks, 5001, 1), outOfRange);
    EXPECT_EQ(FailureAt(mainPicks, 1, -1), outOfRange);
    EXPECT_EQ(FailureAt(mainPicks, 1, 11), outOfRange);
}

TEST(PlayPicks, AreEqualWhenEveryCellIs) {
    PlayPicks plays;
    EXPECT_EQ(plays, PlayPicks());
    plays(bonusPicks, 1, 1) = 1;
    EXPECT_FALSE(plays == PlayPicks());
}

TEST(KindsOfGame, TheFirstThreeAreNumberGamesAndTheRestCardGames) {
    for (const int gameType : {0, 1, 2}) {
        EXPECT_FALSE(IsCardGame(gameType)) << gameType;
    }
    for (const int gameType : {3, 4, 5}) {
        EXPECT_TRUE(IsCardGame(gameType)) << gameType;
    }
}

TEST(KindsOfGame, TheFirstNumberGameAndTheFirstCardGameHaveNoBonus) {
    for (const int gameType : {0, 3}) {
        EXPECT_FALSE(HasBonus(gameType)) << gameType;
        EXPECT_FALSE(BonusComesFromMainPool(gameType) || BonusComesFromOwnPool(gameType)) << gameType;
    }
    for (const int gameType : {1, 2, 4, 5}) {
        EXPECT_TRUE(HasBonus(gameType)) << gameType;
        EXPECT_NE(BonusComesFromMainPool(gameType), BonusComesFromOwnPool(gameType)) << gameType;
    }
}

TEST(HotTables, AreMarkedStaleAllButHotNumbers) {
    MarkHotTablesStale();

    EXPECT_TRUE(appState.hotPairStale);
    EXPECT_TRUE(appState.pairedOnceStale);
    EXPECT_TRUE(appState.repeaterStale);
    EXPECT_TRUE(appState.noHitterStale);
}

TEST(ChosenPicks, AreNoneAtFirstInAHundredSlotsOfEachListBehindTheOption) {
    const ChosenPicks chosen;
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        EXPECT_EQ(chosen(list, 0), 0);
        for (int slot = 1; slot <= 100; ++slot) {
            EXPECT_EQ(chosen(list, slot), -1) << slot;
        }
        EXPECT_THROW((void)chosen(list, 101), RuntimeFailure);
        EXPECT_THROW((void)chosen(list, -1), RuntimeFailure);
    }
    EXPECT_THROW((void)chosen(2, 1), RuntimeFailure);
}

TEST(ChosenPicks, TheSlotsOfAListAreItsCellsFromOneToAHundred) {
    ChosenPicks chosen;
    chosen(mainPicks, 0) = 3;
    chosen(mainPicks, 1) = 10;
    chosen(mainPicks, 100) = 11;
    chosen(bonusPicks, 1) = 20;
    chosen(bonusPicks, 100) = 21;
    EXPECT_EQ(chosen.Slots(mainPicks).size(), 100U);
    EXPECT_EQ(chosen.Slots(mainPicks).front(), 10);
    EXPECT_EQ(chosen.Slots(mainPicks).back(), 11);
    EXPECT_EQ(chosen.Slots(bonusPicks).front(), 20);
    chosen.Slots(bonusPicks).back() = 22;
    EXPECT_EQ(chosen(bonusPicks, 100), 22);
}

}  // namespace
}  // namespace ballhaven
