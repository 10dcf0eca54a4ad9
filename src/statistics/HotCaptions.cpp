#include "statistics/HotCaptions.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "statistics/HotTableKinds.h"

#include <array>
#include <string>

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

void ShowHotCaption(std::string_view words) {
    frmMainForm.grdHot.caption =
        std::string(words) + " in last " + std::to_string(appState.historyViewLast + 1) + " games";
}

void ShowNoneFoundCaption(std::string_view words) {
    frmMainForm.grdHot.caption = std::string(words) + " (none found)";
}

void ShowHotNumbersCaption() {
    const std::string_view words = IsCardGame(appState.gameType) ? "Hot Cards" : "Hot Numbers";
    if (appState.hotNumberLast < 0) {
        ShowNoneFoundCaption(words);
    } else {
        ShowHotCaption(words);
    }
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
