#include "data/winners/Winners.h"

#include <algorithm>
#include <functional>
#include <map>

namespace ballhaven::data {

namespace {

using TiersByHits = std::map<Hits, Tier, std::greater<>>;

/// Leaves, from the best tier on, as many winners as are wanted.
void KeepFirst(std::vector<Tier>& tiers, std::size_t winnersWanted) {
    for (Tier& tier : tiers) {
        tier.first.resize(std::min(tier.first.size(), winnersWanted));
        winnersWanted -= tier.first.size();
    }
}

}  // namespace

std::vector<Tier> FindWinners(const GameRules& rules, std::span<const Ticket> tickets, std::span<const Picks> draws,
                              std::size_t winnersWanted) {
    TiersByHits found;
    for (std::size_t draw = 0; draw < draws.size(); ++draw) {
        for (std::size_t ticket = 0; ticket < tickets.size(); ++ticket) {
            const Hits hits = CountHits(rules, tickets[ticket].picks, draws[draw]);
            if (tickets[ticket].ownDraw == draw || hits == Hits{}) {
                continue;
            }
            Tier& tier = found.try_emplace(hits, Tier{.hits = hits}).first->second;
            ++tier.count;
            if (tier.first.size() < winnersWanted) {
                tier.first.push_back({.ticket = ticket, .draw = draw});
            }
        }
    }
    std::vector<Tier> tiers;
    for (auto& [hits, tier] : found) {
        tiers.push_back(std::move(tier));
    }
    KeepFirst(tiers, winnersWanted);
    return tiers;
}

}  // namespace ballhaven::data
