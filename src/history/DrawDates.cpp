#include "history/DrawDates.h"

#include "history/HistoryFile.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/DateMask.h"
#include "state/DateSerial.h"
#include "state/DateText.h"
#include "state/DrawCells.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <cstdint>

namespace ballhaven {

namespace {

constexpr int choosingNewDraw = -1;

// A view that ends before this row counts a new draw at once, before it is cut again.
constexpr int endOfSmallView = 10;

void TellDateExists() {
    platform::Tell("Date already exists,\nplease select another date.", platform::BoxIcon::Information);
}

bool AsksToChange() {
    return platform::Ask("Are you sure you want to change this date?");
}

void ChangeDate(Table& history, int last, std::int16_t oldDate, std::int16_t date) {
    if (const int row = RowOfDate(history, last, oldDate); row >= 0) {
        history(dateColumn, row) = date;
    }
}

/// The row for a new draw behind rows 0 to `last`.
int RowForNewDraw(int last) {
    // QUIRK FULL-LOG-1: a full table replaces its first draw, the oldest one, without a word: who enters draw number
    // 1001 keeps the last 1000. Refusing it would stop the log for good.
    return last == historyRows - 1 ? 0 : last + 1;
}

void PutNewDraw(Table& history, int row, std::int16_t date) {
    const auto cells = history.Row(row);
    std::ranges::fill(cells, blankPick);
    cells[dateColumn] = date;
}

void AddDraw(std::int16_t date) {
    const int row = RowForNewDraw(appState.historyLast);
    if (row > appState.historyLast) {
        appState.historyLast = modUTILS::ToInt16(row);
        if (row > appState.historyViewLast && appState.historyViewLast < endOfSmallView) {
            appState.historyViewLast = appState.historyLast;
        }
    }
    PutNewDraw(appState.HistoryTable, row, date);
}

}  // namespace

std::chrono::year_month_day BeginNewDraw() {
    appState.pendingLogDate = choosingNewDraw;
    appState.logDateText.clear();
    const std::chrono::year_month_day today = platform::services.today();
    if (appState.nextLogDate == 0) {
        appState.nextLogDate = ReadSerial(FormatDate(today, DateMaskOf(appState.shortDateFormat)));
        return today;
    }
    // QUIRK OFFERED-DATE-1: the day after the last draw is offered only where there are two draws and it is not the
    // first offer since the game was loaded; else it is today. Offering the next day always would put the draw of the
    // day on the day after a gap.
    if (appState.historyLast <= 0) {
        return today;
    }
    appState.nextLogDate = modUTILS::ToInt16(appState.HistoryTable(dateColumn, appState.historyLast) + 1);
    return DateOfText(SerialToDate(appState.nextLogDate), appState.shortDateFormat).value_or(today);
}

std::chrono::year_month_day BeginDateChange(const std::string& date) {
    appState.logDateText = date;
    return DateOfText(date, appState.shortDateFormat).value_or(platform::services.today());
}

bool TakeChosenDate(const std::string& chosen) {
    const bool isNewDraw = appState.pendingLogDate != 0;
    if (appState.pendingLogDate < 1 && modUTILS::Trimmed(chosen) == modUTILS::Trimmed(appState.logDateText)) {
        return true;
    }
    const std::int16_t date = ReadSerial(chosen);
    // QUIRK FIRST-DAY-1: 1 January 1984 can be chosen, and nothing comes of it. Its number is 0, which stands for a row
    // without a draw: a draw that took it would be gone, and the draws behind its row with it.
    if (date < 1) {
        return true;
    }
    if (appState.historyViewLast >= 0 && RowOfDate(appState.HistoryTable, appState.historyLast, date) >= 0) {
        TellDateExists();
        return false;
    }
    const platform::WaitPointer waiting;
    if (isNewDraw) {
        AddDraw(date);
    } else if (AsksToChange()) {
        ChangeDate(appState.HistoryTable, appState.historyLast, ReadSerial(appState.logDateText), date);
        appState.dateSerial = date;
    } else {
        return true;
    }
    // QUIRK ENTRY-ORDER-1: the draws are saved before they are sorted, and after it only if something else has changed:
    // the entry is on the disk at once. Sorting here would move the rows under a log that still shows them in their
    // earlier places.
    SaveHistory(0);
    appState.pendingLogDate = appState.dateSerial;
    return true;
}

void EndDateChoice() {
    if (appState.pendingLogDate == choosingNewDraw) {
        appState.pendingLogDate = 0;
    }
}

}  // namespace ballhaven
