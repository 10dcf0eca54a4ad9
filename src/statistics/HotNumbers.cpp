#include "statistics/HotNumbers.h"

#include "state/AppState.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace ballhaven {

namespace {

/// Hits by pick value.
using HitCounts = std::array<std::int16_t, pickValues>;

HitCounts CountHits(const DrawRows& draws) {
    HitCounts hits{};
    for (int game = 0; game < draws.Games(); ++game) {
        for (const std::int16_t pick : draws.Picks(game)) {
            if (0 <= pick && pick < pickValues) {
                ++hits[static_cast<std::size_t>(pick)];
            }
        }
    }
    return hits;
}

}  // namespace

PickColumns CountedColumns(int gameType, int totalPicks, int bonusPicks, CountedPicks counted) {
    const int mainColumns = totalPicks - bonusPicks;
    if (HasBonus(gameType) && counted == CountedPicks::Main) {
        return {1, mainColumns};
    }
    if (HasBonus(gameType) && counted == CountedPicks::Bonus) {
        return {mainColumns + 1, totalPicks};
    }
    return {1, totalPicks};
}

std::vector<PickHits> FindHotNumbers(const DrawRows& draws, int highest) {
    const HitCounts hits = CountHits(draws);
    std::vector<PickHits> rows;
    // QUIRK HOT-NUMBERS-1: the list ends at the highest main pick. Where the bonus pool reaches higher, its upper
    // values are counted and never listed. The other tables take their candidates from this list, and a longer one
    // would change them all.
    for (int pick = 0; pick <= std::min(highest, pickValues - 1); ++pick) {
        if (const std::int16_t hitsOfPick = hits[static_cast<std::size_t>(pick)]; hitsOfPick > 0) {
            rows.push_back({static_cast<std::int16_t>(pick), hitsOfPick});
        }
    }
    std::ranges::sort(rows);
    return rows;
}

void CountHotNumbers() {
    const PickColumns counted = CountedColumns(appState.gameType, appState.totalPicks, appState.bonusPickCount,
                                               CountedPicks{appState.hotSortChoice});
    const DrawRows draws(appState.historyView, appState.historyViewLast + 1, counted);
    const std::vector<PickHits> rows = FindHotNumbers(draws, appState.mainHigh);
    appState.hotNumberLast = static_cast<std::int16_t>(std::ssize(rows) - 1);
    if (!rows.empty()) {
        appState.hotNumberTable = TableOf(rows, 4);
    }
}

std::vector<std::int16_t> HotNumberPicks() {
    std::vector<std::int16_t> picks;
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        picks.push_back(static_cast<std::int16_t>(appState.hotNumberTable(1, row)));
    }
    return picks;
}

}  // namespace ballhaven
