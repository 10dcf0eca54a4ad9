#include "screen/MainMenu.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "games/GameSlots.h"
#include "history/HistoryRefresh.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "plays/PlayFile.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"

namespace ballhaven {

namespace {

/// A button of the toolbar and the menu entry that it stands for.
struct Shortcut {
    int button;
    platform::MenuItem& entry;
};

const Shortcut shortcuts[] = {
    {1, frmMainForm.mnuFileArray[0]}, {10, frmMainForm.mnuEditArray[0]}, {11, frmMainForm.mnuEditArray[1]},
    {0, frmMainForm.mnuEditArray[2]}, {2, frmMainForm.mnuEditArray[4]},  {3, frmMainForm.mnuEditArray[5]},
    {4, frmMainForm.mnuViewArray[0]}, {5, frmMainForm.mnuViewArray[1]},  {14, frmMainForm.mnuViewArray[3]},
    {8, frmMainForm.mnuEditArray[7]}, {12, frmMainForm.mnuToolArray[2]}, {13, frmMainForm.mnuToolArray[3]},
    {7, frmMainForm.mnuToolArray[0]},
};

void OrderLog(std::int16_t order) {
    if (appState.historySortOrder == order || frmMainForm.windowStarting) {
        return;
    }
    const platform::WaitPointer waiting;
    appState.historySortOrder = order;
    SetFieldValue(appState.systemRecord, systemField::sortOrder, order);
    SaveSystemRecord();
    RefreshHistory(-1);
    ShowViewChecks();
}

void EraseAllPlaySlips() {
    if (platform::AskBeforeLoss("Erase ALL Play Slips for this game?", platform::BoxIcon::Question)) {
        ClearAllPlays();
    }
}

void RunFromToolbar(const platform::MenuItem& entry) {
    const platform::WaitPointer waiting;
    if (entry.click) {
        entry.click();
    }
}

}  // namespace

void WireMainMenu() {
    frmMainForm.mnuFileArray[2].click = [] { frmMainForm.window.Unload(); };
    frmMainForm.mnuEditArray[0].click = AddGame;
    frmMainForm.mnuEditArray[1].click = DeleteGame;
    frmMainForm.mnuEditArray[2].click = AlterGame;
    frmMainForm.mnuEditArray[7].click = EraseAllPlaySlips;
    frmMainForm.mnuViewArray[0].click = [] { OrderLog(1); };
    frmMainForm.mnuViewArray[1].click = [] { OrderLog(0); };
    for (const Shortcut& shortcut : shortcuts) {
        frmMainForm.cmdButton[static_cast<std::size_t>(shortcut.button)].click = [&entry = shortcut.entry] {
            RunFromToolbar(entry);
        };
    }
}

}  // namespace ballhaven
