#include "history/HistoryRefresh.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "history/HistoryFile.h"
#include "history/HistoryView.h"
#include "platform/Boxes.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/DrawCells.h"
#include "state/ViewRows.h"
#include "statistics/HotTables.h"

#include <utility>

namespace ballhaven {

namespace {

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

}  // namespace ballhaven
