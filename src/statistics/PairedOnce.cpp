#include "statistics/PairedOnce.h"

#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotCaptions.h"
#include "statistics/HotTableKinds.h"
#include "statistics/JointGames.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ballhaven {

namespace {

constexpr std::size_t mostPairs = 1001;

/// Raises the failure for a row that the table does not take.
void CheckRow(std::size_t row) {
    // QUIRK PAIR-LIMIT-1: as for Hot Pairs. The 0, 0 of a pick paired with itself fails only when it is sorted, since
    // nothing is written for it before.
    if (row >= mostPairs) {
        throw RuntimeFailure(RuntimeFailure::Kind::SubscriptOutOfRange);
    }
}

/// The pairs in the order of their rows in `hotNumberTable`. Counts them in `pairedOnceLast` as it finds them.
std::vector<PickPair> FindPairsOfOneGame() {
    const Table jointGames = CountJointGames();
    std::vector<PickPair> pairs;
    for (int i = 0; i < appState.hotNumberLast; ++i) {
        // QUIRK PAIRED-ONCE-1: the inner walk starts mainLow rows after the outer one, not one row after it. Where the
        // lowest number is 0 a value meets itself, and a value drawn in exactly one game takes a row that shows "0, 0".
        // Users of such games know these rows; starting at i + 1 would take them away.
        for (int j = appState.mainLow + i; j <= appState.hotNumberLast; ++j) {
            if (jointGames(j, i) != 1) {
                continue;
            }
            if (i == j) {
                pairs.emplace_back();
            } else {
                CheckRow(pairs.size());
                pairs.push_back(PairOfRows(i, j));
            }
            ++appState.pairedOnceLast;
        }
    }
    return pairs;
}

void FillSorted(Table& table, std::vector<PickPair> pairs) {
    table = Table(3, static_cast<int>(pairs.size()));
    CheckRow(pairs.size() - 1);
    // QUIRK PAIR-ZEROS-1: as for Hot Pairs.
    std::erase_if(pairs, [](PickPair pair) { return !IsOfMainPicks(pair); });
    std::ranges::sort(pairs);
    for (int row = 0; const PickPair pair : pairs) {
        table(1, row) = pair.lower;
        table(2, row) = pair.higher;
        ++row;
    }
}

}  // namespace

void ComputePairedOnce() {
    appState.pairedOnceLast = -1;
    const std::vector<PickPair> pairs = appState.historyViewLast > 0 ? FindPairsOfOneGame() : std::vector<PickPair>();
    const bool isShown = ShownHotTable() == HotTable::PairedOnce;
    if (!pairs.empty()) {
        if (isShown) {
            ShowHotCaption("Paired once");
        }
        FillSorted(appState.pairedOnceTable, pairs);
    } else if (isShown) {
        ShowNoneFoundCaption("Paired once");
    }
    appState.pairedOnceStale = false;
}

}  // namespace ballhaven
