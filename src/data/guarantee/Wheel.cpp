#include "data/guarantee/Wheel.h"

#include "data/folder/Picks.h"

#include <algorithm>
#include <set>

namespace ballhaven::data {

namespace {

std::vector<int> PlacesOf(const std::vector<int>& picks, const std::vector<int>& numbers) {
    std::vector<int> places;
    for (const int pick : picks) {
        const auto found = std::ranges::lower_bound(numbers, pick);
        if (found != numbers.end() && *found == pick) {
            places.push_back(static_cast<int>(found - numbers.begin()));
        }
    }
    std::ranges::sort(places);
    return places;
}

}  // namespace

Wheel WheelOf(const GameRules& rules, const PlayPicks& plays, const std::vector<int>& chosen) {
    Wheel wheel;
    std::vector<std::vector<int>> played;
    std::set<int> all;
    for (int play = 1; play <= playCount; ++play) {
        Picks picks = PicksOfPlay(rules, plays, play);
        if (HasAllMainPicks(rules, picks)) {
            all.insert(picks.main.begin(), picks.main.end());
            wheel.plays.push_back(play);
            played.push_back(std::move(picks.main));
        } else if (!HasNoMainPick(picks)) {
            wheel.partPlays.push_back(play);
        }
    }
    wheel.numbers = chosen.empty() ? std::vector<int>(all.begin(), all.end()) : chosen;
    std::ranges::transform(played, std::back_inserter(wheel.holds),
                           [&wheel](const std::vector<int>& picks) { return PlacesOf(picks, wheel.numbers); });
    return wheel;
}

std::vector<int> NumbersAt(const Wheel& wheel, std::span<const int> places) {
    std::vector<int> numbers;
    for (const int place : places) {
        numbers.push_back(wheel.numbers[static_cast<std::size_t>(place)]);
    }
    return numbers;
}

std::vector<int> ChosenNumbers(const GameRules& rules, const ChosenPicks& chosen) {
    std::set<int> numbers;
    for (const std::int16_t cell : chosen.Slots(mainPicks)) {
        if (const int pick = PickOnCell(rules, mainPicks, cell); pick != noPick) {
            numbers.insert(pick);
        }
    }
    return {numbers.begin(), numbers.end()};
}

}  // namespace ballhaven::data
