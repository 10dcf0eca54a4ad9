#include "screen/LogCells.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using platform::CellStyle;
using platform::Color;
using support::BonusPool;
using support::CardGame;
using support::FillBox;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

constexpr Color black = platform::black;
constexpr Color white = platform::white;
constexpr Color red = platform::red;
constexpr Color blue = platform::blue;
constexpr Color magenta{255, 0, 255};
constexpr Color yellow{255, 255, 0};
constexpr Color cyan{0, 255, 255};

/// Colours that no rule of the log gives.
constexpr CellStyle untouched{{1, 2, 3}, {4, 5, 6}};

CellStyle StyleOf(int row, int column) {
    CellStyle style = untouched;
    LogCellStyle(row, column, style);
    return style;
}

Color BackgroundOf(int column) {
    return StyleOf(0, column).background;
}

/// Two main picks and a bonus pick of a pool of its own.
constexpr GameRules twoAndOne{.gameType = 2, .mainPickCount = 2, .bonusPickCount = 1, .mainHigh = 49, .bonusHigh = 49};
constexpr HiLites sevens{true, {"7", "", " 8"}};

TEST(DrawCell, TheLogEndsWithItsRowsItsColumnsAndTheView) {
    Table view(4, 3, 5);
    EXPECT_EQ(DrawCell(view, {2, 3}, 1, 2), 5);
    EXPECT_EQ(DrawCell(view, {2, 3}, 0, 0), 5);
    EXPECT_EQ(DrawCell(view, {2, 3}, 2, 2), std::nullopt) << "a row that the log does not show";
    EXPECT_EQ(DrawCell(view, {2, 3}, 1, 3), std::nullopt) << "a column without data";
    EXPECT_EQ(DrawCell(view, {9, 9}, 3, 0), std::nullopt) << "a row that the view does not have";
    EXPECT_EQ(DrawCell(view, {9, 9}, 0, 4), std::nullopt) << "a column that it does not have";
    EXPECT_EQ(DrawCell(view, {9, 9}, -1, 0), std::nullopt);
    EXPECT_EQ(DrawCell(view, {9, 9}, 0, -1), std::nullopt);
}

TEST(StyleOfPick, APickHasTheColourOfTheBoxOfItsPoolThatHoldsIt) {
    EXPECT_EQ(StyleOfPick(7, 1, twoAndOne, sevens), (CellStyle{black, magenta}));
    EXPECT_EQ(StyleOfPick(7, 2, twoAndOne, sevens), (CellStyle{black, magenta}));
    EXPECT_EQ(StyleOfPick(7, 3, twoAndOne, sevens), (CellStyle{black, white}));
    EXPECT_EQ(StyleOfPick(8, 2, twoAndOne, sevens), (CellStyle{black, white}));
    EXPECT_EQ(StyleOfPick(8, 3, twoAndOne, sevens), (CellStyle{white, red}));
}

TEST(StyleOfPick, ABlankPickIsBlackOnWhite) {
    EXPECT_EQ(StyleOfPick(-1, 1, twoAndOne, {true, {"-1"}}), (CellStyle{black, white}));
}

TEST(LogCells, ReadingAndColouringThemChangesNoDateThatIsAtWork) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{5, 6}});
    appState.dateSerial = 77;
    appState.dateWeekday = 3;

    EXPECT_EQ(LogCellValue(0, 0), "01/01/1990");
    StyleOf(0, 1);

    EXPECT_EQ(appState.dateSerial, 77);
    EXPECT_EQ(appState.dateWeekday, 3);
}

TEST(LogCellValue, TheFirstColumnTellsTheDateAndTheOthersThePicks) {
    StartWith(NumberGame().Picks(3).From(0));
    ShowDraws({{0, 14, 49}, {7, 8, 9}});

    EXPECT_EQ(LogCellValue(0, 0), "01/01/1990");
    EXPECT_EQ(LogCellValue(0, 1), "0");
    EXPECT_EQ(LogCellValue(0, 2), "14");
    EXPECT_EQ(LogCellValue(0, 3), "49");
    EXPECT_EQ(LogCellValue(1, 0), "01/02/1990");
}

TEST(LogCellValue, ACardGameTellsCards) {
    StartWith(CardGame().Picks(3));
    ShowDraws({{1, 36, 52}});

    EXPECT_EQ(LogCellValue(0, 0), "01/01/1990");
    EXPECT_EQ(LogCellValue(0, 1), "Ah");
    EXPECT_EQ(LogCellValue(0, 2), "10d");
    EXPECT_EQ(LogCellValue(0, 3), "Ks");
}

TEST(LogCellValue, ABlankPickIsAnEmptyText) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5}});

    EXPECT_EQ(LogCellValue(0, 2), "");
}

TEST(LogCellValue, OutsideTheLogStandsANull) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});

    EXPECT_EQ(LogCellValue(-1, 0), std::nullopt);
    EXPECT_EQ(LogCellValue(1, 0), std::nullopt);
    EXPECT_EQ(LogCellValue(0, -1), std::nullopt);
    EXPECT_EQ(LogCellValue(0, 3), std::nullopt);
}

TEST(LogCellValue, ColumnsThatTheViewDoesNotHaveAreNulls) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});
    frmMainForm.logLastColumn = 4;

    EXPECT_EQ(LogCellValue(0, 2), "6");
    EXPECT_EQ(LogCellValue(0, 3), std::nullopt);
}

TEST(LogCellValue, ADrawThatWaitsToBeSortedInIsNotInTheLogYet) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});
    appState.historyViewLast = 1;

    EXPECT_EQ(LogCellValue(1, 0), std::nullopt);
}

