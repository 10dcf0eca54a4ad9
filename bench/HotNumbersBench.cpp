// HotNumbers: the count of 1000 draws of 10 picks out of 99, against one grouped count of the same picks in SQLite.

#include "statistics/HotNumbers.h"

#include "bench/BenchGames.h"
#include "bench/PickDatabase.h"
#include "state/AppState.h"
#include "statistics/HotTables.h"

#include <benchmark/benchmark.h>

#include <map>

namespace ballhaven::bench {

namespace {

using HitsByPick = std::map<int, int>;

constexpr const char* groupedCount = "SELECT pick, COUNT(*) FROM picks GROUP BY pick";

HitsByPick CountOfTable() {
    HitsByPick hits;
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        hits[appState.hotNumberTable(1, row)] = appState.hotNumberTable(2, row);
    }
    return hits;
}

HitsByPick CountOfDatabase(PickDatabase& database) {
    HitsByPick hits;
    database.ForEachRow([&hits](const PickDatabase::Row& row) { hits[row[0]] = row[1]; });
    return hits;
}

void Ours(benchmark::State& state) {
    SwitchTo(firstGame);
    for ([[maybe_unused]] const auto turn : state) {
        ComputeHotTable();
        benchmark::DoNotOptimize(appState.hotNumberTable);
    }
}

void Rival(benchmark::State& state) {
    SwitchTo(firstGame);
    PickDatabase database(groupedCount);
    if (CountOfTable().empty() || CountOfTable() != CountOfDatabase(database)) {
        state.SkipWithError("The two counts differ");
        return;
    }
    for ([[maybe_unused]] const auto turn : state) {
        database.ForEachRow([](PickDatabase::Row row) { benchmark::DoNotOptimize(row); });
    }
}

BENCHMARK(Ours)->Name("HotNumbers/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(Rival)->Name("HotNumbers/rival")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ballhaven::bench
