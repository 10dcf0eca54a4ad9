#pragma once

#include "data/folder/DrawsOnFile.h"
#include "state/GameRules.h"

#include <vector>

namespace ballhaven::data {

/// What becomes of a game's draws when others come in.
struct MergedDraws {
    std::vector<DrawOnFile> draws;  ///< all that the game then has, in ascending order of date, 1000 at most
    int added = 0;                  ///< draws, of dates that the game did not have, that come in
    std::vector<int> alike;         ///< dates, in ascending order, that it has with the same picks
    std::vector<int> different;     ///< dates that it has with other picks
    std::vector<int> leftOut;       ///< dates of the oldest draws, for which there is no room
    int leftOutOfGame = 0;          ///< how many of those the game had before
    bool changesGame = false;       ///< a draw comes in or takes other picks
};

/// Brings draws, in ascending order of date and each date once, among those of a game. A draw whose date the game has
/// already stays as it is, or takes the new picks if that is wanted, in each row of that date that has other ones.
/// Where the order of the picks does not matter, the same ones in another order are no others.
[[nodiscard]] MergedDraws Merged(const GameRules& rules, std::vector<DrawOnFile> ofGame,
                                 std::vector<DrawOnFile> incoming, bool replaces);

}  // namespace ballhaven::data
