#include "statistics/JointGames.h"

#include "state/AppState.h"
#include "state/ViewRows.h"
#include "statistics/HotNumbers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace ballhaven {

namespace {

/// Rows of `hotNumberTable` by pick value, -1 for a pick that is not in it.
using RowsByPick = std::array<int, pickValues>;

RowsByPick RowsOfCandidates() {
    RowsByPick rows;
    rows.fill(-1);
    for (int row = 0; row <= appState.hotNumberLast; ++row) {
        rows.at(static_cast<std::size_t>(appState.hotNumberTable(1, row))) = row;
    }
    return rows;
}

int RowOf(std::int16_t pick, const RowsByPick& rows) {
    return 0 <= pick && pick < pickValues ? rows[static_cast<std::size_t>(pick)] : -1;
}

/// The rows of the candidates among the picks of a game, each once, ascending.
void FindRows(std::span<const std::int16_t> picks, const RowsByPick& rows, std::vector<int>& found) {
    found.clear();
    for (const std::int16_t pick : picks) {
        if (const int row = RowOf(pick, rows); row >= 0) {
            found.push_back(row);
        }
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
}

}  // namespace

PickPair PairOfRows(int row, int otherRow) {
    const auto [lower, higher] = std::minmax({appState.hotNumberTable(1, row), appState.hotNumberTable(1, otherRow)});
    return {lower, higher};
}

bool IsOfMainPicks(PickPair pair) {
    return appState.mainLow <= pair.lower && pair.higher <= appState.mainHigh;
}

Table CountJointGames() {
    const int candidates = appState.hotNumberLast + 1;
    const RowsByPick rows = RowsOfCandidates();
    Table jointGames(candidates, candidates);
    std::vector<int> inGame;
    for (int game = 0; game <= appState.historyViewLast; ++game) {
        FindRows(PicksOfDraw(game), rows, inGame);
        for (auto first = inGame.begin(); first != inGame.end(); ++first) {
            const std::span<std::int16_t> counts = jointGames.Row(*first);
            for (auto second = first; second != inGame.end(); ++second) {
                ++counts[static_cast<std::size_t>(*second)];
            }
        }
    }
    return jointGames;
}

}  // namespace ballhaven
