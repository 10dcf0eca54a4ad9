#include "games/ChosenRules.h"

#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

constexpr int highestNumber = 99;
constexpr int lowestCard = 1;
constexpr int highestCard = 52;

/// The number at an entry of a list of numbers from 1, 0 for none.
int NumberAt(int entry) {
    return entry + 1;
}

// QUIRK GAME-BONUS-LIMITS-1: in a game without bonus nothing is selected in the hidden bonus lists, so the record gets
// "-" and "00" there; in one with the bonus from the same pool they keep the limits of the last fill, which can differ
// from changed main limits. Files rest on it: writing the main limits would change the reach of their bonus picks.
void TakeNumberLimits(GameRules& rules, const GameChoices& choices) {
    rules.mainLow = choices.mainLow;
    rules.mainHigh = NumberAt(choices.mainHigh);
    rules.bonusLow = choices.bonusLow;
    rules.bonusHigh = NumberAt(choices.bonusHigh);
}

void TakeCardLimits(GameRules& rules) {
    rules.mainLow = rules.bonusLow = lowestCard;
    rules.mainHigh = rules.bonusHigh = highestCard;
}

const char* YesOrNo(bool yes) {
    return yes ? "Y" : "N";
}

}  // namespace

int HighestNumberLimit(bool duplicates, int picks, int low) {
    if (!duplicates || picks == 0) {
        return highestNumber;
    }
    const int run = highestNumber / picks;
    return low == 1 ? run : run - picks;
}

GameRules RulesOf(const GameChoices& choices) {
    GameRules rules;
    rules.gameType = choices.type;
    rules.mainPickCount = NumberAt(choices.mainCount);
    rules.bonusPickCount = NumberAt(choices.bonusCount);
    rules.orderMatters = choices.order != 0;
    if (IsCardGame(choices.type)) {
        TakeCardLimits(rules);
    } else {
        rules.duplicatesAllowed = choices.duplicates != 0;
        TakeNumberLimits(rules, choices);
    }
    return rules;
}

std::string WithRules(std::string record, const std::string& name, const GameRules& rules) {
    SetField(record, gameField::name, modUTILS::Trimmed(name));
    SetField(record, gameField::gameType, std::to_string(rules.gameType));
    SetFieldValue(record, gameField::mainPickCount, rules.mainPickCount);
    SetField(record, gameField::bonusPickCount, std::to_string(rules.bonusPickCount));
    SetField(record, gameField::order, YesOrNo(rules.orderMatters));
    SetField(record, gameField::duplicates, YesOrNo(rules.duplicatesAllowed));
    SetField(record, gameField::mainLow, std::to_string(rules.mainLow));
    SetFieldValue(record, gameField::mainHigh, rules.mainHigh);
    SetField(record, gameField::bonusLow, std::to_string(rules.bonusLow));
    SetFieldValue(record, gameField::bonusHigh, rules.bonusHigh);
    return record;
}

}  // namespace ballhaven
