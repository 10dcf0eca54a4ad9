#include "statistics/HotTables.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotPairs.h"
#include "statistics/HotTableKinds.h"
#include "statistics/NoHitters.h"
#include "statistics/PairedOnce.h"
#include "statistics/Repeaters.h"
#include "support/IdleGridView.h"
#include "support/MainScreen.h"
#include "support/PlainWalks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
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

using Texts = std::vector<std::string>;
using Failure = std::optional<RuntimeFailure::Kind>;

constexpr auto outOfRange = RuntimeFailure::Kind::SubscriptOutOfRange;

/// A grid that only counts how often it is read again.
class CountingGrid : public support::IdleGridView {
  public:
    void ReadAgain() override { ++readings; }

    int readings = 0;
};

TEST(ComputeHotTable, HasTheGridReadAgainOnceATableIsChosen) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}});
    CountingGrid grid;
    frmMainForm.grdHot.view = &grid;

    appState.hotTableChoice = 0;
    ComputeHotTable();
    EXPECT_EQ(grid.readings, 0);

    appState.hotTableChoice = 1;
    ComputeHotTable();
    EXPECT_EQ(grid.readings, 1);
    frmMainForm.grdHot.view = nullptr;
}

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

TEST(CellsOfRow, AreThePicksAndTheCountOfATable) {
    using Cells = std::vector<std::int16_t>;
    const auto cellsOf = [](HotTable table, int row) {
        const auto cells = CellsOfRow(table, row);
        return Cells(cells.begin(), cells.end());
    };
    StartWith(NumberGame());
    appState.hotNumberTable = CountTable(4, 1, 1);
    appState.hotPairTable = CountTable(4, 2, 2);
    appState.pairedOnceTable = CountTable(3, 1, 3);
    appState.repeaterTable = CountTable(3, 1, 4);
    appState.noHitterTable = {5, 6};

    EXPECT_EQ(cellsOf(HotTable::HotNumbers, 0), (Cells{1, 1, 1}));
    EXPECT_EQ(cellsOf(HotTable::HotPairs, 1), (Cells{2, 2, 2}));
    EXPECT_EQ(cellsOf(HotTable::PairedOnce, 0), (Cells{3, 3}));
    EXPECT_EQ(cellsOf(HotTable::Repeaters, 0), (Cells{4, 4}));
    EXPECT_EQ(cellsOf(HotTable::NoHitters, 1), (Cells{6}));
    for (const HotTable table :
         {HotTable::HotNumbers, HotTable::HotPairs, HotTable::PairedOnce, HotTable::Repeaters, HotTable::NoHitters}) {
        EXPECT_EQ(cellsOf(table, -1), Cells());
        EXPECT_EQ(cellsOf(table, 2), Cells());
    }
}

// What the four tables have in common, in a game of two picks out of 1 to 3.

struct BuiltCase {
    const char* name;
    HotTable table;
    void (*compute)();
    bool AppState::*stale;
    std::vector<DrawPicks> draws;
    Texts picks;  ///< the first column of the rows
    std::vector<DrawPicks> drawsWithoutRows;
    int captionedWhile;  ///< the one `hotTableChoice` with which the caption is set
    std::string caption;
    std::string captionWithoutRows;
};

// clang-format off
const std::array<BuiltCase, 4> builtCases{{
    {"HotPairs", HotTable::HotPairs, ComputeHotPairs, &AppState::hotPairStale,
     {{1, 2}, {1, 2}, {2, 3}}, {"1, 2"}, {{1, 2}},
     2, "Hot Pairs in last 3 games", "Pairs (none found)"},
    {"PairedOnce", HotTable::PairedOnce, ComputePairedOnce, &AppState::pairedOnceStale,
     {{1, 2}, {1, 2}, {2, 3}}, {"2, 3"}, {{1, 2}},
     3, "Paired once in last 3 games", "Paired once (none found)"},
    {"Repeaters", HotTable::Repeaters, ComputeRepeaters, &AppState::repeaterStale,
     {{1, 2}, {1, 2}, {2, 3}}, {"2", "1"}, {{1, 2}},
     3, "Hot Repeaters in last 3 games", "Hot Repeaters (none found)"},
    {"NoHitters", HotTable::NoHitters, ComputeNoHitters, &AppState::noHitterStale,
     {{1, 2}, {2, 1}}, {"3"}, {{1, 2}, {2, 3}},
     4, "No Hitters in last 2 games", "No Hitters (none found)"},
}};
// clang-format on

