#include "printing/DataReport.h"

#include "forms/PrintForm.h"
#include "history/HistoryRefresh.h"
#include "state/AppState.h"
#include "statistics/HotTables.h"
#include "support/Games.h"
#include "support/MainScreen.h"
#include "support/PrintedReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::CardGame;
using support::Draw;
using support::Game;
using support::GoldenText;
using support::NumberGame;

using Lines = std::vector<std::string>;

const std::string firstColumns(4, ' ');

class DataReport : public support::PrintedReport {
  protected:
    /// A game with its draws, shown as the program shows them: the tables but Hot Numbers are stale.
    static void Show(const Game& game, const std::string& name, const std::vector<Draw>& draws) {
        support::StartWith(game);
        NameGame(name);
        support::SetUpDraws(draws);
        BuildHistoryView();
        ComputeHotTable();
        MarkHotTablesStale();
    }

    /// Draws of three picks on the days from 1 January 1990 on: the first has 1, 2, 3, the second 2, 3, 4.
    static void ShowDaily(int count, int highest = 99) {
        support::StartWith(NumberGame().Picks(3).To(highest));
        NameGame("Harbour Three");
        std::vector<support::DrawPicks> draws;
        for (int draw = 0; draw < count; ++draw) {
            const int first = draw % (highest - 2) + 1;
            draws.push_back({first, first + 1, first + 2});
        }
        support::ShowDraws(draws);
        ComputeHotTable();
        MarkHotTablesStale();
    }

    static void Tick(const std::vector<std::size_t>& sections) {
        for (const std::size_t section : sections) {
            frmPrint.chkPrint.at(section).Tick(true);
        }
    }

    /// Gives a table so many rows, which are up to date.
    static void SetRepeaters(int rows) {
        appState.repeaterTable = CountTable(3, rows, 1);
        appState.repeaterLast = static_cast<std::int16_t>(rows - 1);
        appState.repeaterStale = false;
    }

    static void SetNoHotPairs() {
        appState.hotPairLast = -1;
        appState.hotPairStale = false;
    }

    [[nodiscard]] std::size_t Pages() const { return printer.jobs.at(0).size(); }

    /// The lines of a page that begin with a title.
    [[nodiscard]] bool PageHas(std::size_t page, const std::string& title) const {
        const Lines lines = LinesOfPage(page);
        return std::ranges::find(lines, firstColumns + title) != lines.end();
    }
};

TEST_F(DataReport, PrintsEverySectionOfANumberGame) {
    Show(NumberGame().Picks(3).From(1).To(12), "Harbour Three",
         {{"1/6/1990", {1, 2, 3}}, {"1/13/1990", {2, 3, 4}}, {"1/20/1990", {2, 5, 12}}});
    Tick({0, 1, 2, 3, 4, 5});
    dataReport();
    EXPECT_EQ(Paper(), GoldenText("number-game.txt"));
    EXPECT_EQ(titles, (Lines{"Harbour Three Data Report"}));
}

TEST_F(DataReport, PrintsEverySectionOfACardGame) {
    Show(CardGame().Picks(2), "Card Table", {{"2/3/1991", {1, 52}}, {"2/10/1991", {1, 52}}, {"2/17/1991", {13, 39}}});
    Tick({0, 1, 2, 3, 4, 5});
    dataReport();
    EXPECT_EQ(Paper(), GoldenText("card-game.txt"));
}

// Not a bug: REPORT-EMPTY-1 in docs/not-bugs.md.
TEST_F(DataReport, AnEmptyGameHasOnePageThatSaysSo) {
    Show(NumberGame().Picks(6).From(1).To(42), "Clean Slate", {});
    Tick({0, 1, 2, 3, 4, 5});
    dataReport();
    EXPECT_EQ(Paper(), GoldenText("empty-game.txt"));
}

TEST_F(DataReport, The21stRowGoesToTheNextPageUnderBothHeads) {
    ShowDaily(21);
    Tick({0});
    dataReport();
    EXPECT_EQ(Paper(), GoldenText("log-of-21.txt"));
}

TEST_F(DataReport, TwentyRowsFillAPageWithoutAnotherOne) {
    ShowDaily(20);
    Tick({0});
    dataReport();
    EXPECT_EQ(Pages(), 1U);
}

TEST_F(DataReport, OfAThousandDrawsHas20OnEachPage) {
    ShowDaily(1000);
    Tick({0});
    dataReport();
    ASSERT_EQ(Pages(), 50U);
    for (const Lines& lines : PageLines()) {
        ASSERT_EQ(lines.size(), 5U + 20U);
        EXPECT_EQ(lines[2], "    Historical Log of Last 1000 Games:");
    }
    // The 1000th day from 1 January 1990 on is 26 September 1992; its draw begins with 999 % 97 + 1, which is 30.
    EXPECT_EQ(LinesOfPage(49).back(), "    09/26/1992     31   32   33");
}

