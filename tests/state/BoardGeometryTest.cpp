#include "state/BoardGeometry.h"

#include "state/AppState.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

/// The letters that a kind of game shows, each behind its cell.
std::string LettersOf(int gameType) {
    std::string letters;
    for (int cell = -1; cell < 220; ++cell) {
        if (const auto letter = BonusLetterAt(gameType, cell)) {
            letters += std::to_string(cell) + bonusWord.at(static_cast<std::size_t>(*letter)) + " ";
        }
    }
    return letters;
}

TEST(BoardOf, AGameWithoutBonusPicksHasOneBlockOfTwelveRowsAndOneWithThemTwo) {
    const int rows[] = {12, 24, 24, 12, 24, 24};
    for (int gameType = 0; gameType <= 5; ++gameType) {
        EXPECT_EQ(BoardOf(gameType).rows, rows[gameType]) << gameType;
    }
}

TEST(BoardOf, NumbersStandInNineColumnsAndCardsInSix) {
    for (int gameType = 0; gameType <= 5; ++gameType) {
        EXPECT_EQ(BoardOf(gameType).columns, gameType < 3 ? 9 : 6) << gameType;
    }
}

TEST(BoardOf, BonusPicksBeginTwoCellsBehindTheirWordAndOneBehindThatOfCards) {
    EXPECT_EQ(BoardOf(1).mainCells, 101);
    EXPECT_EQ(BoardOf(1).firstBonusCell, 108);
    EXPECT_EQ(BoardOf(4).mainCells, 52);
    EXPECT_EQ(BoardOf(4).firstBonusCell, 72);
}

TEST(CellNumberAt, CountsAlongTheRowsOfTheGamesBoard) {
    appState.slipColumns = 9;
    EXPECT_EQ(CellNumberAt(0, 8), 8);
    EXPECT_EQ(CellNumberAt(12, 0), 108);
    appState.slipColumns = 6;
    EXPECT_EQ(CellNumberAt(12, 1), 73);
}

TEST(IsOnBoard, TellsTheRowsAndColumnsOfTheGamesBoard) {
    appState.slipColumns = 6;
    appState.gameType = 4;
    EXPECT_TRUE(IsOnBoard(0, 0));
    EXPECT_TRUE(IsOnBoard(23, 5));
    EXPECT_FALSE(IsOnBoard(24, 5));
    EXPECT_FALSE(IsOnBoard(23, 6));
    EXPECT_FALSE(IsOnBoard(-1, 0));
    EXPECT_FALSE(IsOnBoard(0, -1));
    appState.gameType = 3;
    EXPECT_FALSE(IsOnBoard(12, 0));
}

TEST(BonusLetterAt, SpellsBonusInTheRowBeforeTheBonusPicks) {
    EXPECT_EQ(LettersOf(1), "101B 102O 103N 104U 105S ");
    EXPECT_EQ(LettersOf(2), LettersOf(1));
    EXPECT_EQ(LettersOf(4), "66B 67O 68N 69U 70S ");
    EXPECT_EQ(LettersOf(5), LettersOf(4));
}

TEST(BonusLetterAt, SpellsNothingInAGameWithoutBonusPicks) {
    EXPECT_EQ(LettersOf(0), "");
    EXPECT_EQ(LettersOf(3), "");
}

}  // namespace
}  // namespace ballhaven
