#include "games/GameSlots.h"

#include "forms/MainForm.h"
#include "forms/NewGameForm.h"
#include "forms/PlaysForm.h"
#include "forms/SelectorLists.h"
#include "forms/ShuffleForm.h"
#include "history/GameSwitch.h"
#include "history/HistoryFile.h"
#include "history/UnsavedWork.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "plays/PickSlots.h"
#include "plays/PlayFile.h"
#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "wheels/ShuffleFile.h"

#include <algorithm>
#include <string>

namespace ballhaven {

namespace {

bool IsCurrentGameUndefined() {
    return IsUndefinedName(frmMainForm.cboList[selector::game].Text());
}

/// The first slot without a game, 0 if there is none.
int FirstFreeSlot() {
    const auto records = ReadGameRecords();
    const auto free = std::ranges::find_if(records, CountsAsFree);
    return free == records.end() ? 0 : static_cast<int>(free - records.begin()) + 1;
}

/// Opens the dialog on a slot; the dialog's load goes over the game variables, so what is dirty is saved before it.
void OpenGameDialog(int slot, GameDialogMode mode) {
    SaveBeforeReload();
    appState.gameDialogSlot = modUTILS::ToInt16(slot);
    appState.gameDialogMode = mode;
    frmNewGame.window.ShowModal();
}

// QUIRK DELETE-GAME-1: plays are wiped in the slots of the game's picks only, and of the chosen picks only the main
// list. Picks from a time when the game had more of them, and the chosen bonus picks, come back when a game with so
// many picks, or with a bonus, is set up in the slot. Files and habits rest on it.
void WipePlays() {
    const int slots = std::min<int>(appState.totalPicks, picksPerPlay);
    for (int play = 1; play <= playCount; ++play) {
        for (int slot = 1; slot <= slots; ++slot) {
            appState.PlayTable(mainPicks, play, slot) = emptySlot;
            appState.PlayTable(bonusPicks, play, slot) = emptySlot;
        }
        appState.PlayTable(mainPicks, play, 0) = byHand;
    }
}

void WipeGame() {
    appState.HistoryTable = Table(appState.totalPicks + 1, historyRows, -1);
    SaveHistory(1);
    WipePlays();
    appState.playsDirty = false;
    SavePlayFile();
    std::ranges::fill(appState.ShuffleTable.Slots(mainPicks), emptySlot);
    SaveShuffleFile();
    appState.gameRecord = BuildDefaultGameRecord(appState.currentGame, 0);
    SaveGameRecord(appState.currentGame);
}

}  // namespace

void AddGame() {
    if (IsCurrentGameUndefined()) {
        OpenGameDialog(appState.currentGame, GameDialogMode::Adding);
        return;
    }
    const int slot = FirstFreeSlot();
    if (slot == 0) {
        platform::Tell("You already have 20 games configured.\nYou must first delete an existing game.");
        return;
    }
    OpenGameDialog(slot, GameDialogMode::Adding);
}

// QUIRK GAME-FEWER-PICKS-1: an alteration touches no draws. With fewer picks the file keeps the columns that the game
// no longer has until the draws are next saved, and loses them then. Writing the draws here would lose their last picks
// at once, also where the alteration is taken back.
void AlterGame() {
    OpenGameDialog(appState.currentGame, GameDialogMode::Altering);
}

void DeleteGame() {
    if (!platform::AskBeforeLoss("Delete This Game?\n\nAll data will be ERASED!", platform::BoxIcon::Critical)) {
        return;
    }
    const platform::WaitPointer waiting;
    frmPlays.window.Unload();
    frmShuffle.window.Unload();
    {
        // A pick that is still being typed must not reach the emptied game.
        const platform::GridPause pause(frmMainForm.grdHist);
        WipeGame();
        SwitchGame();
    }
    ListGames();
}

void AskToSetUpGame() {
    if (!IsCurrentGameUndefined()) {
        return;
    }
    const std::string slot = std::to_string(frmMainForm.cboList[selector::game].Selected() + 1);
    const std::string question =
        "You need to configure game number " + slot + ".\nWould you like to set up the game now?";
    if (platform::Ask(question, platform::BoxIcon::Question)) {
        OpenGameDialog(appState.currentGame, GameDialogMode::Adding);
    }
}

}  // namespace ballhaven
