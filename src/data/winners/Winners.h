#pragma once

#include "data/winners/TicketHits.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ballhaven::data {

/// What is held against the draws.
struct Ticket {
    Picks picks;
    std::optional<std::size_t> ownDraw{};  ///< the draw that it is itself, which it cannot win in
};

/// A ticket and a draw that it has hit, by their places in their lists.
struct Winner {
    std::size_t ticket = 0;
    std::size_t draw = 0;

    bool operator==(const Winner&) const = default;
};

/// All tickets and draws with the same hits.
struct Tier {
    Hits hits;
    std::uint64_t count = 0;
    std::vector<Winner> first{};  ///< the first of them by draw, then by ticket

    bool operator==(const Tier&) const = default;
};

/// Holds each ticket against each draw. Gives the tiers with at least one hit, the best first, each with its first
/// winners, as many in all as are wanted.
[[nodiscard]] std::vector<Tier> FindWinners(const GameRules& rules, std::span<const Ticket> tickets,
                                            std::span<const Picks> draws, std::size_t winnersWanted);

}  // namespace ballhaven::data
