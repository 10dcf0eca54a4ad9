#include "games/GameDialog.h"

#include "forms/NewGameForm.h"
#include "forms/PlaysForm.h"
#include "forms/SelectorLists.h"
#include "forms/ShuffleForm.h"
#include "games/GameDialogLists.h"
#include "platform/Boxes.h"
#include "platform/controls/Keys.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/MendedFolder.h"
#include "state/modUTILS.h"

#include <string>

namespace ballhaven {

namespace {

void Load() {
    LoadGameRecord(appState.gameDialogSlot);
    frmNewGame.saved = false;
    frmNewGame.loading = true;
    frmNewGame.window.title = "Add a New Game";
    if (appState.gameDialogMode == GameDialogMode::Altering) {
        frmNewGame.window.title = "Alter Game Configuration";
        appState.gameDialogSlot = appState.currentGame;
    }
    FillGameDialog();
    frmNewGame.loading = false;
}

void Activate() {
    frmNewGame.filling = false;
}

/// The Enter key of the name box leads on to the kind of game instead of doing nothing.
bool GoOnByEnter(char key) {
    if (key == platform::enterKey) {
        ListOf(gameTypeList).TakeFocus();
    }
    return key == platform::enterKey;
}

void Save() {
    if (modUTILS::Trimmed(*frmNewGame.txtNewGame[0].text).empty()) {
        platform::Tell("You must enter a name for this game");
        return;
    }
    frmPlays.window.Unload();
    frmShuffle.window.Unload();
    TakeGameRules();
    SaveGameRecord(appState.gameDialogSlot);
    appState.currentGame = appState.gameDialogSlot;
    ListGames();
    frmNewGame.saved = true;
    frmNewGame.window.Unload();
}

/// Closing in any way but by "Save" is a "Cancel".
void Unload() {
    if (!frmNewGame.saved) {
        // QUIRK GAME-CANCEL-1: after an add the game variables describe the free slot, while the main window still
        // shows the old game's draws and tables, until the next switch. Habits rest on it. In a mended folder they are
        // those of the game that is shown: with the others a history set chosen now would be stored over its record.
        appState.gameDialogMode = GameDialogMode::None;
        LoadGameRecord(FolderIsMended() ? appState.currentGame : appState.gameDialogSlot);
    }
}

void OnChange(GameList list, void (*change)()) {
    ListOf(list).change = [change] {
        if (!frmNewGame.filling) {
            change();
        }
    };
}

}  // namespace

void WireGameDialog() {
    frmNewGame.window.layout = LayOutNewGameForm;
    frmNewGame.window.load = Load;
    frmNewGame.window.activate = Activate;
    frmNewGame.window.unload = Unload;
    frmNewGame.txtNewGame[0].keyPress = GoOnByEnter;
    OnChange(gameTypeList, ChangeGameType);
    OnChange(mainCountList, ChangeMainCount);
    OnChange(bonusCountList, ChangeBonusCount);
    OnChange(duplicatesList, RefreshHighestLists);
    OnChange(mainLowList, RefreshHighestLists);
    frmNewGame.cmdNewGame[1].click = Save;
    frmNewGame.cmdNewGame[0].click = [] { frmNewGame.window.Unload(); };
    frmNewGame.window.escape = frmNewGame.cmdNewGame[0].click;
}

}  // namespace ballhaven
