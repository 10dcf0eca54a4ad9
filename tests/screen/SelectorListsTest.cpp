#include "screen/SelectorLists.h"

#include "screen/MainForm.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "statistics/HotNumbers.h"
#include "support/MainScreen.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

using Texts = std::vector<std::string>;

const platform::DropDownList& games = frmMainForm.cboList[0];
const platform::DropDownList& sets = frmMainForm.cboList[1];
const platform::DropDownList& tables = frmMainForm.cboList[2];

Texts HeadingsOf(HotTable table) {
    appState.hotTableChoice = static_cast<std::int16_t>(table);
    ShowHotHeadings();
    Texts headings;
    for (int column = 0; column < frmMainForm.grdHot.ColumnCount(); ++column) {
        headings.push_back(frmMainForm.grdHot.Column(column).heading);
    }
    return headings;
}

std::string CaptionOf(HotTable table) {
    appState.hotTableChoice = static_cast<std::int16_t>(table);
    ShowChosenHotCaption();
    return frmMainForm.grdHot.caption;
}

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

TEST(ShowHotHeadings, NumberStandsOverPicksAndNumbersOverPairs) {
    StartWith(NumberGame());

    EXPECT_EQ(HeadingsOf(HotTable::HotNumbers), (Texts{"Number", "Hits", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::HotPairs), (Texts{"Numbers", "Hits", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::PairedOnce), (Texts{"Numbers", "", "", ""}));
    EXPECT_EQ(HeadingsOf(HotTable::Repeaters), (Texts{"Number", "Reps.", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::NoHitters), (Texts{"Number", "", "", ""}));
}

TEST(ShowHotHeadings, ACardGameHasCardAndCards) {
    StartWith(CardGame());

    EXPECT_EQ(HeadingsOf(HotTable::HotNumbers), (Texts{"Card", "Hits", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::HotPairs), (Texts{"Cards", "Hits", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::PairedOnce), (Texts{"Cards", "", "", ""}));
    EXPECT_EQ(HeadingsOf(HotTable::Repeaters), (Texts{"Card", "Reps.", "%", "Game Interval"}));
    EXPECT_EQ(HeadingsOf(HotTable::NoHitters), (Texts{"Card", "", "", ""}));
}

TEST(ShowChosenHotCaption, TellsTheTableAndTheGamesOfTheView) {
    StartWith(NumberGame().Picks(1));
    ShowDraws(std::vector<DrawPicks>(25, DrawPicks{1}));
    ComputeHotTable();

    EXPECT_EQ(CaptionOf(HotTable::HotNumbers), "Hot Numbers in last 25 games");
    EXPECT_EQ(CaptionOf(HotTable::HotPairs), "Hot Pairs in last 25 games");
    EXPECT_EQ(CaptionOf(HotTable::PairedOnce), "Paired once in last 25 games");
    EXPECT_EQ(CaptionOf(HotTable::Repeaters), "Hot Repeaters in last 25 games");
    EXPECT_EQ(CaptionOf(HotTable::NoHitters), "No Hitters in last 25 games");
}

TEST(ShowChosenHotCaption, OnlyHotNumbersSayThatNoneWereFound) {
    StartWith(CardGame().Picks(1));
    ShowDraws({});
    ComputeHotTable();

    EXPECT_EQ(CaptionOf(HotTable::HotNumbers), "Hot Cards (none found)");
    EXPECT_EQ(CaptionOf(HotTable::HotPairs), "Hot Pairs in last 0 games");
}

}  // namespace
}  // namespace ballhaven
