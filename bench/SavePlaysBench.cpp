// SavePlays: a durable save of 5000 plays of which one has changed, against a plain durable write of as many bytes.

#include "bench/BenchGames.h"
#include "bench/PlainFiles.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace ballhaven::bench {

namespace {

constexpr std::size_t bytesOfPlays = 320'000;

/// Plays and bytes that are changed lie apart, all over the file.
constexpr int stride = 997;

void ChangePlay(int turn) {
    std::int16_t& pick = appState.PlayTable(mainPicks, turn * stride % playCount + 1, 1);
    pick = static_cast<std::int16_t>((pick + 1) % 99);
}

void Ours(benchmark::State& state) {
    SwitchTo(firstGame);
    const std::string path = GamesDirectory() + "PLAYS01.CDB";
    const std::string before = ReadPlainly(path);
    int turns = 0;
    for ([[maybe_unused]] const auto turn : state) {
        ChangePlay(turns++ % playCount);
        SavePlayFile();
    }
    const std::string after = ReadPlainly(path);
    if (after.size() != bytesOfPlays || after == before) {
        state.SkipWithError("The plays have not been saved");
    }
}

void Rival(benchmark::State& state) {
    std::string bytes(bytesOfPlays, ' ');
    std::size_t turns = 0;
    for ([[maybe_unused]] const auto turn : state) {
        ++bytes[turns++ * stride % bytes.size()];
        SavePlainly(GamesDirectory(), "RIVAL", bytes);
    }
}

BENCHMARK(Ours)->Name("SavePlays/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("SavePlays/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
