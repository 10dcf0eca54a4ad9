#include "screen/HotCells.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ballhaven {
namespace {

using platform::CellStyle;
using platform::Color;
using support::BonusPool;
using support::CardGame;
using support::DrawPicks;
using support::FillBox;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

using Texts = std::vector<std::string>;

constexpr Color black = platform::black;
constexpr Color white = platform::white;
constexpr Color red = platform::red;
constexpr Color blue = platform::blue;
constexpr Color magenta{255, 0, 255};
constexpr Color yellow{255, 255, 0};

constexpr int gamesInView = 20;
constexpr int numberGame = 0;
constexpr int cardGame = 3;

/// Puts a table of its rows' columns 1, 2 and 3 on show, over a view of 20 games.
void ShowTable(HotTable choice, const std::vector<std::vector<int>>& rows) {
    appState.historyViewLast = gamesInView - 1;
    appState.hotTableChoice = static_cast<std::int16_t>(choice);
    CountTable table(4, static_cast<int>(rows.size()));
    appState.noHitterTable.clear();
    for (int row = 0; const std::vector<int>& cells : rows) {
        for (int column = 1; const int cell : cells) {
            table(column++, row) = cell;
        }
        appState.noHitterTable.push_back(cells.front());
        ++row;
    }
    appState.hotNumberTable = appState.hotPairTable = appState.pairedOnceTable = appState.repeaterTable = table;
    const auto last = static_cast<std::int16_t>(rows.size() - 1);
    appState.hotNumberLast = appState.hotPairLast = appState.pairedOnceLast = last;
    appState.repeaterLast = appState.noHitterLast = last;
    frmMainForm.hotRowCount = static_cast<std::int16_t>(rows.size());
}

Texts RowTexts(int row) {
    Texts texts;
    for (int column = 0; column < 4; ++column) {
        texts.push_back(HotCellValue(row, column).value_or("(null)"));
    }
    return texts;
}

CellStyle StyleOf(int row, int column = 0) {
    CellStyle style{yellow, magenta};
    HotCellStyle(row, column, style);
    return style;
}

RuntimeFailure::Kind FailureOf(int row, int column) {
    try {
        static_cast<void>(HotCellValue(row, column));
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
    throw std::logic_error("The cell did not fail");
}

TEST(HotCellValue, HotNumbersTellPickHitsPercentageAndInterval) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 3}, {12, 1}});

    EXPECT_EQ(RowTexts(0), (Texts{"7", "3", "15", "6.7"}));
    EXPECT_EQ(RowTexts(1), (Texts{"12", "1", "5", "20.0"}));
}

TEST(HotCellValue, HotCardsTellTheCardByItsText) {
    StartWith(CardGame());
    ShowTable(HotTable::HotNumbers, {{23, 2}, {1, 2}});

    EXPECT_EQ(RowTexts(0), (Texts{"10c", "2", "10", "10.0"}));
    EXPECT_EQ(RowTexts(1), (Texts{"Ah", "2", "10", "10.0"}));
}

TEST(HotCellValue, HotPairsTellBothPicks) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotPairs, {{7, 23, 2}});
    EXPECT_EQ(RowTexts(0), (Texts{"7, 23", "2", "10", "10.0"}));

    StartWith(CardGame());
    ShowTable(HotTable::HotPairs, {{1, 23, 20}});
    EXPECT_EQ(RowTexts(0), (Texts{"Ah, 10c", "20", "100", "1.0"}));
}

TEST(HotCellValue, PairedOnceHasThreeEmptyColumns) {
    StartWith(NumberGame());
    ShowTable(HotTable::PairedOnce, {{7, 23}});
    EXPECT_EQ(RowTexts(0), (Texts{"7, 23", "", "", ""}));

    StartWith(CardGame());
    ShowTable(HotTable::PairedOnce, {{1, 23}});
    EXPECT_EQ(RowTexts(0), (Texts{"Ah, 10c", "", "", ""}));
}

TEST(HotCellValue, RepeatersTellTheirRepeats) {
    StartWith(NumberGame());
    ShowTable(HotTable::Repeaters, {{7, 4}});
    EXPECT_EQ(RowTexts(0), (Texts{"7", "4", "20", "5.0"}));

    StartWith(CardGame());
    ShowTable(HotTable::Repeaters, {{52, 4}});
    EXPECT_EQ(RowTexts(0), (Texts{"Ks", "4", "20", "5.0"}));
}