TEST_F(DataReport, WithNoBoxTickedPrintsNothingAndOpensNoPrinter) {
    ShowDaily(3);
    frmPrint.chkPrint[playsBox].Tick(true);
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
    EXPECT_TRUE(titles.empty());
}

TEST_F(DataReport, PrintsTheSectionsInTheirOrderWhateverWasTickedFirst) {
    ShowDaily(2);
    Tick({5, 0});
    dataReport();
    const Lines lines = LinesOfPage(0);
    EXPECT_EQ(lines[2], "    Historical Log of Last 2 Games:");
    EXPECT_TRUE(PageHas(0, "No Hitters in Last  2 Games:"));
    EXPECT_FALSE(PageHas(0, "Hot Numbers in Last  2 Games:"));
}

TEST_F(DataReport, ARowWithoutADateIsPassedOver) {
    ShowDaily(3);
    appState.historyView(0, 1) = 0;
    Tick({0});
    dataReport();
    const Lines lines = LinesOfPage(0);
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[5], "    01/01/1990     2    3    4");
    EXPECT_EQ(lines[6], "    01/03/1990     4    5    6");
}

// The log leaves a count of 9 and two for each draw; a section without rows counts seven.
TEST_F(DataReport, ASectionBeginsOnTheSamePageAtACountOf40) {
    ShowDaily(12);
    SetNoHotPairs();
    SetRepeaters(1);
    Tick({0, 2, 4});
    dataReport();
    EXPECT_EQ(Pages(), 1U);
    EXPECT_TRUE(PageHas(0, "Repeaters in Last  12 Games:"));
}

TEST_F(DataReport, ASectionBeginsOnANewPageAtACountOf41) {
    ShowDaily(16);
    SetRepeaters(1);
    Tick({0, 4});
    dataReport();
    ASSERT_EQ(Pages(), 2U);
    EXPECT_FALSE(PageHas(0, "Repeaters in Last  16 Games:"));
    EXPECT_EQ(LinesOfPage(1)[0], "    Ballhaven:  Harbour Three");
    EXPECT_EQ(LinesOfPage(1)[2], "    Repeaters in Last  16 Games:");
}

TEST_F(DataReport, ASectionThatEndsAtTheLimitLeavesTheNextOneToBreakThePage) {
    ShowDaily(20);
    SetRepeaters(1);
    Tick({0, 4});
    dataReport();
    ASSERT_EQ(Pages(), 2U);
    EXPECT_EQ(LinesOfPage(1)[2], "    Repeaters in Last  20 Games:");
}

/// A packed section of pairs.
class PairedOnceReport : public DataReport {
  protected:
    static void SetPairs(int rows) {
        appState.pairedOnceTable = CountTable(3, rows, 1);
        appState.pairedOnceLast = static_cast<std::int16_t>(rows - 1);
        appState.pairedOnceStale = false;
    }

    /// Prints the log of so many draws, the pairs, and then the Repeaters; the pages of all.
    std::size_t PagesWith(int draws, int pairs) {
        printer.jobs.clear();
        ShowDaily(draws);
        SetPairs(pairs);
        SetRepeaters(1);
        Tick({0, 3, 4});
        dataReport();
        return Pages();
    }

    static constexpr const char* sixPairs = "    2,2       2,2       2,2       2,2       2,2       2,2";
};

TEST_F(PairedOnceReport, SixEntriesAreAFullLine) {
    ShowDaily(2);
    SetPairs(6);
    Tick({3});
    dataReport();
    EXPECT_EQ(LinesOfPage(0).size(), 6U);
    EXPECT_EQ(LinesOfPage(0)[5], sixPairs);
    // From the head's count of 8 it is 2 for the line and 1 for the end: 9 + 2 * 11 + 6 + 3 is 40.
    EXPECT_EQ(PagesWith(11, 6), 1U);
    EXPECT_EQ(PagesWith(12, 6), 2U);
}

// Not a bug: REPORT-PART-LINE-1 in docs/not-bugs.md.
TEST_F(PairedOnceReport, ASeventhEntryStandsOnALineThatDoesNotCount) {
    ShowDaily(2);
    SetPairs(7);
    Tick({3});
    dataReport();
    EXPECT_EQ(LinesOfPage(0).size(), 7U);
    EXPECT_EQ(LinesOfPage(0)[5], sixPairs);
    EXPECT_EQ(LinesOfPage(0)[6], "    2,2");
    EXPECT_EQ(PagesWith(11, 7), 1U);
    EXPECT_EQ(PagesWith(12, 7), 2U);
}

TEST_F(PairedOnceReport, TwentyFullLinesFillAPage) {
    ShowDaily(2);
    SetPairs(120);
    Tick({3});
    dataReport();
    EXPECT_EQ(Pages(), 1U);
    printer.jobs.clear();
    SetPairs(121);
    dataReport();
    ASSERT_EQ(Pages(), 2U);
    EXPECT_EQ(LinesOfPage(1),
              (Lines{"    Ballhaven:  Harbour Three", firstColumns + std::string(70, '='),
                     "    Paired once  2 Games:", "    Numbers", firstColumns + std::string(70, '_'), "    2,2"}));
}

