#include "plays/PlayEditing.h"

#include "platform/Boxes.h"
#include "plays/PickSlots.h"
#include "plays/PickToggling.h"
#include "plays/PlayMethodCode.h"
#include "plays/PlayScreen.h"
#include "plays/WinnerHiLites.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/GameRules.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

#include <algorithm>

namespace ballhaven {

namespace {

bool Exists(int play) {
    return 1 <= play && play <= playCount;
}

/// The picks of a play; none of one that does not exist.
BoardPicks PicksOf(const PlayPicks& plays, int play) {
    return Exists(play) ? BoardPicks{plays.Slots(mainPicks, play), plays.Slots(bonusPicks, play)} : BoardPicks{};
}

/// The slots that a list of a play has in a game.
std::span<std::int16_t> SlotsOf(PlayPicks& plays, const GameRules& rules, PickColumn list, int play) {
    const int count = list == mainPicks ? rules.mainPickCount : rules.bonusPickCount;
    return plays.Slots(list, play).first(static_cast<std::size_t>(std::clamp(count, 0, picksPerPlay)));
}

Toggled ToggleInPlay(PlayPicks& plays, const GameRules& rules, int play, const BoardPick& pick) {
    const PickColumn other = pick.list == mainPicks ? bonusPicks : mainPicks;
    const Toggled toggled = TogglePickIn(SlotsOf(plays, rules, pick.list, play), SlotsOf(plays, rules, other, play),
                                         pick.value, rules.gameType);
    const bool changed = toggled == Toggled::TakenOff || toggled == Toggled::PutOn;
    // QUIRK BONUS-KEEPS-METHOD-1: a change of the bonus picks alone leaves the way in which the play was made. Files
    // and habits rest on it.
    if (changed && pick.list == mainPicks) {
        plays(mainPicks, play, 0) = byHand;
    }
    return toggled;
}

}  // namespace

void TogglePick(int play, platform::Grid& board) {
    appState.playsDirty = true;
    if (board.CurrentRow() < 0 || board.CurrentColumn() < 0 || !Exists(play)) {
        return;
    }
    const int cell = CellNumberAt(board.CurrentRow(), board.CurrentColumn());
    if (!IsPickText(PickCellText(cell))) {
        return;
    }
    const BoardPick pick = PickOfCell(appState.gameType, cell);
    switch (ToggleInPlay(appState.PlayTable, CurrentRules(), play, pick)) {
        case Toggled::TakenOff:
        case Toggled::PutOn:
            board.ReadAgain();
            break;
        case Toggled::ListIsFull:
            platform::Tell(pick.list == mainPicks ? "You already have enough main picks"
                                                  : "You already have enough bonus picks");
            break;
        case Toggled::HeldByOther:
            break;
    }
}

void PlayCellStyle(int play, int cell, platform::CellStyle& style) {
    const GameRules rules = CurrentRules();
    const BoardPicks picks = PicksOf(appState.PlayTable, play);
    style = BoardCellStyle(rules, picks, cell);
    const std::optional<int> slot = appState.hiLiteWinners ? SlotOfCell(rules, picks, cell) : std::nullopt;
    const std::string text = slot ? PickCellText(cell) : std::string();
    if (!text.empty() && IsWinner(rules, DrawForWinners(), cell, *slot, modUTILS::ValueOf16(text))) {
        style = winnerStyle;
    }
}

bool IsChosen(int play, int cell) {
    return SlotOfCell(CurrentRules(), PicksOf(appState.PlayTable, play), cell).has_value();
}

std::string CellDescription(int play, int cell, const std::string& text) {
    return PickDescription(text, IsChosen(play, cell));
}

void ErasePlay(int play) {
    if (Exists(play)) {
        EmptyPlay(appState.PlayTable, play);
    }
    appState.playsDirty = true;
}

}  // namespace ballhaven
