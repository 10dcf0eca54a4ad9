#include "screen/Selectors.h"

#include <string>

#include "games/GameSlots.h"
#include "history/GameSwitch.h"
#include "platform/Application.h"
#include "platform/Pointer.h"
#include "screen/GamePresentation.h"
#include "screen/MainForm.h"
#include "screen/SelectorLists.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTables.h"

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;

bool IsFilling() {
    return form.windowStarting || form.gameLoading;
}

void ShowHotTableAnew() {
    form.grdHot.ReadAgain();
    form.grdHot.GoTo(0, 2);
    platform::ShowArrow();
}

void SelectGame() {
    if (form.cboList[0].Selected() + 1 == appState.currentGame) {
        platform::ShowArrow();
        return;
    }
    platform::ProcessPendingEvents();
    SaveWhatIsDirty();
    {
        const platform::GridPause logPause(form.grdHist);
        const platform::GridPause hotPause(form.grdHot);
        SwitchGame();
    }
    form.grdHist.ReadAgain();
    form.grdHot.ReadAgain();
    form.grdPlay.ReadAgain();
    AskToSetUpGame();
    ShowHotTableAnew();
}

void StoreHistorySet() {
    const int size = appState.historySetSize;
    SetFieldValue(appState.gameRecord, gameField::historySet, size >= largestHistorySet ? 0 : size);
    SaveGameRecord(appState.currentGame);
}

void SelectHistorySet() {
    appState.historySetSize = modUTILS::ToInt16((form.cboList[1].Selected() + 1) * historySetStep);
    StoreHistorySet();
    std::string date = form.grdHist.Text(0);
    if (date.empty()) {
        RefreshHistory(-1);
    } else {
        DateToSerial(date);
        RefreshHistory(appState.dateSerial);
    }
    ShowHotTableAnew();
}

void SelectHotTable() {
    appState.hotTableChoice = modUTILS::ToInt16(form.cboList[2].Selected() + 1);
    ShowHotHeadings();
    ShowChosenHotCaption();
    RefreshHotTable(ShownHotTable());
    form.hotRowCount = modUTILS::ToInt16(LastRowOf(ShownHotTable()) + 1);
    form.grdHot.SetRowCount(form.hotRowCount);
    ShowHotTableAnew();
}

/// A change of a list that the program is not filling itself: what all three have in common before their own work.
void Answer(void (*change)()) {
    if (IsFilling()) {
        return;
    }
    platform::ShowHourglass();
    form.grdHist.EndEdit();
    change();
}

void ChoosePicksToCount(int option) {
    if (IsFilling()) {
        return;
    }
    MarkHotTablesStale();
    appState.hotSortChoice = modUTILS::ToInt16(option);
    ComputeHotTable();
}

}  // namespace

void WireSelectors() {
    form.cboList[0].change = [] { Answer(SelectGame); };
    form.cboList[1].change = [] { Answer(SelectHistorySet); };
    form.cboList[2].change = [] { Answer(SelectHotTable); };
    for (std::size_t i = 0; i < form.optHot.size(); ++i) {
        form.optHot[i].click = [i] { ChoosePicksToCount(static_cast<int>(i)); };
    }
}

}  // namespace ballhaven
