#include "data/winners/TicketHits.h"

#include "state/AppState.h"

#include <algorithm>

namespace ballhaven::data {

namespace {

int HitsAtTheirPlaces(std::span<const int> ticket, std::span<const int> drawn) {
    const std::size_t places = std::min(ticket.size(), drawn.size());
    int hits = 0;
    for (std::size_t place = 0; place < places; ++place) {
        hits += ticket[place] != noPick && ticket[place] == drawn[place] ? 1 : 0;
    }
    return hits;
}

int HitsAnywhere(std::span<const int> ticket, std::span<const int> drawn) {
    int hits = 0;
    for (std::size_t place = 0; place < ticket.size(); ++place) {
        const int pick = ticket[place];
        if (pick == noPick) {
            continue;
        }
        // A pick that a ticket has for the second time hits where the draw has it twice as well.
        const auto sameBefore = std::ranges::count(ticket.first(place), pick);
        hits += std::ranges::count(drawn, pick) > sameBefore ? 1 : 0;
    }
    return hits;
}

}  // namespace

Hits CountHits(const GameRules& rules, const Picks& ticket, const Picks& draw) {
    const auto count = rules.orderMatters ? HitsAtTheirPlaces : HitsAnywhere;
    const bool hasNoBonusPick = std::ranges::all_of(ticket.bonus, [](int pick) { return pick == noPick; });
    if (hasNoBonusPick && BonusComesFromMainPool(rules.gameType)) {
        return {.main = count(ticket.main, draw.main), .bonus = HitsAnywhere(ticket.main, draw.bonus)};
    }
    return {.main = count(ticket.main, draw.main), .bonus = count(ticket.bonus, draw.bonus)};
}

}  // namespace ballhaven::data
