#include "screen/Selectors.h"

#include "forms/MainForm.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "support/qt/RunningProgram.h"

#include <QComboBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;
using Texts = std::vector<std::string>;

constexpr const char* setUpSlot3 = "You need to configure game number 3.\nWould you like to set up the game now?";
constexpr const char* outsideTheSet =
    "The record you have added cannot be displayed within the selected history set.\n"
    "If you wish to see this record, select larger history set.";

std::string January(int day) {
    return std::string(day < 10 ? "01/0" : "01/") + std::to_string(day) + "/1990";
}

/// 25 draws of three numbers and a bonus: all but the last one are alike.
std::vector<Draw> BonusDraws() {
    std::vector<Draw> draws;
    for (int day = 1; day <= 24; ++day) {
        draws.push_back({January(day), {1, 2, 3, 5}});
    }
    draws.push_back({January(25), {1, 8, 9, 5}});
    return draws;
}

/// 25 draws of two cards: the ace of hearts with the ace of clubs, on the last day with the two of clubs.
std::vector<Draw> CardDraws() {
    std::vector<Draw> draws;
    for (int day = 1; day <= 24; ++day) {
        draws.push_back({January(day), {1, 14}});
    }
    draws.push_back({January(25), {1, 15}});
    return draws;
}

/// A game with bonus numbers in slot 1, a card game in slot 2, and no game in the other slots.
class Selectors : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.slot = 1,
               .name = "Three and a bonus",
               .gameType = 2,
               .mainPicks = 3,
               .bonusPicks = 1,
               .high = 9,
               .bonusHigh = 5,
               .historySet = "010",
               .draws = BonusDraws()});
        Store({.slot = 2,
               .name = "Two cards",
               .gameType = 3,
               .mainPicks = 2,
               .high = 52,
               .historySet = "020",
               .draws = CardDraws()});
        StorePlay(1, {0, 1, 2});
        StoreShown(1, 1);
        Start();
    }

    [[nodiscard]] std::string Caption() const { return *frmMainForm.grdHot.caption; }

    /// Picks and hits of all rows that the hot table shows.
    [[nodiscard]] Texts HotRows() const {
        Texts rows;
        for (int row = 0; row < RowsShown("grdHot"); ++row) {
            rows.push_back(CellText("grdHot", row, 0) + ": " + CellText("grdHot", row, 1));
        }
        return rows;
    }
};

using QuirkSmallerSet1 = Selectors;

TEST_F(Selectors, TheListOfGamesNamesTwentySlots) {
    const Texts games = Entries("cboList(0)");
    ASSERT_EQ(games.size(), 20U);
    EXPECT_EQ(games[0], "Three and a bonus   ");
    EXPECT_EQ(games[1], "Two cards           ");
    EXPECT_EQ(games[19], "un-defined          ");
    EXPECT_EQ(Usable<QComboBox>("cboList(0)").currentIndex(), 0);
}

TEST_F(Selectors, TheListOfHistorySetsGoesByTensTo1000) {
    const Texts sets = Entries("cboList(1)");
    ASSERT_EQ(sets.size(), 100U);
    EXPECT_EQ(sets[0], "Last 10 Games");
    EXPECT_EQ(sets[1], "Last 20 Games");
    EXPECT_EQ(sets[99], "Last 1000 Games");
    EXPECT_EQ(Usable<QComboBox>("cboList(1)").currentIndex(), 0);
}

TEST_F(Selectors, TheListOfHotTablesBeginsWithHotNumbersOrHotCards) {
    EXPECT_EQ(Entries("cboList(2)"), (Texts{"Hot Numbers", "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"}));
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(Entries("cboList(2)"), (Texts{"Hot Cards", "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"}));
}

