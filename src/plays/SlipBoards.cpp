#include "plays/SlipBoards.h"

#include "plays/PlayEditing.h"
#include "plays/PlaySlips.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

namespace ballhaven {

int PlayOfBoard(int board) {
    return appState.currentSlip * playsPerSlip - (playsPerSlip - 1) + board;
}

std::optional<std::string> SlipBoardText(const platform::GridCell& cell) {
    if (!IsOnBoard(cell.row, cell.column)) {
        return std::nullopt;
    }
    // QUIRK SLIP-LETTERS-1: in a card game every text is read as a card, and the letters of BONUS are none: the row
    // stays blank here, unlike on the main window's board. Files and habits rest on it.
    const std::string text = PickCellText(CellNumberAt(cell.row, cell.column));
    return IsCardGame(appState.gameType) ? CardToText(modUTILS::ValueOf16(text)) : text;
}

std::string SlipCellDescription(const platform::GridCell& cell) {
    const std::string pick = CellDescription(PlayOfBoard(cell.pane), CellNumberAt(cell.row, cell.column),
                                             SlipBoardText(cell).value_or(std::string()));
    return pick.empty() ? pick : std::string("Line ") + lineLetters[static_cast<std::size_t>(cell.pane)] + ", " + pick;
}

void EraseShownSlip() {
    for (int board = 0; board < playsPerSlip; ++board) {
        ErasePlay(PlayOfBoard(board));
    }
}

}  // namespace ballhaven
