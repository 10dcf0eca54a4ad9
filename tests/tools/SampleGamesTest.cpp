#include "tools/SampleGames.h"

#include "history/HistoryFile.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/PickText.h"
#include "state/ViewRows.h"
#include "support/Games.h"
#include "support/TemporaryDirectory.h"
#include "wheels/ShuffleFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ballhaven::tools {
namespace {

/// One program folder with the sample games for all tests, which only load from it.
class SampleGamesTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder = std::make_unique<support::TemporaryDirectory>();
        support::ResetState();
        ASSERT_EQ(FillSampleFolder(folder->Path()), "");
    }

    static void TearDownTestSuite() { folder.reset(); }

    void SetUp() override {
        support::ResetState();
        appState.programDirectory = folder->Path();
        OpenGameTable();
    }

    static void Load(int slot) {
        appState.currentGame = static_cast<std::int16_t>(slot);
        LoadGameRecord(slot);
        LoadHistory();
        LoadPlayFile();
        LoadShuffleFile();
    }

    /// Loads each game and runs a check on it.
    template <typename Check>
    static void ForEachGame(Check check) {
        int slot = 0;
        for (const SampleGame& game : SampleGames()) {
            SCOPED_TRACE(game.name);
            Load(++slot);
            check(game);
        }
    }

    static std::vector<int> PicksOfDraw(int row, int first, int count) {
        std::vector<int> picks;
        for (int column = first; column < first + count; ++column) {
            picks.push_back(appState.HistoryTable(column, row));
        }
        return picks;
    }

    static inline std::unique_ptr<support::TemporaryDirectory> folder;
};

TEST_F(SampleGamesTest, EachGameHasItsFilesAtTheirFullLength) {
    const auto files = folder->Files();

    EXPECT_EQ(files.size(), 2 + 2 * SampleGames().size());
    for (const auto& [name, bytes] : files) {
        SCOPED_TRACE(name);
        const std::size_t length = name == "LOTTOSYS"          ? 1344
                                   : name == "SHUFFLE.CDB"     ? 12800
                                   : name.starts_with("PLAYS") ? 320000
                                                               : 64064;
        EXPECT_EQ(bytes.size(), length);
    }
}

TEST_F(SampleGamesTest, TheFirstGameShowsFirstWithItsNewestDrawOnTop) {
    EXPECT_EQ(appState.systemRecord.substr(0, 13), "01/0/1/000000");
}

TEST_F(SampleGamesTest, TheGamesCoverEveryKind) {
    std::set<int> kinds;
    for (const SampleGame& game : SampleGames()) {
        kinds.insert(game.gameType);
    }

    EXPECT_EQ(kinds, (std::set<int>{0, 1, 2, 3, 4, 5}));
}

TEST_F(SampleGamesTest, EachGameLoadsWithItsRules) {
    ForEachGame([](const SampleGame& game) {
        std::string name(game.name);
        name.resize(20, ' ');
        EXPECT_EQ(GameName(appState.gameRecord), name);
        EXPECT_EQ(appState.gameType, game.gameType);
        EXPECT_EQ(appState.mainPickCount, game.mainPicks);
        EXPECT_EQ(appState.totalPicks, game.mainPicks + game.bonusPicks);
        EXPECT_EQ(appState.mainLow, game.mainLow);
        EXPECT_EQ(appState.mainHigh, game.mainHigh);
        EXPECT_EQ(appState.duplicatesAllowed, game.duplicates);
        EXPECT_EQ(appState.orderMatters, game.order);
        EXPECT_EQ(appState.historySetSize, game.historySet);
        EXPECT_EQ(appState.historySortOrder, 0);
        if (game.bonusPicks > 0) {
            EXPECT_EQ(appState.bonusLow, game.bonusLow);
            EXPECT_EQ(appState.bonusHigh, game.bonusHigh);
        }
    });
}

TEST_F(SampleGamesTest, TheDatesRiseByTheDaysBetweenAndFitTheirFourColumns) {
    ForEachGame([](const SampleGame& game) {
        ASSERT_EQ(appState.historyLast, game.draws - 1);
        for (int row = 1; row < game.draws; ++row) {
            EXPECT_EQ(appState.HistoryTable(0, row) - appState.HistoryTable(0, row - 1), game.daysBetween);
        }
        if (game.draws > 0) {
            EXPECT_EQ(appState.HistoryTable(0, game.draws - 1), game.newestDraw);
            EXPECT_LT(game.newestDraw, 10000);
            EXPECT_GE(appState.HistoryTable(0, 0), 1000);
        }
    });
}

TEST_F(SampleGamesTest, EveryPickOfADrawLiesWithinTheLimits) {
    ForEachGame([](const SampleGame& game) {
        for (int row = 0; row < game.draws; ++row) {
            const bool lacksOne = game.blankEvery > 0 && (row + 1) % game.blankEvery == 0;
            for (int column = 1; column <= game.mainPicks + game.bonusPicks; ++column) {
                const bool isMain = column <= game.mainPicks;
                const int pick = appState.HistoryTable(column, row);
                if (lacksOne && column == game.mainPicks + game.bonusPicks) {
                    EXPECT_EQ(pick, -1);
                    continue;
                }
                EXPECT_GE(pick, isMain ? game.mainLow : game.bonusLow);
                EXPECT_LE(pick, isMain ? game.mainHigh : game.bonusHigh);
            }
        }
    });
}

