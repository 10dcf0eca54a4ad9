#include "statistics/HotCaptions.h"

#include "forms/MainForm.h"
#include "state/AppState.h"

#include <cstddef>

namespace ballhaven {

namespace {

/// How `grdHot` presents a table.
struct HotTableHead {
    std::string_view captionWords;
    std::string_view noneFoundWords;
    HotTable captionedWhile;  ///< the table that has to be on show for the builder to set the caption
    bool listsPairs;
    std::array<std::string_view, 3> countHeadings;  ///< of columns 1 to 3
};

/// By `hotTableChoice` - 1.
// QUIRK REPEATERS-CAPTION-1: the builder of Repeaters sets the caption while Paired Once is on show, not while
// Repeaters is. The selector captions Repeaters when it is chosen, and that caption stands until it is chosen again,
// with its number of games and also over an empty table. QUIRK NO-HITTERS-CAPTION-1: so does that of No-Hitters while
// Repeaters is on show.
constexpr std::array<HotTableHead, 5> hotTableHeads{{
    // clang-format off
    {"Hot Numbers",   "Hot Numbers",   HotTable::HotNumbers, false, {"Hits",  "%", "Game Interval"}},
    {"Hot Pairs",     "Pairs",         HotTable::HotPairs,   true,  {"Hits",  "%", "Game Interval"}},
    {"Paired once",   "Paired once",   HotTable::PairedOnce, true,  {"",      "",  ""}},
    {"Hot Repeaters", "Hot Repeaters", HotTable::PairedOnce, false, {"Reps.", "%", "Game Interval"}},
    {"No Hitters",    "No Hitters",    HotTable::Repeaters,  false, {"",      "",  ""}},
    // clang-format on
}};

constexpr std::string_view hotCards = "Hot Cards";

const HotTableHead& HeadOf(HotTable table) {
    return hotTableHeads.at(static_cast<std::size_t>(table) - 1);
}

bool IsHotCards(HotTable table, int gameType) {
    return table == HotTable::HotNumbers && IsCardGame(gameType);
}

std::string_view PickHeading(bool pairs, int gameType) {
    if (IsCardGame(gameType)) {
        return pairs ? "Cards" : "Card";
    }
    return pairs ? "Numbers" : "Number";
}

/// The caption of a table with or without rows.
std::string CaptionOf(HotTable table, bool hasRows, int gameType, int games) {
    return hasRows ? HotCaption(table, gameType, games) : NoneFoundCaption(table, gameType);
}

}  // namespace

std::string HotCaption(HotTable table, int gameType, int games) {
    const std::string_view words = IsHotCards(table, gameType) ? hotCards : HeadOf(table).captionWords;
    return std::string(words) + " in last " + std::to_string(games) + " games";
}

std::string NoneFoundCaption(HotTable table, int gameType) {
    return std::string(IsHotCards(table, gameType) ? hotCards : HeadOf(table).noneFoundWords) + " (none found)";
}

std::array<std::string_view, 4> HotHeadings(HotTable table, int gameType) {
    const HotTableHead& head = HeadOf(table);
    const auto& [second, third, fourth] = head.countHeadings;
    return {PickHeading(head.listsPairs, gameType), second, third, fourth};
}

void ShowHotNumbersCaption() {
    frmMainForm.grdHot.caption =
        CaptionOf(HotTable::HotNumbers, appState.hotNumberLast >= 0, appState.gameType, appState.historyViewLast + 1);
}

void ShowHotHeadings() {
    for (int column = 0; const std::string_view heading : HotHeadings(ShownHotTable(), appState.gameType)) {
        frmMainForm.grdHot.Column(column++).heading = std::string(heading);
    }
}

void ShowChosenHotCaption() {
    const bool hasRows = ShownHotTable() != HotTable::HotNumbers || appState.hotNumberLast >= 0;
    frmMainForm.grdHot.caption = CaptionOf(ShownHotTable(), hasRows, appState.gameType, appState.historyViewLast + 1);
}

void ShowBuiltCaption(HotTable built, bool hasRows) {
    if (ShownHotTable() == HeadOf(built).captionedWhile) {
        frmMainForm.grdHot.caption = CaptionOf(built, hasRows, appState.gameType, appState.historyViewLast + 1);
    }
}

}  // namespace ballhaven
