#include "statistics/NoHitters.h"

#include "state/AppState.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTableKinds.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace ballhaven {

PickRange NoHitterRange(PickRange mainPicks, int mainPickCount, bool duplicatesAllowed) {
    if (!duplicatesAllowed) {
        return mainPicks;
    }
    // QUIRK NO-HITTERS-TOP-1: where duplicates are allowed the list ends at a share of the range, 2 in a game of three
    // picks from 0 to 9. Habits rest on it.
    const int share = mainPicks.high / std::max(1, mainPickCount);
    return {mainPicks.low, static_cast<std::int16_t>(mainPicks.low == 0 ? share - 1 : share)};
}

std::vector<std::int16_t> FindNoHitters(const DrawRows& draws, PickRange range) {
    std::vector<bool> isDrawn(static_cast<std::size_t>(std::max(0, range.high + 1)));
    for (int game = 0; game < draws.Games(); ++game) {
        for (const std::int16_t pick : draws.Picks(game)) {
            if (0 <= pick && pick <= range.high) {
                isDrawn[static_cast<std::size_t>(pick)] = true;
            }
        }
    }
    std::vector<std::int16_t> noHitters;
    for (int pick = range.low; pick <= range.high; ++pick) {
        if (!isDrawn[static_cast<std::size_t>(pick)]) {
            noHitters.push_back(static_cast<std::int16_t>(pick));
        }
    }
    return noHitters;
}

void ComputeNoHitters() {
    const PickRange range =
        NoHitterRange({appState.mainLow, appState.mainHigh}, appState.mainPickCount, appState.duplicatesAllowed);
    const std::vector<std::int16_t> noHitters = FindNoHitters(ViewedDraws(), range);
    appState.noHitterLast = static_cast<std::int16_t>(std::ssize(noHitters) - 1);
    ShowBuiltCaption(HotTable::NoHitters, !noHitters.empty());
    if (!noHitters.empty()) {
        appState.noHitterTable.assign(noHitters.begin(), noHitters.end());
    }
    appState.noHitterStale = false;
}

}  // namespace ballhaven
