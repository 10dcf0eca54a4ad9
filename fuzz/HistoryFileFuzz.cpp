#include "history/HistoryFile.h"

#include "fuzz/FuzzInput.h"
#include "state/AppState.h"
#include "state/MendedFolder.h"

#include <string>

namespace ballhaven::fuzz {
namespace {

constexpr const char* fileName = "GAME07.CDB";
constexpr std::size_t formatLength = 1001 * 64;
constexpr int picksThatFit = 20;  // of a record's 64 columns

std::string TailOf(const std::string& file) {
    return file.size() > formatLength ? file.substr(formatLength) : std::string();
}

void CheckLoadSaveLoad(const std::string& file) {
    const auto& directory = ProgramDirectory();
    directory.Write(fileName, file);
    LoadHistory();
    const Table table = appState.HistoryTable;
    const int last = appState.historyLast;
    SaveHistory(0);
    const std::string stored = directory.Read(fileName);
    Expect(stored.size() >= formatLength, "a save writes all rows");
    Expect(TailOf(stored) == TailOf(file), "what stands behind the last row stays");

    LoadHistory();
    Expect(appState.HistoryTable == table && appState.historyLast == last, "the second load gives the same draws");
    SaveHistory(0);
    Expect(directory.Read(fileName) == stored, "the second save changes no byte");
}

/// In a mended folder a file keeps all digits.
std::int16_t StoredDate(std::int16_t date) {
    return static_cast<std::int16_t>(date > 9999 && !FolderIsMended() ? date / 10 : date);
}

std::int16_t StoredPick(int column, std::int16_t pick) {
    return column > picksThatFit || pick < 0 ? std::int16_t{-1} : FirstTwoDigits(pick);
}

/// Any table that memory can hold comes back with the digits that its fields have room for.
void CheckSaveLoad(const FuzzInput& input) {
    ProgramDirectory().Write(fileName, "");
    Table expected(1 + appState.totalPicks, historyRows);
    appState.HistoryTable = expected;
    int last = -1;
    int place = 0;
    for (int row = 0; row < historyRows; ++row) {
        for (int column = 0; column <= appState.totalPicks; ++column) {
            appState.HistoryTable(column, row) = input.Value(place++);
        }
        if (appState.HistoryTable(0, row) > 0) {
            ++last;
            const int placeWhenLoaded = FolderIsMended() ? last : row;
            expected(0, placeWhenLoaded) = StoredDate(appState.HistoryTable(0, row));
            for (int column = 1; column <= appState.totalPicks; ++column) {
                expected(column, placeWhenLoaded) = StoredPick(column, appState.HistoryTable(column, row));
            }
        }
    }
    SaveHistory(0);
    LoadHistory();
    Expect(appState.HistoryTable == expected && appState.historyLast == last,
           "draws come back as their fields hold them");
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ballhaven::fuzz;
    FuzzInput input(data, size);
    ballhaven::appState.currentGame = 7;
    ballhaven::appState.totalPicks = static_cast<std::int16_t>(1 + input.Choice(108));
    ballhaven::appState.systemRecord = input.Choice(2) == 0 ? std::string() : ballhaven::WithMendedMark("");
    if (input.Choice(4) == 0) {
        CheckSaveLoad(input);
    } else {
        CheckLoadSaveLoad(input.File({1, 64, 6464, 6528, 64'064, 70'000}));
    }
    return 0;
}
