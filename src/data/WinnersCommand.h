#pragma once

#include "data/Console.h"

#include <optional>
#include <string>

namespace ballhaven::data {

/// What a user wants to have held against which draws of a game.
struct WinnersOptions {
    std::string game{};           ///< slot or name
    bool drawsAsTickets = false;  ///< its draws themselves, instead of its plays
    std::optional<int> from{};    ///< the serials of the first and the last day of the draws; none for no limit
    std::optional<int> to{};
    int last = 0;              ///< the newest so many draws of those; 0 for all
    std::optional<int> top{};  ///< how many winners are told
    bool csv = false;          ///< the winners alone, as CSV
};

/// Tells how often the plays of a game have hit how much in its draws, and the best of them. Without `top` it tells of
/// 20, as CSV of all. The folder is held while it is read alone. Throws Refusal.
void ShowWinners(const std::string& folder, const WinnersOptions& options, const Console& console);

}  // namespace ballhaven::data
