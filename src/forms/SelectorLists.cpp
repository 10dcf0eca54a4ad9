#include "forms/SelectorLists.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameTable.h"

#include <string>
#include <utility>
#include <vector>

namespace ballhaven {

namespace {

std::vector<std::string> HistorySetNames() {
    std::vector<std::string> names;
    for (int size = smallestHistorySet; size <= largestHistorySet; size += historySetStep) {
        names.push_back("Last " + std::to_string(size) + " Games");
    }
    return names;
}

}  // namespace

void ListGames() {
    std::vector<std::string> names;
    for (const std::string& record : ReadGameRecords()) {
        names.push_back(GameName(record));
    }
    frmMainForm.cboList[selector::game].Fill(std::move(names));
    frmMainForm.cboList[selector::game].Select(appState.currentGame - 1);
}

void LoadHistorySetList() {
    frmMainForm.cboList[selector::historySet].Fill(HistorySetNames());
    frmMainForm.cboList[selector::historySet].Select(appState.historySetSize / historySetStep - 1);
}

void LoadComboHot() {
    const char* const first = IsCardGame(appState.gameType) ? "Hot Cards" : "Hot Numbers";
    frmMainForm.cboList[selector::hotTable].Fill({first, "Hot Pairs", "Paired Once", "Repeaters", "No-Hitters"});
    frmMainForm.cboList[selector::hotTable].Select(0);
}

}  // namespace ballhaven
