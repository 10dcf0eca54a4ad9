// GameSwitch: switching back and forth between two full games with warm files, against reading the same bytes. A switch
// writes the slot of the game shown last and nothing else; the disk's flushes of that are taken out of its time and
// reported beside it as `flushes_ms`.

#include "history/GameSwitch.h"

#include "bench/BenchGames.h"
#include "bench/PlainFiles.h"
#include "platform/files/FileSystem.h"
#include "state/modUTILS.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <string>

namespace ballhaven::bench {

namespace {

constexpr std::int64_t bytesOfGameTable = 21 * 64;
constexpr std::size_t bytesOfSwitch = 21 * 64 + 1001 * 64 + 5000 * 64 + 40 * 320;

int OtherGame(int slot) {
    return slot == firstGame ? secondGame : firstGame;
}

/// Puts back the calls of the system at the end of its scope.
class FileCallsKept {
  public:
    FileCallsKept() = default;
    FileCallsKept(const FileCallsKept&) = delete;
    FileCallsKept& operator=(const FileCallsKept&) = delete;
    ~FileCallsKept() { platform::fileSystem = kept; }

  private:
    platform::FileSystem kept = platform::fileSystem;
};

/// The bytes that a switch to a game writes.
std::int64_t BytesWrittenBySwitch(int slot) {
    const FileCallsKept kept;
    std::int64_t bytes = 0;
    platform::fileSystem.write = [&bytes, write = platform::fileSystem.write](int file, const char* from,
                                                                              std::size_t size) {
        const auto count = write(file, from, size);
        bytes += count;
        return count;
    };
    SwitchTo(slot);
    return bytes;
}

void Ours(benchmark::State& state) {
    using Milliseconds = std::chrono::duration<double, std::milli>;

    SwitchTo(firstGame);
    if (BytesWrittenBySwitch(secondGame) != bytesOfGameTable) {
        state.SkipWithError("A switch has written more than the slot of the game");
        return;
    }
    const FileCallsKept kept;
    Milliseconds flushes{0};
    platform::fileSystem.flush = [&state, &flushes, flush = platform::fileSystem.flush](int file) {
        state.PauseTiming();
        const auto start = std::chrono::steady_clock::now();
        const int result = flush(file);
        flushes += std::chrono::steady_clock::now() - start;
        state.ResumeTiming();
        return result;
    };
    int slot = secondGame;
    for ([[maybe_unused]] const auto turn : state) {
        slot = OtherGame(slot);
        SwitchTo(slot);
    }
    state.counters["flushes_ms"] = benchmark::Counter(flushes.count(), benchmark::Counter::kAvgIterations);
}

std::array<std::string, 4> FilesOfGame(int slot) {
    const std::string& directory = GamesDirectory();
    const std::string number = modUTILS::ZeroPadded(slot, 2);
    return {directory + "LOTTOSYS", directory + "GAME" + number + ".CDB", directory + "PLAYS" + number + ".CDB",
            directory + "SHUFFLE.CDB"};
}

void Rival(benchmark::State& state) {
    const auto files = std::to_array({FilesOfGame(firstGame), FilesOfGame(secondGame)});
    std::size_t game = 0;
    for ([[maybe_unused]] const auto turn : state) {
        game = 1 - game;
        std::size_t bytes = 0;
        for (const std::string& path : files[game]) {
            const std::string content = ReadPlainly(path);
            benchmark::DoNotOptimize(content.data());
            bytes += content.size();
        }
        if (bytes != bytesOfSwitch) {
            state.SkipWithError("The files of the game have another length");
            break;
        }
    }
}

BENCHMARK(Ours)->Name("GameSwitch/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("GameSwitch/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
