#pragma once

#include <sqlite3.h>

#include <array>
#include <memory>

namespace ballhaven::bench {

/// The picks of `historyView` in a database in memory, and one query over them as a prepared statement: what SQLite
/// takes for the work of one of the hot tables. `picks` has the columns `draw` and `pick`, with an index on each side;
/// `numbers` has the values of the main range in `number`.
class PickDatabase {
  public:
    /// The first three columns of a row; 0 where the query has fewer.
    using Row = std::array<int, 3>;

    explicit PickDatabase(const char* query);

    /// Runs the query and hands each row to `take`.
    template <typename Take>
    void ForEachRow(const Take& take) {
        while (sqlite3_step(statement.get()) == SQLITE_ROW) {
            take(Row{Column(0), Column(1), Column(2)});
        }
        Reset();
    }

  private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
        void operator()(sqlite3_stmt* prepared) const { sqlite3_finalize(prepared); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Close>;

    [[nodiscard]] int Column(int column) const { return sqlite3_column_int(statement.get(), column); }
    void Reset();
    void Run(const char* words);
    [[nodiscard]] Statement Prepared(const char* words);
    void InsertPicks();
    void InsertNumbers();

    std::unique_ptr<sqlite3, Close> connection;
    Statement statement;
};

}  // namespace ballhaven::bench
