// HotNumbers: the count of 1000 draws of 10 picks out of 99, against one grouped count of the same picks in SQLite.

#include "statistics/HotNumbers.h"

#include <map>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/BenchGames.h"
#include "state/AppState.h"

namespace ballhaven::bench {

namespace {

using HitsByPick = std::map<int, int>;

/// The picks of `historyView` in a database in memory, with an index from which SQLite can count them in order.
class PickDatabase {
  public:
    PickDatabase() {
        sqlite3* opened = nullptr;
        Check(sqlite3_open(":memory:", &opened));
        connection.reset(opened);
        Run("CREATE TABLE picks (draw INTEGER, pick INTEGER)");
        Insert();
        Run("CREATE INDEX pick_index ON picks (pick)");
        count = Prepared("SELECT pick, COUNT(*) FROM picks GROUP BY pick");
    }

    /// Hands each pick with its hits to `take`.
    template <typename Take>
    void ForEachPick(const Take& take) {
        while (sqlite3_step(count.get()) == SQLITE_ROW) {
            take(sqlite3_column_int(count.get(), 0), sqlite3_column_int(count.get(), 1));
        }
        Check(sqlite3_reset(count.get()));
    }

  private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Close>;

    static void Check(int result) {
        if (result != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errstr(result));
        }
    }

    void Run(const char* words) { Check(sqlite3_exec(connection.get(), words, nullptr, nullptr, nullptr)); }

    [[nodiscard]] Statement Prepared(const char* words) {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v2(connection.get(), words, -1, &statement, nullptr));
        return Statement(statement);
    }

    void Insert() {
        Run("BEGIN");
        const Statement insert = Prepared("INSERT INTO picks VALUES (?, ?)");
        for (int draw = 0; draw <= appState.historyViewLast; ++draw) {
            for (int column = 1; column <= appState.totalPicks; ++column) {
                Check(sqlite3_bind_int(insert.get(), 1, draw));
                Check(sqlite3_bind_int(insert.get(), 2, appState.historyView(column, draw)));
                sqlite3_step(insert.get());
                Check(sqlite3_reset(insert.get()));
            }
        }
        Run("COMMIT");
    }

    std::unique_ptr<sqlite3, Close> connection;
    Statement count;
};

HitsByPick CountOfTable() {
    HitsByPick hits;
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        hits[appState.hotNumberTable(1, row)] = appState.hotNumberTable(2, row);
    }
    return hits;
}

HitsByPick CountOfDatabase(PickDatabase& database) {
    HitsByPick hits;
    database.ForEachPick([&hits](int pick, int count) { hits[pick] = count; });
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
    PickDatabase database;
    if (CountOfTable().empty() || CountOfTable() != CountOfDatabase(database)) {
        state.SkipWithError("The two counts differ");
        return;
    }
    for ([[maybe_unused]] const auto turn : state) {
        database.ForEachPick([](int pick, int count) {
            benchmark::DoNotOptimize(pick);
            benchmark::DoNotOptimize(count);
        });
    }
}

BENCHMARK(Ours)->Name("HotNumbers/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(Rival)->Name("HotNumbers/rival")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace ballhaven::bench
