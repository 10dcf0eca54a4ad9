#include "plays/PlayFile.h"

#include "fuzz/FuzzInput.h"
#include "state/AppState.h"

#include <string>

namespace ballhaven::fuzz {
namespace {

constexpr const char* fileName = "PLAYS20.CDB";
constexpr std::size_t formatLength = 5000 * 64;

std::string TailOf(const std::string& file) {
    return file.size() > formatLength ? file.substr(formatLength) : std::string();
}

void CheckLoadSaveLoad(const std::string& file) {
    const auto& directory = ProgramDirectory();
    directory.Write(fileName, file);
    LoadPlayFile();
    const PlayPicks plays = appState.PlayTable;
    SavePlayFile();
    const std::string stored = directory.Read(fileName);
    Expect(stored.size() >= formatLength, "a save writes all plays");
    Expect(TailOf(stored) == TailOf(file), "what stands behind the last play stays");

    LoadPlayFile();
    Expect(appState.PlayTable == plays, "the second load gives the same plays");
    SavePlayFile();
    Expect(directory.Read(fileName) == stored, "the second save changes no byte");
}

/// Any plays that memory can hold come back with the digits that their fields have room for.
void CheckSaveLoad(const FuzzInput& input) {
    ProgramDirectory().Write(fileName, "");
    PlayPicks expected;
    int place = 0;
    for (int play = 1; play <= playCount; ++play) {
        const std::int16_t method = input.Value(place++);
        appState.PlayTable(mainPicks, play, 0) = method;
        expected(mainPicks, play, 0) = method >= 1 && method <= 3 ? method : std::int16_t{0};
        for (const int list : {mainPicks, bonusPicks}) {
            for (int slot = 1; slot <= picksPerPlay; ++slot) {
                const std::int16_t pick = input.Value(place++);
                appState.PlayTable(list, play, slot) = pick;
                expected(list, play, slot) = pick < 0 ? std::int16_t{-1} : FirstTwoDigits(pick);
            }
        }
    }
    SavePlayFile();
    LoadPlayFile();
    Expect(appState.PlayTable == expected, "plays come back as their fields hold them");
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ballhaven::fuzz;
    FuzzInput input(data, size);
    ballhaven::appState.currentGame = 20;
    if (input.Choice(4) == 0) {
        CheckSaveLoad(input);
    } else {
        CheckLoadSaveLoad(input.File({1, 64, 64'000, 64'064, 320'000, 320'100}));
    }
    return 0;
}
