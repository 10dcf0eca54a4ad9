// HotPairs, PairedOnce, Repeaters and NoHitters: each table at its largest, against a query of SQLite over the same
// picks and against the plain walk through all draws.

#include "statistics/HotTables.h"

#include "bench/BenchGames.h"
#include "bench/PickDatabase.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotPairs.h"
#include "statistics/NoHitters.h"
#include "statistics/PairedOnce.h"
#include "statistics/Repeaters.h"
#include "support/PlainWalks.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace ballhaven::bench {

namespace {

using support::BuiltTable;

using Rows = std::vector<PickDatabase::Row>;

/// Puts picks of the view from 1 to 99 into 1 to `highest`, so that no draw holds one twice.
void NarrowDraws(int draws, int highest) {
    for (int draw = 0; draw < draws; ++draw) {
        std::vector<bool> isDrawn(static_cast<std::size_t>(highest) + 1);
        for (std::int16_t& pick : appState.historyView.Row(draw).subspan(1)) {
            int narrowed = pick % highest + 1;
            while (isDrawn[static_cast<std::size_t>(narrowed)]) {
                narrowed = narrowed % highest + 1;
            }
            isDrawn[static_cast<std::size_t>(narrowed)] = true;
            pick = static_cast<std::int16_t>(narrowed);
        }
    }
}

/// 1000 draws of 10 out of 99.
void ShowWholeGame() {
    SwitchTo(firstGame);
}

/// 1000 draws of 10 out of 32: all their 496 pairs are hot, and five more would be the most.
void ShowMostHotPairs() {
    constexpr int highest = 32;
    SwitchTo(firstGame);
    NarrowDraws(appState.historyViewLast + 1, highest);
    appState.mainHigh = highest;
    ComputeHotTable();
}

/// 1000 draws: 953 of 10 out of 50, and 47 lines of a square of 49 other numbers, 7 by 7, in which any two numbers
/// stand on one line only: 987 pairs, and fourteen more would be the most.
void ShowMostPairsOfOneGame() {
    constexpr int side = 7;
    constexpr int lines = 47;
    constexpr int highestOfOthers = 50;
    SwitchTo(firstGame);
    const int others = appState.historyViewLast + 1 - lines;
    NarrowDraws(others, highestOfOthers);
    for (int line = 0; line < lines; ++line) {
        const int slope = line / side;
        const int offset = line % side;
        for (int column = 1; column <= appState.totalPicks; ++column) {
            const int x = column - 1;
            const int number = highestOfOthers + 1 + x * side + (slope * x + offset) % side;
            appState.historyView(column, others + line) = static_cast<std::int16_t>(x < side ? number : -1);
        }
    }
    ComputeHotTable();
}

/// 1000 draws of 10 out of 32, where 99 is the highest number: 67 numbers come up in none.
void ShowManyNoHitters() {
    SwitchTo(firstGame);
    NarrowDraws(appState.historyViewLast + 1, 32);
    ComputeHotTable();
}

/// One table: its draws, its routine, and what the others do for the same rows.
struct Work {
    void (*showDraws)();
    void (*compute)();
    void (*walk)(BuiltTable& built);
    BuiltTable (*built)();
    const char* query;
};

constexpr Work hotPairs{
    ShowMostHotPairs, ComputeHotPairs, support::WalkHotPairs, support::BuiltHotPairs,
    "SELECT a.pick, b.pick, COUNT(*) FROM picks a JOIN picks b ON a.draw = b.draw AND a.pick < b.pick "
    "GROUP BY a.pick, b.pick HAVING COUNT(*) > 1 ORDER BY 3 DESC, 1, 2"};
constexpr Work pairedOnce{ShowMostPairsOfOneGame, ComputePairedOnce, support::WalkPairedOnce, support::BuiltPairedOnce,
                          "SELECT a.pick, b.pick FROM picks a JOIN picks b ON a.draw = b.draw AND a.pick < b.pick "
                          "GROUP BY a.pick, b.pick HAVING COUNT(*) = 1 ORDER BY 1, 2"};
constexpr Work repeaters{ShowWholeGame, ComputeRepeaters, support::WalkRepeaters, support::BuiltRepeaters,
                         "SELECT a.pick, COUNT(*) FROM picks a JOIN picks b ON b.draw = a.draw + 1 AND b.pick = a.pick "
                         "GROUP BY a.pick ORDER BY 2 DESC, 1"};
constexpr Work noHitters{ShowManyNoHitters, ComputeNoHitters, support::WalkNoHitters, support::BuiltNoHitters,
                         "SELECT number FROM numbers WHERE number NOT IN (SELECT pick FROM picks) ORDER BY 1"};

/// The rows that the table shows, in the form of the database.
Rows RowsOf(const BuiltTable& built) {
    const int firstColumn = built.rows.Columns() == 1 ? 0 : 1;
    Rows rows;
    for (int row = 0; row <= built.last; ++row) {
        PickDatabase::Row cells{};
        for (int column = firstColumn; column < built.rows.Columns(); ++column) {
            cells.at(static_cast<std::size_t>(column - firstColumn)) = built.rows(column, row);
        }
        rows.push_back(cells);
    }
    return rows;
}

Rows RowsOf(PickDatabase& database) {
    Rows rows;
    database.ForEachRow([&rows](const PickDatabase::Row& row) { rows.push_back(row); });
    return rows;
}

void Ours(benchmark::State& state, const Work& work) {
    work.showDraws();
    for ([[maybe_unused]] const auto turn : state) {
        work.compute();
        benchmark::ClobberMemory();
    }
    state.counters["rows"] = work.built().last + 1;
}

void Rival(benchmark::State& state, const Work& work) {
    work.showDraws();
    work.compute();
    PickDatabase database(work.query);
    if (RowsOf(work.built()) != RowsOf(database)) {
        state.SkipWithError("The two tables differ");
        return;
    }
    for ([[maybe_unused]] const auto turn : state) {
        database.ForEachRow([](PickDatabase::Row row) { benchmark::DoNotOptimize(row); });
    }
}

void Walk(benchmark::State& state, const Work& work) {
    work.showDraws();
    work.compute();
    BuiltTable walked = work.built();
    for ([[maybe_unused]] const auto turn : state) {
        work.walk(walked);
        benchmark::DoNotOptimize(walked);
    }
    if (RowsOf(work.built()) != RowsOf(walked)) {
        state.SkipWithError("The two tables differ");
    }
}

/// The whole game has thousands of hot pairs.
void BeyondTheWorkTable(benchmark::State& state) {
    ShowWholeGame();
    for ([[maybe_unused]] const auto turn : state) {
        try {
            ComputeHotPairs();
            state.SkipWithError("There was no failure");
            return;
        } catch (const RuntimeFailure&) {
            benchmark::ClobberMemory();
        }
    }
}

// clang-format off
BENCHMARK_CAPTURE(Ours,  hotPairs,   hotPairs)->Name("HotPairs/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Rival, hotPairs,   hotPairs)->Name("HotPairs/rival")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Walk,  hotPairs,   hotPairs)->Name("HotPairs/walk")->Unit(benchmark::kMicrosecond);
BENCHMARK(BeyondTheWorkTable)->Name("HotPairs/beyond")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Ours,  pairedOnce, pairedOnce)->Name("PairedOnce/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Rival, pairedOnce, pairedOnce)->Name("PairedOnce/rival")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Walk,  pairedOnce, pairedOnce)->Name("PairedOnce/walk")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Ours,  repeaters,  repeaters)->Name("Repeaters/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Rival, repeaters,  repeaters)->Name("Repeaters/rival")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Walk,  repeaters,  repeaters)->Name("Repeaters/walk")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Ours,  noHitters,  noHitters)->Name("NoHitters/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Rival, noHitters,  noHitters)->Name("NoHitters/rival")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Walk,  noHitters,  noHitters)->Name("NoHitters/walk")->Unit(benchmark::kMicrosecond);
// clang-format on

}  // namespace

}  // namespace ballhaven::bench