TEST_F(Selectors, ChoosingAnotherGameShowsItsDrawsTablesAndSet) {
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(appState.currentGame, 2);
    EXPECT_EQ(RecordColumns(0, 1, 2), "02");
    EXPECT_EQ(RowsShown("grdHist"), 20);
    EXPECT_EQ(CellText("grdHist", 19, 0), "01/25/1990");
    EXPECT_EQ(CellText("grdHist", 19, 1), "Ah");
    EXPECT_EQ(CellText("grdHist", 19, 2), "2c");
    EXPECT_EQ(Caption(), "Hot Cards in last 20 games");
    EXPECT_EQ(HotRows(), (Texts{"Ah: 20", "Ac: 19", "2c: 1"}));
    EXPECT_EQ(Usable<QComboBox>("cboList(1)").currentText(), QStringLiteral("Last 20 Games"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Selectors, AGameChosenAndLeftComesBackAsItWas) {
    const Texts hotRows = HotRows();
    ChooseEntry("cboList(0)", 1);
    ChooseEntry("cboList(0)", 0);
    EXPECT_EQ(appState.currentGame, 1);
    EXPECT_EQ(RowsShown("grdHist"), 10);
    EXPECT_EQ(HotRows(), hotRows);
    EXPECT_TRUE(Usable<QRadioButton>("optHot(2)").isChecked());
}

TEST_F(Selectors, AnotherGameIsShownOnlyWhenTheOldOnesDrawsAndThenItsPlaysAreSaved) {
    boxes.ExpectBeforeLoss("Erase ALL Play Slips for this game?", BoxIcon::Question, BoxAnswer::Yes);
    ChooseFromMenu("mnuEdit", "mnuEditArray(7)");
    ClickCell("grdHist", 9, 1);
    Type("7");
    WatchSaves();
    ChooseEntry("cboList(0)", 1);

    ASSERT_GE(saved.size(), 2U);
    EXPECT_EQ(saved[0], "GAME01.CDB");
    EXPECT_EQ(saved[1], "PLAYS01.CDB");
    std::vector<Draw> draws = BonusDraws();
    draws.back().picks[0] = 7;
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")));
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(CardDraws()), directory.Read("GAME02.CDB")));
    EXPECT_FALSE(appState.historyDirty || appState.playsDirty);
}

TEST_F(Selectors, ANeverUsedSlotIsShownFirstAndOnlyThenAskedAboutAndNoLeavesItCurrent) {
    boxes.Expect("Ballhaven", setUpSlot3, BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::No);
    ChooseEntry("cboList(0)", 2);
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(appState.currentGame, 3);
    EXPECT_EQ(appState.gameDialogMode, GameDialogMode::None);
    EXPECT_EQ(Usable<QComboBox>("cboList(0)").currentText().trimmed(), QStringLiteral("un-defined"));
    EXPECT_EQ(Caption(), "Hot Numbers (none found)");
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_EQ(directory.Read("GAME03.CDB").size(), 64064U);
    EXPECT_EQ(directory.Read("PLAYS03.CDB").size(), 320000U);
    EXPECT_EQ(RecordColumns(0, 1, 2), "03");
}

TEST_F(Selectors, YesOpensTheDialogForTheSlot) {
    boxes.Expect("Ballhaven", setUpSlot3, BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::Yes);
    InGameDialog([this] {
        EXPECT_EQ(appState.currentGame, 3);
        EXPECT_EQ(appState.gameDialogMode, GameDialogMode::Adding);
        EXPECT_EQ(appState.gameDialogSlot, 3);
        ClickToClose("cmdNewGame(0)");
    });
    ChooseEntry("cboList(0)", 2);
    EXPECT_EQ(appState.currentGame, 3);
}

TEST_F(Selectors, ASetOf1000IsStoredAsThreeZerosAndOneOf50WithALeadingZero) {
    ChooseEntry("cboList(1)", 99);
    EXPECT_EQ(appState.historySetSize, 1000);
    EXPECT_EQ(RecordColumns(1, 27, 3), "000");
    EXPECT_EQ(RowsShown("grdHist"), 25);
    ChooseEntry("cboList(1)", 4);
    EXPECT_EQ(appState.historySetSize, 50);
    EXPECT_EQ(RecordColumns(1, 27, 3), "050");
    EXPECT_EQ(RecordColumns(2, 27, 3), "020") << "the other game's";
}

TEST_F(Selectors, AChosenSetLastsUntilTheNextTime) {
    ChooseEntry("cboList(1)", 99);
    ChooseEntry("cboList(0)", 1);
    ChooseEntry("cboList(0)", 0);
    EXPECT_EQ(Usable<QComboBox>("cboList(1)").currentText(), QStringLiteral("Last 1000 Games"));
    EXPECT_EQ(RowsShown("grdHist"), 25);
}

