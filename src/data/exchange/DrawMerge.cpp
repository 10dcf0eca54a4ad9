#include "data/exchange/DrawMerge.h"

#include "data/folder/Picks.h"
#include "state/AppState.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ballhaven::data {

namespace {

/// The picks of a draw as they are compared.
Picks ComparedPicks(const GameRules& rules, const DrawOnFile& draw) {
    Picks picks = PicksOfDraw(rules, draw.picks);
    if (!rules.orderMatters) {
        std::ranges::sort(picks.main);
        std::ranges::sort(picks.bonus);
    }
    return picks;
}

bool AreAlike(const GameRules& rules, const DrawOnFile& one, const DrawOnFile& other) {
    return ComparedPicks(rules, one) == ComparedPicks(rules, other);
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

MergedDraws Merged(const GameRules& rules, std::vector<DrawOnFile> ofGame, std::vector<DrawOnFile> incoming,
                   bool replaces) {
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
        const auto hasItsPicks = [&](const DrawOnFile& row) { return AreAlike(rules, row, draw); };
        const bool isAlike = std::all_of(ofGame.begin() + first, ofGame.begin() + end, hasItsPicks);
        (isAlike ? merged.alike : merged.different).push_back(draw.date);
        if (replaces) {
            const auto hasOthers = [&](const DrawOnFile& row) { return !hasItsPicks(row); };
            std::replace_if(merged.draws.begin() + first, merged.draws.begin() + end, hasOthers, draw);
        }
    }
    SortByDate(merged.draws);
    LeaveOutOldest(merged);
    merged.leftOutOfGame = static_cast<int>(std::ranges::count_if(
        merged.leftOut, [&](int date) { return std::ranges::binary_search(ofGame, date, {}, &DrawOnFile::date); }));
    merged.added -= static_cast<int>(merged.leftOut.size()) - merged.leftOutOfGame;
    merged.changesGame = merged.draws != ofGame;
    return merged;
}

}  // namespace ballhaven::data
