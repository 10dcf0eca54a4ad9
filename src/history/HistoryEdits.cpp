#include "history/HistoryEdits.h"

#include "screen/MainForm.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

/// Puts a pick into the column of every row from 0 to `last` that has the date.
void StorePick(Table& table, int last, std::int16_t date, int column, std::int16_t pick) {
    for (int row = 0; row <= last; ++row) {
        if (table.Has(column, row) && table(0, row) == date) {
            table(column, row) = pick;
        }
    }
}

}  // namespace

bool IsPickInRange(int column) {
    const bool isMain = column <= appState.mainPickCount;
    if (column == 0 || IsCardGame(appState.gameType) || (!isMain && appState.gameType == 0)) {
        return true;
    }
    const std::string text = modUTILS::Trimmed(frmMainForm.grdHist.Text(column));
    if (text.empty()) {
        return true;
    }
    const auto value = modUTILS::ValueOf(text);
    return isMain ? appState.mainLow <= value && value <= appState.mainHigh
                  : appState.bonusLow <= value && value <= appState.bonusHigh;
}

void PostLogEdit(int column) {
    const std::string text = modUTILS::Trimmed(frmMainForm.grdHist.Text(column));
    const std::int16_t pick = text.empty() ? std::int16_t{-1} : modUTILS::ValueOf16(text);
    std::string date = frmMainForm.grdHist.Text(0);
    DateToSerial(date);
    StorePick(appState.historyView, appState.historyViewLast, appState.dateSerial, column, pick);
    StorePick(appState.HistoryTable, appState.historyLast, appState.dateSerial, column, pick);
    MarkHotTablesStale();
}

}  // namespace ballhaven