TEST_F(PairedOnceReport, AnEntryThatIsTooLongIsCut) {
    ShowDaily(2);
    SetPairs(2);
    appState.bonusHigh = 32000;
    appState.pairedOnceTable(1, 0) = 30000;  // cell 30000 is number 29893 of the bonus board, which begins at cell 108
    appState.pairedOnceTable(2, 0) = 30001;
    Tick({3});
    dataReport();
    EXPECT_EQ(LinesOfPage(0).back(), "    29893,29892,2");
}

TEST_F(DataReport, BringsTheTablesOfItsSectionsUpToDate) {
    ShowDaily(4);
    Tick({2, 5});
    dataReport();
    EXPECT_FALSE(appState.hotPairStale);
    EXPECT_FALSE(appState.noHitterStale);
    EXPECT_TRUE(appState.pairedOnceStale);
    EXPECT_TRUE(appState.repeaterStale);
    EXPECT_EQ(appState.hotPairLast, 2);  // 2 and 3, 3 and 4, 4 and 5 in two games each
}

TEST_F(DataReport, LeavesATableThatIsNotStaleAsItIs) {
    ShowDaily(4);
    SetNoHotPairs();
    Tick({2});
    dataReport();
    EXPECT_EQ(LinesOfPage(0).back(), "         None Found");
}

// Not a bug: REPORT-SILENT-END-1 in docs/not-bugs.md.
TEST_F(DataReport, APickWith328HitsEndsItWithoutAWord) {
    ShowDaily(4);
    Tick({0, 1, 5});
    appState.hotNumberTable(2, 0) = 327;
    dataReport();
    EXPECT_EQ(printer.jobs.size(), 1U);
    appState.hotNumberTable(2, 0) = 328;
    dataReport();
    EXPECT_EQ(titles.size(), 2U);
    EXPECT_EQ(printer.jobs.size(), 1U);
}

// Not a bug: REPORT-SILENT-END-1 in docs/not-bugs.md.
TEST_F(DataReport, ATableThatCannotBeBuiltEndsItWithoutAWord) {
    ShowDaily(4);
    // 33 numbers in each of two draws have 528 pairs, more than Hot Pairs takes.
    support::StartWith(NumberGame().Picks(33).To(99));
    NameGame("Many");
    support::DrawPicks picks;
    for (int pick = 1; pick <= 33; ++pick) {
        picks.push_back(pick);
    }
    support::ShowDraws({picks, picks});
    ComputeHotTable();
    MarkHotTablesStale();
    Tick({0, 2});
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(DataReport, InAMendedFolderNeitherEndsIt) {
    support::StartWith(NumberGame().Picks(33).To(99));
    support::MendFolder();
    NameGame("Many");
    support::DrawPicks picks;
    for (int pick = 1; pick <= 33; ++pick) {
        picks.push_back(pick);
    }
    support::ShowDraws({picks, picks});
    ComputeHotTable();
    MarkHotTablesStale();
    appState.hotNumberTable(2, 0) = 328;
    Tick({1, 2});
    dataReport();
    ASSERT_EQ(printer.jobs.size(), 1U);
    const auto& lines = LinesOfPage(0);
    EXPECT_EQ(
        std::ranges::count_if(lines, [](const std::string& line) { return line.find("16400%") != std::string::npos; }),
        1);
    EXPECT_EQ(appState.hotPairLast, 527);
}

TEST_F(DataReport, APrinterThatIsNotReadyIsToldOnce) {
    ShowDaily(4);
    printer.FailFrom(1);
    ExpectNotReady();
    Tick({0, 1});
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(DataReport, APrinterThatFailsAtAPageBreakIsTold) {
    ShowDaily(21);
    // A beginning; two texts of the page head, five of the section's head; a date and three picks in each of 20 rows.
    printer.FailFrom(1 + 2 + 5 + 4 * 20 + 1);
    ExpectNotReady();
    Tick({0});
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(DataReport, APrinterThatFailsInARowEndsItWithoutAWord) {
    ShowDaily(21);
    printer.FailFrom(20);
    Tick({0});
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(DataReport, APrinterThatFailsAtTheEndEndsItWithoutAWord) {
    ShowDaily(1);
    printer.FailFrom(1 + 2 + 5 + 4 + 1);
    Tick({0});
    dataReport();
    EXPECT_TRUE(printer.jobs.empty());
    printer.FailFrom(1 + 2 + 5 + 4 + 2);  // not reached
    dataReport();
    EXPECT_EQ(printer.jobs.size(), 1U);
}

TEST_F(DataReport, WithoutArialItIsPrintedInTheFormerFont) {
    ShowDaily(21);
    printer.missingFonts = {"Arial"};
    Tick({0});
    dataReport();
    ASSERT_EQ(Pages(), 2U);
    EXPECT_EQ(printer.jobs[0][1].back().font, (platform::PrinterFont{"", 10, false, false, false}));
}

}  // namespace
}  // namespace ballhaven
