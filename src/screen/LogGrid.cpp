#include "screen/LogGrid.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "history/LogEntry.h"
#include "history/PickEntry.h"
#include "platform/Boxes.h"
#include "plays/PlayScreen.h"
#include "screen/CardPicker.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "state/GameRules.h"
#include "state/MendedFolder.h"
#include "statistics/HotTables.h"

namespace ballhaven {

namespace {

constexpr int marginWidth = 255;
constexpr int marginRowHeight = 225;

bool AcceptPick(int column, const std::string& text) {
    if (IsPickInRange(CurrentRules(), column, TypedPick(text))) {
        return true;
    }
    platform::Tell("Number out of range for this lottery game");
    return false;
}

// QUIRK LOG-DIRTY-1: a press of the mouse marks the history as changed, whether anything is changed after it or not,
// and typing alone does not. Marking on each typed pick would write the file for a cell that was only tried. In a
// mended folder that is the lesser evil.
void TakePick(int column, const std::string& text) {
    PostLogEdit(column, text);
    if (FolderIsMended()) {
        appState.historyDirty = true;
    }
    ComputeHotTable();
    if (column == appState.totalPicks) {
        frmMainForm.grdHist.ReadAgain();
        frmMainForm.grdHist.GoToPane(datePane);
        frmMainForm.grdHist.GoToColumn(0);
    }
}

/// What a key does beyond the grid's own; false where it is the grid's.
bool SelectOrChangePane(platform::GridKey key) {
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

void TakePress(int x, int y) {
    appState.historyDirty = true;
    SelectRowByMargin(x, y);
}

void NoteCardClick() {
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

void FollowCurrentCell() {
    OpenOrCloseLogCards();
    EndWinnersDisplay();
}

}  // namespace

void WireLogGrid() {
    frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
    frmMainForm.grdHist.cellStyle = platform::ByRowAndColumn(LogCellStyle);
    frmMainForm.grdHist.acceptEdit = AcceptPick;
    frmMainForm.grdHist.edited = TakePick;
    frmMainForm.grdHist.keyDown = SelectOrChangePane;
    frmMainForm.grdHist.mousePress = TakePress;
    frmMainForm.grdHist.click = NoteCardClick;
    frmMainForm.grdHist.currentCellChanged = FollowCurrentCell;
    frmMainForm.grdHist.painted = PlaceHiLiteDrawingButton;
}

}  // namespace ballhaven
