#include "statistics/HotNumbers.h"

#include "state/AppState.h"
#include "statistics/HotTableKinds.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace ballhaven {

namespace {

/// Hits by pick value.
using HitCounts = std::array<std::int16_t, pickValues>;

struct PickColumns {
    int first;
    int last;
};

PickColumns CountedColumns() {
    const int total = appState.totalPicks;
    const int mainColumns = total - appState.bonusPickCount;
    if (!HasBonus(appState.gameType)) {
        return {1, total};
    }
    switch (CountedPicks{appState.hotSortChoice}) {
        case CountedPicks::Main:
            return {1, mainColumns};
        case CountedPicks::Bonus:
            return {mainColumns + 1, total};
        case CountedPicks::All:
            break;
    }
    return {1, total};
}

HitCounts CountHits(const Table& view, int games, PickColumns counted) {
    HitCounts hits{};
    const int first = std::max(1, counted.first);
    const int last = std::min(counted.last, view.Columns() - 1);
    if (first > last) {
        return hits;
    }
    const auto columns = static_cast<std::size_t>(last - first + 1);
    for (int game = 0; game < std::min(games, view.Rows()); ++game) {
        for (const std::int16_t pick : view.Row(game).subspan(static_cast<std::size_t>(first), columns)) {
            if (0 <= pick && pick < std::ssize(hits)) {
                ++hits[static_cast<std::size_t>(pick)];
            }
        }
    }
    return hits;
}

/// The picks from 0 to `highest` that have hits, in ascending order.
std::vector<std::int16_t> PicksWithHits(const HitCounts& hits, int highest) {
    std::vector<std::int16_t> picks;
    // QUIRK HOT-NUMBERS-1: the list ends at the highest main pick. Where the bonus pool reaches higher, its upper
    // values are counted and never listed. It is meant: the other tables take their candidates from this list, and a
    // longer one would change them all.
    for (std::int16_t pick = 0; pick <= std::min<std::ptrdiff_t>(highest, std::ssize(hits) - 1); ++pick) {
        if (hits[static_cast<std::size_t>(pick)] > 0) {
            picks.push_back(pick);
        }
    }
    return picks;
}

/// The rows of Hot Numbers for ascending picks that all have hits: the most hits first, equal ones in the given order.
Table RowsByHits(const std::vector<std::int16_t>& picks, const HitCounts& hits) {
    const auto hitsOf = [&hits](std::int16_t pick) { return hits[static_cast<std::size_t>(pick)]; };
    const auto most = static_cast<std::size_t>(hitsOf(*std::ranges::max_element(picks, {}, hitsOf)));

    // Place h holds the next free row among those with h hits: at first, the number of picks with more than h.
    std::vector<int> nextRow(most + 1);
    for (const std::int16_t pick : picks) {
        ++nextRow[static_cast<std::size_t>(hitsOf(pick) - 1)];
    }
    std::partial_sum(nextRow.rbegin(), nextRow.rend(), nextRow.rbegin());

    Table rows(4, static_cast<int>(picks.size()));
    for (const std::int16_t pick : picks) {
        const int row = nextRow[static_cast<std::size_t>(hitsOf(pick))]++;
        rows(1, row) = pick;
        rows(2, row) = hitsOf(pick);
    }
    return rows;
}

}  // namespace

void CountHotNumbers() {
    const HitCounts hits = CountHits(appState.historyView, appState.historyViewLast + 1, CountedColumns());
    const std::vector<std::int16_t> picks = PicksWithHits(hits, appState.mainHigh);
    appState.hotNumberLast = static_cast<std::int16_t>(std::ssize(picks) - 1);
    if (!picks.empty()) {
        appState.hotNumberTable = RowsByHits(picks, hits);
    }
}

}  // namespace ballhaven
