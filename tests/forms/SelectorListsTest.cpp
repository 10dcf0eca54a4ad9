#include "forms/SelectorLists.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/MainScreen.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::CardGame;
using support::NumberGame;
using support::StartWith;

using Texts = std::vector<std::string>;

const platform::DropDownList& games = frmMainForm.cboList[0];
const platform::DropDownList& sets = frmMainForm.cboList[1];
const platform::DropDownList& tables = frmMainForm.cboList[2];

/// Gives a slot a name in the game table.
void NameGame(int slot, const std::string& name) {
    appState.gameRecord = BuildDefaultGameRecord(slot, 0);
    modUTILS::SetColumns(appState.gameRecord, 4, modUTILS::FixedWidth(name, 20));
    SaveGameRecord(slot);
}

TEST(ListGames, NamesAllTwentySlotsInTheirOrderWithTheirBlanks) {
    StartWith(NumberGame().InSlot(3));
    const support::TemporaryDirectory directory;
    appState.programDirectory = directory.Path();
    OpenGameTable();
    NameGame(1, "State Lotto");
    NameGame(20, "A name of 20 letters");

    ListGames();

    Texts expected(20, "un-defined          ");
    expected.front() = "State Lotto         ";
    expected.back() = "A name of 20 letters";
    EXPECT_EQ(games.Entries(), expected);
}

TEST(ListGames, SelectsTheCurrentGame) {
    StartWith(NumberGame().InSlot(3));
    const support::TemporaryDirectory directory;
    appState.programDirectory = directory.Path();
    OpenGameTable();

    ListGames();
    EXPECT_EQ(games.Selected(), 2);

    appState.currentGame = 20;
    ListGames();
    EXPECT_EQ(games.Selected(), 19);
    EXPECT_EQ(games.Entries().size(), 20U);
}

TEST(ListGames, ReadsTheGameTableOnce) {
    StartWith(NumberGame());
    const support::TemporaryDirectory directory;
    appState.programDirectory = directory.Path();
    OpenGameTable();
    const support::WatchedFiles files;
    static_cast<void>(ReadGameRecord(1));
    const Texts callsOfOneReading = files.Names();

    ListGames();

    Texts expected = callsOfOneReading;
    expected.insert(expected.end(), callsOfOneReading.begin(), callsOfOneReading.end());
    EXPECT_EQ(files.Names(), expected);
}

TEST(LoadHistorySetList, OffersSetsByTensFrom10To1000) {
    StartWith(NumberGame());

    LoadHistorySetList();

    ASSERT_EQ(sets.Entries().size(), 100U);
    EXPECT_EQ(sets.Entries()[0], "Last 10 Games");
    EXPECT_EQ(sets.Entries()[1], "Last 20 Games");
    EXPECT_EQ(sets.Entries()[99], "Last 1000 Games");
}

TEST(LoadHistorySetList, SelectsTheSetOfTheGame) {
    StartWith(NumberGame());
    const auto selectedFor = [](std::int16_t size) {
        appState.historySetSize = size;
        LoadHistorySetList();
        return sets.Selected();
    };

    EXPECT_EQ(selectedFor(10), 0);
    EXPECT_EQ(selectedFor(50), 4);
    EXPECT_EQ(selectedFor(55), 4);
    EXPECT_EQ(selectedFor(1000), 99);
}

TEST(LoadHistorySetList, ASetBelowTheSmallestSelectsNothing) {
    StartWith(NumberGame());
    appState.historySetSize = 5;

    LoadHistorySetList();

    EXPECT_EQ(sets.Selected(), -1);
}

TEST(LoadComboHot, NamesTheFiveTablesAndSelectsTheFirst) {
    StartWith(NumberGame());

    LoadComboHot();

    EXPECT_EQ(tables.Entries(), (Texts{"Hot Numbers", "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"}));
    EXPECT_EQ(tables.Selected(), 0);
}

TEST(LoadComboHot, ACardGameHasHotCards) {
    StartWith(CardGame());

    LoadComboHot();

    EXPECT_EQ(tables.Entries(), (Texts{"Hot Cards", "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"}));
}

TEST(LoadComboHot, FillingAnewReplacesTheEntriesAndTheSelection) {
    StartWith(NumberGame());
    LoadComboHot();
    frmMainForm.cboList[2].Select(3);

    LoadComboHot();

    EXPECT_EQ(tables.Entries().size(), 5U);
    EXPECT_EQ(tables.Selected(), 0);
}

}  // namespace
}  // namespace ballhaven
