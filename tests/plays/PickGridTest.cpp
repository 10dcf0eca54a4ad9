#include "plays/PickGrid.h"

#include "state/AppState.h"
#include "support/Games.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;

/// The cells of a row one after another, a dot for an empty one.
std::string RowText(int row) {
    std::string text;
    for (int column = 0; column < appState.slipColumns; ++column) {
        const std::string cell = PlayBoardText(row, column).value_or("(null)");
        text += (column == 0 ? "" : " ") + (cell.empty() ? "." : cell);
    }
    return text;
}

TEST(PlayBoardText, NumbersStandInRowsOfNine) {
    support::SetUpGame(NumberGame().Picks(6).From(1).To(49));

    EXPECT_EQ(RowText(0), "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(RowText(5), "46 47 48 49 . . . . .");
    EXPECT_EQ(RowText(11), ". . . . . . . . .");
}

TEST(PlayBoardText, BonusIsSpelledBetweenTheBlocksOfNumbers) {
    support::SetUpGame(NumberGame().Picks(5).To(49).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(10));

    EXPECT_EQ(RowText(11), ". . B O N U S . .");
    EXPECT_EQ(RowText(12), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(RowText(13), "9 10 . . . . . . .");
}

TEST(PlayBoardText, CardsStandInRowsOfSixByTheirText) {
    support::SetUpGame(CardGame().Picks(5));

    EXPECT_EQ(RowText(0), "Ah 2h 3h 4h 5h 6h");
    EXPECT_EQ(RowText(1), "7h 8h 9h 10h Jh Qh");
    EXPECT_EQ(RowText(2), "Kh Ac 2c 3c 4c 5c");
    EXPECT_EQ(RowText(8), "10s Js Qs Ks . .");
    EXPECT_EQ(RowText(11), ". . . . . .");
}

TEST(PlayBoardText, TheLettersOfBonusStayLettersInACardGame) {
    support::SetUpGame(CardGame().Picks(4).Bonus(1, BonusPool::Same));

    EXPECT_EQ(RowText(11), "B O N U S .");
    EXPECT_EQ(RowText(12), "Ah 2h 3h 4h 5h 6h");
    EXPECT_EQ(RowText(20), "10s Js Qs Ks . .");
}

TEST(PlayBoardText, WithDuplicatesEachPickHasItsRunOfNumbers) {
    support::SetUpGame(NumberGame().Picks(3).From(0).To(9).WithDuplicates());

    EXPECT_EQ(RowText(0), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(RowText(1), "9 0 1 2 3 4 5 6 7");
    EXPECT_EQ(RowText(3), "7 8 9 . . . . . .");
}

TEST(PlayBoardText, OutsideTheBoardStandsANull) {
    support::SetUpGame(CardGame().Picks(5));

    EXPECT_EQ(PlayBoardText(-1, 0), std::nullopt);
    EXPECT_EQ(PlayBoardText(12, 0), std::nullopt);
    EXPECT_EQ(PlayBoardText(0, -1), std::nullopt);
    EXPECT_EQ(PlayBoardText(0, 6), std::nullopt);
}

}  // namespace
}  // namespace ballhaven
