#include "statistics/HotTables.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotPairs.h"
#include "statistics/HotTableKinds.h"
#include "statistics/NoHitters.h"
#include "statistics/PairedOnce.h"
#include "statistics/Repeaters.h"
#include "support/MainScreen.h"
#include "support/PlainWalks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::BuiltTable;
using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

using Failure = std::optional<RuntimeFailure::Kind>;

constexpr auto outOfRange = RuntimeFailure::Kind::SubscriptOutOfRange;

TEST(BuildHotTable, BuildsEachTableByItsOwnRoutineAndClearsItsFlagAlone) {
    StartWith(NumberGame().Picks(2).To(5));
    ShowDraws({{1, 2}, {1, 2}, {1, 3}});
    ComputeHotTable();
    MarkHotTablesStale();

    BuildHotTable(HotTable::HotPairs);
    EXPECT_FALSE(appState.hotPairStale);
    EXPECT_TRUE(appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
    EXPECT_EQ(LastRowOf(HotTable::HotPairs), 0);

    BuildHotTable(HotTable::PairedOnce);
    EXPECT_FALSE(appState.pairedOnceStale);
    EXPECT_TRUE(appState.repeaterStale && appState.noHitterStale);
    EXPECT_EQ(LastRowOf(HotTable::PairedOnce), 0);

    BuildHotTable(HotTable::Repeaters);
    EXPECT_FALSE(appState.repeaterStale);
    EXPECT_TRUE(appState.noHitterStale);
    EXPECT_EQ(LastRowOf(HotTable::Repeaters), 1);

    BuildHotTable(HotTable::NoHitters);
    EXPECT_FALSE(appState.noHitterStale);
    EXPECT_EQ(LastRowOf(HotTable::NoHitters), 1);
}

TEST(BuildHotTable, LeavesHotNumbersAlone) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}});
    appState.hotNumberLast = 7;

    BuildHotTable(HotTable::HotNumbers);
    RefreshHotTable(HotTable::HotNumbers);

    EXPECT_EQ(LastRowOf(HotTable::HotNumbers), 7);
}

TEST(RefreshHotTable, RebuildsAStaleTableAndNoOther) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {1, 2}});
    ComputeHotTable();
    appState.hotPairLast = 77;

    RefreshHotTable(HotTable::HotPairs);
    EXPECT_EQ(appState.hotPairLast, 77);

    appState.hotPairStale = true;
    RefreshHotTable(HotTable::HotPairs);
    EXPECT_EQ(appState.hotPairLast, 0);
    EXPECT_FALSE(appState.hotPairStale);
}

// Random games against the plain walks.

/// Chance that is the same in every run.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine(seed) {}

    int From(int lowest, int highest) {
        return lowest + static_cast<int>(engine() % static_cast<unsigned>(highest - lowest + 1));
    }
    bool OneIn(int cases) { return From(1, cases) == 1; }

    /// So many values of a range; different ones as long as it has any, unless they may repeat.
    DrawPicks Picks(int count, int lowest, int highest, bool mayRepeat) {
        std::vector<int> pool(static_cast<std::size_t>(highest - lowest + 1));
        std::iota(pool.begin(), pool.end(), lowest);
        DrawPicks picks;
        while (static_cast<int>(picks.size()) < count) {
            const auto place = pool.begin() + From(0, static_cast<int>(pool.size()) - 1);
            picks.push_back(*place);
            if (!mayRepeat && pool.size() > 1) {
                pool.erase(place);
            }
        }
        return picks;
    }

  private:
    std::mt19937 engine;
};

void StartRandomGame(Dice& dice) {
    const int kind = dice.From(0, 5);
    const bool hasBonus = kind % 3 != 0;
    const int mainCount = dice.From(1, hasBonus ? 9 : 10);
    support::Game game = kind < 3 ? NumberGame() : CardGame();
    game.Picks(mainCount).From(dice.OneIn(6) ? dice.From(2, 4) : dice.From(0, 1)).To(dice.From(5, dice.From(9, 99)));
    if (hasBonus) {
        game.Bonus(dice.From(1, 10 - mainCount), kind % 3 == 1 ? BonusPool::Same : BonusPool::Separate);
        game.BonusFrom(dice.From(0, 1)).BonusTo(dice.From(5, 99));
    }
    if (dice.OneIn(4)) {
        game.WithDuplicates();
    }
    game.HistorySet(10 * dice.From(1, 100));
    dice.OneIn(2) ? game.NewestFirst() : game.OldestFirst();
    StartWith(game);
}

DrawPicks RandomDraw(Dice& dice) {
    const bool mayRepeat = appState.duplicatesAllowed;
    const int mainCount = appState.mainPickCount;
    DrawPicks picks = dice.Picks(mainCount, appState.mainLow, appState.mainHigh, mayRepeat);
    const DrawPicks bonus =
        dice.Picks(appState.totalPicks - mainCount, appState.bonusLow, appState.bonusHigh, mayRepeat);
    picks.insert(picks.end(), bonus.begin(), bonus.end());
    for (int& pick : picks) {
        pick = dice.OneIn(40) ? -1 : pick;
    }
    return picks;
}

