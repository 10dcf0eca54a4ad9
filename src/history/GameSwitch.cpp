#include "history/GameSwitch.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "forms/SelectorLists.h"
#include "history/HistoryFile.h"
#include "history/HistoryView.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTables.h"
#include "wheels/ShuffleFile.h"

namespace ballhaven {

namespace {

/// The slot of the game shown last. A damaged record has slot 1.
std::int16_t StoredSlot() {
    const std::int16_t slot = FieldValue(appState.systemRecord, systemField::shownSlot);
    return slot < 1 || slot > gameSlots ? std::int16_t{1} : slot;
}

void ChooseCurrentGame() {
    if (appState.currentGame == 0) {
        appState.currentGame = StoredSlot();
        return;
    }
    appState.currentGame = modUTILS::ToInt16(frmMainForm.cboList[0].Selected() + 1);
    SetFieldValue(appState.systemRecord, systemField::shownSlot, appState.currentGame);
    SaveSystemRecord();
}

void LoadPlays() {
    appState.currentPlay = 1;
    LoadPlayFile();
    frmMainForm.lblPlay.text = "1.A";
    frmMainForm.grdPlay.ReadAgain();
}

void LoadDraws() {
    frmMainForm.logLastColumn = appState.totalPicks;
    LoadHistory();
    BuildHistoryView();
}

void ShowHotTableFromTheTop() {
    appState.hotTableChoice = 1;
    frmMainForm.hotRowCount = modUTILS::ToInt16(appState.hotNumberLast + 1);
    ShowHotNumbersCaption();
    ShowHotHeadings();
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    frmMainForm.grdHot.ReadAgain();
    frmMainForm.grdHot.GoTo(0, 2);
}

void EmptyTables() {
    appState.historyView = Table(appState.totalPicks + 1, 1);
    appState.hotNumberTable = Table(4, 1);
    appState.hotPairTable = Table(4, 1);
    appState.pairedOnceTable = Table(3, 1);
    appState.repeaterTable = Table(3, 1);
}

void GoToNewestDraw() {
    frmMainForm.grdHist.GoToRow(appState.historySortOrder != 0 ? appState.historyViewLast : 0);
}

void BringIntoView(std::int16_t date) {
    frmMainForm.grdHist.GoToColumn(1);
    if (date == -1) {
        GoToNewestDraw();
        return;
    }
    const int row = RowOfDate(date);
    if (row >= 0) {
        frmMainForm.grdHist.GoToRow(row);
        const bool typesPicks = !IsCardGame(appState.gameType) && appState.pendingLogDate != 0;
        frmMainForm.grdHist.GoToColumn(typesPicks ? 1 : 0);
        return;
    }
    GoToNewestDraw();
    // QUIRK SMALLER-SET-1: the words speak of an added record also when the user only chose a smaller set and the
    // current draw is not in it. They are meant: in both cases the way out is a larger set.
    if (appState.pendingLogDate != -1) {
        platform::Tell(
            "The record you have added cannot be displayed within the selected history set.\n"
            "If you wish to see this record, select larger history set.");
    }
    frmMainForm.grdHist.GoToColumn(0);
}

}  // namespace

void SwitchGame() {
    const platform::WaitPointer waiting;
    appState.colorMode = 0;
    OpenGameTable();
    ChooseCurrentGame();
    ClearHiLiteBoxes();
    LoadGameRecord(appState.currentGame);
    frmMainForm.gameLoading = true;
    SizePlayGrid();
    LoadPlays();
    LoadDraws();
    LoadShuffleFile();
    ShowViewChecks();
    ArrangeLogColumns();
    ArrangeHiLiteBoxes();
    ArrangeHotOptions();
    HideCards();
    RefreshHistory(-1);
    ShowHotTableFromTheTop();
    ListGames();
    LoadHistorySetList();
    LoadComboHot();
    frmMainForm.gameLoading = false;
}

void RefreshHistory(std::int16_t date) {
    frmMainForm.cmdColorHist.visible = false;
    const bool isEmpty = appState.historyLast < 0;
    {
        // A pick that is still being typed is taken now, and saved. The log does not report the moves: they would end
        // the winners' display, which is for the user's own.
        const platform::GridPause pause(frmMainForm.grdHist);
        if (appState.historyDirty) {
            SaveHistory(0);
        }
        MarkHotTablesStale();
        BuildHistoryView();
        ComputeHotTable();
        if (isEmpty) {
            EmptyTables();
        } else {
            BringIntoView(date);
        }
    }
    frmMainForm.grdHist.ReadAgain();
    if (isEmpty) {
        return;
    }
    PlaceHiLiteDrawingButton();
    if (frmMainForm.grdHist.visible) {
        frmMainForm.grdHist.TakeFocus();
    }
}

void SaveWhatIsDirty() {
    frmMainForm.grdHist.EndEdit();
    if (appState.historyDirty) {
        SaveHistory(0);
    }
    if (appState.playsDirty) {
        appState.playsDirty = false;
        SavePlayFile();
    }
}

}  // namespace ballhaven
