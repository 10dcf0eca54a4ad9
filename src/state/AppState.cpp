#include "state/AppState.h"

#include <algorithm>

namespace ballhaven {

AppState appState;

std::size_t PlayPicks::Index(int pickColumn, int play, int slot) {
    if (pickColumn < 0 || pickColumn > 1 || play < 0 || play > playCount || slot < 0 || slot > picksPerPlay) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>((pickColumn * (playCount + 1) + play) * (picksPerPlay + 1) + slot);
}

ChosenPicks::ChosenPicks() {
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        std::ranges::fill(Slots(list), std::int16_t{-1});
    }
}

std::size_t ChosenPicks::Index(int pickColumn, int slot) {
    if (pickColumn < 0 || pickColumn > 1 || slot < 0 || slot > chosenPicks) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(pickColumn * (chosenPicks + 1) + slot);
}

void MarkHotTablesStale() {
    appState.hotPairStale = true;
    appState.pairedOnceStale = true;
    appState.repeaterStale = true;
    appState.noHitterStale = true;
}

}  // namespace ballhaven
