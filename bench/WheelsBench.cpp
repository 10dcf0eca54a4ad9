// Shuffle and FullWheel: whole runs that fill all 5000 plays, with the plays of the run before cleared on the way,
// against the standard library's own sampling and its own enumeration of as many plays.

#include "bench/BenchGames.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/GameRules.h"
#include "wheels/ShuffleRun.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace ballhaven::bench {

namespace {

constexpr int mainCount = 6;
constexpr int bonusCount = 1;
constexpr int mainHigh = 49;
constexpr int bonusHigh = 10;
constexpr int wheeled = 16;  // 8008 combinations of six

struct PlainPlay {
    std::array<std::int16_t, mainCount> main;
    std::array<std::int16_t, bonusCount> bonus;
};

using PlainPlays = std::vector<PlainPlay>;

void SetUpWheels(int gameType, int chosenMain) {
    SwitchTo(firstGame);
    TakeRules({.gameType = gameType,
               .mainPickCount = mainCount,
               .bonusPickCount = bonusCount,
               .mainLow = 1,
               .mainHigh = mainHigh,
               .bonusLow = 1,
               .bonusHigh = bonusHigh});
    appState.ShuffleTable = ChosenPicks();
    std::iota(appState.ShuffleTable.Slots(mainPicks).begin(),
              appState.ShuffleTable.Slots(mainPicks).begin() + chosenMain, std::int16_t{0});
    std::iota(appState.ShuffleTable.Slots(bonusPicks).begin(),
              appState.ShuffleTable.Slots(bonusPicks).begin() + bonusHigh, std::int16_t{0});
    platform::services.showMessageBox = [](const platform::MessageBoxRequest&) { return platform::BoxAnswer::Yes; };
}

bool HoldsDifferentPicks(int play) {
    const auto slots = appState.PlayTable.Slots(mainPicks, play).first(mainCount);
    std::array<std::int16_t, mainCount> picks{};
    std::ranges::copy(slots, picks.begin());
    std::ranges::sort(picks);
    return picks.front() >= 0 && std::ranges::adjacent_find(picks) == picks.end() &&
           appState.PlayTable(bonusPicks, play, 1) >= 0;
}

void Shuffle(benchmark::State& state) {
    SetUpWheels(2, mainHigh);
    for ([[maybe_unused]] const auto turn : state) {
        RunShuffleOrWheel(WheelMode::Shuffle, "5000");
    }
    for (int play = 1; play <= playCount; ++play) {
        if (!HoldsDifferentPicks(play)) {
            state.SkipWithError("A play has not been dealt");
            return;
        }
    }
}

void PlainShuffle(benchmark::State& state) {
    std::array<std::int16_t, mainHigh> mainPool{};
    std::array<std::int16_t, bonusHigh> bonusPool{};
    std::iota(mainPool.begin(), mainPool.end(), std::int16_t{0});
    std::iota(bonusPool.begin(), bonusPool.end(), std::int16_t{0});
    PlainPlays plays(playCount);
    std::mt19937 source;
    for ([[maybe_unused]] const auto turn : state) {
        for (PlainPlay& play : plays) {
            std::ranges::sample(mainPool, play.main.begin(), mainCount, source);
            std::ranges::sample(bonusPool, play.bonus.begin(), bonusCount, source);
        }
        benchmark::DoNotOptimize(plays.data());
    }
}

void EnumeratePlainly(PlainPlays& plays) {
    std::array<bool, wheeled> chosen{};
    std::fill_n(chosen.begin(), mainCount, true);
    for (PlainPlay& play : plays) {
        std::size_t slot = 0;
        for (std::size_t pick = 0; pick < chosen.size(); ++pick) {
            if (chosen[pick]) {
                play.main[slot++] = static_cast<std::int16_t>(pick);
            }
        }
        std::prev_permutation(chosen.begin(), chosen.end());
    }
}

void FullWheel(benchmark::State& state) {
    SetUpWheels(0, wheeled);
    for ([[maybe_unused]] const auto turn : state) {
        RunShuffleOrWheel(WheelMode::FullWheel, "");
    }
    PlainPlays plays(playCount);
    EnumeratePlainly(plays);
    for (int play = 1; play <= playCount; ++play) {
        const auto slots = appState.PlayTable.Slots(mainPicks, play).first(mainCount);
        if (!std::ranges::equal(slots, plays[static_cast<std::size_t>(play - 1)].main)) {
            state.SkipWithError("The two wheels differ");
            return;
        }
    }
}

void PlainFullWheel(benchmark::State& state) {
    PlainPlays plays(playCount);
    for ([[maybe_unused]] const auto turn : state) {
        EnumeratePlainly(plays);
        benchmark::DoNotOptimize(plays.data());
    }
}

BENCHMARK(Shuffle)->Name("Shuffle/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainShuffle)->Name("Shuffle/rival")->Unit(benchmark::kMillisecond);
BENCHMARK(FullWheel)->Name("FullWheel/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainFullWheel)->Name("FullWheel/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