TEST_F(SampleGamesTest, ANumberIsDrawnTwiceOnlyWhereThatIsAllowed) {
    ForEachGame([](const SampleGame& game) {
        bool twice = false;
        for (int row = 0; row < game.draws; ++row) {
            const bool onePool = game.gameType == 1 || game.gameType == 4;
            const auto picks = PicksOfDraw(row, 1, game.mainPicks + (onePool ? game.bonusPicks : 0));
            twice = twice || std::set<int>(picks.begin(), picks.end()).size() < picks.size();
        }
        EXPECT_EQ(twice, game.duplicates);
    });
}

TEST_F(SampleGamesTest, TheMainPicksAscendUnlessTheirOrderMatters) {
    ForEachGame([](const SampleGame& game) {
        bool ascending = true;
        for (int row = 0; row < game.draws; ++row) {
            const bool lacksOne = game.blankEvery > 0 && (row + 1) % game.blankEvery == 0;
            const auto picks = PicksOfDraw(row, 1, game.mainPicks - (lacksOne ? 1 : 0));
            ascending = ascending && std::is_sorted(picks.begin(), picks.end());
        }
        EXPECT_EQ(ascending, !game.order);
    });
}

TEST_F(SampleGamesTest, EveryPickOfAPlayIsACellOfTheBoard) {
    ForEachGame([](const SampleGame& game) {
        const int bonusCell = game.gameType > 2 ? 72 : 108;
        for (int play = 1; play <= game.plays; ++play) {
            for (int slot = 1; slot <= game.mainPicks; ++slot) {
                const int cell = appState.PlayTable(mainPicks, play, slot);
                EXPECT_FALSE(PickCellText(cell).empty()) << play << " main " << slot;
                EXPECT_LT(cell, 99);
            }
            for (int slot = 1; slot <= game.bonusPicks; ++slot) {
                const int cell = appState.PlayTable(bonusPicks, play, slot);
                EXPECT_GE(cell, 0);
                EXPECT_FALSE(PickCellText(cell + bonusCell).empty()) << play << " bonus " << slot;
            }
        }
    });
}

TEST_F(SampleGamesTest, ThePlaysBehindTheLastOneAndTheSlotsBehindTheCountsAreEmpty) {
    ForEachGame([](const SampleGame& game) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            EXPECT_EQ(appState.PlayTable(mainPicks, game.plays + 1, slot), -1);
            EXPECT_EQ(appState.PlayTable(bonusPicks, game.plays + 1, slot), -1);
            if (slot > game.mainPicks) {
                EXPECT_EQ(appState.PlayTable(mainPicks, 1, slot), -1);
            }
            if (slot > game.bonusPicks) {
                EXPECT_EQ(appState.PlayTable(bonusPicks, 1, slot), -1);
            }
        }
    });
}

TEST_F(SampleGamesTest, ANumberThatRepeatsStandsInARunOfItsOwnPick) {
    Load(7);
    ASSERT_TRUE(appState.duplicatesAllowed);

    for (int play = 1; play <= 20; ++play) {
        for (int slot = 1; slot <= 3; ++slot) {
            EXPECT_EQ(appState.PlayTable(mainPicks, play, slot) / 10, slot - 1);
        }
    }
}

TEST_F(SampleGamesTest, TheChosenPicksAreDifferentCellsOfTheBoard) {
    ForEachGame([](const SampleGame& game) {
        const int bonusCell = game.gameType > 2 ? 72 : 108;
        for (const PickColumn list : {mainPicks, bonusPicks}) {
            const int count = list == mainPicks ? game.chosenMain : game.chosenBonus;
            std::set<int> cells;
            for (int slot = 1; slot <= count; ++slot) {
                const int cell = appState.ShuffleTable(list, slot);
                EXPECT_GE(cell, 0);
                EXPECT_FALSE(PickCellText(cell + (list == mainPicks ? 0 : bonusCell)).empty()) << cell;
                cells.insert(cell);
            }
            EXPECT_EQ(cells.size(), static_cast<std::size_t>(count));
            EXPECT_EQ(appState.ShuffleTable(list, count + 1), -1);
        }
    });
}

TEST_F(SampleGamesTest, TheSameGamesComeOutEveryTime) {
    const support::TemporaryDirectory other;
    ASSERT_EQ(FillSampleFolder(other.Path()), "");

    EXPECT_EQ(other.Files(), folder->Files());
}

TEST_F(SampleGamesTest, AMendedFolderHasTheSameGamesUnderItsMarks) {
    const support::TemporaryDirectory mended;
    ASSERT_EQ(FillSampleFolder(mended.Path(), FolderKind::Mended), "");

    std::map<std::string, std::string> expected = folder->Files();
    for (auto& [name, bytes] : expected) {
        if (name == "LOTTOSYS" || name.starts_with("GAME")) {
            bytes[63] = 'M';
        }
    }
    EXPECT_EQ(mended.Files(), expected);
}

TEST_F(SampleGamesTest, AFolderWithDataStaysAsItIs) {
    const support::TemporaryDirectory used;
    used.Write("LOTTOSYS", "mine");

    EXPECT_EQ(FillSampleFolder(used.Path()), used.Path() + " has a LOTTOSYS already; its games stay as they are.");
    EXPECT_EQ(used.Files(), (std::map<std::string, std::string>{{"LOTTOSYS", "mine"}}));
}

TEST_F(SampleGamesTest, AFolderThatIsMissingIsNotMade) {
    EXPECT_EQ(FillSampleFolder(*folder / "nowhere"), (*folder / "nowhere") + " is no folder.");
    EXPECT_FALSE(folder->Has("nowhere"));
}

}  // namespace
}  // namespace ballhaven::tools
