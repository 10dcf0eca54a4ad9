#include "data/exchange/DrawMerge.h"

#include "state/AppState.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

MergedDraws Merged(std::vector<DrawOnFile> ofGame, std::vector<DrawOnFile> incoming, bool replaces) {
    MergedDraws merged;
    SortByDate(ofGame);
    merged.draws = ofGame;
    for (DrawOnFile& draw : incoming) {
        const auto first = std::ranges::lower_bound(ofGame, draw.date, {}, &DrawOnFile::date) - ofGame.begin();
        const auto end = std::ranges::upper_bound(ofGame, draw.date, {}, &DrawOnFile::date) - ofGame.begin();
        if (first == end) {
            merged.draws.push_back(std::move(draw));
            ++merged.added;
            continue;
        }
        const auto hasItsPicks = [&draw](const DrawOnFile& row) { return row.picks == draw.picks; };
        const bool isAlike = std::all_of(ofGame.begin() + first, ofGame.begin() + end, hasItsPicks);
        (isAlike ? merged.alike : merged.different).push_back(draw.date);
        for (auto row = first; replaces && row < end; ++row) {
            merged.draws[static_cast<std::size_t>(row)].picks = draw.picks;
        }
    }
    SortByDate(merged.draws);
    LeaveOutOldest(merged);
    merged.leftOutOfGame = static_cast<int>(std::ranges::count_if(
        merged.leftOut, [&](int date) { return std::ranges::binary_search(ofGame, date, {}, &DrawOnFile::date); }));
    merged.changesGame = merged.draws != ofGame;
    return merged;
}

}  // namespace ballhaven::data
