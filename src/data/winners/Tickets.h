#pragma once

#include "data/folder/DrawsOnFile.h"
#include "data/winners/Winners.h"

#include <limits>
#include <span>
#include <string>
#include <vector>

namespace ballhaven::data {

/// Days as serials, the first and the last one included.
struct DayRange {
    int first = std::numeric_limits<int>::min();
    int last = std::numeric_limits<int>::max();
};

/// The draws with the newest first; those of one day keep their order.
[[nodiscard]] std::vector<DrawOnFile> NewestFirst(std::vector<DrawOnFile> draws);

/// Of draws with the newest first those of a range, and of these the first ones, if there are more than are wanted.
[[nodiscard]] std::span<const DrawOnFile> DrawsIn(const DayRange& range, std::span<const DrawOnFile> draws,
                                                  std::size_t most);

/// Tickets, what each is called, and what those are called that are left out since they lack a main pick.
struct NamedTickets {
    std::vector<Ticket> tickets{};
    std::vector<std::string> names{};
    std::vector<std::string> leftOut{};
};

/// The plays of a game, called as on their slips. Plays without any main pick are none.
[[nodiscard]] NamedTickets TicketsOfPlays(const GameRules& rules, const PlayPicks& plays);

/// All draws of a game, called by their days, to be held against some of them, which begin at a place of the list.
[[nodiscard]] NamedTickets TicketsOfDraws(const GameRules& rules, std::span<const DrawOnFile> draws,
                                          std::size_t firstHeldAgainst);

}  // namespace ballhaven::data