std::ostream& operator<<(std::ostream& out, const BuiltCase& tested) {
    return out << tested.name;
}

class BuiltHotTables : public testing::TestWithParam<BuiltCase> {
  protected:
    BuiltHotTables() { StartWith(NumberGame().Picks(2).To(3)); }

    /// Builds the table over some draws while it is on show.
    static void Show(const std::vector<DrawPicks>& draws) {
        ShowDraws(draws);
        appState.hotTableChoice = static_cast<std::int16_t>(GetParam().table);
        ComputeHotTable();
    }

    /// The first column of the grid.
    static Texts ShownPicks() {
        Texts picks;
        for (int row = 0; row < frmMainForm.grdHot.RowCount(); ++row) {
            picks.push_back(HotCellValue(row, 0).value_or("(null)"));
        }
        return picks;
    }
};

TEST_P(BuiltHotTables, FillTheGridWithTheirRows) {
    Show(GetParam().draws);
    EXPECT_EQ(ShownPicks(), GetParam().picks);

    Show(GetParam().drawsWithoutRows);
    EXPECT_EQ(ShownPicks(), Texts());
    EXPECT_EQ(LastRowOf(GetParam().table), -1);
    EXPECT_EQ(HotCellValue(0, 0), std::nullopt);
}

TEST_P(BuiltHotTables, KeepTheirOldRowsWhenTheyFindNothingAndAreNotStale) {
    Show(GetParam().draws);
    const auto cells = CellsOfRow(GetParam().table, 0);
    const std::vector<std::int16_t> before(cells.begin(), cells.end());
    ShowDraws(GetParam().drawsWithoutRows);
    appState.hotTableChoice = 1;
    ComputeHotTable();
    appState.*GetParam().stale = true;

    GetParam().compute();

    const auto kept = CellsOfRow(GetParam().table, 0);
    EXPECT_EQ(LastRowOf(GetParam().table), -1);
    EXPECT_EQ(std::vector<std::int16_t>(kept.begin(), kept.end()), before);
    EXPECT_FALSE(appState.*GetParam().stale);
}

// Not a bug: REPEATERS-CAPTION-1 in docs/not-bugs.md, and NO-HITTERS-CAPTION-1 in docs/not-bugs.md.
TEST_P(BuiltHotTables, SetTheCaptionWhileOneTableIsOnShowAndAtNoOtherTime) {
    for (int choice = 1; choice <= 5; ++choice) {
        const bool isSet = choice == GetParam().captionedWhile;
        appState.hotTableChoice = 1;
        ShowDraws(GetParam().draws);
        ComputeHotTable();
        appState.hotTableChoice = static_cast<std::int16_t>(choice);
        frmMainForm.grdHot.caption = "As it was";
        GetParam().compute();
        EXPECT_EQ(*frmMainForm.grdHot.caption, isSet ? GetParam().caption : "As it was") << choice;

        appState.hotTableChoice = 1;
        ShowDraws(GetParam().drawsWithoutRows);
        ComputeHotTable();
        appState.hotTableChoice = static_cast<std::int16_t>(choice);
        frmMainForm.grdHot.caption = "As it was";
        GetParam().compute();
        EXPECT_EQ(*frmMainForm.grdHot.caption, isSet ? GetParam().captionWithoutRows : "As it was") << choice;
    }
}

TEST_P(BuiltHotTables, AreCountedAsFarAsAViewWithFewerColumnsThanTheGameGoes) {
    ShowDraws(GetParam().draws);
    appState.totalPicks = 6;
    appState.hotTableChoice = static_cast<std::int16_t>(GetParam().table);

    ComputeHotTable();

    EXPECT_EQ(ShownPicks(), GetParam().picks);
}

INSTANTIATE_TEST_SUITE_P(Each, BuiltHotTables, testing::ValuesIn(builtCases),
                         [](const auto& tested) { return std::string(tested.param.name); });

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
    appState.hotPairTable = appState.pairedOnceTable = appState.repeaterTable = CountTable(4, 2, 77);
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
