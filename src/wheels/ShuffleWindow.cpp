#include "wheels/ShuffleWindow.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/ShuffleForm.h"
#include "platform/Pointer.h"
#include "platform/controls/Keys.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "wheels/ShuffleFile.h"
#include "wheels/ShufflePicks.h"
#include "wheels/ShuffleRun.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ballhaven {

namespace {

/// Chooses the option that plays were last to be made by, Shuffle where there is none. Its handler runs also where the
/// button has been chosen since the window was last open.
void ChooseStoredOption() {
    const int method = std::clamp<int>(appState.ShuffleTable(mainPicks, 0), byShuffle, byFullWheel);
    frmShuffle.optShuffle[static_cast<std::size_t>(method - byShuffle)].ChooseByUser();
}

void Load() {
    frmShuffle.loading = true;
    appState.shuffleWindowOpen = true;
    ArrangeShuffleForm(appState.gameType);
    ChooseStoredOption();
    frmShuffle.grdShuffle.ReadAgain();
}

void Unload() {
    SaveShuffleFile();
    appState.shuffleWindowOpen = false;
}

void SwitchBox(platform::TextBox& box, bool on) {
    box.enabled = on;
    box.background = on ? platform::white : platform::buttonFaceColor;
    if (!on) {
        box.text = "";
    }
}

void TakeOption(std::size_t option) {
    appState.ShuffleTable(mainPicks, 0) = static_cast<std::int16_t>(byShuffle + option);
    for (std::size_t box = 0; box < frmShuffle.txtShuffle.size(); ++box) {
        SwitchBox(frmShuffle.txtShuffle[box], box == option);
    }
    if (frmShuffle.loading) {
        return;
    }
    if (option < frmShuffle.txtShuffle.size()) {
        frmShuffle.txtShuffle[option].TakeFocus();
    }
    SaveShuffleFile();
}

WheelMode ChosenMode() {
    if (frmShuffle.optShuffle[0].IsChosen()) {
        return WheelMode::Shuffle;
    }
    return frmShuffle.optShuffle[1].IsChosen() ? WheelMode::PartialWheel : WheelMode::FullWheel;
}

void AskForTotalAnew(platform::TextBox& box) {
    // QUIRK TOTAL-BOX-1: as many characters are marked as the box of the shuffle holds, in the partial wheel's box too:
    // there none, since the other box is empty then. Habits rest on it.
    box.Select({.start = 0, .length = static_cast<int>(frmShuffle.txtShuffle[0].text->size())});
    box.TakeFocus();
}

void ShowResult(const RunResult& result) {
    frmShuffle.lblShuffle[0].text = result.firstPlay;
    frmShuffle.lblShuffle[1].text = result.lastPlay;
    frmShuffle.lblShuffle[2].text = result.plays;
}

void Start() {
    const platform::WaitPointer waiting;
    const WheelMode mode = ChosenMode();
    platform::TextBox& box = frmShuffle.txtShuffle[mode == WheelMode::PartialWheel ? 1 : 0];
    const RunResult result = RunShuffleOrWheel(mode, *box.text);
    if (result.end == RunResult::End::BadTotal) {
        AskForTotalAnew(box);
    } else if (result.end == RunResult::End::Done) {
        ShowResult(result);
    }
}

void ServeSettled() {
    if (std::exchange(frmShuffle.boardClicked, false)) {
        ToggleShufflePick();
    }
}

void WireBoard() {
    platform::Grid& board = frmShuffle.grdShuffle;
    board.cellText = ShuffleBoardText;
    board.cellStyle = [](const platform::GridCell& cell, platform::CellStyle& style) {
        GetShuffleCellStyle(CellNumberAt(cell.row, cell.column), style);
    };
    board.cellDescription = ShuffleCellDescription;
    board.click = [] { frmShuffle.boardClicked = true; };
    board.settled = ServeSettled;
}

void Open() {
    frmShuffle.window.ShowInFront();
}

}  // namespace

void WireShuffleWindow() {
    frmShuffle.window.layout = LayOutShuffleForm;
    frmShuffle.window.load = Load;
    frmShuffle.window.activate = [] { frmShuffle.loading = false; };
    frmShuffle.window.unload = Unload;
    WireBoard();
    for (std::size_t option = 0; option < frmShuffle.optShuffle.size(); ++option) {
        frmShuffle.optShuffle[option].click = [option] { TakeOption(option); };
    }
    for (platform::TextBox& box : frmShuffle.txtShuffle) {
        box.keyPress = [](char key) { return key == platform::enterKey; };
    }
    frmShuffle.cmdErasePlay[5].click = [] {
        const platform::WaitPointer waiting;
        ClearShufflePicks();
    };
    frmShuffle.cmdStart.click = Start;
    frmShuffle.cmdClose.click = [] { frmShuffle.window.Unload(); };
    frmShuffle.cmdButton.click = [] {
        const platform::WaitPointer waiting;
        frmPlays.window.ShowInFront();
    };

    frmMainForm.mnuToolArray[toolEntry::wheelOrShuffle].click = Open;
    frmPlays.mnuToolArray[toolEntry::wheelOrShuffle].click = Open;
    frmPlays.cmdToolbar[3].click = Open;
}

}  // namespace ballhaven
