#include "bench/PickDatabase.h"

#include "state/AppState.h"

#include <stdexcept>

namespace ballhaven::bench {

namespace {

void Check(int result) {
    if (result != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errstr(result));
    }
}

}  // namespace

PickDatabase::PickDatabase(const char* query) {
    sqlite3* opened = nullptr;
    Check(sqlite3_open(":memory:", &opened));
    connection.reset(opened);
    Run("CREATE TABLE picks (draw INTEGER, pick INTEGER)");
    Run("CREATE TABLE numbers (number INTEGER)");
    InsertPicks();
    InsertNumbers();
    Run("CREATE INDEX pick_index ON picks (pick)");
    Run("CREATE INDEX draw_index ON picks (draw, pick)");
    statement = Prepared(query);
}

void PickDatabase::Reset() {
    Check(sqlite3_reset(statement.get()));
}

void PickDatabase::Run(const char* words) {
    Check(sqlite3_exec(connection.get(), words, nullptr, nullptr, nullptr));
}

PickDatabase::Statement PickDatabase::Prepared(const char* words) {
    sqlite3_stmt* prepared = nullptr;
    Check(sqlite3_prepare_v2(connection.get(), words, -1, &prepared, nullptr));
    return Statement(prepared);
}

void PickDatabase::InsertPicks() {
    Run("BEGIN");
    const Statement insert = Prepared("INSERT INTO picks VALUES (?, ?)");
    for (int draw = 0; draw <= appState.historyViewLast; ++draw) {
        for (int column = 1; column <= appState.totalPicks; ++column) {
            const int pick = appState.historyView(column, draw);
            if (pick >= 0) {
                Check(sqlite3_bind_int(insert.get(), 1, draw));
                Check(sqlite3_bind_int(insert.get(), 2, pick));
                sqlite3_step(insert.get());
                Check(sqlite3_reset(insert.get()));
            }
        }
    }
    Run("COMMIT");
}

void PickDatabase::InsertNumbers() {
    const Statement insert = Prepared("INSERT INTO numbers VALUES (?)");
    for (int number = appState.mainLow; number <= appState.mainHigh; ++number) {
        Check(sqlite3_bind_int(insert.get(), 1, number));
        sqlite3_step(insert.get());
        Check(sqlite3_reset(insert.get()));
    }
}

}  // namespace ballhaven::bench
