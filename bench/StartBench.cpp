// Start: from the start of the process to the finished picture of the main window, with a full game on show, against a
// Qt window of the same size with one word in it, for which Qt has to load its fonts as for ours; `Start/empty` is that
// window without the word. All show on the same X server without a monitor. The first start, which is not measured,
// teaches what the finished picture is: the one that stays. The others are stopped when the screen shows just that one.

#include "bench/BenchGames.h"
#include "bench/ChildProgram.h"
#include "bench/VirtualScreen.h"
#include "support/TemporaryDirectory.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace ballhaven::bench {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 20s;
constexpr auto stillTime = 1500ms;

/// A program that is built beside this one.
std::filesystem::path BuiltProgram(const char* name) {
    return std::filesystem::read_symlink("/proc/self/exe").replace_filename(name);
}

/// A program folder of its own, with the games as they are at the first use: its picture is the same at each start.
class ProgramFolder {
  public:
    ProgramFolder() {
        for (const auto& entry : std::filesystem::directory_iterator(GamesDirectory())) {
            std::filesystem::copy(entry, directory.Path());
        }
        std::filesystem::copy(BuiltProgram("ballhaven"), directory.Path());
    }

    [[nodiscard]] std::string Program() const { return directory / "ballhaven"; }

  private:
    support::TemporaryDirectory directory;
};

void EndAndClear(ChildProgram& child, const VirtualScreen& screen) {
    child.End();
    if (!screen.WaitFor(screen.Empty(), patience)) {
        throw std::runtime_error("A closed window stays on the screen");
    }
}

/// A program with its arguments.
using Command = std::vector<std::string>;

/// What the screen shows when a program has started.
const Picture& FinishedPicture(const Command& command, const VirtualScreen& screen) {
    static std::map<Command, Picture> pictures;
    const auto [entry, isNew] = pictures.try_emplace(command);
    if (isNew) {
        ChildProgram child(command);
        entry->second = screen.NextStillPicture(patience, stillTime);
        EndAndClear(child, screen);
    }
    return entry->second;
}

void MeasureStarts(benchmark::State& state, const Command& command) {
    static const VirtualScreen screen;
    const Picture& picture = FinishedPicture(command, screen);
    if (picture == screen.Empty()) {
        state.SkipWithError("No window came to stand still");
        return;
    }
    for ([[maybe_unused]] const auto turn : state) {
        ChildProgram child(command);
        const bool shown = screen.WaitFor(picture, patience);
        state.PauseTiming();
        EndAndClear(child, screen);
        state.ResumeTiming();
        if (!shown) {
            state.SkipWithError("The finished picture did not come again");
            break;
        }
    }
}

void Ours(benchmark::State& state) {
    if (!std::filesystem::exists(BuiltProgram("ballhaven"))) {
        state.SkipWithError("The program is not built");
        return;
    }
    static const ProgramFolder folder;
    MeasureStarts(state, {folder.Program()});
}

void Rival(benchmark::State& state) {
    MeasureStarts(state, {BuiltProgram("ballhaven_plain_window"), "Ballhaven"});
}

void Empty(benchmark::State& state) {
    MeasureStarts(state, {BuiltProgram("ballhaven_plain_window")});
}

BENCHMARK(Ours)->Name("Start/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("Start/rival")->Unit(benchmark::kMillisecond);
BENCHMARK(Empty)->Name("Start/empty")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
