#include "state/BoardGeometry.h"

#include "state/AppState.h"

namespace ballhaven {

namespace {

constexpr int rowsOfOneBlock = 12;

}  // namespace

BoardGeometry BoardOf(int gameType) {
    const int rows = HasBonus(gameType) ? 2 * rowsOfOneBlock : rowsOfOneBlock;
    if (IsCardGame(gameType)) {
        return {.columns = 6,
                .rows = rows,
                .mainCells = 52,
                .firstWordRowCell = 66,
                .firstWordCell = 66,
                .firstBonusCell = 72};
    }
    return {.columns = 9,
            .rows = rows,
            .mainCells = 101,
            .firstWordRowCell = 99,
            .firstWordCell = 101,
            .firstBonusCell = 108};
}

int CellNumberAt(int row, int column) {
    return row * appState.slipColumns + column;
}

bool IsOnBoard(int row, int column) {
    return 0 <= row && row < BoardOf(appState.gameType).rows && 0 <= column && column < appState.slipColumns;
}

std::optional<int> BonusLetterAt(int gameType, int cell) {
    const int letter = cell - BoardOf(gameType).firstWordCell;
    const bool isInWord = 0 <= letter && letter < static_cast<int>(bonusWord.size());
    return HasBonus(gameType) && isInWord ? std::optional(letter) : std::nullopt;
}

}  // namespace ballhaven
