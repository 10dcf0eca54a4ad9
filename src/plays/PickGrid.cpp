#include "plays/PickGrid.h"

#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

bool IsDigit(char character) {
    return '0' <= character && character <= '9';
}

}  // namespace

std::optional<std::string> PlayBoardText(int row, int column) {
    if (!IsOnBoard(row, column)) {
        return std::nullopt;
    }
    std::string text = PickCellText(CellNumberAt(row, column));
    const bool isCard = IsCardGame(appState.gameType) && !text.empty() && IsDigit(text.front());
    return isCard ? CardToText(modUTILS::ValueOf16(text)) : text;
}

}  // namespace ballhaven