TEST(LogCellStyle, TheDateColumnIsNeverColoured) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "01");

    EXPECT_EQ(StyleOf(0, 0), untouched);
}

TEST(LogCellStyle, CellsOutsideTheLogAreLeftAlone) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});

    EXPECT_EQ(StyleOf(-1, 1), untouched);
    EXPECT_EQ(StyleOf(1, 1), untouched);
    EXPECT_EQ(StyleOf(0, 3), untouched);
}

TEST(LogCellStyle, ABlankPickIsNeverColoured) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{5}});
    appState.colorMode = ColorMode::Boxes;

    EXPECT_EQ(StyleOf(0, 2), (CellStyle{black, white}));
}

TEST(LogCellStyle, NumbersAreBlackOnWhite) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{black, white}));
}

TEST(LogCellStyle, HeartsAndDiamondsAreRedAndTheOthersBlack) {
    StartWith(CardGame().Picks(4));
    ShowDraws({{13, 14, 27, 40}});

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{red, white}));
    EXPECT_EQ(StyleOf(0, 2), (CellStyle{black, white}));
    EXPECT_EQ(StyleOf(0, 3), (CellStyle{red, white}));
    EXPECT_EQ(StyleOf(0, 4), (CellStyle{black, white}));
}

TEST(LogCellStyle, ARedCardOnYellowHasBlackText) {
    StartWith(CardGame().Picks(4));
    ShowDraws({{13, 27, 40, 41}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(1, "Kh");

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{black, yellow}));
    EXPECT_EQ(StyleOf(0, 2), (CellStyle{red, white}));
}

TEST(LogCellStyle, ABlackCardOnBlueHasWhiteText) {
    StartWith(CardGame().Picks(9));
    ShowDraws({{52}});
    appState.colorMode = ColorMode::Drawing;
    FillBox(8, "Ks");

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{white, blue}));
}

TEST(LogCellStyle, WithTheHiLiteOffBoxesColourNothing) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{5, 6}});
    FillBox(0, "5");

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{black, white}));
}

TEST(LogCellStyle, TheComparisonIsOfText) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{7, 8, 9}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "07");
    FillBox(1, "7");

    EXPECT_EQ(BackgroundOf(1), yellow);
}

TEST(LogCellStyle, TheComparisonOfCardsTellsSmallFromCapitalLetters) {
    StartWith(CardGame().Picks(3));
    ShowDraws({{13, 14, 15}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "kh");

    EXPECT_EQ(BackgroundOf(1), white);
}

TEST(LogCellStyle, BlanksAroundTheTextOfABoxDoNotMatter) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{7, 8, 9}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, " 7");
    FillBox(1, "8 ");

    EXPECT_EQ(BackgroundOf(1), magenta);
    EXPECT_EQ(BackgroundOf(2), yellow);
}

TEST(LogCellStyle, OneValueInTwoBoxesTakesTheColourOfTheFirst) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{7, 8, 9}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(1, "8");
    FillBox(2, "8");

    EXPECT_EQ(BackgroundOf(2), yellow);
}

TEST(LogCellStyle, WithABonusFromTheSamePoolAllBoxesCountInEveryColumn) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{7, 8, 9}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(2, "7");
    FillBox(0, "9");

    EXPECT_EQ(BackgroundOf(1), red);
    EXPECT_EQ(BackgroundOf(3), magenta);
}

TEST(LogCellStyle, WithACardBonusFromTheSameDeckAllBoxesCountInEveryColumn) {
    StartWith(CardGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 3}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(2, "Ah");
    FillBox(0, "3h");

    EXPECT_EQ(BackgroundOf(1), red);
    EXPECT_EQ(BackgroundOf(3), magenta);
}

TEST(LogCellStyle, WithABonusFromItsOwnPoolEachPoolHasItsBoxes) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Separate));
    ShowDraws({{7, 9, 7}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "7");
    FillBox(2, "9");
    EXPECT_EQ(BackgroundOf(1), magenta);
    EXPECT_EQ(BackgroundOf(2), white);
    EXPECT_EQ(BackgroundOf(3), white);

    FillBox(2, "7");
    EXPECT_EQ(BackgroundOf(3), red);
}

TEST(LogCellStyle, BoxesBeyondThePicksOfTheGameDoNotCount) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{7, 8}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(2, "7");

    EXPECT_EQ(BackgroundOf(1), white);
}

// Not a bug: ORDER-HILITE-1 in docs/not-bugs.md.
TEST(QuirkOrderHilite1, WhereTheOrderMattersTheFirstBoxAloneIsComparedAndTheColumnGivesTheColour) {
    StartWith(NumberGame().Picks(4).InOrder());
    ShowDraws({{7, 8, 9, 7}, {9, 9, 8, 7}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "7");
    FillBox(1, "8");

    EXPECT_EQ(StyleOf(0, 1), (CellStyle{black, magenta}));
    EXPECT_EQ(StyleOf(0, 2), (CellStyle{black, white}));
    EXPECT_EQ(StyleOf(0, 3), (CellStyle{black, white}));
    EXPECT_EQ(StyleOf(0, 4), (CellStyle{black, cyan}));
    EXPECT_EQ(StyleOf(1, 4), (CellStyle{black, cyan}));
}

TEST(QuirkOrderHilite1, ABonusPickIsComparedWithTheFirstBoxToo) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Separate).InOrder());
    ShowDraws({{8, 9, 7}});
    appState.colorMode = ColorMode::Boxes;
    FillBox(0, "7");

    EXPECT_EQ(StyleOf(0, 3), (CellStyle{white, red}));
}

}  // namespace
}  // namespace ballhaven
