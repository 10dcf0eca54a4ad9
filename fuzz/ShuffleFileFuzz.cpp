#include "wheels/ShuffleFile.h"

#include "fuzz/FuzzInput.h"
#include "state/AppState.h"

#include <algorithm>
#include <string>

namespace ballhaven::fuzz {
namespace {

constexpr const char* fileName = "SHUFFLE.CDB";
constexpr std::size_t recordLength = 320;
constexpr std::size_t formatLength = 40 * recordLength;

/// All but the lists of the current game is what it was, and blanks where the file was too short for it.
void ExpectTheRestUntouched(const std::string& before, const std::string& after) {
    std::string expected = before;
    expected.resize(before.size() > formatLength / 2 ? before.size() : formatLength, ' ');
    std::size_t records = 1;
    if (HasBonus(appState.gameType)) {
        records = 2;
    }
    for (std::size_t list = 0; list < records; ++list) {
        const std::size_t begin =
            (static_cast<std::size_t>(appState.currentGame) - 1 + list * gameSlots) * recordLength;
        expected.resize(std::max(expected.size(), begin + recordLength), ' ');
        expected.replace(begin, recordLength, after, begin, recordLength);
    }
    Expect(after == expected, "a save changes no list of another game and no byte behind the last one");
}

void CheckLoadSaveLoad(const std::string& file) {
    const auto& directory = ProgramDirectory();
    directory.Write(fileName, file);
    LoadShuffleFile();
    const ChosenPicks lists = appState.ShuffleTable;
    SaveShuffleFile();
    const std::string stored = directory.Read(fileName);
    ExpectTheRestUntouched(file, stored);

    LoadShuffleFile();
    if (HasBonus(appState.gameType)) {
        // The option is stored with the main list and looked for behind the bonus list, which the save has cleared.
        ChosenPicks expected = lists;
        expected(mainPicks, 0) = 0;
        Expect(appState.ShuffleTable == expected, "the second load gives the same lists without an option");
    } else {
        Expect(appState.ShuffleTable == lists, "the second load gives the same lists and option");
    }
    const ChosenPicks second = appState.ShuffleTable;
    SaveShuffleFile();
    const std::string storedAgain = directory.Read(fileName);
    LoadShuffleFile();
    Expect(appState.ShuffleTable == second, "the third load gives what the second gave");
    SaveShuffleFile();
    Expect(directory.Read(fileName) == storedAgain, "the third save changes no byte");
}

/// Any lists that memory can hold come back closed up, with the digits that their fields have room for.
void CheckSaveLoad(const FuzzInput& input) {
    ProgramDirectory().Write(fileName, "");
    ChosenPicks expected;
    const std::int16_t option = input.Value(0);
    const bool remembersOption = !HasBonus(appState.gameType) && option >= 1 && option <= 3;
    expected(mainPicks, 0) = remembersOption ? option : std::int16_t{0};
    appState.ShuffleTable(mainPicks, 0) = option;

    int place = 1;
    for (const int list : {mainPicks, bonusPicks}) {
        int used = 0;
        for (int slot = 1; slot <= chosenPicks; ++slot) {
            const std::int16_t pick = input.Value(place++);
            appState.ShuffleTable(list, slot) = pick;
            if (pick != -1 && (list == mainPicks || HasBonus(appState.gameType))) {
                // The sign of a negative number is no digit, so its field reads as 0.
                expected(list, ++used) = pick < 0 ? std::int16_t{0} : FirstTwoDigits(pick);
            }
        }
    }
    SaveShuffleFile();
    LoadShuffleFile();
    Expect(appState.ShuffleTable == expected, "lists come back closed up, as their fields hold them");
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ballhaven::fuzz;
    FuzzInput input(data, size);
    ballhaven::appState.currentGame = static_cast<std::int16_t>(1 + input.Choice(ballhaven::gameSlots));
    ballhaven::appState.gameType = static_cast<std::int16_t>(input.Choice(6));
    if (input.Choice(4) == 0) {
        CheckSaveLoad(input);
    } else {
        CheckLoadSaveLoad(input.File({1, 320, 6400, 6720, 12'800, 13'000}));
    }
    return 0;
}
