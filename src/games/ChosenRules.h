#pragma once

#include "state/GameRules.h"

#include <string>

namespace ballhaven {

/// The selected entries of the dialog's lists, counted from 0, -1 where nothing is selected.
struct GameChoices {
    int type = -1;
    int mainCount = -1;
    int bonusCount = -1;
    int order = -1;
    int duplicates = -1;
    int mainLow = -1;
    int mainHigh = -1;
    int bonusLow = -1;
    int bonusHigh = -1;
};

/// The highest number that a pool can have: 99, or, where numbers can repeat in a drawing, what leaves each of `picks`
/// pick positions a run of cells of its own, `low` being the lowest number. Without picks it is 99.
[[nodiscard]] int HighestNumberLimit(bool duplicates, int picks, int low);

/// The rules that the choices in the dialog give. Those of a card game are 1 to 52 in both pools, without duplicates.
[[nodiscard]] GameRules RulesOf(const GameChoices& choices);

/// A game's record with a name, without the blanks around it, and rules; what the dialog does not ask stays.
[[nodiscard]] std::string WithRules(std::string record, const std::string& name, const GameRules& rules);

}  // namespace ballhaven
