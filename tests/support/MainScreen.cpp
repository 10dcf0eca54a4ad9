#include "support/MainScreen.h"

#include "forms/MainForm.h"
#include "history/HistoryRefresh.h"
#include "state/AppState.h"
#include "support/FreshStart.h"

namespace ballhaven::support {

void StartWith(const Game& game) {
    LayOutAfresh();
    SetUpGame(game);
    frmMainForm.logLastColumn = appState.totalPicks;
}

void ShowDraws(const std::vector<DrawPicks>& draws) {
    SetUpDraws({});
    const std::int16_t firstDay = SerialOf("01/01/1990");
    for (const DrawPicks& picks : draws) {
        const int row = ++appState.historyLast;
        appState.HistoryTable(0, row) = static_cast<std::int16_t>(firstDay + row);
        for (int column = 1; column <= appState.totalPicks; ++column) {
            const auto pick = static_cast<std::size_t>(column - 1);
            appState.HistoryTable(column, row) = static_cast<std::int16_t>(pick < picks.size() ? picks[pick] : -1);
        }
    }
    BuildHistoryView();
}

void FillBox(int box, const char* text) {
    frmMainForm.txtHiLite[static_cast<std::size_t>(box)].text = std::string(text);
}

}  // namespace ballhaven::support
