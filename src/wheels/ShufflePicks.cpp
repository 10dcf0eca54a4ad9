#include "wheels/ShufflePicks.h"

#include "forms/ShuffleForm.h"
#include "plays/BoardColours.h"
#include "plays/PickSlots.h"
#include "plays/PickToggling.h"
#include "plays/SlipBoards.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/GameRecord.h"
#include "wheels/ShuffleFile.h"

#include <algorithm>
#include <span>

namespace ballhaven {

namespace {

/// The slots of a list up to one.
std::span<const std::int16_t> SlotsTo(int last, const ChosenPicks& chosen, PickColumn list) {
    return chosen.Slots(list).first(static_cast<std::size_t>(std::clamp(last, 0, chosenPicks)));
}

/// The chosen picks that show on the board of a game.
BoardPicks ShownPicks(const GameRules& rules, const ChosenPicks& chosen) {
    // QUIRK CHOSEN-UNSEEN-1: of each list as many slots are looked at as its highest pick says. A pick behind them is
    // chosen and does not show: the tenth digit of a game from 0 to 9, and others where numbers can repeat, whose board
    // has more cells than that. Habits rest on it.
    return {SlotsTo(rules.mainHigh, chosen, mainPicks), SlotsTo(rules.bonusHigh, chosen, bonusPicks)};
}

void ShowAndSave() {
    frmShuffle.grdShuffle.ReadAgain();
    SaveShuffleFile();
}

}  // namespace

std::optional<std::string> ShuffleBoardText(const platform::GridCell& cell) {
    return IsUndefinedName(GameName(appState.gameRecord)) ? std::nullopt : SlipBoardText(cell);
}

void GetShuffleCellStyle(int cell, platform::CellStyle& style) {
    const GameRules rules = CurrentRules();
    style = BoardCellStyle(rules, ShownPicks(rules, appState.ShuffleTable), cell);
}

std::string ShuffleCellDescription(const platform::GridCell& cell) {
    const GameRules rules = CurrentRules();
    return PickDescription(
        ShuffleBoardText(cell).value_or(std::string()),
        SlotOfCell(rules, ShownPicks(rules, appState.ShuffleTable), CellNumberAt(cell.row, cell.column)).has_value());
}

void ToggleShufflePick() {
    const platform::GridCell cell = frmShuffle.grdShuffle.CurrentCell();
    if (!IsPickText(ShuffleBoardText(cell).value_or(std::string()))) {
        return;
    }
    const BoardPick pick = PickOfCell(appState.gameType, CellNumberAt(cell.row, cell.column));
    const PickColumn other = pick.list == mainPicks ? bonusPicks : mainPicks;
    if (TogglePickIn(appState.ShuffleTable.Slots(pick.list), appState.ShuffleTable.Slots(other), pick.value,
                     appState.gameType) != Toggled::HeldByOther) {
        ShowAndSave();
    }
}

void ClearShufflePicks() {
    std::ranges::fill(appState.ShuffleTable.Slots(mainPicks), emptySlot);
    std::ranges::fill(appState.ShuffleTable.Slots(bonusPicks), emptySlot);
    ShowAndSave();
}

}  // namespace ballhaven
