#include "history/DrawDates.h"

#include "forms/MainForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryFile.h"
#include "history/HistoryView.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/DateMask.h"
#include "state/DateText.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <cstdint>

namespace ballhaven {

namespace {

constexpr int dateColumn = 0;
constexpr std::int16_t blankPick = -1;
constexpr int choosingNewDraw = -1;

// A view of so many rows counts a new draw before it has been cut again.
constexpr int viewThatCountsNewDraw = 10;

/// The first row of `HistoryTable` with a date, -1 if there is none.
int FindDraw(std::int16_t date) {
    for (int row = 0; row <= appState.historyLast; ++row) {
        if (appState.HistoryTable.PickAt(dateColumn, row) == date) {
            return row;
        }
    }
    return -1;
}

std::int16_t SerialOfText(std::string text) {
    DateToSerial(text);
    return appState.dateSerial;
}

void GoToDraw(const std::string& date) {
    for (int row = 0; row <= appState.historyViewLast; ++row) {
        if (SerialToDate(appState.historyView(dateColumn, row)) == date) {
            frmMainForm.grdHist.GoToRow(row);
        }
    }
}

std::chrono::year_month_day DateToOffer() {
    const std::chrono::year_month_day today = platform::services.today();
    if (appState.nextLogDate == 0) {
        appState.nextLogDate = SerialOfText(FormatDate(today, DateMaskOf(appState.shortDateFormat)));
        return today;
    }
    // QUIRK OFFERED-DATE-1: the day after the last draw is offered only where there are two draws and it is not the
    // first offer since the game was loaded; else it is today. It is meant: a log is begun, and taken up again, with
    // the draw of the day. Offering the next day always would put that draw on the day after a gap.
    if (appState.historyLast <= 0) {
        return today;
    }
    appState.nextLogDate = modUTILS::ToInt16(appState.HistoryTable(dateColumn, appState.historyLast) + 1);
    return TextToDate(SerialToDate(appState.nextLogDate)).value_or(today);
}

void SayDateExists() {
    platform::Tell("Date already exists,\nplease select another date.", platform::BoxIcon::Information);
}

bool AsksToChange() {
    return platform::Ask("Are you sure you want to change this date?");
}

void ChangeDate(std::int16_t date) {
    const std::int16_t oldDate = SerialOfText(frmMainForm.grdHist.Text(dateColumn));
    if (const int row = FindDraw(oldDate); row >= 0) {
        appState.HistoryTable(dateColumn, row) = date;
    }
    appState.dateSerial = date;
}

/// The row for a new draw, which is counted.
int RowForNewDraw() {
    // QUIRK FULL-LOG-1: a full table replaces its first draw, the oldest one, without a word. It is meant: who enters
    // draw number 1001 keeps the last 1000. Refusing it would stop the log for good.
    if (appState.historyLast == historyRows - 1) {
        return 0;
    }
    ++appState.historyLast;
    if (appState.historyLast > appState.historyViewLast && appState.historyViewLast < viewThatCountsNewDraw) {
        appState.historyViewLast = appState.historyLast;
    }
    return appState.historyLast;
}

void AddDraw(std::int16_t date) {
    const auto cells = appState.HistoryTable.Row(RowForNewDraw());
    std::ranges::fill(cells, blankPick);
    cells[dateColumn] = date;
}

}  // namespace

std::chrono::year_month_day BeginNewDraw() {
    // A draw that still waits for the timer would be forgotten by the next choice.
    BringInChosenDraw();
    appState.pendingLogDate = choosingNewDraw;
    appState.logDateText.clear();
    return DateToOffer();
}

std::chrono::year_month_day BeginDateChange() {
    platform::Grid& log = frmMainForm.grdHist;
    if (appState.pendingLogDate > 0) {
        const std::string date = log.Text(dateColumn);
        BringInChosenDraw();
        GoToDraw(date);
    }
    log.GoToColumn(dateColumn);
    appState.logDateText = log.Text(dateColumn);
    return TextToDate(appState.logDateText).value_or(platform::services.today());
}

bool TakeChosenDate(const std::string& chosen) {
    const bool isNewDraw = appState.pendingLogDate != 0;
    if (appState.pendingLogDate < 1 && modUTILS::Trimmed(chosen) == modUTILS::Trimmed(appState.logDateText)) {
        return true;
    }
    const std::int16_t date = SerialOfText(chosen);
    // QUIRK FIRST-DAY-1: 1 January 1984 can be chosen, and nothing comes of it. Its number is 0, which stands for a row
    // without a draw: a draw that took it would be gone, and the draws behind its row with it.
    if (date < 1) {
        return true;
    }
    if (appState.historyViewLast >= 0 && FindDraw(date) >= 0) {
        SayDateExists();
        return false;
    }
    const platform::WaitPointer waiting;
    if (isNewDraw) {
        AddDraw(date);
    } else if (AsksToChange()) {
        ChangeDate(date);
    } else {
        return true;
    }
    // QUIRK ENTRY-ORDER-1: the draws are saved before they are sorted, and after it only if something else has changed.
    // It is meant: the entry is on the disk at once, and one save is enough to keep it. Sorting here would move the
    // rows under a log that still shows them in their earlier places.
    SaveHistory(0);
    appState.pendingLogDate = appState.dateSerial;
    return true;
}

void EndDateChoice() {
    if (appState.pendingLogDate == choosingNewDraw) {
        appState.pendingLogDate = 0;
    }
}

void BringInChosenDraw() {
    if (frmMainForm.windowStarting || appState.pendingLogDate < 1) {
        return;
    }
    const platform::WaitPointer waiting;
    SortHistory();
    RefreshHistory(modUTILS::ToInt16(appState.pendingLogDate));
    appState.pendingLogDate = 0;
    frmMainForm.gameLoading = false;
}

}  // namespace ballhaven
