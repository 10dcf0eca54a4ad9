#include "screen/LogGrid.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "history/HistoryEdits.h"
#include "platform/Boxes.h"
#include "plays/BoardRedraw.h"
#include "screen/CardPicker.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "statistics/HotTables.h"

namespace ballhaven {

namespace {

constexpr int marginWidth = 255;
constexpr int marginRowHeight = 225;

bool AcceptPick(int column, const std::string& text) {
    if (IsPickInRange(column, text)) {
        return true;
    }
    platform::Tell("Number out of range for this lottery game");
    return false;
}

void TakePick(int column, const std::string& text) {
    PostLogEdit(column, text);
    ComputeHotTable();
    if (column == appState.totalPicks) {
        frmMainForm.grdHist.ReadAgain();
        frmMainForm.grdHist.GoToPane(datePane);
        frmMainForm.grdHist.GoToColumn(0);
    }
}

bool ServeKey(platform::GridKey key) {
    switch (key) {
        case platform::GridKey::Insert:
            frmMainForm.grdHist.SelectCellText();
            return true;
        case platform::GridKey::Left:
            if (frmMainForm.grdHist.CurrentColumn() != 1 || frmMainForm.grdHist.HasSelectedText()) {
                return false;
            }
            frmMainForm.grdHist.GoToPane(datePane);
            return true;
        case platform::GridKey::Right:
        case platform::GridKey::Tab:
            if (frmMainForm.grdHist.CurrentColumn() != 0) {
                return false;
            }
            frmMainForm.grdHist.GoToPane(pickPane);
            return true;
        case platform::GridKey::Other:
            return false;
    }
    return false;
}

/// A press in the row-selector margin makes the row beside it the current one.
void SelectRowByMargin(int x, int y) {
    const int line = y / marginRowHeight;
    if (frmMainForm.grdHist.CurrentPane() == datePane && x <= marginWidth && line >= 1 &&
        line <= frmMainForm.grdHist.VisibleRows()) {
        frmMainForm.grdHist.GoToRow(frmMainForm.grdHist.FirstVisibleRow() + line - 1);
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
    OpenOrCloseLogCards();
    EndWinnersDisplay();
}

}  // namespace

void WireLogGrid() {
    frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
    frmMainForm.grdHist.cellStyle = platform::ByRowAndColumn(LogCellStyle);
    frmMainForm.grdHist.acceptEdit = AcceptPick;
    frmMainForm.grdHist.edited = TakePick;
    frmMainForm.grdHist.keyDown = ServeKey;
    frmMainForm.grdHist.mousePress = ServePress;
    frmMainForm.grdHist.click = ServeClick;
    frmMainForm.grdHist.currentCellChanged = ServeMove;
    frmMainForm.grdHist.painted = PlaceHiLiteDrawingButton;
}

}  // namespace ballhaven
