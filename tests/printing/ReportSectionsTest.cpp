#include "printing/ReportSections.h"

#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/Games.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;
using support::SetUpGame;

/// The texts of a line with their columns: "5: Date; 20: Picks".
std::string Told(const ReportLine& line) {
    std::string text;
    for (const ColumnText& each : line) {
        text += (text.empty() ? "" : "; ") + std::to_string(each.column) + ": " + each.text;
    }
    return text;
}

/// A view of one draw, without a day if it is not said.
void ViewOneDraw(const std::vector<std::int16_t>& picks, std::int16_t date) {
    appState.historyViewLast = 0;
    appState.historyView(0, 0) = date;
    for (int column = 1; const std::int16_t pick : picks) {
        appState.historyView(column++, 0) = pick;
    }
}

/// A table of Hot Numbers with one row, over so many games.
void OneHotNumber(int games, int pick, int hits) {
    appState.historyViewLast = static_cast<std::int16_t>(games - 1);
    appState.hotNumberTable = CountTable(4, 1);
    appState.hotNumberTable(1, 0) = static_cast<std::int16_t>(pick);
    appState.hotNumberTable(2, 0) = static_cast<std::int16_t>(hits);
    appState.hotNumberLast = 0;
}

TEST(SectionHeads, HaveTheirTitlesWithTheDoubledBlanks) {
    SetUpGame(NumberGame());
    appState.historyViewLast = 49;
    EXPECT_EQ(HeadOfSection(ReportSection::Log).title, "Historical Log of Last 50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::HotNumbers).title, "Hot Numbers in Last  50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::HotPairs).title, "Hot Pairs in Last  50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::PairedOnce).title, "Paired once  50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::Repeaters).title, "Repeaters in Last  50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::NoHitters).title, "No Hitters in Last  50 Games:");
    EXPECT_EQ(HeadOfSection(ReportSection::NoHitters).rule, '=');
}

TEST(SectionHeads, HaveTheirColumns) {
    SetUpGame(NumberGame());
    EXPECT_EQ(Told(HeadOfSection(ReportSection::Log).columns), "5: Date; 20: Picks");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::HotNumbers).columns), "5: Number; 13: Hits; 21: %; 26: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::HotPairs).columns), "5: Numbers; 14: Hits; 22: %; 27: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::PairedOnce).columns), "5: Numbers");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::Repeaters).columns), "5: Number; 13: Hits; 21: %; 26: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::NoHitters).columns), "5: Number");
}

// Not a bug: REPORT-WORDS-1 in docs/not-bugs.md.
TEST(SectionHeads, SpeakOfCardsInHotCardsOnly) {
    SetUpGame(CardGame().Picks(5));
    EXPECT_EQ(HeadOfSection(ReportSection::HotNumbers).title, "Hot Cards in Last  0 Games:");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::HotNumbers).columns), "5: Card; 13: Hits; 21: %; 26: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::HotPairs).columns), "5: Numbers; 14: Hits; 22: %; 27: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::PairedOnce).columns), "5: Numbers");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::Repeaters).columns), "5: Number; 13: Hits; 21: %; 26: Game Interval");
    EXPECT_EQ(Told(HeadOfSection(ReportSection::NoHitters).columns), "5: Number");
}

// Not a bug: REPORT-TEN-PICKS-1 in docs/not-bugs.md.
TEST(SectionRows, ADrawOfTwelvePicksHasItsFirstTen) {
    SetUpGame(NumberGame().Picks(10).From(1).To(49).Bonus(2, BonusPool::Same));
    ViewOneDraw({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 1000);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::Log, 0)),
              "5: 09/27/1986; 20: 2; 25: 3; 30: 4; 35: 5; 40: 6; 45: 7; 50: 8; 55: 9; 60: 10; 65: 11");
}

TEST(SectionRows, ADrawOfFewerPicksAndABlankOneLeaveTheirColumnsEmpty) {
    SetUpGame(NumberGame().Picks(3).From(0).To(9));
    ViewOneDraw({0, -1, 9}, 1000);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::Log, 0)),
              "5: 09/27/1986; 20: 0; 25: ; 30: 9; 35: ; 40: ; 45: ; 50: ; 55: ; 60: ; 65: ");
}

TEST(SectionRows, ARowWithoutADateIsNone) {
    SetUpGame(NumberGame().Picks(3));
    ViewOneDraw({1, 2, 3}, 0);
    EXPECT_FALSE(RowOfSection(ReportSection::Log, 0));
    ViewOneDraw({1, 2, 3}, -5);
    EXPECT_FALSE(RowOfSection(ReportSection::Log, 0));
}