TEST(HotCellValue, NoHittersHaveThreeEmptyColumns) {
    StartWith(NumberGame());
    ShowTable(HotTable::NoHitters, {{0}, {49}});
    EXPECT_EQ(RowTexts(0), (Texts{"0", "", "", ""}));
    EXPECT_EQ(RowTexts(1), (Texts{"49", "", "", ""}));

    StartWith(CardGame());
    ShowTable(HotTable::NoHitters, {{36}});
    EXPECT_EQ(RowTexts(0), (Texts{"10d", "", "", ""}));
}

TEST(HotCellValue, OutsideTheTableStandsANull) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 3}});

    EXPECT_EQ(HotCellValue(-1, 0), std::nullopt);
    EXPECT_EQ(HotCellValue(1, 0), std::nullopt);
    EXPECT_EQ(HotCellValue(0, -1), std::nullopt);
    EXPECT_EQ(HotCellValue(0, 4), std::nullopt);
}

TEST(HotCellValue, BeforeATableIsChosenStandsANull) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 3}});
    appState.hotTableChoice = 0;

    EXPECT_EQ(HotCellValue(0, 0), std::nullopt);
    EXPECT_EQ(StyleOf(0), (CellStyle{black, white}));
}

TEST(HotCellValue, AnEmptyTableDrawsNoRow) {
    StartWith(NumberGame());
    ShowDraws({});
    ComputeHotTable();

    EXPECT_EQ(HotCellValue(0, 0), std::nullopt);
    EXPECT_EQ(frmMainForm.grdHot.caption.operator const std::string&(), "Hot Numbers (none found)");
}

TEST(HotCellValue, RowsThatATableDoesNotHaveReadAsEmpty) {
    StartWith(NumberGame());
    for (const HotTable table :
         {HotTable::HotNumbers, HotTable::HotPairs, HotTable::PairedOnce, HotTable::Repeaters, HotTable::NoHitters}) {
        ShowTable(table, {{7, 8, 2}});
        frmMainForm.hotRowCount = 3;

        EXPECT_NE(HotCellValue(0, 0), std::nullopt);
        EXPECT_EQ(HotCellValue(1, 0), std::nullopt);
        EXPECT_EQ(HotCellValue(1, 3), std::nullopt);
    }
}

TEST(HotCellValue, RowsBehindTheLastOneOfATableReadAsEmptyWhateverItsArrayHolds) {
    StartWith(NumberGame());
    for (const HotTable table :
         {HotTable::HotNumbers, HotTable::HotPairs, HotTable::PairedOnce, HotTable::Repeaters, HotTable::NoHitters}) {
        ShowTable(table, {{7, 8, 2}, {9, 10, 2}});
        appState.hotNumberLast = appState.hotPairLast = appState.pairedOnceLast = 0;
        appState.repeaterLast = appState.noHitterLast = 0;

        EXPECT_NE(HotCellValue(0, 0), std::nullopt);
        EXPECT_EQ(HotCellValue(1, 0), std::nullopt);
        EXPECT_EQ(HotCellValue(1, 3), std::nullopt);
    }
}

TEST(HotCellValue, InOneGameEveryPickHasAllHits) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 9}});
    ComputeHotTable();

    EXPECT_EQ(RowTexts(0), (Texts{"5", "1", "100", "1.0"}));
    EXPECT_EQ(RowTexts(1), (Texts{"9", "1", "100", "1.0"}));
}

TEST(HotCellValue, BothFormulasTakeTheGamesThatTheViewReallyHas) {
    StartWith(NumberGame().Picks(1).HistorySet(500));
    std::vector<DrawPicks> draws(20, DrawPicks{5});
    draws.resize(30, DrawPicks{9});
    ShowDraws(draws);
    ComputeHotTable();

    EXPECT_EQ(RowTexts(0), (Texts{"5", "20", "66", "1.5"}));
    EXPECT_EQ(RowTexts(1), (Texts{"9", "10", "33", "3.0"}));
}

TEST(HotCellValue, ThePercentageCutsItsFractionOff) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 2}});
    appState.historyViewLast = 2;

    EXPECT_EQ(HotCellValue(0, 2), "66");
}

