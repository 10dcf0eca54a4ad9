#include "history/GameSwitch.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "forms/SelectorLists.h"
#include "forms/ShuffleForm.h"
#include "history/HistoryFile.h"
#include "history/HistoryRefresh.h"
#include "platform/Pointer.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "statistics/HotCaptions.h"
#include "wheels/ShuffleFile.h"

#include <string>

namespace ballhaven {

namespace {

/// The slot of the game shown last. A damaged record has slot 1.
std::int16_t StoredSlot(const std::string& systemRecord) {
    const std::int16_t slot = FieldValue(systemRecord, systemField::shownSlot);
    return slot < 1 || slot > gameSlots ? std::int16_t{1} : slot;
}

void LoadPlays() {
    appState.currentPlay = 1;
    LoadPlayFile();
    frmMainForm.lblPlay.text = "1.A";
    frmMainForm.grdPlay.ReadAgain();
}

void LoadDraws() {
    frmMainForm.logLastColumn = appState.totalPicks;
    LoadHistory();
    BuildHistoryView();
}

void LoadChosenPicks() {
    LoadShuffleFile();
    if (appState.shuffleWindowOpen) {
        frmShuffle.grdShuffle.ReadAgain();
    }
}

void ShowHotTableFromTheTop() {
    appState.hotTableChoice = 1;
    frmMainForm.hotRowCount = modUTILS::ToInt16(appState.hotNumberLast + 1);
    ShowHotNumbersCaption();
    ShowHotHeadings();
    frmMainForm.grdHot.SetRowCount(frmMainForm.hotRowCount);
    frmMainForm.grdHot.GoTo(0, frmMainForm.hotMarkColumn);
}

}  // namespace

void SwitchGame() {
    const platform::WaitPointer waiting;
    OpenGameTable();
    if (appState.currentGame == 0) {
        SwitchGameTo(StoredSlot(appState.systemRecord));
        return;
    }
    const std::int16_t slot = modUTILS::ToInt16(frmMainForm.cboList[selector::game].Selected() + 1);
    SetFieldValue(appState.systemRecord, systemField::shownSlot, slot);
    SaveSystemRecord();
    SwitchGameTo(slot);
}

void SwitchGameTo(std::int16_t slot) {
    const platform::WaitPointer waiting;
    // Events that are let in while a file gets its full size must find nobody reading half a game.
    const platform::GridPause logPause(frmMainForm.grdHist);
    const platform::GridPause hotPause(frmMainForm.grdHot);
    appState.colorMode = ColorMode::None;
    appState.currentGame = slot;
    ClearHiLiteBoxes();
    LoadGameRecord(slot);
    frmMainForm.gameLoading = true;
    SizePlayGrid();
    LoadPlays();
    LoadDraws();
    LoadChosenPicks();
    ShowViewChecks();
    ArrangeLogColumns();
    ArrangeHiLiteBoxes();
    ArrangeHotOptions();
    HideCards();
    RefreshHistory(newestDraw);
    ShowHotTableFromTheTop();
    ListGames();
    LoadHistorySetList();
    LoadComboHot();
    frmMainForm.gameLoading = false;
}

}  // namespace ballhaven
