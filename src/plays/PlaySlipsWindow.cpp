#include "plays/PlaySlipsWindow.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "platform/Application.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "plays/PlayEditing.h"
#include "plays/PlayFile.h"
#include "plays/PlayScreen.h"
#include "plays/SlipBoards.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"

#include <string>
#include <utility>

namespace ballhaven {

namespace {

constexpr std::int16_t lastSlip = 1000;

void Load() {
    const platform::WaitPointer waiting;
    appState.currentSlip = 1;
    appState.playsWindowOpen = true;
    ArrangePlaysForm(appState.gameType, appState.orderMatters);
    ShowSlipNumber(appState.currentSlip);
    frmPlays.grdPlays[0].ReadAgain();
}

void KeepSize() {
    const bool isOfItsSize =
        frmPlays.window.Width() == frmPlays.fixedWidth && frmPlays.window.Height() == frmPlays.fixedHeight;
    if (frmPlays.window.State() == platform::WindowState::Normal && !isOfItsSize) {
        frmPlays.window.Resize(frmPlays.fixedWidth, frmPlays.fixedHeight);
    }
}

void ServeSettled() {
    if (std::exchange(frmPlays.boardClicked, false)) {
        TogglePick(PlayOfBoard(frmPlays.grdPlays[0].CurrentPane()), frmPlays.grdPlays[0]);
    }
}

void StepSlip(int step) {
    const int wanted = appState.currentSlip + step;
    if (wanted < 1 || wanted > lastSlip) {
        platform::services.beep();
        return;
    }
    appState.currentSlip = static_cast<std::int16_t>(wanted);
    RefreshPlayGrids();
    ShowSlipNumber(appState.currentSlip);
}

void EraseSlip() {
    const platform::WaitPointer waiting;
    const std::string question = "Erase Play Slip # " + std::to_string(appState.currentSlip) + "?";
    if (platform::AskBeforeLoss(question, platform::BoxIcon::Question)) {
        EraseShownSlip();
        RefreshPlayGrids();
    }
}

void EraseSlipLine(int line) {
    const platform::WaitPointer waiting;
    ErasePlay(PlayOfBoard(line));
    RefreshPlayGrids();
}

void EraseAllSlips() {
    if (platform::AskBeforeLoss("Erase ALL Play Slips?", platform::BoxIcon::Question)) {
        const platform::WaitPointer waiting;
        ClearAllPlays();
        platform::ProcessPendingEvents();
    }
}

void HiLiteWinners() {
    if (appState.historyLast >= 0) {
        const platform::WaitPointer waiting;
        appState.hiLiteWinners = true;
        RefreshPlayGrids();
    }
}

/// The main window's command, which has nothing drawn anew in a game without draws.
void EraseWinnersOnMain() {
    appState.hiLiteWinners = false;
    if (appState.historyLast >= 0) {
        const platform::WaitPointer waiting;
        RefreshPlayGrids();
    }
}

void EraseWinners() {
    appState.hiLiteWinners = false;
    RefreshPlayGrids();
}

/// A command of the menu and the button of the toolbar that stands for it.
void OnCommand(platform::MenuItem& entry, platform::Button& button, void (*command)()) {
    entry.click = command;
    button.click = command;
}

void WireBoards() {
    platform::Grid& boards = frmPlays.grdPlays[0];
    boards.cellText = SlipBoardText;
    boards.cellStyle = [](const platform::GridCell& cell, platform::CellStyle& style) {
        PlayCellStyle(PlayOfBoard(cell.pane), CellNumberAt(cell.row, cell.column), style);
    };
    boards.cellDescription = SlipCellDescription;
    boards.click = [] { frmPlays.boardClicked = true; };
    boards.settled = ServeSettled;
}

}  // namespace

void WirePlaySlipsWindow() {
    frmPlays.window.layout = LayOutPlaysForm;
    frmPlays.window.load = Load;
    frmPlays.window.resize = KeepSize;
    frmPlays.window.unload = [] { appState.playsWindowOpen = false; };
    frmPlays.mnuClose.click = [] { frmPlays.window.Unload(); };
    OnCommand(frmPlays.mnuClear, frmPlays.cmdToolbar[2], EraseAllSlips);
    OnCommand(frmPlays.mnuToolArray[toolEntry::hiLiteWinners], frmPlays.cmdToolbar[4], HiLiteWinners);
    OnCommand(frmPlays.mnuToolArray[toolEntry::eraseWinners], frmPlays.cmdToolbar[5], EraseWinners);
    frmPlays.cmdScrollPlaySlips[0].click = [] { StepSlip(-1); };
    frmPlays.cmdScrollPlaySlips[1].click = [] { StepSlip(1); };
    frmPlays.cmdErasePlay[0].click = EraseSlip;
    for (std::size_t button = 1; button < frmPlays.cmdErasePlay.size(); ++button) {
        frmPlays.cmdErasePlay[button].click = [line = static_cast<int>(button) - 1] { EraseSlipLine(line); };
    }
    WireBoards();

    frmMainForm.mnuViewArray[viewEntry::playSlips].click = [] { frmPlays.window.ShowInFront(); };
    frmMainForm.mnuToolArray[toolEntry::hiLiteWinners].click = HiLiteWinners;
    frmMainForm.mnuToolArray[toolEntry::eraseWinners].click = EraseWinnersOnMain;
}

}  // namespace ballhaven
