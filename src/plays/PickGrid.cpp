#include "plays/PickGrid.h"

#include "state/AppState.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

constexpr int rowsOfOneBlock = 12;

bool IsDigit(char character) {
    return '0' <= character && character <= '9';
}

}  // namespace

int PickGridRows() {
    return HasBonus(appState.gameType) ? 2 * rowsOfOneBlock : rowsOfOneBlock;
}

std::optional<std::string> PlayBoardText(int row, int column) {
    if (row < 0 || row >= PickGridRows() || column < 0 || column >= appState.slipColumns) {
        return std::nullopt;
    }
    std::string text = PickCellText(row * appState.slipColumns + column);
    const bool isCard = IsCardGame(appState.gameType) && !text.empty() && IsDigit(text.front());
    return isCard ? CardToText(modUTILS::ValueOf16(text)) : text;
}

}  // namespace ballhaven
