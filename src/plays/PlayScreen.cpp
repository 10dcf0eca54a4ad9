#include "plays/PlayScreen.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "state/AppState.h"
#include "state/DateSerial.h"
#include "state/DrawCells.h"

namespace ballhaven {

namespace {

/// The last row of the table with a date, -1 if there is none.
int LastRowOfDate(const Table& draws, std::int16_t date) {
    int row = historyRows - 1;
    while (row >= 0 && draws.PickAt(dateColumn, row) != date) {
        --row;
    }
    return row;
}

}  // namespace

void RefreshPlayGrids() {
    if (appState.playsWindowOpen) {
        frmPlays.grdPlays[0].ReadAgain();
    }
    frmMainForm.grdPlay.ReadAgain();
}

std::span<const std::int16_t> DrawForWinners() {
    const platform::Grid& log = frmMainForm.grdHist;
    const Table& draws = appState.HistoryTable;
    int row = appState.historyLast;
    if (log.CurrentRow() >= 0) {
        const auto date = SerialOf(log.Text(dateColumn), appState.shortDateFormat);
        row = LastRowOfDate(draws, date.value_or(appState.dateSerial));
    }
    return draws.Has(dateColumn, row) ? draws.Row(row) : std::span<const std::int16_t>();
}

}  // namespace ballhaven
