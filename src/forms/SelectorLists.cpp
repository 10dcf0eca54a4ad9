#include "forms/SelectorLists.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/GameTable.h"

#include <string>
#include <utility>
#include <vector>

namespace ballhaven {

void ListGames() {
    std::vector<std::string> names;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        names.push_back(GameName(ReadGameRecord(slot)));
    }
    frmMainForm.cboList[0].Fill(std::move(names));
    frmMainForm.cboList[0].Select(appState.currentGame - 1);
}

void LoadHistorySetList() {
    std::vector<std::string> sets;
    for (int size = smallestHistorySet; size <= largestHistorySet; size += historySetStep) {
        sets.push_back("Last " + std::to_string(size) + " Games");
    }
    frmMainForm.cboList[1].Fill(std::move(sets));
    frmMainForm.cboList[1].Select(appState.historySetSize / historySetStep - 1);
}

void LoadComboHot() {
    const char* const first = IsCardGame(appState.gameType) ? "Hot Cards" : "Hot Numbers";
    frmMainForm.cboList[2].Fill({first, "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"});
    frmMainForm.cboList[2].Select(0);
}

}  // namespace ballhaven
