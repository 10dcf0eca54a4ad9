#include "plays/SinglePlay.h"

#include "forms/MainForm.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "plays/PickGrid.h"
#include "plays/PlayEditing.h"
#include "plays/PlaySlips.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"

#include <string>
#include <utility>

namespace ballhaven {

namespace {

// QUIRK MAIN-PLAYS-1: the main window reaches the first 200 slips only. Plays behind them are reached in the Play Slips
// window. Files and habits rest on it.
constexpr int lastPlayOnMain = 1000;

void ShowPlay() {
    std::string slip;
    std::string line;
    PlaySlipLabel(appState.currentPlay, slip, line);
    frmMainForm.lblPlay.text = slip + line;
    frmMainForm.grdPlay.ReadAgain();
}

void StepPlay(int step) {
    const platform::WaitPointer waiting;
    const int wanted = appState.currentPlay + step;
    if (wanted < 1 || wanted > lastPlayOnMain) {
        platform::services.beep();
        return;
    }
    appState.currentPlay = static_cast<std::int16_t>(wanted);
    ShowPlay();
}

void ServeSettled() {
    if (std::exchange(frmMainForm.playClicked, false)) {
        TogglePick(appState.currentPlay, frmMainForm.grdPlay);
    }
}

}  // namespace

void ErasePlayOnMain() {
    ErasePlay(appState.currentPlay);
    frmMainForm.grdPlay.ReadAgain();
}

void WireSinglePlay() {
    frmMainForm.grdPlay.cellText = [](const platform::GridCell& cell) { return PlayBoardText(cell.row, cell.column); };
    frmMainForm.grdPlay.cellStyle = [](const platform::GridCell& cell, platform::CellStyle& style) {
        PlayCellStyle(appState.currentPlay, CellNumberAt(cell.row, cell.column), style);
    };
    frmMainForm.grdPlay.cellDescription = [](const platform::GridCell& cell) {
        return CellDescription(appState.currentPlay, CellNumberAt(cell.row, cell.column),
                               PlayBoardText(cell.row, cell.column).value_or(std::string()));
    };
    frmMainForm.grdPlay.click = [] { frmMainForm.playClicked = true; };
    frmMainForm.grdPlay.settled = ServeSettled;
    frmMainForm.cmdPlayBttn[0].click = [] { StepPlay(-1); };
    frmMainForm.cmdPlayBttn[1].click = [] { StepPlay(1); };
    frmMainForm.cmdPlayBttn[2].click = [] {
        const platform::WaitPointer waiting;
        ErasePlayOnMain();
    };
}

}  // namespace ballhaven
