#include "state/GameRules.h"

#include "state/AppState.h"
#include "state/modUTILS.h"

namespace ballhaven {

int TotalPicksOf(const GameRules& rules) {
    const int picks = rules.mainPickCount + (HasBonus(rules.gameType) ? rules.bonusPickCount : 0);
    return picks == 0 ? 1 : picks;
}

GameRules CurrentRules() {
    return {.gameType = appState.gameType,
            .mainPickCount = appState.mainPickCount,
            .bonusPickCount = appState.bonusPickCount,
            .mainLow = appState.mainLow,
            .mainHigh = appState.mainHigh,
            .bonusLow = appState.bonusLow,
            .bonusHigh = appState.bonusHigh,
            .duplicatesAllowed = appState.duplicatesAllowed,
            .orderMatters = appState.orderMatters};
}

void TakeRules(const GameRules& rules) {
    appState.gameType = modUTILS::ToInt16(rules.gameType);
    appState.mainPickCount = modUTILS::ToInt16(rules.mainPickCount);
    appState.bonusPickCount = modUTILS::ToInt16(rules.bonusPickCount);
    appState.totalPicks = modUTILS::ToInt16(TotalPicksOf(rules));
    appState.mainLow = modUTILS::ToInt16(rules.mainLow);
    appState.mainHigh = modUTILS::ToInt16(rules.mainHigh);
    appState.bonusLow = modUTILS::ToInt16(rules.bonusLow);
    appState.bonusHigh = modUTILS::ToInt16(rules.bonusHigh);
    appState.duplicatesAllowed = rules.duplicatesAllowed;
    appState.orderMatters = rules.orderMatters;
}

}  // namespace ballhaven
