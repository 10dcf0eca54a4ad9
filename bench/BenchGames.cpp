#include "bench/BenchGames.h"

#include "forms/MainForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryFile.h"
#include "plays/PlayFile.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/TemporaryDirectory.h"
#include "wheels/ShuffleFile.h"

#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

namespace ballhaven::bench {

namespace {

constexpr int picksOfDraw = 10;
constexpr int highestPick = 99;
constexpr int firstDate = 8000;  // a draw each day from here on
constexpr std::uint32_t seed = 19840101;

using Chance = std::mt19937;

/// Different numbers from 1 to 99, the same with every standard library.
std::vector<std::int16_t> DrawnPicks(Chance& chance) {
    std::vector<std::int16_t> pool(highestPick);
    std::iota(pool.begin(), pool.end(), std::int16_t{1});
    for (std::size_t drawn = 0; drawn < picksOfDraw; ++drawn) {
        std::swap(pool[drawn], pool[drawn + chance() % (pool.size() - drawn)]);
    }
    pool.resize(picksOfDraw);
    return pool;
}

void SaveRules(int slot) {
    appState.gameRecord = BuildDefaultGameRecord(slot, 0);
    SetField(appState.gameRecord, gameField::name, "Ten of 99, no. " + std::to_string(slot));
    SetFieldValue(appState.gameRecord, gameField::historySet, historyRows);
    SaveGameRecord(slot);
}

void SaveDraws(Chance& chance) {
    LoadHistory();
    for (int row = 0; row < historyRows; ++row) {
        appState.HistoryTable(0, row) = modUTILS::ToInt16(firstDate + row);
        int column = 0;
        for (const std::int16_t pick : DrawnPicks(chance)) {
            appState.HistoryTable(++column, row) = pick;
        }
    }
    SaveHistory(0);
}

void SavePlays(Chance& chance) {
    LoadPlayFile();
    for (int play = 1; play <= playCount; ++play) {
        appState.PlayTable(mainPicks, play, 0) = byShuffle;
        int slot = 0;
        for (const std::int16_t pick : DrawnPicks(chance)) {
            appState.PlayTable(mainPicks, play, ++slot) = modUTILS::ToInt16(pick - 1);
        }
    }
    SavePlayFile();
}

void MakeGame(int slot, Chance& chance) {
    SaveRules(slot);
    appState.currentGame = modUTILS::ToInt16(slot);
    LoadGameRecord(slot);
    SaveDraws(chance);
    SavePlays(chance);
    LoadShuffleFile();
}

/// A program directory with the files of both games.
class GamesFolder {
  public:
    GamesFolder() {
        appState.programDirectory = directory.Path();
        appState.shortDateFormat = "m/d/y";
        OpenGameTable();
        Chance chance(seed);
        MakeGame(firstGame, chance);
        MakeGame(secondGame, chance);
        appState.currentGame = 0;
    }

    [[nodiscard]] const std::string& Path() const { return directory.Path(); }

  private:
    support::TemporaryDirectory directory;
};

/// Loads the game shown last, as the start of the program does.
bool StartWithoutToolkit() {
    LayOutMainForm();
    SwitchGame();
    return true;
}

}  // namespace

const std::string& GamesDirectory() {
    static const GamesFolder folder;
    return folder.Path();
}

void SwitchTo(int slot) {
    appState.programDirectory = GamesDirectory();
    [[maybe_unused]] static const bool started = StartWithoutToolkit();
    frmMainForm.cboList[0].Select(slot - 1);
    SwitchGame();
}

}  // namespace ballhaven::bench
