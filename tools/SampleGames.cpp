#include "tools/SampleGames.h"

#include "history/HistoryFile.h"
#include "plays/PlayFile.h"
#include "plays/PlayMethodCode.h"
#include "plays/PlaySlips.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "wheels/ShuffleFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace ballhaven::tools {
namespace {

constexpr std::uint32_t seed = 19840101;

// clang-format off
constexpr std::array sampleGames = {
    //         name               type  main picks  bonus     dupl.  order   set  draws days newest blank plays chosen
    SampleGame{"Harbour Six",       0,   6, 1, 49,  0, 0,  0, false, false,  100,  600,  7,  9985,  150,  60,  12, 0},
    SampleGame{"Lantern Five Plus", 1,   5, 1, 45,  1, 1, 45, false, false,   50,  400,  7,  9987,    0,  40,  10, 3},
    SampleGame{"Twin Drums",        2,   5, 1, 50,  2, 1, 12, false, false,   80,  520,  7,  9983,    0, 100,  14, 4},
    SampleGame{"Card Table Five",   3,   5, 1, 52,  0, 0,  0, false, false,   60,  300,  7,  9986,  100,  25,  13, 0},
    SampleGame{"Queen's Extra",     4,   4, 1, 52,  1, 1, 52, false, false,   40,  250,  7,  9988,    0,  15,   9, 2},
    SampleGame{"Two Decks",         5,   4, 1, 52,  2, 1, 52, false, false,   30,  200,  7,  9982,    0,  10,   8, 4},
    SampleGame{"Three Digits",      0,   3, 0,  9,  0, 0,  0, true,  false,  200,  900,  1,  9989,    0,  20,   6, 0},
    SampleGame{"First Four Home",   0,   4, 1, 24,  0, 0,  0, false, true,    20,  150,  7,  9984,   50,  30,   7, 0},
    SampleGame{"Grand Ten",         0,  10, 1, 80,  0, 0,  0, false, false, 1000, 1000,  1,  9990,    0, 250,  20, 0},
    SampleGame{"Clean Slate",       0,   6, 1, 42,  0, 0,  0, false, false,   10,    0,  7,     0,    0,   0,   0, 0},
};
// clang-format on

struct Picks {
    std::vector<int> main;
    std::vector<int> bonus;
};

/// Chance that gives the same numbers with every standard library.
class Chance {
  public:
    /// 0 to `limit` - 1.
    int Below(int limit) { return static_cast<int>(generator() % static_cast<std::uint32_t>(limit)); }

    /// `count` different numbers of `low` to `high`, in the order of drawing.
    std::vector<int> Different(int count, int low, int high) {
        std::vector<int> pool(static_cast<std::size_t>(high - low + 1));
        std::iota(pool.begin(), pool.end(), low);
        for (int drawn = 0; drawn < count; ++drawn) {
            std::swap(pool[static_cast<std::size_t>(drawn)],
                      pool[static_cast<std::size_t>(drawn + Below(static_cast<int>(pool.size()) - drawn))]);
        }
        pool.resize(static_cast<std::size_t>(count));
        return pool;
    }

    /// `count` numbers of `low` to `high`, each from the whole range.
    std::vector<int> Any(int count, int low, int high) {
        std::vector<int> drawn(static_cast<std::size_t>(count));
        std::generate(drawn.begin(), drawn.end(), [&] { return low + Below(high - low + 1); });
        return drawn;
    }

