#include "statistics/HotPairs.h"

#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTableKinds.h"
#include "statistics/JointGames.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

namespace ballhaven {

namespace {

constexpr int mostPairs = 501;
constexpr int fewestHits = 2;

struct HotPair {
    PickPair picks;
    std::int16_t hits;
};

/// The pairs in the order of their rows in `hotNumberTable`. Counts them in `hotPairLast` as it finds them.
std::vector<HotPair> FindHotPairs() {
    const Table jointGames = CountJointGames();
    std::vector<HotPair> pairs;
    for (int i = 0; i < appState.hotNumberLast; ++i) {
        for (int j = i + 1; j <= appState.hotNumberLast; ++j) {
            const std::int16_t hits = jointGames(j, i);
            if (hits < fewestHits) {
                continue;
            }
            // QUIRK PAIR-LIMIT-1: one pair more than the work table takes ends the program. It is meant: the size is
            // part of the table's design, and a list that was cut off there would pass for a whole one.
            if (std::ssize(pairs) == mostPairs) {
                throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
            }
            pairs.push_back({PairOfRows(i, j), hits});
            ++appState.hotPairLast;
        }
    }
    return pairs;
}

bool StandsBefore(const HotPair& pair, const HotPair& other) {
    return pair.hits != other.hits ? pair.hits > other.hits : pair.picks < other.picks;
}

Table SortedTable(std::vector<HotPair> pairs) {
    Table table(4, static_cast<int>(pairs.size()));
    // QUIRK PAIR-ZEROS-1: a pair with a pick below the main range has a row, but the sort, which walks the main range,
    // never comes to it, and the row stays 0, 0 at the end. It is meant: the rows tell how many such pairs there are.
    std::erase_if(pairs, [](const HotPair& pair) { return !IsOfMainPicks(pair.picks); });
    std::ranges::sort(pairs, StandsBefore);
    for (int row = 0; const HotPair& pair : pairs) {
        table(1, row) = pair.picks.lower;
        table(2, row) = pair.picks.higher;
        table(3, row) = pair.hits;
        ++row;
    }
    return table;
}

}  // namespace

void ComputeHotPairs() {
    appState.hotPairLast = -1;
    const std::vector<HotPair> pairs = appState.historyViewLast > 0 ? FindHotPairs() : std::vector<HotPair>();
    const bool isShown = ShownHotTable() == HotTable::HotPairs;
    if (!pairs.empty()) {
        if (isShown) {
            ShowHotCaption("Hot Pairs");
        }
        appState.hotPairTable = SortedTable(pairs);
    } else if (isShown) {
        ShowNoneFoundCaption("Pairs");
    }
    appState.hotPairStale = false;
}

}  // namespace ballhaven
