#include "state/GameRules.h"

#include "state/AppState.h"

namespace ballhaven {

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

}  // namespace ballhaven
