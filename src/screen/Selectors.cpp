#include "screen/Selectors.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/SelectorLists.h"
#include "forms/ShuffleForm.h"
#include "games/GameSlots.h"
#include "history/GameSwitch.h"
#include "history/HistoryRefresh.h"
#include "history/LogEntry.h"
#include "history/UnsavedWork.h"
#include "platform/Application.h"
#include "platform/Pointer.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"

#include <cstdint>

namespace ballhaven {

namespace {

bool IsFilling() {
    return frmMainForm.windowStarting || frmMainForm.gameLoading;
}

void ShowHotTableAnew() {
    frmMainForm.grdHot.ReadAgain();
    frmMainForm.grdHot.GoTo(0, frmMainForm.hotMarkColumn);
}

void SelectGame() {
    if (frmMainForm.cboList[selector::game].Selected() + 1 == appState.currentGame) {
        return;
    }
    frmPlays.window.Unload();
    frmShuffle.window.Unload();
    platform::ProcessPendingEvents();
    SaveWhatIsDirty();
    SwitchGame();
    AskToSetUpGame();
    ShowHotTableAnew();
}

void StoreHistorySet() {
    const int size = appState.historySetSize;
    SetFieldValue(appState.gameRecord, gameField::historySet, size >= largestHistorySet ? 0 : size);
    SaveGameRecord(appState.currentGame);
}

void SelectHistorySet() {
    appState.historySetSize =
        modUTILS::ToInt16((frmMainForm.cboList[selector::historySet].Selected() + 1) * historySetStep);
    StoreHistorySet();
    const bool hasDraw = !frmMainForm.grdHist.Text(0).empty();
    RefreshHistory(hasDraw ? LogDate() : newestDraw);
    ShowHotTableAnew();
}

void SelectHotTable() {
    appState.hotTableChoice = modUTILS::ToInt16(frmMainForm.cboList[selector::hotTable].Selected() + 1);
    ShowHotHeadings();
    ShowChosenHotCaption();
    RefreshHotTable(ShownHotTable());
    frmMainForm.hotRowCount = modUTILS::ToInt16(LastRowOf(ShownHotTable()) + 1);
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    ShowHotTableAnew();
}

/// A change of a list that the program is not filling itself: what all three have in common before their own work.
void TakeChoice(void (*change)()) {
    if (IsFilling()) {
        return;
    }
    const platform::WaitPointer waiting;
    frmMainForm.grdHist.EndEdit();
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
    frmMainForm.cboList[selector::game].change = [] { TakeChoice(SelectGame); };
    frmMainForm.cboList[selector::historySet].change = [] { TakeChoice(SelectHistorySet); };
    frmMainForm.cboList[selector::hotTable].change = [] { TakeChoice(SelectHotTable); };
    for (std::size_t i = 0; i < frmMainForm.optHot.size(); ++i) {
        frmMainForm.optHot[i].click = [i] { ChoosePicksToCount(static_cast<int>(i)); };
    }
}

}  // namespace ballhaven
