#pragma once

#include "data/folder/Picks.h"

#include <compare>

namespace ballhaven::data {

/// How much of a draw a ticket has hit. More main hits count for more than any bonus hits.
struct Hits {
    int main = 0;
    int bonus = 0;

    auto operator<=>(const Hits&) const = default;
};

/// The hits of a ticket's picks in a draw. Where the order matters a pick has to stand at its place, otherwise each
/// pick of the draw counts for one of the ticket. Main picks hit main picks and bonus picks bonus picks; but where the
/// bonus comes from the main picks' pool, and the ticket has no bonus pick of its own, its main picks are held against
/// the drawn bonus too.
[[nodiscard]] Hits CountHits(const GameRules& rules, const Picks& ticket, const Picks& draw);

}  // namespace ballhaven::data
