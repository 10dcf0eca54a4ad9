#include "statistics/PairedOnce.h"

#include "state/AppState.h"
#include "state/MendedFolder.h"
#include "state/Table.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/JointGames.h"

#include <iterator>

namespace ballhaven {

namespace {

constexpr int fewestGames = 2;

/// The pairs in the order of their candidates.
FoundRows<PickPair> PairsOfOneGame(const Table& jointGames, std::span<const std::int16_t> candidates, int lowest,
                                   std::ptrdiff_t mostPairs) {
    FoundRows<PickPair> found;
    const int count = static_cast<int>(candidates.size());
    for (int i = 0; i < count - 1; ++i) {
        // QUIRK PAIRED-ONCE-1: the inner walk starts mainLow places after the outer one, not one place after it. Where
        // the lowest number is 0 a value meets itself, and a value drawn in exactly one game takes a row that shows
        // "0, 0". Habits rest on these rows; starting at i + 1 would take them away.
        for (int j = lowest + i; j < count; ++j) {
            if (jointGames(j, i) != 1) {
                continue;
            }
            if (i == j) {
                found.rows.emplace_back();
                continue;
            }
            // The 0, 0 of a pick paired with itself fails only when it is sorted, since nothing is written for it
            // before.
            if (std::ssize(found.rows) >= mostPairs) {
                found.failure = RuntimeFailure::Kind::SubscriptOutOfRange;
                return found;
            }
            found.rows.push_back(
                PairOf(candidates[static_cast<std::size_t>(i)], candidates[static_cast<std::size_t>(j)]));
        }
    }
    return found;
}

}  // namespace

FoundRows<PickPair> FindPairsDrawnOnce(const DrawRows& draws, std::span<const std::int16_t> candidates,
                                       PickRange mainPicks, std::ptrdiff_t mostPairs) {
    if (draws.Games() < fewestGames) {
        return {};
    }
    FoundRows<PickPair> found =
        PairsOfOneGame(CountJointGames(draws, candidates), candidates, mainPicks.low, mostPairs);
    if (!found.failure) {
        SortRows(found.rows, mainPicks);
    }
    return found;
}

void ComputePairedOnce() {
    // QUIRK PAIR-LIMIT-1: as for Hot Pairs.
    const std::ptrdiff_t mostPairs = FolderIsMended() ? noLimit : mostPairsDrawnOnce;
    const FoundRows<PickPair> found =
        FindPairsDrawnOnce(ViewedDraws(), HotNumberPicks(), {appState.mainLow, appState.mainHigh}, mostPairs);
    appState.pairedOnceLast = static_cast<std::int16_t>(std::ssize(found.rows) - 1);
    if (found.failure) {
        throw RuntimeFailure(*found.failure);
    }
    ShowBuiltCaption(HotTable::PairedOnce, !found.rows.empty());
    if (std::ssize(found.rows) > mostPairs) {
        appState.pairedOnceTable = CountTable(3, static_cast<int>(found.rows.size()));
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
    if (!found.rows.empty()) {
        appState.pairedOnceTable = TableOf(found.rows, 3);
    }
    appState.pairedOnceStale = false;
}

}  // namespace ballhaven
