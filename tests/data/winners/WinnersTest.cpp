#include "data/winners/Winners.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>

namespace ballhaven::data {
namespace {

constexpr std::size_t all = 1'000'000;

const GameRules rules{.gameType = 2, .mainPickCount = 3, .bonusPickCount = 1, .mainLow = 1, .mainHigh = 9};

const std::vector<Ticket> tickets = {
    {.picks = {.main = {1, 2, 3}, .bonus = {1}}},
    {.picks = {.main = {1, 2, 4}, .bonus = {2}}},
    {.picks = {.main = {7, 8, 9}, .bonus = {3}}},
};

const std::vector<Picks> draws = {
    {.main = {3, 4, 5}, .bonus = {2}},
    {.main = {1, 2, 3}, .bonus = {9}},
    {.main = {1, 2, 5}, .bonus = {1}},
};

TEST(Winners, TheBestTierComesFirst) {
    EXPECT_EQ(FindWinners(rules, tickets, draws, all),
              (std::vector<Tier>{
                  {.hits = {3, 0}, .count = 1, .first = {{.ticket = 0, .draw = 1}}},
                  {.hits = {2, 1}, .count = 1, .first = {{.ticket = 0, .draw = 2}}},
                  {.hits = {2, 0}, .count = 2, .first = {{.ticket = 1, .draw = 1}, {.ticket = 1, .draw = 2}}},
                  {.hits = {1, 1}, .count = 1, .first = {{.ticket = 1, .draw = 0}}},
                  {.hits = {1, 0}, .count = 1, .first = {{.ticket = 0, .draw = 0}}},
              }));
}

TEST(Winners, OfThoseThatAreNotWantedTheTiersStillTellHowMany) {
    const std::vector<Tier> tiers = FindWinners(rules, tickets, draws, 3);

    ASSERT_EQ(tiers.size(), 5U);
    EXPECT_EQ(tiers[2].count, 2U);
    EXPECT_EQ(tiers[2].first, (std::vector<Winner>{{.ticket = 1, .draw = 1}}));
    EXPECT_EQ(tiers[3].count, 1U);
    EXPECT_TRUE(tiers[3].first.empty());
}

TEST(Winners, ADrawDoesNotWinInItself) {
    const std::vector<Ticket> past{{.picks = draws[1], .ownDraw = 1}, {.picks = draws[1], .ownDraw = 0}};

    EXPECT_EQ(FindWinners(rules, past, draws, all).front(),
              (Tier{.hits = {3, 1}, .count = 1, .first = {{.ticket = 1, .draw = 1}}}));
}

TEST(Winners, WithoutTicketsOrDrawsThereAreNone) {
    EXPECT_TRUE(FindWinners(rules, {}, draws, all).empty());
    EXPECT_TRUE(FindWinners(rules, tickets, {}, all).empty());
}

rc::Gen<Picks> AnyPicks() {
    return rc::gen::map(rc::gen::container<std::vector<int>>(4, rc::gen::inRange(1, 10)), [](std::vector<int> picks) {
        return Picks{.main = {picks[0], picks[1], picks[2]}, .bonus = {picks[3]}};
    });
}

RC_GTEST_PROP(Winners, EveryTierCountsWhatAWalkOverAllPairsCounts, ()) {
    std::vector<Ticket> many;
    for (const Picks& picks : *rc::gen::container<std::vector<Picks>>(AnyPicks())) {
        many.push_back({.picks = picks});
    }
    const auto drawn = *rc::gen::container<std::vector<Picks>>(AnyPicks());
    const auto wanted = static_cast<std::size_t>(*rc::gen::inRange(0, 30));

    std::map<Hits, std::vector<Winner>> walked;
    for (std::size_t draw = 0; draw < drawn.size(); ++draw) {
        for (std::size_t ticket = 0; ticket < many.size(); ++ticket) {
            walked[CountHits(rules, many[ticket].picks, drawn[draw])].push_back({.ticket = ticket, .draw = draw});
        }
    }
    walked.erase(Hits{});

    const std::vector<Tier> tiers = FindWinners(rules, many, drawn, wanted);
    RC_ASSERT(tiers.size() == walked.size());
    std::size_t left = wanted;
    for (const Tier& tier : tiers) {
        std::vector<Winner> expected = walked.at(tier.hits);
        RC_ASSERT(tier.count == expected.size());
        expected.resize(std::min(expected.size(), left));
        RC_ASSERT(tier.first == expected);
        left -= expected.size();
    }
}

}  // namespace
}  // namespace ballhaven::data