TEST_F(Selectors, ALargerSetKeepsTheSameDrawCurrent) {
    ClickCell("grdHist", 3, 2);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/19/1990");
    ChooseEntry("cboList(1)", 1);
    EXPECT_EQ(RowsShown("grdHist"), 20);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 13);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/19/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
    EXPECT_TRUE(Find("grdHist.pane(0)").hasFocus());
}

// Not a bug: SMALLER-SET-1 in docs/not-bugs.md.
TEST_F(QuirkSmallerSet1, ASetWithoutTheCurrentDrawSaysSoAndGoesToTheNewestOne) {
    ChooseEntry("cboList(1)", 1);
    ClickCell("grdHist", 0, 0);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/06/1990");
    boxes.Expect("Ballhaven", outsideTheSet, BoxButtons::Ok, BoxIcon::None);
    ChooseEntry("cboList(1)", 0);
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(frmMainForm.grdHist.Text(0), "01/25/1990");
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 0);
}

TEST_F(Selectors, ASetChosenInAGameWithoutDrawsIsStoredAndSaysNothing) {
    boxes.Expect("Ballhaven", setUpSlot3, BoxButtons::YesNo, BoxIcon::Question, BoxAnswer::No);
    ChooseEntry("cboList(0)", 2);
    ChooseEntry("cboList(1)", 6);
    EXPECT_EQ(RecordColumns(3, 27, 3), "070");
    EXPECT_EQ(RowsShown("grdHist"), 0);
}

TEST_F(Selectors, EachTableOfNumbersHasItsCaptionAndHeadings) {
    EXPECT_EQ(Caption(), "Hot Numbers in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Number", "Hits", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 1);
    EXPECT_EQ(appState.hotTableChoice, 2);
    EXPECT_EQ(Caption(), "Hot Pairs in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Numbers", "Hits", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 2);
    EXPECT_EQ(Caption(), "Paired once in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Numbers", "", "", ""}));
    ChooseEntry("cboList(2)", 3);
    EXPECT_EQ(Caption(), "Hot Repeaters in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Number", "Reps.", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 4);
    EXPECT_EQ(Caption(), "No Hitters in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Number", "", "", ""}));
    ChooseEntry("cboList(2)", 0);
    EXPECT_EQ(Caption(), "Hot Numbers in last 10 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Number", "Hits", "%", "Game Interval"}));
}

TEST_F(Selectors, EachTableOfCardsHasItsCaptionAndHeadings) {
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(Caption(), "Hot Cards in last 20 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Card", "Hits", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 1);
    EXPECT_EQ(Caption(), "Hot Pairs in last 20 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Cards", "Hits", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 2);
    EXPECT_EQ(Caption(), "Paired once in last 20 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Cards", "", "", ""}));
    ChooseEntry("cboList(2)", 3);
    EXPECT_EQ(Caption(), "Hot Repeaters in last 20 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Card", "Reps.", "%", "Game Interval"}));
    ChooseEntry("cboList(2)", 4);
    EXPECT_EQ(Caption(), "No Hitters in last 20 games");
    EXPECT_EQ(Headings("grdHot"), (Texts{"Card", "", "", ""}));
}

TEST_F(Selectors, AChosenTableStandsAtItsTop) {
    ClickCell("grdHot", 3, 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 3);
    ChooseEntry("cboList(2)", 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 2);
}

TEST_F(Selectors, AnotherGameReturnsToTheFirstTable) {
    ChooseEntry("cboList(2)", 4);
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(appState.hotTableChoice, 1);
    EXPECT_EQ(Usable<QComboBox>("cboList(2)").currentText(), QStringLiteral("Hot Cards"));
    EXPECT_EQ(Headings("grdHot"), (Texts{"Card", "Hits", "%", "Game Interval"}));
}

TEST_F(Selectors, ACaptionOfRepeatersOrNoHittersKeepsTheEarlierSetUntilTheTableIsChosenAnew) {
    for (const int table : {3, 4}) {
        const std::string words = table == 3 ? "Hot Repeaters in last " : "No Hitters in last ";
        ChooseEntry("cboList(1)", 0);
        ChooseEntry("cboList(2)", table);
        ChooseEntry("cboList(1)", 1);
        EXPECT_EQ(Caption(), words + "10 games");
        ChooseEntry("cboList(2)", table);
        EXPECT_EQ(Caption(), words + "20 games");
    }
}

TEST_F(Selectors, TheArrowKeysChooseATableToo) {
    Usable("cboList(2)").setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(appState.hotTableChoice, 2);
    EXPECT_EQ(Caption(), "Hot Pairs in last 10 games");
}

