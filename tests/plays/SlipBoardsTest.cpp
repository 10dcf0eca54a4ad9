#include "plays/SlipBoards.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/Plays.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::Game;
using support::NumberGame;

void Play(const Game& game) {
    support::SetUpGame(game);
    appState.slipColumns = IsCardGame(appState.gameType) ? 6 : 9;
    appState.currentSlip = 1;
}

/// The cells of a row of a board one after another, a dot for an empty one.
std::string RowText(int row) {
    std::string text;
    for (int column = 0; column < appState.slipColumns; ++column) {
        const std::string cell = SlipBoardText({0, row, column}).value_or("(null)");
        text += (column == 0 ? "" : " ") + (cell.empty() ? "." : cell);
    }
    return text;
}

TEST(PlayOfBoard, SlipOneShowsPlaysOneToFiveAndTheLastSlipTheLastFive) {
    appState.currentSlip = 1;
    EXPECT_EQ(PlayOfBoard(0), 1);
    EXPECT_EQ(PlayOfBoard(4), 5);
    appState.currentSlip = 1000;
    EXPECT_EQ(PlayOfBoard(0), 4996);
    EXPECT_EQ(PlayOfBoard(4), 5000);
}

TEST(SlipBoardText, NumbersAndTheWordStandAsOnTheMainWindow) {
    Play(NumberGame().Picks(5).To(49).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(10));
    EXPECT_EQ(RowText(0), "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(RowText(11), ". . B O N U S . .");
    EXPECT_EQ(RowText(12), "0 1 2 3 4 5 6 7 8");
}

// Not a bug: SLIP-LETTERS-1 in docs/not-bugs.md.
TEST(QuirkSlipLetters1, InACardGameTheRowOfTheWordIsBlank) {
    Play(CardGame().Picks(5).Bonus(1, BonusPool::Same));
    EXPECT_EQ(RowText(0), "Ah 2h 3h 4h 5h 6h");
    EXPECT_EQ(RowText(11), ". . . . . .");
    EXPECT_EQ(RowText(12), "Ah 2h 3h 4h 5h 6h");
}

TEST(SlipBoardText, OutsideTheBoardIsANull) {
    Play(CardGame().Picks(5));
    EXPECT_EQ(SlipBoardText({0, 12, 0}), std::nullopt);
    EXPECT_EQ(SlipBoardText({0, 0, 6}), std::nullopt);
    EXPECT_EQ(SlipBoardText({0, -1, 0}), std::nullopt);
    EXPECT_NE(SlipBoardText({4, 11, 5}), std::nullopt);
}

TEST(SlipCellDescription, TellsTheLineThePickAndWhetherItIsChosen) {
    Play(NumberGame().Picks(5).To(49).Bonus(1, BonusPool::Separate));
    appState.currentSlip = 2;
    support::PutPicks(appState.PlayTable, mainPicks, 8, {16});
    EXPECT_EQ(SlipCellDescription({2, 1, 7}), "Line C, 17, chosen");
    EXPECT_EQ(SlipCellDescription({1, 1, 7}), "Line B, 17");
    EXPECT_EQ(SlipCellDescription({2, 11, 2}), "") << "a letter of BONUS";
    EXPECT_EQ(SlipCellDescription({2, 10, 0}), "") << "an empty cell";
}

TEST(EraseShownSlip, EmptiesItsFivePlaysAndNoOther) {
    Play(NumberGame().Picks(2));
    for (int play = 1; play <= 12; ++play) {
        support::PutPicks(appState.PlayTable, mainPicks, play, {play});
        appState.PlayTable(mainPicks, play, 0) = 1;
    }
    appState.currentSlip = 2;
    EraseShownSlip();
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 12), "1|2|3|4|5||||||11|12");
    EXPECT_EQ(appState.PlayTable(mainPicks, 6, 0), 0);
    EXPECT_EQ(appState.PlayTable(mainPicks, 11, 0), 1);
}

TEST(EraseShownSlip, OnSlipZeroNothingChanges) {
    Play(NumberGame().Picks(2));
    support::PutPicks(appState.PlayTable, mainPicks, 1, {7});
    const PlayPicks before = appState.PlayTable;
    appState.currentSlip = 0;
    EraseShownSlip();
    EXPECT_TRUE(appState.PlayTable == before);
}

}  // namespace
}  // namespace ballhaven
