// Import: 1000 draws of a CSV file into a game without draws, with the dated copy of what the game was, against a plain
// loop over the lines that writes the same bytes, and against the import of SQLite's own shell. Ours and the plain loop
// flush the same files and folders; the time of these flushes is taken out and reported beside it as `flushes_ms`.

#include "bench/PlainFiles.h"
#include "data/ImportCommand.h"
#include "platform/files/FileSystem.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "support/TemporaryDirectory.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace ballhaven::bench {

namespace {

constexpr int drawCount = 1000;
constexpr int picksOfDraw = 6;
constexpr int highestPick = 49;
constexpr std::size_t recordLength = 64;

using Milliseconds = std::chrono::duration<double, std::milli>;

std::string Field(int value, const char* form) {
    char text[16] = {};
    std::snprintf(text, sizeof text, form, value);
    return text;
}

/// Draws of six of 49, one a day from 2000 on.
std::string DrawsAsCsv() {
    using namespace std::chrono;
    std::string csv = "date,main1,main2,main3,main4,main5,main6\n";
    for (int draw = 0; draw < drawCount; ++draw) {
        const year_month_day date{sys_days{year{2000} / 1 / 1} + days{draw}};
        csv += Field(static_cast<int>(date.year()), "%04d-") +
               Field(static_cast<int>(static_cast<unsigned>(date.month())), "%02d-") +
               Field(static_cast<int>(static_cast<unsigned>(date.day())), "%02d");
        for (int pick = 0; pick < picksOfDraw; ++pick) {
            csv += ",";
            csv += std::to_string((draw * 7 + pick * 8) % highestPick + 1);
        }
        csv += "\n";
    }
    return csv;
}

std::string GameTable() {
    std::string table(recordLength, ' ');
    std::string record = BuildDefaultGameRecord(1, 0);
    SetField(record, gameField::name, "Six of 49");
    SetFieldValue(record, gameField::mainHigh, highestPick);
    SetFieldValue(record, gameField::mainPickCount, picksOfDraw);
    return table + record;
}

/// A folder with the game, the file of draws, and for each run no draws yet.
class ImportFolder {
  public:
    ImportFolder() {
        directory.Write("LOTTOSYS", GameTable());
        directory.Write("draws.csv", DrawsAsCsv());
        Clear();
    }

    void Clear() const {
        std::filesystem::remove_all(directory / "copies");
        std::filesystem::create_directory(directory / "copies");
        std::filesystem::remove(directory / "GAME01.CDB");
        std::filesystem::remove(directory / "draws.db");
    }

    [[nodiscard]] const support::TemporaryDirectory& Directory() const { return directory; }

  private:
    support::TemporaryDirectory directory;
};

/// Takes the time of flushes out of a benchmark's within its scope.
class FlushesApart {
  public:
    explicit FlushesApart(benchmark::State& runs) : state(runs) {}
    FlushesApart(const FlushesApart&) = delete;
    FlushesApart& operator=(const FlushesApart&) = delete;
    ~FlushesApart() {
        state.counters["flushes_ms"] = benchmark::Counter(taken.count(), benchmark::Counter::kAvgIterations);
    }

    template <typename Flush>
    int Run(const Flush& flush) {
        state.PauseTiming();
        const auto start = std::chrono::steady_clock::now();
        const int result = flush();
        taken += std::chrono::steady_clock::now() - start;
        state.ResumeTiming();
        return result;
    }

  private:
    benchmark::State& state;
    Milliseconds taken{0};
};

/// What both sides have written at last, as far as it has to be the same.
std::string WrittenDraws(const ImportFolder& folder) {
    return folder.Directory().Read("GAME01.CDB");
}

std::string PlainlyImported(const std::string& csvPath) {
    std::ifstream csv(csvPath);
    std::string file = "10-26-2002";
    file.resize(recordLength, ' ');
    std::string line;
    std::getline(csv, line);
    while (std::getline(csv, line)) {
        using namespace std::chrono;
        char* place = line.data();
        const auto number = [&place] { return static_cast<int>(std::strtol(place, &place, 10)); };
        const int yearNumber = number();
        const int monthNumber = -number();  // the hyphen before it reads as a sign
        const int dayNumber = -number();
        const year_month_day date = year{yearNumber} / monthNumber / dayNumber;
        std::string record = std::to_string((sys_days{date} - sys_days{year{1984} / 1 / 1}).count());
        record.resize(5, ' ');
        for (int pick = 0; pick < picksOfDraw; ++pick) {
            ++place;
            record += Field(number(), "%2d ");
        }
        record.resize(recordLength, ' ');
        file += record;
    }
    file.resize((1 + std::size_t{drawCount}) * recordLength, ' ');
    return file;
}

void Ours(benchmark::State& state) {
    const ImportFolder folder;
    const std::string path = folder.Directory().Path();
    std::ostringstream told;
    const auto kept = platform::fileSystem;
    {
        FlushesApart flushes(state);
        platform::fileSystem.flush = [&](int file) { return flushes.Run([&] { return kept.flush(file); }); };
        for ([[maybe_unused]] const auto turn : state) {
            state.PauseTiming();
            folder.Clear();
            told.str("");
            state.ResumeTiming();
            (void)data::ImportFile(data::WorkFolder(path), {.game = "1", .file = path + "draws.csv", .applies = true},
                                   {told, told});
        }
        platform::fileSystem = kept;
    }
    if (WrittenDraws(folder) != PlainlyImported(path + "draws.csv")) {
        state.SkipWithError("The import has written other draws than the plain loop");
    }
}

void Rival(benchmark::State& state) {
    const ImportFolder folder;
    const std::string path = folder.Directory().Path();
    const std::string copy(207, ' ');  // as long as the copy of a game without draws
    FlushesApart flushes(state);
    const auto flush = [&](int file) { return flushes.Run([file] { return ::fsync(file); }); };
    for ([[maybe_unused]] const auto turn : state) {
        state.PauseTiming();
        folder.Clear();
        state.ResumeTiming();
        benchmark::DoNotOptimize(ReadPlainly(path + "LOTTOSYS"));
        const std::string draws = PlainlyImported(path + "draws.csv");
        SavePlainly(path + "copies/", "copy.zip", copy, flush);
        SavePlainly(path, "GAME01.CDB", draws, flush);
    }
}

void Sqlite(benchmark::State& state) {
    const ImportFolder folder;
    const std::string path = folder.Directory().Path();
    const std::string command = "sqlite3 -cmd 'PRAGMA synchronous=OFF' -cmd '.mode csv' '" + path +
                                "draws.db' \".import '" + path + "draws.csv' draws\" >/dev/null";
    for ([[maybe_unused]] const auto turn : state) {
        state.PauseTiming();
        folder.Clear();
        state.ResumeTiming();
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("SQLite's shell has not imported the draws");
            break;
        }
    }
}

BENCHMARK(Ours)->Name("Import/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("Import/rival")->Unit(benchmark::kMillisecond);
BENCHMARK(Sqlite)->Name("Import/sqlite")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

}  // namespace ballhaven::bench
