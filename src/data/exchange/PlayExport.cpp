#include "data/exchange/PlayExport.h"

#include "data/exchange/DrawExport.h"
#include "data/folder/Picks.h"
#include "plays/PlayMethodCode.h"
#include "plays/PlaySlips.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace ballhaven::data {

namespace {

using Slots = std::span<const std::int16_t>;

constexpr std::array<std::string_view, 4> methodNames = {"by hand", "shuffle", "partial wheel", "full wheel"};

std::string_view NameOfMethod(std::int16_t method) {
    const bool isKnown = byHand <= method && method <= byFullWheel;
    return methodNames[isKnown ? static_cast<std::size_t>(method) : std::size_t{byHand}];
}

/// The text of a slot of one of the lists.
std::string TextOfSlot(const GameRules& rules, PickColumn list, std::int16_t slot) {
    if (slot < 0) {
        return {};
    }
    return TextOfPick(PickOnCell(rules, list, slot), rules.gameType);
}

/// The fields of one of the lists of a play.
std::string FieldsOf(const GameRules& rules, PickColumn list, Slots slots) {
    std::string fields;
    for (const std::int16_t slot : slots) {
        fields += ",";
        fields += TextOfSlot(rules, list, slot);
    }
    return fields;
}

Slots FirstSlots(Slots slots, int count) {
    return slots.first(static_cast<std::size_t>(std::clamp(count, 0, picksPerPlay)));
}

bool HasPick(Slots slots) {
    return std::ranges::any_of(slots, [](std::int16_t slot) { return slot >= 0; });
}

}  // namespace

std::string CsvOfPlays(const GameRules& rules, const PlayPicks& plays) {
    const int bonusCount = BonusSlots(rules);
    const int mainCount = TotalPicksOf(rules) - bonusCount;
    std::string csv = std::string(playColumnNames) + PickColumnNames(rules) + "\n";
    for (int play = 1; play <= playCount; ++play) {
        const Slots mains = FirstSlots(plays.Slots(mainPicks, play), mainCount);
        const Slots bonus = FirstSlots(plays.Slots(bonusPicks, play), bonusCount);
        if (!HasPick(mains) && !HasPick(bonus)) {
            continue;
        }
        csv += std::to_string(SlipOfPlay(play)) + ",";
        csv += lineLetters[static_cast<std::size_t>(LineOfPlay(play) - 1)];
        csv += ",";
        csv += NameOfMethod(plays(mainPicks, play, 0));
        csv += FieldsOf(rules, mainPicks, mains);
        csv += FieldsOf(rules, bonusPicks, bonus);
        csv += "\n";
    }
    return csv;
}

}  // namespace ballhaven::data
