#include "statistics/JointGames.h"

#include "statistics/HotRows.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace ballhaven {

namespace {

/// The places of the candidates by pick value, -1 for a pick that is none.
using PlacesByPick = std::array<int, pickValues>;

PlacesByPick PlacesOf(std::span<const std::int16_t> candidates) {
    PlacesByPick places;
    places.fill(-1);
    for (int place = 0; const std::int16_t pick : candidates) {
        places.at(static_cast<std::size_t>(pick)) = place++;
    }
    return places;
}

int PlaceOf(std::int16_t pick, const PlacesByPick& places) {
    return 0 <= pick && pick < pickValues ? places[static_cast<std::size_t>(pick)] : -1;
}

/// The places of the candidates among the picks of a draw, each once, ascending.
void FindPlaces(std::span<const std::int16_t> picks, const PlacesByPick& places, std::vector<int>& found) {
    found.clear();
    for (const std::int16_t pick : picks) {
        if (const int place = PlaceOf(pick, places); place >= 0) {
            found.push_back(place);
        }
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
}

}  // namespace

Table CountJointGames(const DrawRows& draws, std::span<const std::int16_t> candidates) {
    const int count = static_cast<int>(candidates.size());
    const PlacesByPick places = PlacesOf(candidates);
    Table jointGames(count, count);
    std::vector<int> inGame;
    for (int game = 0; game < draws.Games(); ++game) {
        FindPlaces(draws.Picks(game), places, inGame);
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
