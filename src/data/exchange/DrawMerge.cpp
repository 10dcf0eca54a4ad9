#include "data/exchange/DrawMerge.h"

#include "state/AppState.h"

#include <algorithm>
#include <iterator>

namespace ballhaven::data {

namespace {

void SortByDate(std::vector<DrawOnFile>& draws) {
    std::ranges::stable_sort(draws, {}, &DrawOnFile::date);
}

/// Takes the oldest draws out where there are more than a game keeps, and notes their dates.
void LeaveOutOldest(MergedDraws& merged) {
    const auto excess = std::ssize(merged.draws) - historyRows;
    if (excess <= 0) {
        return;
    }
    const auto firstKept = merged.draws.begin() + excess;
    std::transform(merged.draws.begin(), firstKept, std::back_inserter(merged.leftOut),
                   [](const DrawOnFile& draw) { return draw.date; });
    merged.draws.erase(merged.draws.begin(), firstKept);
}

}  // namespace

MergedDraws Merged(std::vector<DrawOnFile> ofGame, const std::vector<DrawOnFile>& incoming, bool replaces) {
    MergedDraws merged;
    SortByDate(ofGame);
    merged.draws = ofGame;
    for (const DrawOnFile& draw : incoming) {
        const auto rows = std::ranges::equal_range(ofGame, draw.date, {}, &DrawOnFile::date);
        if (rows.empty()) {
            merged.draws.push_back(draw);
            ++merged.added;
            continue;
        }
        const bool isAlike = std::ranges::all_of(rows, [&](const DrawOnFile& row) { return row.picks == draw.picks; });
        (isAlike ? merged.alike : merged.different).push_back(draw.date);
        for (auto row = rows.begin() - ofGame.begin(); replaces && row < rows.end() - ofGame.begin(); ++row) {
            merged.draws[static_cast<std::size_t>(row)].picks = draw.picks;
        }
    }
    SortByDate(merged.draws);
    LeaveOutOldest(merged);
    merged.leftOutOfGame = static_cast<int>(std::ranges::count_if(
        ofGame, [&](const DrawOnFile& draw) { return !merged.leftOut.empty() && draw.date <= merged.leftOut.back(); }));
    merged.changesGame = merged.draws != ofGame;
    return merged;
}

}  // namespace ballhaven::data
