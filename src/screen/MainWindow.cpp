#include "screen/MainWindow.h"

#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "games/GameSlots.h"
#include "history/DrawCommands.h"
#include "history/GameSwitch.h"
#include "history/UnsavedWork.h"
#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/files/Paths.h"
#include "plays/SinglePlay.h"
#include "screen/CardPicker.h"
#include "screen/ColorToolbar.h"
#include "screen/HotGrid.h"
#include "screen/LogGrid.h"
#include "screen/MainMenu.h"
#include "screen/Selectors.h"
#include "state/AppState.h"
#include "state/MendedFolder.h"
#include "state/modUTILS.h"

#include <exception>
#include <string>

namespace ballhaven {

namespace {

constexpr int designHeight = 8880;
constexpr int logDesignHeight = 7260;
constexpr int hotDesignHeight = 4860;
constexpr int belowGrids = 1060;

/// The program's own folder; where the system does not tell, the directory stays as it is.
void SetProgramDirectory() {
    try {
        appState.programDirectory = platform::WithSeparator(platform::services.executableDirectory());
    } catch (const std::exception&) {
    }
}

void StyleCellsOnDemand() {
    for (int column = 0; column < frmMainForm.grdPlay.ColumnCount(); ++column) {
        frmMainForm.grdPlay.Column(column).styled = true;
    }
    frmMainForm.grdHot.Column(0).styled = true;
    for (int column = 1; column <= logPickColumns; ++column) {
        frmMainForm.grdHist.Column(column).styled = true;
    }
}

void Load() {
    frmMainForm.windowStarting = true;
    StyleCellsOnDemand();
    SetProgramDirectory();
}

void ReloadGame() {
    // A pick that is still being typed must not reach the other game.
    const platform::GridPause pause(frmMainForm.grdHist);
    SaveBeforeReload();
    SwitchGame();
    // QUIRK GAME-DIALOG-MODE-1: the mode that "Save" leaves stands, so the main window loads the game anew not only
    // now, but each time it comes back from another window, until the dialog is cancelled. This first load is what
    // shows the game: clearing the mode before it would leave the old game's tables on screen. In a mended folder it is
    // the only one.
    if (FolderIsMended()) {
        appState.gameDialogMode = GameDialogMode::None;
    }
}

void Activate() {
    // The dialog behind the first question brings this window to the front again when it closes. Where it was
    // cancelled, the start that is still going on must not ask once more.
    const bool isFirst = frmMainForm.windowStarting && !frmMainForm.askingAtStart;
    if (!isFirst && appState.gameDialogMode == GameDialogMode::None) {
        return;
    }
    ReloadGame();
    frmMainForm.askingAtStart = true;
    AskToSetUpGame();
    frmMainForm.askingAtStart = false;
    frmMainForm.windowStarting = false;
}

// QUIRK RESIZE-1: at the design height the grids take 7260 and 4860, one twip above it 7101 and 4711: the two rules do
// not join up: the first leaves the window as it was drawn, the second keeps room below the grids.
void FollowHeight() {
    const int height = frmMainForm.window.Height();
    if (height < designHeight) {
        return;
    }
    if (height == designHeight) {
        frmMainForm.grdHist.SetHeight(logDesignHeight);
        frmMainForm.grdHot.SetHeight(hotDesignHeight);
        return;
    }
    for (platform::Grid* grid : {&frmMainForm.grdHist, &frmMainForm.grdHot}) {
        grid->SetHeight(height - grid->bounds->top - belowGrids);
    }
}

void CloseDown() {
    SaveWhatIsDirty();
    ahcCalendar.Terminate();
    frmPlays.window.Unload();
    platform::EndProcess();
}

}  // namespace

void WireMainWindow() {
    frmMainForm.window.layout = LayOutMainForm;
    frmMainForm.window.load = Load;
    frmMainForm.window.activate = Activate;
    frmMainForm.window.resize = FollowHeight;
    frmMainForm.window.unload = CloseDown;
    WireMainMenu();
    WireSelectors();
    WireSinglePlay();
    WireHotGrid();
    WireLogGrid();
    WireCardPicker();
    WireColorToolbar();
    WireDrawCommands();
}

}  // namespace ballhaven