// Not a bug: HOT-PERCENT-1 in docs/not-bugs.md.
TEST(QuirkHotPercent1, APickThatStandsTwiceInADrawCanPassAHundredPercent) {
    StartWith(NumberGame().Picks(2).From(0).To(9).WithDuplicates());
    ShowDraws({{4, 4}, {4, 4}});
    ComputeHotTable();

    EXPECT_EQ(RowTexts(0), (Texts{"4", "4", "200", ".5"}));
}

TEST(HotCellValue, ThePercentageOf327HitsIsTheLastThatFits) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 327}});
    appState.historyViewLast = 999;

    EXPECT_EQ(HotCellValue(0, 2), "32");
}

TEST(QuirkHotOverflow1, InAMendedFolderThePercentageOf328HitsIsShownInAllCountingTables) {
    StartWith(NumberGame());
    support::MendFolder();
    ShowTable(HotTable::HotNumbers, {{7, 328}});
    EXPECT_EQ(RowTexts(0), (Texts{"7", "328", "1640", ".1"}));
    ShowTable(HotTable::HotPairs, {{7, 8, 328}});
    EXPECT_EQ(RowTexts(0), (Texts{"7, 8", "328", "1640", ".1"}));
    ShowTable(HotTable::Repeaters, {{7, 99900}});
    EXPECT_EQ(RowTexts(0), (Texts{"7", "99900", "499500", ".0"}));
}

TEST(QuirkRepeaterZeros1, InAMendedFolderTheIntervalOfARowOfZerosIsEmpty) {
    StartWith(NumberGame());
    support::MendFolder();
    ShowTable(HotTable::Repeaters, {{0, 0}});
    EXPECT_EQ(RowTexts(0), (Texts{"0", "0", "0", ""}));
}

TEST(HotCellValue, ThePercentageOf328HitsOverflowsInAllCountingTables) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 328}});
    EXPECT_EQ(FailureOf(0, 2), RuntimeFailure::Kind::Overflow);
    EXPECT_EQ(HotCellValue(0, 1), "328");

    ShowTable(HotTable::HotPairs, {{7, 8, 328}});
    EXPECT_EQ(FailureOf(0, 2), RuntimeFailure::Kind::Overflow);

    ShowTable(HotTable::Repeaters, {{7, 328}});
    EXPECT_EQ(FailureOf(0, 2), RuntimeFailure::Kind::Overflow);
}

TEST(HotCellValue, TheIntervalOfARepeatersRowOfZerosDividesByZero) {
    StartWith(NumberGame());
    ShowTable(HotTable::Repeaters, {{0, 0}});

    EXPECT_EQ(HotCellValue(0, 0), "0");
    EXPECT_EQ(HotCellValue(0, 1), "0");
    EXPECT_EQ(HotCellValue(0, 2), "0");
    EXPECT_EQ(FailureOf(0, 3), RuntimeFailure::Kind::DivisionByZero);
}

TEST(HotCellValue, APairOfZerosHasNoInterval) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotPairs, {{0, 0, 0}});

    EXPECT_EQ(RowTexts(0), (Texts{"0, 0", "0", "0", ""}));
}

TEST(HotCellText, TellsARowByItsCellsAlone) {
    const std::vector<std::int32_t> pair{1, 23, 5};

    EXPECT_EQ(HotCellText(HotTable::HotPairs, pair, 0, 10, cardGame, FigureRange::Narrow), "Ah, 10c");
    EXPECT_EQ(HotCellText(HotTable::HotPairs, pair, 0, 10, numberGame, FigureRange::Narrow), "1, 23");
    EXPECT_EQ(HotCellText(HotTable::HotPairs, pair, 1, 10, numberGame, FigureRange::Narrow), "5");
    EXPECT_EQ(HotCellText(HotTable::HotPairs, pair, 2, 10, numberGame, FigureRange::Narrow), "50");
    EXPECT_EQ(HotCellText(HotTable::HotPairs, pair, 3, 10, numberGame, FigureRange::Narrow), "2.0");
    EXPECT_EQ(HotCellText(HotTable::PairedOnce, pair, 0, 10, numberGame, FigureRange::Narrow), "1, 23");
    EXPECT_EQ(HotCellText(HotTable::PairedOnce, pair, 1, 10, numberGame, FigureRange::Narrow), "");
}

