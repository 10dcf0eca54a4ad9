#include "screen/LogGrid.h"

#include "history/HistoryEdits.h"
#include "platform/MessageBox.h"
#include "plays/PlayFile.h"
#include "screen/CardPicker.h"
#include "screen/GamePresentation.h"
#include "screen/LogCells.h"
#include "screen/MainForm.h"
#include "state/AppState.h"
#include "statistics/HotNumbers.h"

namespace ballhaven {

namespace {

platform::Grid& log = frmMainForm.grdHist;

constexpr int marginWidth = 255;
constexpr int marginRowHeight = 225;

bool AcceptPick(int column) {
    if (IsPickInRange(column)) {
        return true;
    }
    platform::ShowMessageBox("Number out of range for this lottery game");
    return false;
}

void TakePick(int column) {
    PostLogEdit(column);
    ComputeHotTable();
    if (column == appState.totalPicks) {
        log.ReadAgain();
        log.GoToPane(datePane);
        log.GoToColumn(0);
    }
}

bool ServeKey(platform::GridKey key) {
    switch (key) {
        case platform::GridKey::Insert:
            log.SelectCellText();
            return true;
        case platform::GridKey::Left:
            if (log.CurrentColumn() != 1 || log.HasSelectedText()) {
                return false;
            }
            log.GoToPane(datePane);
            return true;
        case platform::GridKey::Right:
        case platform::GridKey::Tab:
            if (log.CurrentColumn() != 0) {
                return false;
            }
            log.GoToPane(pickPane);
            return true;
        case platform::GridKey::Other:
            return false;
    }
    return false;
}

/// A press in the row-selector margin makes the row beside it the current one.
void SelectRowByMargin(int x, int y) {
    const int line = y / marginRowHeight;
    if (log.CurrentPane() == datePane && x <= marginWidth && line >= 1 && line <= log.VisibleRows()) {
        log.GoToRow(log.FirstVisibleRow() + line - 1);
    }
}

// QUIRK LOG-DIRTY-1: a press of the mouse marks the history as changed, whether anything is changed after it or not,
// and typing alone does not. It is meant: marking on each typed pick would write the file for a cell that was only
// tried.
void ServePress(int x, int y) {
    appState.historyDirty = true;
    SelectRowByMargin(x, y);
}

void ServeClick() {
    if (IsCardGame(appState.gameType)) {
        frmMainForm.cardClicked = true;
    }
}

void EndWinnersDisplay() {
    if (appState.hiLiteWinners) {
        appState.hiLiteWinners = false;
        RefreshPlayGrids();
    }
}

void ServeMove() {
    ServeLogCards();
    EndWinnersDisplay();
}

}  // namespace

void WireLogGrid() {
    log.cellText = LogCellValue;
    log.cellStyle = LogCellStyle;
    log.acceptEdit = AcceptPick;
    log.edited = TakePick;
    log.keyDown = ServeKey;
    log.mousePress = ServePress;
    log.click = ServeClick;
    log.currentCellChanged = ServeMove;
    log.painted = PlaceHiLiteDrawingButton;
}

}  // namespace ballhaven
