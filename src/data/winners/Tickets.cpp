#include "data/winners/Tickets.h"

#include "data/folder/IsoDate.h"
#include "plays/PlaySlips.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace ballhaven::data {

namespace {

void Add(NamedTickets& tickets, const GameRules& rules, Ticket ticket, std::string name) {
    if (!HasAllMainPicks(rules, ticket.picks)) {
        tickets.leftOut.push_back(std::move(name));
        return;
    }
    tickets.tickets.push_back(std::move(ticket));
    tickets.names.push_back(std::move(name));
}

}  // namespace

std::vector<DrawOnFile> NewestFirst(std::vector<DrawOnFile> draws) {
    std::ranges::stable_sort(draws, std::ranges::greater(), &DrawOnFile::date);
    return draws;
}

std::span<const DrawOnFile> DrawsIn(const DayRange& range, std::span<const DrawOnFile> draws, std::size_t most) {
    const auto begin = std::ranges::find_if(draws, [&](const DrawOnFile& draw) { return draw.date <= range.last; });
    const auto end = std::find_if(begin, draws.end(), [&](const DrawOnFile& draw) { return draw.date < range.first; });
    return {begin, std::min(static_cast<std::size_t>(end - begin), most)};
}

NamedTickets TicketsOfPlays(const GameRules& rules, const PlayPicks& plays) {
    NamedTickets tickets;
    for (int play = 1; play <= playCount; ++play) {
        if (Picks picks = PicksOfPlay(rules, plays, play); !HasNoMainPick(picks)) {
            Add(tickets, rules, {.picks = std::move(picks)}, NameOfPlay(play));
        }
    }
    return tickets;
}

NamedTickets TicketsOfDraws(const GameRules& rules, std::span<const DrawOnFile> draws, std::size_t firstHeldAgainst) {
    NamedTickets tickets;
    for (std::size_t draw = 0; draw < draws.size(); ++draw) {
        Ticket ticket{.picks = PicksOfDraw(rules, draws[draw].picks)};
        if (draw >= firstHeldAgainst) {
            ticket.ownDraw = draw - firstHeldAgainst;
        }
        Add(tickets, rules, std::move(ticket), IsoDate(draws[draw].date));
    }
    return tickets;
}

}  // namespace ballhaven::data
