#include "screen/SelectorLists.h"

#include "screen/MainForm.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "statistics/HotNumbers.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ballhaven {

namespace {

/// How `grdHot` presents a table.
struct HotTableHead {
    std::string_view captionWords;
    bool listsPairs;
    std::array<std::string_view, 3> countHeadings;  ///< of columns 1 to 3
};

/// By `hotTableChoice` - 1. The first table's caption is that of `ShowHotNumbersCaption`.
constexpr std::array<HotTableHead, 5> hotTableHeads{{
    // clang-format off
    {"",              false, {"Hits",  "%", "Game Interval"}},
    {"Hot Pairs",     true,  {"Hits",  "%", "Game Interval"}},
    {"Paired once",   true,  {"",      "",  ""}},
    {"Hot Repeaters", false, {"Reps.", "%", "Game Interval"}},
    {"No Hitters",    false, {"",      "",  ""}},
    // clang-format on
}};

const HotTableHead& ChosenHead() {
    return hotTableHeads.at(static_cast<std::size_t>(appState.hotTableChoice - 1));
}

std::string_view PickHeading(bool pairs) {
    if (IsCardGame(appState.gameType)) {
        return pairs ? "Cards" : "Card";
    }
    return pairs ? "Numbers" : "Number";
}

}  // namespace

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

void ShowHotHeadings() {
    const HotTableHead& head = ChosenHead();
    frmMainForm.grdHot.Column(0).heading = std::string(PickHeading(head.listsPairs));
    int column = 1;
    for (const std::string_view heading : head.countHeadings) {
        frmMainForm.grdHot.Column(column++).heading = std::string(heading);
    }
}

void ShowChosenHotCaption() {
    if (ShownHotTable() == HotTable::HotNumbers) {
        ShowHotNumbersCaption();
    } else {
        ShowHotCaption(ChosenHead().captionWords);
    }
}

}  // namespace ballhaven
