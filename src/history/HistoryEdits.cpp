#include "history/HistoryEdits.h"

#include "forms/MainForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryView.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

/// Puts a pick into the column of every row from 0 to `last` that has the date.
void StoreInTable(Table& table, int last, std::int16_t date, int column, std::int16_t pick) {
    for (int row = 0; row <= last; ++row) {
        if (table.Has(column, row) && table(0, row) == date) {
            table(column, row) = pick;
        }
    }
}

/// Puts a pick into the column of every draw that has the date of the log's current row.
void StorePick(int column, std::int16_t pick) {
    std::string date = frmMainForm.grdHist.Text(0);
    DateToSerial(date);
    StoreInTable(appState.historyView, appState.historyViewLast, appState.dateSerial, column, pick);
    StoreInTable(appState.HistoryTable, appState.historyLast, appState.dateSerial, column, pick);
    MarkHotTablesStale();
}

/// The first row from 0 to `last` with a date, -1 if there is none.
int FindDate(const Table& table, int last, std::int16_t date) {
    for (int row = 0; row <= last; ++row) {
        if (table.PickAt(0, row) == date) {
            return row;
        }
    }
    return -1;
}

/// The date of the draw to go to when the one in a row of the view has gone: that of the row behind it, else of the row
/// before it; 0 if it is the only one.
std::int16_t DateBeside(int row) {
    const int neighbour = row < appState.historyViewLast ? row + 1 : row - 1;
    return row < 0 || neighbour < 0 ? std::int16_t{0} : appState.historyView.PickAt(0, neighbour);
}

void TakeOutOfTable(std::int16_t date) {
    if (const int row = FindDate(appState.HistoryTable, appState.historyLast, date); row >= 0) {
        appState.HistoryTable(0, row) = 0;
        appState.historyDirty = true;
        CompactHistory();
    }
}

bool AsksToDelete(std::int16_t date) {
    return platform::AskBeforeLoss("Delete record for " + SerialToDate(date) + "?", platform::BoxIcon::Critical);
}

}  // namespace

bool IsPickInRange(int column, const std::string& text) {
    const bool isMain = column <= appState.mainPickCount;
    if (column == 0 || IsCardGame(appState.gameType) || (!isMain && appState.gameType == 0)) {
        return true;
    }
    if (modUTILS::Trimmed(text).empty()) {
        return true;
    }
    const auto value = modUTILS::ValueOf(text);
    return isMain ? appState.mainLow <= value && value <= appState.mainHigh
                  : appState.bonusLow <= value && value <= appState.bonusHigh;
}

void PostLogEdit(int column, const std::string& text) {
    StorePick(column, modUTILS::Trimmed(text).empty() ? std::int16_t{-1} : modUTILS::ValueOf16(text));
}

void SetLogCard(std::int16_t code) {
    const int column = frmMainForm.grdHist.CurrentColumn();
    if (column >= 1 && column <= appState.totalPicks) {
        StorePick(column, code);
    }
}

void DeleteDraw() {
    if (appState.historyViewLast < 0) {
        return;
    }
    frmMainForm.cmdColorHist.visible = false;
    std::string text = frmMainForm.grdHist.Text(0);
    DateToSerial(text);
    const std::int16_t date = appState.dateSerial;
    if (date < 1 || !AsksToDelete(date)) {
        return;
    }
    const platform::WaitPointer waiting;
    const std::int16_t next = DateBeside(FindDate(appState.historyView, appState.historyViewLast, date));
    TakeOutOfTable(date);
    RefreshHistory(next < 1 ? std::int16_t{-1} : next);
}

}  // namespace ballhaven