TEST_F(Selectors, TheOptionsChooseWhichPicksOfADrawAreCounted) {
    EXPECT_EQ(HotRows(), (Texts{"1: 10", "5: 10", "2: 9", "3: 9", "8: 1", "9: 1"}));
    ClickAt("optHot(0)", {6, 6});
    EXPECT_EQ(appState.hotSortChoice, 0);
    EXPECT_EQ(HotRows(), (Texts{"1: 10", "2: 9", "3: 9", "8: 1", "9: 1"}));
    ClickAt("optHot(1)", {6, 6});
    EXPECT_EQ(appState.hotSortChoice, 1);
    EXPECT_EQ(HotRows(), (Texts{"5: 10"}));
    ClickAt("optHot(2)", {6, 6});
    EXPECT_EQ(appState.hotSortChoice, 2);
    EXPECT_EQ(HotRows(), (Texts{"1: 10", "5: 10", "2: 9", "3: 9", "8: 1", "9: 1"}));
    EXPECT_TRUE(Usable<QRadioButton>("optHot(2)").isChecked());
}

TEST_F(Selectors, AClickOnAnOptionMarksEveryOtherTableAsToBeRebuilt) {
    appState.hotPairStale = appState.pairedOnceStale = appState.repeaterStale = appState.noHitterStale = false;
    ClickAt("optHot(0)", {6, 6});
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

TEST_F(Selectors, AClickOnTheOptionThatIsChosenCountsAnewToo) {
    ASSERT_TRUE(Usable<QRadioButton>("optHot(2)").isChecked());
    appState.hotPairStale = appState.pairedOnceStale = appState.repeaterStale = appState.noHitterStale = false;
    appState.hotSortChoice = 0;
    ClickAt("optHot(2)", {6, 6});
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
    EXPECT_EQ(appState.hotSortChoice, 2);
    EXPECT_EQ(HotRows(), (Texts{"1: 10", "5: 10", "2: 9", "3: 9", "8: 1", "9: 1"}));
}

TEST_F(Selectors, AClickOnAnOptionRebuildsTheTableOnShowAndLeavesTheOthersStale) {
    ChooseEntry("cboList(2)", 2);
    ChooseEntry("cboList(2)", 1);
    EXPECT_EQ(HotRows(), (Texts{"1, 5: 10", "1, 2: 9", "1, 3: 9", "2, 3: 9", "2, 5: 9", "3, 5: 9"}));
    ClickAt("optHot(0)", {6, 6});
    EXPECT_EQ(HotRows(), (Texts{"1, 2: 9", "1, 3: 9", "2, 3: 9"}));
    EXPECT_FALSE(appState.hotPairStale);
    EXPECT_TRUE(appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

TEST_F(Selectors, AGameWithoutBonusHasNoOptions) {
    ChooseEntry("cboList(0)", 1);
    for (const char* option : {"optHot(0)", "optHot(1)", "optHot(2)"}) {
        EXPECT_FALSE(Find(option).isVisible()) << option;
    }
    ChooseEntry("cboList(0)", 0);
    EXPECT_TRUE(Usable<QRadioButton>("optHot(2)").isChecked());
}

TEST_F(Selectors, WhatTheProgramFillsInWhileAGameIsLoadingOrTheWindowStartingDoesNothing) {
    const auto files = directory.Files();
    for (bool* flag : {&frmMainForm.gameLoading, &frmMainForm.windowStarting}) {
        *flag = true;
        frmMainForm.cboList[0].Select(frmMainForm.cboList[0].Selected() + 1);
        frmMainForm.cboList[1].Select(frmMainForm.cboList[1].Selected() + 5);
        frmMainForm.cboList[2].Select(frmMainForm.cboList[2].Selected() + 1);
        frmMainForm.optHot[flag == &frmMainForm.gameLoading ? 0 : 1].Choose();
        *flag = false;
    }
    EXPECT_EQ(appState.currentGame, 1);
    EXPECT_EQ(appState.historySetSize, 10);
    EXPECT_EQ(appState.hotTableChoice, 1);
    EXPECT_EQ(appState.hotSortChoice, 2);
    EXPECT_EQ(Caption(), "Hot Numbers in last 10 games");
    EXPECT_EQ(directory.Files(), files);
}

TEST_F(Selectors, TheHourglassStandsDuringEachChoiceAndTheArrowAfterIt) {
    bool sawHourglass = false;
    frmMainForm.grdHot.cellText = [&sawHourglass, real = frmMainForm.grdHot.cellText](const platform::GridCell& cell) {
        sawHourglass = sawHourglass || QApplication::overrideCursor() != nullptr;
        return real(cell);
    };
    for (const char* list : {"cboList(2)", "cboList(1)", "cboList(0)"}) {
        sawHourglass = false;
        ChooseEntry(list, 1);
        EXPECT_TRUE(sawHourglass) << list;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << list;
    }
}

TEST_F(Selectors, TheLeftColumnFollowsTheHeightOfTheWindow) {
    EXPECT_EQ(Usable("picToolbar(0)").geometry(), QRect(0, 36, 153, 502));
    DragToHeight(9630);
    EXPECT_EQ(Usable("picToolbar(0)").geometry(), QRect(0, 36, 153, 552));
    DragToHeight(8130);
    EXPECT_EQ(Usable("picToolbar(0)").geometry(), QRect(0, 36, 153, 452));
    EXPECT_EQ(Usable("picToolbar(1)").geometry(), QRect(0, 0, 801, 36));
}

/// A game whose hot table is longer than its grid.
class SelectorsOfALongHotTable : public support::RunningProgram {
  protected:
    void SetUp() override {
        std::vector<Draw> draws;
        for (int day = 0; day < 8; ++day) {
            draws.push_back({January(day + 1), {}});
            for (int pick = 1; pick <= 6; ++pick) {
                draws.back().picks.push_back(day * 6 + pick);
            }
        }
        Store({.draws = draws});
        Start();
    }
};

TEST_F(SelectorsOfALongHotTable, ChoosingTheLoadedGameChangesNothingNotEvenTheScrollOfTheHotTable) {
    ClickCell("grdHist", 2, 3);
    auto& scrollBar = Usable<QScrollBar>("grdHot.rows");
    scrollBar.setValue(17);
    ASSERT_EQ(frmMainForm.grdHot.FirstVisibleRow(), 17);
    const auto files = directory.Files();

    ChooseEntry("cboList(0)", 0);

    EXPECT_EQ(frmMainForm.grdHot.FirstVisibleRow(), 17);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 2);
    EXPECT_EQ(frmMainForm.grdHist.CurrentColumn(), 3);
    EXPECT_TRUE(appState.historyDirty) << "nothing was saved";
    EXPECT_EQ(directory.Files(), files);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SelectorsOfALongHotTable, ChoosingATableScrollsItToItsTop) {
    Usable<QScrollBar>("grdHot.rows").setValue(17);
    ChooseEntry("cboList(2)", 0);
    EXPECT_EQ(frmMainForm.grdHot.FirstVisibleRow(), 0);
}

/// Twelve games of two numbers from 1 to 5: 1 and 2 in the first two, 3 and 4 in the ten that follow.
class SelectorsOfTheHotTables : public support::RunningProgram {
  protected:
    void SetUp() override {
        std::vector<Draw> draws;
        for (int day = 1; day <= 12; ++day) {
            draws.push_back({January(day), day <= 2 ? std::vector{1, 2} : std::vector{3, 4}});
        }
        Store({.mainPicks = 2, .high = 5, .draws = draws});
        Start();
    }

    void Choose(HotTable table) const { ChooseEntry("cboList(2)", static_cast<int>(table) - 1); }
    void ChooseLastTenGames() const { ChooseEntry("cboList(1)", 0); }

    [[nodiscard]] std::string Caption() const { return *frmMainForm.grdHot.caption; }

    /// All four columns of all rows that the hot table shows.
    [[nodiscard]] Texts Rows() const {
        Texts rows;
        for (int row = 0; row < RowsShown("grdHot"); ++row) {
            rows.push_back(CellText("grdHot", row, 0));
            for (int column = 1; column < 4; ++column) {
                const std::string text = CellText("grdHot", row, column);
                rows.back() += text.empty() ? "" : " | " + text;
            }
        }
        return rows;
    }
};

TEST_F(SelectorsOfTheHotTables, EachTableIsShownWithItsRowsAndItsCaption) {
    EXPECT_EQ(Rows(), (Texts{"3 | 10 | 83 | 1.2", "4 | 10 | 83 | 1.2", "1 | 2 | 16 | 6.0", "2 | 2 | 16 | 6.0"}));
    Choose(HotTable::HotPairs);
    EXPECT_EQ(Caption(), "Hot Pairs in last 12 games");
    EXPECT_EQ(Rows(), (Texts{"3, 4 | 10 | 83 | 1.2", "1, 2 | 2 | 16 | 6.0"}));
    Choose(HotTable::PairedOnce);
    EXPECT_EQ(Caption(), "Paired once (none found)");
    EXPECT_EQ(Rows(), Texts());
    Choose(HotTable::Repeaters);
    EXPECT_EQ(Caption(), "Hot Repeaters in last 12 games");
    EXPECT_EQ(Rows(), (Texts{"3 | 9 | 75 | 1.3", "4 | 9 | 75 | 1.3", "1 | 1 | 8 | 12.0", "2 | 1 | 8 | 12.0"}));
    Choose(HotTable::NoHitters);
    EXPECT_EQ(Caption(), "No Hitters in last 12 games");
    EXPECT_EQ(Rows(), (Texts{"5"}));
}

TEST_F(SelectorsOfTheHotTables, SwitchingToHotPairsAwayAndBackWithNothingChangedDoesNotRebuild) {
    Choose(HotTable::HotPairs);
    appState.hotPairTable(3, 0) = 11;  // a trace that a rebuild would wipe out
    Choose(HotTable::HotNumbers);
    Choose(HotTable::HotPairs);
    EXPECT_EQ(CellText("grdHot", 0, 1), "11");
}

TEST_F(SelectorsOfTheHotTables, AStaleTableIsRebuiltWhenItIsChosenAndNotBefore) {
    Choose(HotTable::HotPairs);
    Choose(HotTable::HotNumbers);
    ChooseLastTenGames();
    EXPECT_TRUE(appState.hotPairStale);
    EXPECT_EQ(appState.hotPairLast, 1);
    Choose(HotTable::HotPairs);
    EXPECT_FALSE(appState.hotPairStale);
    EXPECT_EQ(Rows(), (Texts{"3, 4 | 10 | 100 | 1.0"}));
}

TEST_F(SelectorsOfTheHotTables, AnEmptyTableSaysSoWhenItIsBuiltAndTellsItsGamesWhenItIsChosenAgain) {
    Choose(HotTable::PairedOnce);
    EXPECT_EQ(Caption(), "Paired once (none found)");
    Choose(HotTable::HotNumbers);
    Choose(HotTable::PairedOnce);
    EXPECT_EQ(Caption(), "Paired once in last 12 games");
}

TEST_F(SelectorsOfTheHotTables, WithHotPairsOnShowAnotherSetChangesTheRowsAndTheCaption) {
    Choose(HotTable::HotPairs);
    ChooseLastTenGames();
    EXPECT_EQ(Rows(), (Texts{"3, 4 | 10 | 100 | 1.0"}));
    EXPECT_EQ(Caption(), "Hot Pairs in last 10 games");
}

// Not a bug: REPEATERS-CAPTION-1 in docs/not-bugs.md.
TEST_F(SelectorsOfTheHotTables, WithRepeatersOnShowAnotherSetChangesTheRowsAndLeavesTheCaption) {
    Choose(HotTable::Repeaters);
    ChooseLastTenGames();
    EXPECT_EQ(Rows(), (Texts{"3 | 9 | 90 | 1.1", "4 | 9 | 90 | 1.1"}));
    EXPECT_EQ(Caption(), "Hot Repeaters in last 12 games");
    Choose(HotTable::Repeaters);
    EXPECT_EQ(Caption(), "Hot Repeaters in last 10 games");
}

// Not a bug: NO-HITTERS-CAPTION-1 in docs/not-bugs.md.
TEST_F(SelectorsOfTheHotTables, WithNoHittersOnShowAnotherSetChangesTheRowsAndLeavesTheCaption) {
    Choose(HotTable::NoHitters);
    ChooseLastTenGames();
    EXPECT_EQ(Rows(), (Texts{"1", "2", "5"}));
    EXPECT_EQ(Caption(), "No Hitters in last 12 games");
    Choose(HotTable::NoHitters);
    EXPECT_EQ(Caption(), "No Hitters in last 10 games");
}

}  // namespace
}  // namespace ballhaven