TEST(SectionRows, AViewWithFewerColumnsThanTheGameHasPicksReadsAsEmpty) {
    SetUpGame(NumberGame().Picks(2));
    ViewOneDraw({1, 2}, 1000);
    appState.totalPicks = 4;
    EXPECT_EQ(Told(*RowOfSection(ReportSection::Log, 0)),
              "5: 09/27/1986; 20: 2; 25: 3; 30: ; 35: ; 40: ; 45: ; 50: ; 55: ; 60: ; 65: ");
}

// Not a bug: REPORT-COLUMNS-1 in docs/not-bugs.md.
TEST(SectionRows, TheFiguresStandInColumnsOfTheirOwn) {
    SetUpGame(NumberGame());
    OneHotNumber(47, 6, 20);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::HotNumbers, 0)), "6: 7; 14: 20; 20: 42%; 30: 2.3");
    appState.repeaterTable = appState.hotNumberTable;
    EXPECT_EQ(Told(*RowOfSection(ReportSection::Repeaters, 0)), "6: 7; 14: 20; 20: 42%; 30: 2.3");
    appState.hotPairTable = CountTable(4, 1);
    appState.hotPairTable(1, 0) = 6;
    appState.hotPairTable(2, 0) = 11;
    appState.hotPairTable(3, 0) = 4;
    EXPECT_EQ(Told(*RowOfSection(ReportSection::HotPairs, 0)), "5: 7, 12; 15: 4; 21: 8%; 32: 11.8");
}

TEST(SectionRows, AnIntervalBelowOneHasNoDigitBeforeThePoint) {
    SetUpGame(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    OneHotNumber(10, 7, 20);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::HotNumbers, 0)), "6: 7; 14: 20; 20: 200%; 30: .5");
}

TEST(SectionRows, OfAPickWith328HitsFail) {
    SetUpGame(NumberGame());
    OneHotNumber(1000, 6, 327);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::HotNumbers, 0)), "6: 7; 14: 327; 20: 32%; 30: 3.1");
    OneHotNumber(1000, 6, 328);
    EXPECT_THROW((void)RowOfSection(ReportSection::HotNumbers, 0), RuntimeFailure);
}

TEST(SectionRows, OfARepeaterWithoutRepeatsFail) {
    SetUpGame(NumberGame());
    OneHotNumber(10, 0, 0);
    appState.repeaterTable = appState.hotNumberTable;
    EXPECT_THROW((void)RowOfSection(ReportSection::Repeaters, 0), RuntimeFailure);
}

TEST(SectionRows, OfAPickWith328HitsAndOfARepeaterWithoutRepeatsArePrintedInAMendedFolder) {
    SetUpGame(NumberGame());
    support::MendFolder();
    OneHotNumber(1000, 6, 328);
    EXPECT_EQ(Told(*RowOfSection(ReportSection::HotNumbers, 0)), "6: 7; 14: 328; 20: 32%; 30: 3.0");
    OneHotNumber(10, 0, 0);
    appState.repeaterTable = appState.hotNumberTable;
    EXPECT_EQ(Told(*RowOfSection(ReportSection::Repeaters, 0)), "6: 1; 14: 0; 20: 0%; 30: ");
}

TEST(SectionRows, ThatATableDoesNotHaveFail) {
    SetUpGame(NumberGame());
    EXPECT_THROW((void)RowOfSection(ReportSection::HotPairs, 0), RuntimeFailure);
    EXPECT_THROW((void)EntryOfSection(ReportSection::NoHitters, 0), RuntimeFailure);
}

TEST(SectionEntries, PairsHaveNoBlankAndNoHittersStandAlone) {
    SetUpGame(CardGame().Picks(5));
    appState.pairedOnceTable = CountTable(3, 1);
    appState.pairedOnceTable(1, 0) = 9;
    appState.pairedOnceTable(2, 0) = 22;
    EXPECT_EQ(EntryOfSection(ReportSection::PairedOnce, 0), "10h,10c");
    appState.noHitterTable = {39};
    EXPECT_EQ(EntryOfSection(ReportSection::NoHitters, 0), "As");
}

// Not a bug: REPORT-EMPTY-1 in docs/not-bugs.md.
TEST(SectionRows, AreNoneInAnyTableWithoutDraws) {
    SetUpGame(NumberGame());
    appState.noHitterLast = 48;
    EXPECT_EQ(LastRowOfSection(ReportSection::NoHitters), -1);
    appState.historyViewLast = 0;
    EXPECT_EQ(LastRowOfSection(ReportSection::NoHitters), 48);
    EXPECT_EQ(LastRowOfSection(ReportSection::Log), 0);
}

}  // namespace
}  // namespace ballhaven
