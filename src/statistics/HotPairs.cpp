#include "statistics/HotPairs.h"

#include "state/AppState.h"
#include "state/MendedFolder.h"
#include "state/Table.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/JointGames.h"

#include <cstddef>
#include <iterator>

namespace ballhaven {

namespace {

constexpr int fewestHits = 2;

/// The pairs in the order of their candidates.
FoundRows<PairHits> PairsOfSeveralGames(const Table& jointGames, std::span<const std::int16_t> candidates,
                                        std::ptrdiff_t mostPairs) {
    FoundRows<PairHits> found;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        for (std::size_t j = i + 1; j < candidates.size(); ++j) {
            const std::int16_t hits = jointGames(static_cast<int>(j), static_cast<int>(i));
            if (hits < fewestHits) {
                continue;
            }
            if (std::ssize(found.rows) == mostPairs) {
                found.failure = RuntimeFailure::Kind::SubscriptOutOfRange;
                return found;
            }
            found.rows.push_back({PairOf(candidates[i], candidates[j]), hits});
        }
    }
    return found;
}

}  // namespace

FoundRows<PairHits> FindHotPairs(const DrawRows& draws, std::span<const std::int16_t> candidates, PickRange mainPicks,
                                 std::ptrdiff_t mostPairs) {
    FoundRows<PairHits> found = PairsOfSeveralGames(CountJointGames(draws, candidates), candidates, mostPairs);
    if (!found.failure) {
        SortRows(found.rows, mainPicks);
    }
    return found;
}

void ComputeHotPairs() {
    // QUIRK PAIR-LIMIT-1: one pair more than the table takes ends the program. A list that was cut off there would pass
    // for a whole one. In a mended folder the table takes them all.
    const std::ptrdiff_t mostPairs = FolderIsMended() ? noLimit : mostHotPairs;
    const FoundRows<PairHits> found =
        FindHotPairs(ViewedDraws(), HotNumberPicks(), {appState.mainLow, appState.mainHigh}, mostPairs);
    appState.hotPairLast = static_cast<std::int16_t>(std::ssize(found.rows) - 1);
    if (found.failure) {
        throw RuntimeFailure(*found.failure);
    }
    ShowBuiltCaption(HotTable::HotPairs, !found.rows.empty());
    if (!found.rows.empty()) {
        appState.hotPairTable = TableOf(found.rows, 4);
    }
    appState.hotPairStale = false;
}

}  // namespace ballhaven
