// Guarantee: what 5000 plays of 6 of 16 numbers guarantee when 5 of these are drawn, 4 hits being wanted, against the
// plainest way: every set of 5 held against every play. Both tell how many sets no play hits, and the fewest plays that
// hit one.

#include "data/guarantee/Guarantees.h"
#include "data/guarantee/PlayBits.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <random>
#include <vector>

namespace ballhaven::bench {

namespace {

constexpr int numbers = 16;
constexpr int picks = 6;
constexpr int drawn = 5;
constexpr int hits = 4;
constexpr std::size_t playsOfAGame = 5000;

using Mask = std::uint32_t;

/// All sets of so many of the numbers, a bit for each number.
std::vector<Mask> AllSets(int size) {
    std::vector<Mask> sets;
    for (Mask set = 0; set < Mask{1} << numbers; ++set) {
        if (std::popcount(set) == size) {
            sets.push_back(set);
        }
    }
    return sets;
}

/// 5000 of the 8008 plays, the same ones in each run.
std::vector<Mask> PlaysOfAGame() {
    std::vector<Mask> plays;
    std::mt19937 source;
    std::ranges::sample(AllSets(picks), std::back_inserter(plays), playsOfAGame, source);
    return plays;
}

struct Answer {
    std::uint64_t missed = 0;
    int leastPlays = static_cast<int>(playsOfAGame) + 1;

    bool operator==(const Answer&) const = default;
};

Answer ReckonPlainly(const std::vector<Mask>& plays) {
    Answer answer;
    for (const Mask set : AllSets(drawn)) {
        int hitting = 0;
        for (const Mask play : plays) {
            hitting += std::popcount(set & play) >= hits ? 1 : 0;
        }
        answer.missed += hitting == 0 ? 1 : 0;
        answer.leastPlays = std::min(answer.leastPlays, hitting);
    }
    return answer;
}

std::vector<std::vector<int>> PlacesOf(const std::vector<Mask>& plays) {
    std::vector<std::vector<int>> places;
    for (const Mask play : plays) {
        places.emplace_back();
        for (int number = 0; number < numbers; ++number) {
            if ((play >> number & 1) != 0) {
                places.back().push_back(number);
            }
        }
    }
    return places;
}

Answer Reckon(const std::vector<std::vector<int>>& plays) {
    const data::Guarantee found =
        data::FindGuarantees(data::PlayBits(numbers, plays), drawn, hits, hits, [](double) {}).front();
    return {.missed = found.missed, .leastPlays = found.leastPlays};
}

void Guarantee(benchmark::State& state) {
    const std::vector<Mask> plays = PlaysOfAGame();
    const auto places = PlacesOf(plays);
    if (Reckon(places) != ReckonPlainly(plays)) {
        state.SkipWithError("The two answers differ");
        return;
    }
    for ([[maybe_unused]] const auto turn : state) {
        Answer answer = Reckon(places);
        benchmark::DoNotOptimize(answer);
    }
}

void PlainGuarantee(benchmark::State& state) {
    const std::vector<Mask> plays = PlaysOfAGame();
    for ([[maybe_unused]] const auto turn : state) {
        Answer answer = ReckonPlainly(plays);
        benchmark::DoNotOptimize(answer);
    }
}

BENCHMARK(Guarantee)->Name("Guarantee/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainGuarantee)->Name("Guarantee/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
