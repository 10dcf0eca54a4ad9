#include "data/WinnersCommand.h"

#include "data/folder/GamesOnFile.h"
#include "data/folder/IsoDate.h"
#include "data/folder/PlaysOnFile.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "data/winners/Tickets.h"

#include <algorithm>
#include <functional>
#include <iomanip>
#include <iterator>
#include <limits>

namespace ballhaven::data {

namespace {

constexpr std::size_t winnersTold = 20;
constexpr std::size_t all = std::numeric_limits<std::size_t>::max();

/// What is held against what: `held` are some of the game's draws.
struct Contest {
    GameOnFile game;
    std::vector<DrawOnFile> draws;
    std::span<const DrawOnFile> held;
    NamedTickets tickets;
};

DayRange RangeOf(const WinnersOptions& options) {
    const DayRange unlimited;
    return {.first = options.from.value_or(unlimited.first), .last = options.to.value_or(unlimited.last)};
}

Contest ReadContest(const std::string& directory, const WinnersOptions& options) {
    const DayRange range = RangeOf(options);
    const WorkFolder folder(directory);
    const std::vector<GameOnFile> games = ReadGames(folder.Path());
    Contest contest{.game = FindPlayableGame(games, options.game), .draws = {}, .held = {}, .tickets = {}};
    const GameRules& rules = contest.game.rules;
    contest.draws = NewestFirst(ReadDraws(folder.Path(), contest.game).draws);
    contest.held = DrawsIn(range, contest.draws, options.last > 0 ? static_cast<std::size_t>(options.last) : all);
    if (contest.held.empty()) {
        throw Refusal(contest.game.Title() + " has no draws in this range.");
    }
    const auto firstHeld = static_cast<std::size_t>(contest.held.data() - contest.draws.data());
    contest.tickets = options.drawsAsTickets ? TicketsOfDraws(rules, contest.draws, firstHeld)
                                             : TicketsOfPlays(rules, ReadPlays(folder.Path(), contest.game.slot));
    if (contest.tickets.tickets.empty()) {
        throw Refusal(contest.game.Title() + " has no " + (options.drawsAsTickets ? "draw" : "play") +
                      " with all its main picks.");
    }
    return contest;
}

void TellLeftOut(const Contest& contest, const Console& console) {
    if (contest.tickets.leftOut.empty()) {
        return;
    }
    console.notes << "Without all their main picks these are left out:";
    for (const std::string& name : contest.tickets.leftOut) {
        console.notes << ' ' << name;
    }
    console.notes << '\n';
}

/// The picks of a ticket or of a draw, the bonus picks behind a plus sign.
std::string TextOf(const GameRules& rules, const Picks& picks) {
    const std::string main = PickTexts(rules, picks.main);
    return picks.bonus.empty() ? main : main + " + " + PickTexts(rules, picks.bonus);
}

void TellTiers(const std::vector<Tier>& tiers, const Console& console) {
    console.out << "main hits  bonus hits     times\n";
    for (const Tier& tier : tiers) {
        console.out << std::setw(9) << tier.hits.main << std::setw(12) << tier.hits.bonus << std::setw(10) << tier.count
                    << '\n';
    }
}

/// Calls for each winner, the best first, with what it has hit.
void ForEachWinner(const std::vector<Tier>& tiers, const std::function<void(const Hits&, const Winner&)>& tell) {
    for (const Tier& tier : tiers) {
        for (const Winner& winner : tier.first) {
            tell(tier.hits, winner);
        }
    }
}

void TellAsText(const Contest& contest, const std::vector<Tier>& tiers, const Console& console) {
    const GameRules& rules = contest.game.rules;
    console.out << contest.game.Title() << ". Tickets: " << contest.tickets.tickets.size()
                << ". Draws: " << contest.held.size() << ", " << IsoDate(contest.held.back().date) << " to "
                << IsoDate(contest.held.front().date) << '\n';
    TellTiers(tiers, console);
    console.out << "main + bonus  draw        ticket\n";
    ForEachWinner(tiers, [&](const Hits& hits, const Winner& winner) {
        console.out << std::setw(4) << hits.main << " + " << std::left << std::setw(7) << hits.bonus << std::right
                    << IsoDate(contest.held[winner.draw].date) << "  " << contest.tickets.names[winner.ticket] << ": "
                    << TextOf(rules, contest.tickets.tickets[winner.ticket].picks) << '\n';
    });
}

void TellAsCsv(const Contest& contest, const std::vector<Tier>& tiers, const std::vector<Picks>& drawn,
               const Console& console) {
    const GameRules& rules = contest.game.rules;
    console.out << "main_hits,bonus_hits,draw,drawn,ticket,picks\n";
    ForEachWinner(tiers, [&](const Hits& hits, const Winner& winner) {
        console.out << hits.main << ',' << hits.bonus << ',' << IsoDate(contest.held[winner.draw].date) << ','
                    << TextOf(rules, drawn[winner.draw]) << ',' << contest.tickets.names[winner.ticket] << ','
                    << TextOf(rules, contest.tickets.tickets[winner.ticket].picks) << '\n';
    });
}

}  // namespace

void ShowWinners(const std::string& folder, const WinnersOptions& options, const Console& console) {
    const Contest contest = ReadContest(folder, options);
    const GameRules& rules = contest.game.rules;
    std::vector<Picks> drawn;
    std::ranges::transform(contest.held, std::back_inserter(drawn),
                           [&rules](const DrawOnFile& draw) { return PicksOfDraw(rules, draw.picks); });
    const std::size_t wanted = options.top ? static_cast<std::size_t>(*options.top) : options.csv ? all : winnersTold;
    const std::vector<Tier> tiers = FindWinners(rules, contest.tickets.tickets, drawn, wanted);
    TellLeftOut(contest, console);
    if (options.csv) {
        TellAsCsv(contest, tiers, drawn, console);
    } else {
        TellAsText(contest, tiers, console);
    }
}

}  // namespace ballhaven::data