TEST(HotCellText, OfARowWithTooFewCellsIsANull) {
    const std::vector<std::int32_t> cells{7, 8, 9};
    const auto rowOf = [&cells](std::size_t count) { return std::span(cells).first(count); };

    for (const auto& [table, needed] : std::vector<std::pair<HotTable, std::size_t>>{{HotTable::HotNumbers, 2},
                                                                                     {HotTable::HotPairs, 3},
                                                                                     {HotTable::PairedOnce, 2},
                                                                                     {HotTable::Repeaters, 2},
                                                                                     {HotTable::NoHitters, 1}}) {
        EXPECT_NE(HotCellText(table, rowOf(needed), 0, 10, numberGame, FigureRange::Narrow), std::nullopt)
            << static_cast<int>(table);
        EXPECT_EQ(HotCellText(table, rowOf(needed - 1), 0, 10, numberGame, FigureRange::Narrow), std::nullopt)
            << static_cast<int>(table);
    }
}

TEST(SuitColor, IsRedBlackOrBlue) {
    EXPECT_EQ(SuitColor("10h"), red);
    EXPECT_EQ(SuitColor("Kd"), red);
    EXPECT_EQ(SuitColor("Ac"), black);
    EXPECT_EQ(SuitColor("2s"), black);
    EXPECT_EQ(SuitColor("Ah, Kd"), red);
    EXPECT_EQ(SuitColor("Ah, Kh"), red);
    EXPECT_EQ(SuitColor("Ac, Ks"), black);
    EXPECT_EQ(SuitColor("2c, 9c"), blue);
    EXPECT_EQ(SuitColor("2s, 9s"), blue);
    EXPECT_EQ(SuitColor("Ah, Kc"), blue);
    EXPECT_EQ(SuitColor("4d, 5s"), blue);
}

TEST(IsHiLitedBy, TheBoxHoldsTheWholePickAndIsNotEmpty) {
    EXPECT_TRUE(IsHiLitedBy("7", "7"));
    EXPECT_FALSE(IsHiLitedBy("7", "77"));
    EXPECT_FALSE(IsHiLitedBy("77", "7"));
    EXPECT_FALSE(IsHiLitedBy("", "7"));
    EXPECT_FALSE(IsHiLitedBy("", ""));
}

// Not a bug: PAIR-HILITE-1 in docs/not-bugs.md.
TEST(QuirkPairHilite1, TheRightPickOfAPairIsComparedWithTheBlankBeforeIt) {
    EXPECT_TRUE(IsHiLitedBy("7", "7, 12"));
    EXPECT_FALSE(IsHiLitedBy("12", "7, 12"));
    EXPECT_TRUE(IsHiLitedBy(" 12", "7, 12"));
}

TEST(HotCellStyle, NumbersAreBlackOnWhite) {
    StartWith(NumberGame());
    ShowTable(HotTable::HotNumbers, {{7, 3}});

    EXPECT_EQ(StyleOf(0), (CellStyle{black, white}));
}

TEST(HotCellStyle, OnlyTheFirstColumnIsColoured) {
    StartWith(CardGame());
    ShowTable(HotTable::HotNumbers, {{1, 3}});

    EXPECT_EQ(StyleOf(0, 0), (CellStyle{red, white}));
    for (int column = 1; column < 4; ++column) {
        EXPECT_EQ(StyleOf(0, column), (CellStyle{black, white}));
    }
}

TEST(HotCellStyle, ASingleCardHasTheColourOfItsSuit) {
    StartWith(CardGame());
    ShowTable(HotTable::HotNumbers, {{10, 1}, {36, 1}, {23, 1}, {49, 1}});

    EXPECT_EQ(StyleOf(0), (CellStyle{red, white}));    // 10h
    EXPECT_EQ(StyleOf(1), (CellStyle{red, white}));    // 10d
    EXPECT_EQ(StyleOf(2), (CellStyle{black, white}));  // 10c
    EXPECT_EQ(StyleOf(3), (CellStyle{black, white}));  // 10s
}

TEST(HotCellStyle, APairOfCardsIsColouredByItsTwoSuits) {
    StartWith(CardGame());
    ShowTable(HotTable::HotPairs, {{1, 39, 2}, {1, 26, 2}, {14, 52, 2}, {15, 22, 2}, {41, 48, 2}, {30, 44, 2}});

    EXPECT_EQ(StyleOf(0), (CellStyle{red, white}));    // Ah, Kd
    EXPECT_EQ(StyleOf(1), (CellStyle{blue, white}));   // Ah, Kc
    EXPECT_EQ(StyleOf(2), (CellStyle{black, white}));  // Ac, Ks
    EXPECT_EQ(StyleOf(3), (CellStyle{blue, white}));   // 2c, 9c
    EXPECT_EQ(StyleOf(4), (CellStyle{blue, white}));   // 2s, 9s
    EXPECT_EQ(StyleOf(5), (CellStyle{blue, white}));   // 4d, 5s
}

