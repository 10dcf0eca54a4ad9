#include "history/GameSwitch.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "forms/SelectorLists.h"
#include "forms/ShuffleForm.h"
#include "history/HistoryFile.h"
#include "history/HistoryView.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/DrawCells.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTables.h"
#include "wheels/ShuffleFile.h"

#include <string>
#include <utility>

namespace ballhaven {

namespace {

/// The slot of the game shown last. A damaged record has slot 1.
std::int16_t StoredSlot(const std::string& systemRecord) {
    const std::int16_t slot = FieldValue(systemRecord, systemField::shownSlot);
    return slot < 1 || slot > gameSlots ? std::int16_t{1} : slot;
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

void LoadChosenPicks() {
    LoadShuffleFile();
    if (appState.shuffleWindowOpen) {
        frmShuffle.grdShuffle.ReadAgain();
    }
}

void ShowHotTableFromTheTop() {
    appState.hotTableChoice = 1;
    frmMainForm.hotRowCount = modUTILS::ToInt16(appState.hotNumberLast + 1);
    ShowHotNumbersCaption();
    ShowHotHeadings();
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    frmMainForm.grdHot.GoTo(0, 2);
}

void EmptyTables() {
    appState.historyView = Table(appState.totalPicks + 1, 1);
    appState.hotNumberTable = CountTable(4, 1);
    appState.hotPairTable = CountTable(4, 1);
    appState.pairedOnceTable = CountTable(3, 1);
    appState.repeaterTable = CountTable(3, 1);
}

/// The row of the newest draw in a view up to `last`.
int NewestRow(int last, bool newestFirst) {
    return newestFirst ? 0 : last;
}

void TellDrawIsNotInSet() {
    // QUIRK SMALLER-SET-1: the words speak of an added record also when the user only chose a smaller set and the
    // current draw is not in it. In both cases the way out is a larger set.
    platform::Tell(
        "The record you have added cannot be displayed within the selected history set.\n"
        "If you wish to see this record, select larger history set.");
}

void BringIntoView(platform::Grid& log, std::int16_t date) {
    const int row = date == newestDraw ? -1 : RowOfDate(date);
    log.GoTo(row >= 0 ? row : NewestRow(appState.historyViewLast, appState.historySortOrder == 0), 1);
    if (date == newestDraw) {
        return;
    }
    if (row < 0 && appState.pendingLogDate != -1) {
        TellDrawIsNotInSet();
    }
    const bool typesPicks = row >= 0 && !IsCardGame(appState.gameType) && appState.pendingLogDate != 0;
    log.GoToColumn(typesPicks ? 1 : 0);
}

}  // namespace

void SwitchGame() {
    const platform::WaitPointer waiting;
    OpenGameTable();
    if (appState.currentGame == 0) {
        SwitchGameTo(StoredSlot(appState.systemRecord));
        return;
    }
    const std::int16_t slot = modUTILS::ToInt16(frmMainForm.cboList[0].Selected() + 1);
    SetFieldValue(appState.systemRecord, systemField::shownSlot, slot);
    SaveSystemRecord();
    SwitchGameTo(slot);
}

void SwitchGameTo(std::int16_t slot) {
    const platform::WaitPointer waiting;
    // Events that are let in while a file gets its full size must find nobody reading half a game.
    const platform::GridPause logPause(frmMainForm.grdHist);
    const platform::GridPause hotPause(frmMainForm.grdHot);
    appState.colorMode = 0;
    appState.currentGame = slot;
    ClearHiLiteBoxes();
    LoadGameRecord(slot);
    frmMainForm.gameLoading = true;
    SizePlayGrid();
    LoadPlays();
    LoadDraws();
    LoadChosenPicks();
    ShowViewChecks();
    ArrangeLogColumns();
    ArrangeHiLiteBoxes();
    ArrangeHotOptions();
    HideCards();
    RefreshHistory(newestDraw);
    ShowHotTableFromTheTop();
    ListGames();
    LoadHistorySetList();
    LoadComboHot();
    frmMainForm.gameLoading = false;
}

void BuildHistoryView() {
    const bool newestFirst = appState.historySortOrder == 0;
    Draws view = ViewOf(appState.HistoryTable, appState.historyLast, appState.totalPicks,
                        {.size = appState.historySetSize, .newestFirst = newestFirst});
    appState.historyView = std::move(view.table);
    appState.historyViewLast = view.last;
    frmMainForm.logRowCount = view.last + 1;
    frmMainForm.grdHist.SetRowCount(frmMainForm.logRowCount);
    if (view.last >= 0) {
        frmMainForm.newestDrawText = SerialToDate(appState.historyView(dateColumn, NewestRow(view.last, newestFirst)));
    }
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
            BringIntoView(frmMainForm.grdHist, date);
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

void SaveBeforeReload() {
    SaveWhatIsDirty();
    if (appState.shuffleWindowOpen) {
        SaveShuffleFile();
    }
}

}  // namespace ballhaven
