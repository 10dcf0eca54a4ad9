#include "screen/MainMenu.h"

#include "games/GameSlots.h"
#include "history/GameSwitch.h"
#include "platform/MessageBox.h"
#include "platform/Pointer.h"
#include "plays/PlayFile.h"
#include "screen/GamePresentation.h"
#include "screen/MainForm.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;

/// A button of the toolbar and the menu entry that it stands for.
struct Shortcut {
    int button;
    platform::MenuItem& entry;
};

const Shortcut shortcuts[] = {
    {1, form.mnuFileArray[0]},  {10, form.mnuEditArray[0]}, {11, form.mnuEditArray[1]}, {0, form.mnuEditArray[2]},
    {2, form.mnuEditArray[4]},  {3, form.mnuEditArray[5]},  {4, form.mnuViewArray[0]},  {5, form.mnuViewArray[1]},
    {14, form.mnuViewArray[3]}, {8, form.mnuEditArray[7]},  {12, form.mnuToolArray[2]}, {13, form.mnuToolArray[3]},
    {7, form.mnuToolArray[0]},
};

void OrderLog(std::int16_t order) {
    if (appState.historySortOrder == order || form.windowStarting) {
        return;
    }
    platform::ShowHourglass();
    appState.historySortOrder = order;
    SetFieldValue(appState.systemRecord, systemField::sortOrder, order);
    SaveSystemRecord();
    RefreshHistory(-1);
    ShowViewChecks();
    platform::ShowArrow();
}

void EraseAllPlaySlips() {
    if (platform::ShowMessageBox("Erase ALL Play Slips for this game?", platform::BoxButtons::YesNo,
                                 platform::BoxIcon::Question, "Ballhaven") != platform::BoxAnswer::No) {
        ClearAllPlays();
    }
}

void RunFromToolbar(const platform::MenuItem& entry) {
    platform::ShowHourglass();
    if (entry.click) {
        entry.click();
    }
    platform::ShowArrow();
}

}  // namespace

void WireMainMenu() {
    form.mnuFileArray[2].click = [] { form.window.Unload(); };
    form.mnuEditArray[0].click = AddGame;
    form.mnuEditArray[1].click = DeleteGame;
    form.mnuEditArray[2].click = AlterGame;
    form.mnuEditArray[7].click = EraseAllPlaySlips;
    form.mnuViewArray[0].click = [] { OrderLog(1); };
    form.mnuViewArray[1].click = [] { OrderLog(0); };
    for (const Shortcut& shortcut : shortcuts) {
        form.cmdButton[static_cast<std::size_t>(shortcut.button)].click = [&entry = shortcut.entry] {
            RunFromToolbar(entry);
        };
    }
}

}  // namespace ballhaven