TEST(HotCellStyle, TheBoxThatHoldsThePickGivesItsColour) {
    StartWith(NumberGame().Picks(6));
    ShowTable(HotTable::HotNumbers, {{7, 3}, {8, 2}});
    FillBox(1, "7");
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0), (CellStyle{black, yellow}));
    EXPECT_EQ(StyleOf(1), (CellStyle{black, white}));
}

TEST(HotCellStyle, ABoxThatEqualsACountColoursNothing) {
    StartWith(NumberGame().Picks(6));
    ShowTable(HotTable::HotNumbers, {{7, 3}});
    FillBox(0, "3");
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0, 0), (CellStyle{black, white}));
    EXPECT_EQ(StyleOf(0, 1), (CellStyle{black, white}));
}

TEST(HotCellStyle, ThePicksAreTrimmed) {
    StartWith(CardGame().Picks(5));
    ShowTable(HotTable::HotPairs, {{0, 0, 2}});
    FillBox(0, " ");
    appState.colorMode = ColorMode::Boxes;

    ASSERT_EQ(HotCellValue(0, 0), ", ");
    EXPECT_EQ(StyleOf(0), (CellStyle{black, white}));
}

TEST(HotCellStyle, WithTheHiLiteOffBoxesColourNothing) {
    StartWith(NumberGame().Picks(6));
    ShowTable(HotTable::HotNumbers, {{7, 3}});
    FillBox(1, "7");

    EXPECT_EQ(StyleOf(0), (CellStyle{black, white}));
}

TEST(HotCellStyle, AHiLitedCardTakesTheForegroundOfItsBackground) {
    StartWith(CardGame().Picks(5));
    ShowTable(HotTable::HotNumbers, {{1, 3}, {14, 3}});
    FillBox(0, "Ah");
    FillBox(2, "Ac");
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0), (CellStyle{black, magenta}));
    EXPECT_EQ(StyleOf(1), (CellStyle{white, red}));
}

// Not a bug: PAIR-HILITE-1 in docs/not-bugs.md.
TEST(QuirkPairHilite1, OnlyTheLeftPickOfAPairIsHiLited) {
    StartWith(NumberGame().Picks(6));
    FillBox(0, "7");
    appState.colorMode = ColorMode::Boxes;

    ShowTable(HotTable::HotNumbers, {{7, 2}});
    EXPECT_EQ(StyleOf(0).background, magenta);

    ShowTable(HotTable::HotPairs, {{7, 12, 2}, {3, 7, 2}});
    EXPECT_EQ(StyleOf(0).background, magenta);
    EXPECT_EQ(StyleOf(1).background, white);
}

TEST(HotCellStyle, ABoxIsComparedWithItsBlanks) {
    StartWith(NumberGame().Picks(6));
    ShowTable(HotTable::HotPairs, {{3, 7, 2}, {7, 9, 2}});
    FillBox(0, " 7");
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0).background, magenta);
    EXPECT_EQ(StyleOf(1).background, white);
}

TEST(HotCellStyle, TheChoiceOfPicksDecidesWhichBoxesCount) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowTable(HotTable::HotNumbers, {{7, 3}, {9, 3}});
    FillBox(0, "7");
    FillBox(2, "9");
    FillBox(3, "9");
    appState.colorMode = ColorMode::Boxes;

    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Main);
    EXPECT_EQ(StyleOf(0).background, magenta);
    EXPECT_EQ(StyleOf(1).background, white);

    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Bonus);
    EXPECT_EQ(StyleOf(0).background, white);
    EXPECT_EQ(StyleOf(1).background, red);

    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::All);
    EXPECT_EQ(StyleOf(0).background, magenta);
    EXPECT_EQ(StyleOf(1).background, red);
}

TEST(HotCellStyle, ARowOutsideTheTableIsBlackOnWhite) {
    StartWith(NumberGame().Picks(6));
    ShowTable(HotTable::HotNumbers, {});
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0), (CellStyle{black, white}));
}

}  // namespace
}  // namespace ballhaven