  private:
    std::mt19937 generator{seed};
};

bool DrawsBonusFromMainPool(const SampleGame& game) {
    return game.gameType == 1 || game.gameType == 4;
}

/// The first `mainCount` of the numbers, and the rest.
Picks Divided(const std::vector<int>& numbers, int mainCount) {
    return {{numbers.begin(), numbers.begin() + mainCount}, {numbers.begin() + mainCount, numbers.end()}};
}

/// One drawing of a game. The picks ascend where their order does not matter.
Picks DrawnPicks(const SampleGame& game, Chance& chance) {
    Picks picks;
    if (DrawsBonusFromMainPool(game)) {
        picks =
            Divided(chance.Different(game.mainPicks + game.bonusPicks, game.mainLow, game.mainHigh), game.mainPicks);
    } else {
        picks.main = game.duplicates ? chance.Any(game.mainPicks, game.mainLow, game.mainHigh)
                                     : chance.Different(game.mainPicks, game.mainLow, game.mainHigh);
        picks.bonus = chance.Different(game.bonusPicks, game.bonusLow, game.bonusHigh);
    }
    if (!game.order) {
        std::sort(picks.main.begin(), picks.main.end());
        std::sort(picks.bonus.begin(), picks.bonus.end());
    }
    return picks;
}

void SaveRules(const SampleGame& game, int slot) {
    const bool cards = IsCardGame(game.gameType);
    std::string record = BuildDefaultGameRecord(slot, game.gameType);
    SetField(record, gameField::name, game.name);
    SetFieldValue(record, gameField::historySet, game.historySet);
    SetFieldValue(record, gameField::mainLow, game.mainLow);
    SetFieldValue(record, gameField::mainHigh, game.mainHigh);
    SetField(record, gameField::duplicates, game.duplicates ? "Y" : "N");
    SetField(record, gameField::order, game.order ? "Y" : "N");
    SetFieldValue(record, gameField::mainPickCount, game.mainPicks);
    SetFieldValue(record, gameField::bonusPickCount, game.bonusPicks);
    SetField(record, gameField::bonusLow, HasBonus(game.gameType) || cards ? "1" : "-");
    SetFieldValue(record, gameField::bonusHigh, cards ? 52 : game.bonusHigh);
    appState.gameRecord = record;
    SaveGameRecord(slot);
}

/// Puts a drawing into a row of the history, in front the main picks.
void PutDraw(const Picks& picks, int serial, int row) {
    appState.HistoryTable(0, row) = modUTILS::ToInt16(serial);
    int column = 0;
    for (const auto& list : {picks.main, picks.bonus}) {
        for (const int pick : list) {
            appState.HistoryTable(++column, row) = modUTILS::ToInt16(pick);
        }
    }
}

void SaveDraws(const SampleGame& game, Chance& chance) {
    LoadHistory();
    for (int row = 0; row < game.draws; ++row) {
        PutDraw(DrawnPicks(game, chance), game.newestDraw - (game.draws - 1 - row) * game.daysBetween, row);
        if (game.blankEvery > 0 && (row + 1) % game.blankEvery == 0) {
            appState.HistoryTable(appState.totalPicks, row) = -1;
        }
    }
    appState.historyLast = modUTILS::ToInt16(game.draws - 1);
    SaveHistory(0);
}

/// The cell of a pick grid for the pick in a slot, from 0: where numbers may repeat, each slot has a run of cells.
int MainCell(const SampleGame& game, int pick, int slot) {
    const int run = game.duplicates ? game.mainHigh - game.mainLow + 1 : 0;
    return slot * run + pick - game.mainLow;
}

/// The plays are drawings too. The first of each slip is made by hand, the others by a shuffle.
void SavePlays(const SampleGame& game, Chance& chance) {
    LoadPlayFile();
    for (int play = 1; play <= game.plays; ++play) {
        const Picks picks = DrawnPicks(game, chance);
        appState.PlayTable(mainPicks, play, 0) = LineOfPlay(play) == 1 ? byHand : byShuffle;
        for (int slot = 0; slot < game.mainPicks; ++slot) {
            appState.PlayTable(mainPicks, play, slot + 1) =
                modUTILS::ToInt16(MainCell(game, picks.main[static_cast<std::size_t>(slot)], slot));
        }
        for (int slot = 0; slot < game.bonusPicks; ++slot) {
            appState.PlayTable(bonusPicks, play, slot + 1) =
                modUTILS::ToInt16(picks.bonus[static_cast<std::size_t>(slot)] - game.bonusLow);
        }
    }
    SavePlayFile();
}

void Choose(PickColumn column, const std::vector<int>& cells) {
    int slot = 0;
    for (const int cell : cells) {
        appState.ShuffleTable(column, ++slot) = modUTILS::ToInt16(cell);
    }
}

void SaveChosenPicks(const SampleGame& game, Chance& chance) {
    const int runs = game.duplicates ? game.mainPicks : 1;
    const int lastCell = runs * (game.mainHigh - game.mainLow + 1) - 1;
    Picks chosen;
    if (DrawsBonusFromMainPool(game)) {
        chosen = Divided(chance.Different(game.chosenMain + game.chosenBonus, 0, lastCell), game.chosenMain);
    } else {
        chosen.main = chance.Different(game.chosenMain, 0, lastCell);
        chosen.bonus = chance.Different(game.chosenBonus, 0, game.bonusHigh - game.bonusLow);
    }

    LoadShuffleFile();
    Choose(mainPicks, chosen.main);
    Choose(bonusPicks, chosen.bonus);
    appState.ShuffleTable(mainPicks, 0) = byShuffle;
    SaveShuffleFile();
}

}  // namespace

std::span<const SampleGame> SampleGames() {
    return sampleGames;
}

std::string FillSampleFolder(const std::filesystem::path& folder, FolderKind kind) {
    std::string refusal = BeginFolder(folder, kind);
    if (refusal.empty()) {
        MakeSampleGames();
    }
    return refusal;
}

void MakeSampleGames() {
    Chance chance;
    OpenGameTable();
    int slot = 0;
    for (const SampleGame& game : sampleGames) {
        ++slot;
        SaveRules(game, slot);
        appState.currentGame = modUTILS::ToInt16(slot);
        LoadGameRecord(slot);
        SaveDraws(game, chance);
        SavePlays(game, chance);
        SaveChosenPicks(game, chance);
    }
    SetFieldValue(appState.systemRecord, systemField::shownSlot, 1);
    SetFieldValue(appState.systemRecord, systemField::sortOrder, 0);
    SaveSystemRecord();
}

}  // namespace ballhaven::tools
