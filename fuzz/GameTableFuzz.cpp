#include "state/GameTable.h"

#include "fuzz/FuzzInput.h"
#include "state/AppState.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace ballhaven::fuzz {
namespace {

constexpr const char* fileName = "LOTTOSYS";
constexpr std::size_t recordLength = 64;
constexpr std::size_t formatLength = 21 * recordLength;

auto GameVariables() {
    return std::make_tuple(appState.systemRecord, appState.gameRecord, appState.gameType, appState.mainPickCount,
                           appState.bonusPickCount, appState.totalPicks, appState.mainLow, appState.mainHigh,
                           appState.bonusLow, appState.bonusHigh, appState.duplicatesAllowed, appState.orderMatters,
                           appState.historySetSize, appState.historySortOrder);
}

void Load(int slot) {
    OpenGameTable();
    LoadGameRecord(slot);
}

/// All but the record that the load may have converted is what it was, and blanks where the file was too short for it.
void ExpectTheRestUntouched(const std::string& before, const std::string& after, int slot) {
    const std::size_t begin = static_cast<std::size_t>(slot) * recordLength;
    const std::size_t end = begin + recordLength;
    std::string expected = before;
    expected.resize(std::max(expected.size(), end), ' ');
    expected.replace(begin, recordLength, after, begin, recordLength);
    Expect(after == expected, "a load changes no other record and no byte behind the last one");
}

void CheckLoadSaveLoad(const std::string& file, int slot) {
    const auto& directory = ProgramDirectory();
    directory.Write(fileName, file);
    appState.currentGame = static_cast<std::int16_t>(slot);
    Load(slot);
    const auto first = GameVariables();
    const std::string stored = directory.Read(fileName);
    if (file.empty() || file.size() == recordLength) {
        Expect(stored.size() == formatLength, "an empty table is created whole");
    } else {
        ExpectTheRestUntouched(file, stored, slot);
    }

    SaveSystemRecord();
    SaveGameRecord(slot);
    Load(slot);
    Expect(GameVariables() == first, "the second load gives the same game");
    Expect(directory.Read(fileName) == stored, "the second load changes no byte");
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ballhaven::fuzz;
    FuzzInput input(data, size);
    const int slot = 1 + input.Choice(ballhaven::gameSlots);
    CheckLoadSaveLoad(input.File({1, 64, 128, 1344, 2000}), slot);
    return 0;
}
