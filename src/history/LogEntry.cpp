#include "history/LogEntry.h"

#include "forms/MainForm.h"
#include "history/PickEntry.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/DrawCells.h"
#include "state/modUTILS.h"

namespace ballhaven {

std::int16_t LogDate() {
    return ReadSerial(frmMainForm.grdHist.Text(dateColumn));
}

void PostLogEdit(int column, const std::string& text) {
    StorePick(LogDate(), column, modUTILS::ToInt16(TypedPick(text).value_or(blankPick)));
}

void SetLogCard(std::int16_t code) {
    const int column = frmMainForm.grdHist.CurrentColumn();
    if (column >= 1 && column <= appState.totalPicks) {
        StorePick(LogDate(), column, code);
    }
}

}  // namespace ballhaven