void ShowRandomDraws(Dice& dice) {
    const int most = dice.OneIn(40) ? 1000 : dice.OneIn(3) ? 150 : 20;
    std::vector<DrawPicks> draws(static_cast<std::size_t>(dice.From(0, most)));
    std::ranges::generate(draws, [&dice] { return RandomDraw(dice); });
    ShowDraws(draws);
    appState.hotTableChoice = 1;
    appState.hotSortChoice = static_cast<std::int16_t>(dice.From(0, 2));
    ComputeHotTable();
    appState.hotTableChoice = static_cast<std::int16_t>(dice.From(1, 5));
}

/// Tables of an earlier time, all stale.
void LeaveOldTables() {
    MarkHotTablesStale();
    appState.hotPairTable = appState.pairedOnceTable = appState.repeaterTable = Table(4, 2, 77);
    appState.noHitterTable = {77, 78};
    appState.hotPairLast = appState.pairedOnceLast = appState.repeaterLast = appState.noHitterLast = 1;
    frmMainForm.grdHot.caption = "As it was";
}

template <typename Routine>
Failure FailureOf(Routine routine) {
    try {
        routine();
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
    return std::nullopt;
}

struct Builder {
    const char* name;
    void (*compute)();
    void (*walk)(BuiltTable& built);
    BuiltTable (*built)();
};

constexpr std::array<Builder, 4> builders{{
    // clang-format off
    {"Hot Pairs",   ComputeHotPairs,   support::WalkHotPairs,   support::BuiltHotPairs},
    {"Paired Once", ComputePairedOnce, support::WalkPairedOnce, support::BuiltPairedOnce},
    {"Repeaters",   ComputeRepeaters,  support::WalkRepeaters,  support::BuiltRepeaters},
    {"No-Hitters",  ComputeNoHitters,  support::WalkNoHitters,  support::BuiltNoHitters},
    // clang-format on
}};

/// Builds a table both ways; the failure that both had.
Failure CompareWithWalk(const Builder& builder) {
    LeaveOldTables();
    BuiltTable walked = builder.built();
    const Failure walkFailure = FailureOf([&] { builder.walk(walked); });
    const Failure failure = FailureOf(builder.compute);
    EXPECT_EQ(failure, walkFailure) << builder.name;
    const BuiltTable built = builder.built();
    EXPECT_EQ(built.last, walked.last) << builder.name;
    EXPECT_EQ(built.isStale, walked.isStale) << builder.name;
    EXPECT_EQ(built.caption, walked.caption) << builder.name;
    EXPECT_TRUE(built.rows == walked.rows) << builder.name;
    return failure;
}

TEST(HotTables, GiveWhatThePlainWalksGiveInThousandsOfRandomGames) {
    constexpr int games = 400;
    constexpr int drawsPerGame = 8;
    std::array<int, 4> failures{};
    std::array<int, 4> filled{};
    Dice dice(19840101);
    for (int game = 0; game < games; ++game) {
        StartRandomGame(dice);
        for (int i = 0; i < drawsPerGame; ++i) {
            ShowRandomDraws(dice);
            for (std::size_t table = 0; table < builders.size(); ++table) {
                failures[table] += CompareWithWalk(builders[table]) ? 1 : 0;
                filled[table] += builders[table].built().last >= 0 ? 1 : 0;
            }
            ASSERT_FALSE(HasFailure()) << "game " << game << ", draws " << i;
        }
    }
    // The comparison has met the end of a work table, and all tables with rows in them.
    EXPECT_GT(failures[0], 100);
    for (const int tables : filled) {
        EXPECT_GT(tables, 1000);
    }
}

TEST(HotTables, GiveWhatThePlainWalksGiveAroundTheEndOfTheWorkTableOfPairedOnce) {
    Dice dice(1002);
    int failures = 0;
    for (int i = 0; i < 60; ++i) {
        StartWith(NumberGame().Picks(dice.From(9, 10)).From(dice.From(0, 1)).To(dice.From(85, 99)));
        std::vector<DrawPicks> draws(static_cast<std::size_t>(dice.From(25, 50)));
        std::ranges::generate(draws, [&dice] { return RandomDraw(dice); });
        ShowDraws(draws);
        ComputeHotTable();
        appState.hotTableChoice = 3;
        failures += CompareWithWalk(builders[1]) ? 1 : 0;
    }
    EXPECT_GT(failures, 10);
    EXPECT_LT(failures, 50);
}

TEST(HotTables, GiveWhatThePlainWalksGiveInThousandDrawsOfTenOutOfNinetyNine) {
    Dice dice(99);
    StartWith(NumberGame().Picks(10).From(1).To(99));
    std::vector<DrawPicks> draws(1000);
    std::ranges::generate(draws, [&dice] { return RandomDraw(dice); });
    ShowDraws(draws);
    ComputeHotTable();

    EXPECT_EQ(CompareWithWalk(builders[0]), outOfRange);
    EXPECT_EQ(CompareWithWalk(builders[1]), std::nullopt);
    EXPECT_EQ(CompareWithWalk(builders[2]), std::nullopt);
    EXPECT_EQ(CompareWithWalk(builders[3]), std::nullopt);
}

}  // namespace
}  // namespace ballhaven
