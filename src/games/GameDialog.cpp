#include "games/GameDialog.h"

#include <string>

#include "games/GameRules.h"
#include "games/NewGameForm.h"
#include "platform/MessageBox.h"
#include "platform/Pointer.h"
#include "screen/SelectorLists.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

NewGameForm& form = frmNewGame;

constexpr char enterKey = '\r';
constexpr int alteringGame = 2;

void Load() {
    LoadGameRecord(appState.gameDialogSlot);
    form.saved = false;
    form.loading = true;
    form.window.title = "Add a New Game";
    if (appState.gameDialogMode == alteringGame) {
        form.window.title = "Alter Game Configuration";
        appState.gameDialogSlot = appState.currentGame;
    }
    FillGameDialog();
    form.loading = false;
}

void Activate() {
    platform::ShowArrow();
    form.filling = false;
}

/// The Enter key of the name box leads on to the kind of game instead of doing nothing.
bool ServeNameKey(char key) {
    if (key == enterKey) {
        ListOf(gameTypeList).TakeFocus();
    }
    return key == enterKey;
}

void Save() {
    if (modUTILS::Trimmed(*form.txtNewGame[0].text).empty()) {
        platform::ShowMessageBox("You must enter a name for this game", platform::BoxButtons::Ok,
                                 platform::BoxIcon::None, "Ballhaven");
        return;
    }
    TakeGameRules();
    SaveGameRecord(appState.gameDialogSlot);
    appState.currentGame = appState.gameDialogSlot;
    ListGames();
    // QUIRK GAME-DIALOG-MODE-1: the mode stays as it is, so the main window loads the game anew not only when it comes
    // back now, but each time it comes back from another window, until the dialog is cancelled. It is meant: the first
    // of these loads is what shows the game. Clearing the mode here would leave the old game's tables on screen.
    form.saved = true;
    form.window.Unload();
}

/// Closing in any way but by "Save" is a "Cancel".
void Unload() {
    if (!form.saved) {
        // QUIRK GAME-CANCEL-1: after an add the game variables describe the free slot, while the main window still
        // shows the old game's draws and tables. It is meant: the slot has been given up for the new game already, and
        // the next switch tells what is in it. Switching here would show an empty game where the user changed his mind.
        appState.gameDialogMode = 0;
        LoadGameRecord(appState.gameDialogSlot);
    }
}

void OnChange(GameList list, void (*change)()) {
    ListOf(list).change = [change] {
        if (!form.filling) {
            change();
        }
    };
}

}  // namespace

void WireGameDialog() {
    form.window.layout = LayOutNewGameForm;
    form.window.load = Load;
    form.window.activate = Activate;
    form.window.unload = Unload;
    form.txtNewGame[0].keyPress = ServeNameKey;
    OnChange(gameTypeList, ChangeGameType);
    OnChange(mainCountList, ChangeMainCount);
    OnChange(bonusCountList, ChangeBonusCount);
    OnChange(duplicatesList, RefreshHighestLists);
    OnChange(mainLowList, RefreshHighestLists);
    form.cmdNewGame[1].click = Save;
    form.cmdNewGame[0].click = [] { form.window.Unload(); };
}

}  // namespace ballhaven
