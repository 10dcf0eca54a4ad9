#include "plays/PickToggling.h"

#include "plays/PickSlots.h"
#include "state/BoardGeometry.h"

#include <algorithm>

namespace ballhaven {

BoardPick PickOfCell(int gameType, int cell) {
    const int firstBonusCell = BoardOf(gameType).firstBonusCell;
    const bool isBonus = cell >= firstBonusCell;
    return {isBonus ? bonusPicks : mainPicks, static_cast<std::int16_t>(isBonus ? cell - firstBonusCell : cell)};
}

bool IsPickText(std::string_view cellText) {
    return !cellText.empty() && !(cellText.size() == 1 && bonusWord.find(cellText) != std::string_view::npos);
}

std::string PickDescription(const std::string& cellText, bool isChosen) {
    if (!IsPickText(cellText)) {
        return {};
    }
    return isChosen ? cellText + ", chosen" : cellText;
}

bool KeepsListsApart(int gameType) {
    return gameType == 1 || gameType == 3;
}

Toggled TogglePickIn(std::span<std::int16_t> own, std::span<const std::int16_t> other, std::int16_t value,
                     int gameType) {
    if (const auto held = std::ranges::find(own, value); held != own.end()) {
        *held = emptySlot;
        return Toggled::TakenOff;
    }
    if (KeepsListsApart(gameType) && Holds(other, value)) {
        return Toggled::HeldByOther;
    }
    const auto empty = std::ranges::find(own, emptySlot);
    if (empty == own.end()) {
        return Toggled::ListIsFull;
    }
    *empty = value;
    return Toggled::PutOn;
}

}  // namespace ballhaven
