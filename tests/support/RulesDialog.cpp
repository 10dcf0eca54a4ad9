#include "support/RulesDialog.h"

#include "games/GameDialogLists.h"
#include "platform/files/FileSystem.h"
#include "state/GameTable.h"

#include <algorithm>

namespace ballhaven::support {

namespace {

constexpr int gameRecordBytes = 64;

void OnChange(GameList list, void (*change)()) {
    ListOf(list).change = [change] {
        if (!frmNewGame.filling) {
            change();
        }
    };
}

}  // namespace

void Choose(GameList list, int entry) {
    ListOf(list).SelectByUser(entry);
}

void ChooseText(GameList list, const char* text) {
    const auto& entries = ListOf(list).Entries();
    const auto entry = std::ranges::find(entries, text);
    ASSERT_NE(entry, entries.end()) << "no entry " << text << " in list " << list;
    Choose(list, static_cast<int>(entry - entries.begin()));
}

void TypeName(const char* name) {
    frmNewGame.txtNewGame[0].text = std::string(name);
}

std::string SavedRecord() {
    TakeGameRules();
    SaveGameRecord(appState.gameDialogSlot);
    return appState.gameRecord;
}

RulesDialog::RulesDialog() {
    platform::fileSystem.flush = [](int) { return 0; };  // waiting for the disk takes most of the time
    OnChange(gameTypeList, ChangeGameType);
    OnChange(mainCountList, ChangeMainCount);
    OnChange(bonusCountList, ChangeBonusCount);
    OnChange(duplicatesList, RefreshHighestLists);
    OnChange(mainLowList, RefreshHighestLists);
}

void RulesDialog::Open(const std::string& record) {
    OpenGameTable();
    appState.currentGame = 1;
    appState.gameDialogSlot = 1;
    appState.gameRecord = record;
    SaveGameRecord(1);
    LayOutNewGameForm();
    LoadGameRecord(1);
    frmNewGame.loading = true;
    FillGameDialog();
    frmNewGame.loading = false;
    frmNewGame.filling = false;
}

std::string RulesDialog::Stored(int slot) const {
    return directory.Read("LOTTOSYS").substr(static_cast<std::size_t>(slot * gameRecordBytes), gameRecordBytes);
}

}  // namespace ballhaven::support
