#include "history/DrawCommands.h"

#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "history/DrawDates.h"
#include "history/HistoryRefresh.h"
#include "history/HistoryView.h"
#include "history/LogEntry.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/DrawCells.h"
#include "state/MendedFolder.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"

#include <chrono>

namespace ballhaven {

namespace {

/// Opens the calendar on a date, and returns when it has closed.
void ChooseDate(std::chrono::year_month_day offered) {
    ahcCalendar.Terminate();
    ahcCalendar.OutputControl = &frmMainForm.grdHist;
    ahcCalendar.SetToday(offered);
    ahcCalendar.OutputFormat.clear();
    ahcCalendar.Initialize();
    EndDateChoice();
}

// A pick that is still being typed is taken before a command; one that is refused keeps the cursor. A draw that still
// waits for the timer would be forgotten by the next choice of a date.

void AddDraw() {
    if (frmMainForm.grdHist.EndEdit()) {
        const platform::WaitPointer waiting;
        BringInChosenDraw();
        ChooseDate(BeginNewDraw());
    }
}

void DeleteCurrentDraw() {
    if (frmMainForm.grdHist.EndEdit()) {
        DeleteDraw();
    }
}

/// Brings in the draw that waits for the timer; the log's current row stays that of its date.
void BringInBesideCurrentRow() {
    if (appState.pendingLogDate < 1) {
        return;
    }
    const std::int16_t date = LogDate();
    BringInChosenDraw();
    if (const int row = RowOfDate(date); row >= 0) {
        frmMainForm.grdHist.GoToRow(row);
    }
}

void ChangeDate() {
    frmMainForm.grdHist.GoToPane(datePane);
    BringInBesideCurrentRow();
    frmMainForm.grdHist.GoToColumn(dateColumn);
    ChooseDate(BeginDateChange(frmMainForm.grdHist.Text(dateColumn)));
}

/// The date of the draw to go to when the one in a row of the view has gone: that of the row behind it, else of the row
/// before it; 0 if it is the only one.
std::int16_t DateBeside(int row) {
    const int neighbour = row < appState.historyViewLast ? row + 1 : row - 1;
    return row < 0 || neighbour < 0 ? std::int16_t{0} : appState.historyView.PickAt(dateColumn, neighbour);
}

void TakeOutOfTable(std::int16_t date) {
    if (const int row = RowOfDate(appState.HistoryTable, appState.historyLast, date); row >= 0) {
        appState.HistoryTable(dateColumn, row) = 0;
        appState.historyDirty = true;
        CompactHistory();
    }
}

bool AsksToDelete(std::int16_t date) {
    return platform::AskBeforeLoss("Delete record for " + SerialToDate(date) + "?", platform::BoxIcon::Critical);
}

}  // namespace

void BringInChosenDraw() {
    if (frmMainForm.windowStarting || frmMainForm.bringingInDraw || appState.pendingLogDate < 1) {
        return;
    }
    const platform::WaitPointer waiting;
    frmMainForm.bringingInDraw = true;
    SortHistory();
    RefreshHistory(modUTILS::ToInt16(appState.pendingLogDate));
    const bool isNewDraw = appState.logDateText.empty();
    // In a mended folder the draws stand in the file as they are sorted, also after another date.
    if (isNewDraw || FolderIsMended()) {
        appState.historyDirty = true;
    }
    appState.pendingLogDate = 0;
    frmMainForm.gameLoading = false;
    frmMainForm.bringingInDraw = false;
}

void DeleteDraw() {
    if (appState.historyViewLast < 0) {
        return;
    }
    frmMainForm.cmdColorHist.visible = false;
    const std::int16_t date = LogDate();
    if (date < 1 || !AsksToDelete(date)) {
        frmMainForm.grdHist.Repaint();  // brings the button back
        return;
    }
    const platform::WaitPointer waiting;
    const std::int16_t next = DateBeside(RowOfDate(date));
    TakeOutOfTable(date);
    RefreshHistory(next < 1 ? newestDraw : next);
}

void WireDrawCommands() {
    frmMainForm.mnuEditArray[editEntry::addDraw].click = AddDraw;
    frmMainForm.mnuEditArray[editEntry::deleteDraw].click = DeleteCurrentDraw;
    frmMainForm.grdHist.dropDown = [](int) { ChangeDate(); };
    frmMainForm.tmrMessage.tick = BringInChosenDraw;
    ahcCalendar.acceptDate = TakeChosenDate;
}

}  // namespace ballhaven
