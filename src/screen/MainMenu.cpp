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

/// A button of the toolbar, by its index in `cmdButton`, and the menu entry that it stands for.
struct Shortcut {
    std::size_t button;
    platform::MenuItem& entry;
};

const Shortcut shortcuts[] = {
    // clang-format off
    { 1, frmMainForm.mnuFileArray[fileEntry::printData]},
    {10, frmMainForm.mnuEditArray[editEntry::addGame]},
    {11, frmMainForm.mnuEditArray[editEntry::deleteGame]},
    { 0, frmMainForm.mnuEditArray[editEntry::alterGame]},
    { 2, frmMainForm.mnuEditArray[editEntry::addDraw]},
    { 3, frmMainForm.mnuEditArray[editEntry::deleteDraw]},
    { 4, frmMainForm.mnuViewArray[viewEntry::ascending]},
    { 5, frmMainForm.mnuViewArray[viewEntry::descending]},
    {14, frmMainForm.mnuViewArray[viewEntry::playSlips]},
    { 8, frmMainForm.mnuEditArray[editEntry::erasePlaySlips]},
    {12, frmMainForm.mnuToolArray[toolEntry::hiLiteWinners]},
    {13, frmMainForm.mnuToolArray[toolEntry::eraseWinners]},
    { 7, frmMainForm.mnuToolArray[toolEntry::wheelOrShuffle]},
    // clang-format on
};

void OrderLog(std::int16_t order) {
    if (appState.historySortOrder == order || frmMainForm.windowStarting) {
        return;
    }
    const platform::WaitPointer waiting;
    appState.historySortOrder = order;
    SetFieldValue(appState.systemRecord, systemField::sortOrder, order);
    SaveSystemRecord();
    RefreshHistory(newestDraw);
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
    frmMainForm.mnuFileArray[fileEntry::exitProgram].click = [] { frmMainForm.window.Unload(); };
    frmMainForm.mnuEditArray[editEntry::addGame].click = AddGame;
    frmMainForm.mnuEditArray[editEntry::deleteGame].click = DeleteGame;
    frmMainForm.mnuEditArray[editEntry::alterGame].click = AlterGame;
    frmMainForm.mnuEditArray[editEntry::erasePlaySlips].click = EraseAllPlaySlips;
    frmMainForm.mnuViewArray[viewEntry::ascending].click = [] { OrderLog(1); };
    frmMainForm.mnuViewArray[viewEntry::descending].click = [] { OrderLog(0); };
    for (const Shortcut& shortcut : shortcuts) {
        frmMainForm.cmdButton[shortcut.button].click = [&entry = shortcut.entry] { RunFromToolbar(entry); };
    }
}

}  // namespace ballhaven
