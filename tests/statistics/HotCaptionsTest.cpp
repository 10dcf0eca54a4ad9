#include "statistics/HotCaptions.h"

#include "forms/MainForm.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/MainScreen.h"

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

TEST(ShowHotNumbersCaption, SaysWhetherThereAreRows) {
    StartWith(CardGame().Picks(1));
    ShowDraws({{1}, {2}});
    appState.hotTableChoice = static_cast<std::int16_t>(HotTable::NoHitters);

    appState.hotNumberLast = 0;
    ShowHotNumbersCaption();
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Cards in last 2 games");

    appState.hotNumberLast = -1;
    ShowHotNumbersCaption();
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Cards (none found)");
}

TEST(HotCaption, OfHotNumbersSpeaksOfCardsInCardGamesOnly) {
    for (const int gameType : {0, 1, 2}) {
        EXPECT_EQ(HotCaption(HotTable::HotNumbers, gameType, 7), "Hot Numbers in last 7 games");
        EXPECT_EQ(NoneFoundCaption(HotTable::HotNumbers, gameType), "Hot Numbers (none found)");
    }
    for (const int gameType : {3, 4, 5}) {
        EXPECT_EQ(HotCaption(HotTable::HotNumbers, gameType, 7), "Hot Cards in last 7 games");
        EXPECT_EQ(NoneFoundCaption(HotTable::HotNumbers, gameType), "Hot Cards (none found)");
    }
}

TEST(HotCaption, OfTheOtherTablesIsTheSameInNumberAndCardGames) {
    for (const int gameType : {0, 3}) {
        EXPECT_EQ(HotCaption(HotTable::HotPairs, gameType, 7), "Hot Pairs in last 7 games");
        EXPECT_EQ(HotCaption(HotTable::PairedOnce, gameType, 7), "Paired once in last 7 games");
        EXPECT_EQ(HotCaption(HotTable::Repeaters, gameType, 7), "Hot Repeaters in last 7 games");
        EXPECT_EQ(HotCaption(HotTable::NoHitters, gameType, 7), "No Hitters in last 7 games");
        EXPECT_EQ(NoneFoundCaption(HotTable::HotPairs, gameType), "Pairs (none found)");
        EXPECT_EQ(NoneFoundCaption(HotTable::PairedOnce, gameType), "Paired once (none found)");
        EXPECT_EQ(NoneFoundCaption(HotTable::Repeaters, gameType), "Hot Repeaters (none found)");
        EXPECT_EQ(NoneFoundCaption(HotTable::NoHitters, gameType), "No Hitters (none found)");
    }
}

}  // namespace
}  // namespace ballhaven
