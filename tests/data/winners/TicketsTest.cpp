#include "data/winners/Tickets.h"

#include "support/Plays.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using Names = std::vector<std::string>;

constexpr std::size_t all = 1000;
constexpr GameRules rules{.gameType = 0, .mainPickCount = 2, .mainLow = 1, .mainHigh = 49};

const std::vector<DrawOnFile> draws = {
    {.date = 1000, .picks = {1, 2}},
    {.date = 1007, .picks = {3, 4}},
    {.date = 1014, .picks = {5, -1}},
    {.date = 1007, .picks = {7, 8}},
};

/// The first picks of draws.
std::vector<int> FirstPicks(std::span<const DrawOnFile> some) {
    std::vector<int> picks;
    for (const DrawOnFile& draw : some) {
        picks.push_back(draw.picks[0]);
    }
    return picks;
}

TEST(Tickets, TheNewestDrawComesFirstAndThoseOfOneDayKeepTheirOrder) {
    EXPECT_EQ(FirstPicks(NewestFirst(draws)), (std::vector{5, 3, 7, 1}));
}

TEST(Tickets, ARangeHoldsItsFirstAndItsLastDay) {
    const std::vector<DrawOnFile> sorted = NewestFirst(draws);

    EXPECT_EQ(FirstPicks(DrawsIn({}, sorted, all)), (std::vector{5, 3, 7, 1}));
    EXPECT_EQ(FirstPicks(DrawsIn({.first = 1007}, sorted, all)), (std::vector{5, 3, 7}));
    EXPECT_EQ(FirstPicks(DrawsIn({.last = 1007}, sorted, all)), (std::vector{3, 7, 1}));
    EXPECT_EQ(FirstPicks(DrawsIn({.first = 1001, .last = 1013}, sorted, all)), (std::vector{3, 7}));
    EXPECT_TRUE(DrawsIn({.first = 1008, .last = 1013}, sorted, all).empty());
    EXPECT_TRUE(DrawsIn({.first = 1014, .last = 1000}, sorted, all).empty());
    EXPECT_TRUE(DrawsIn({}, {}, all).empty());
}

TEST(Tickets, OfTheDrawsOfARangeTheNewestAreTaken) {
    EXPECT_EQ(FirstPicks(DrawsIn({.last = 1013}, NewestFirst(draws), 2)), (std::vector{3, 7}));
}

TEST(Tickets, PlaysBearTheirNamesAndEmptyOnesAreNone) {
    PlayPicks plays = support::EmptyPlays();
    support::PutPicks(plays, mainPicks, 2, {4, 8});
    support::PutPicks(plays, mainPicks, 3, {4});
    support::PutPicks(plays, bonusPicks, 4, {1});
    support::PutPicks(plays, mainPicks, 5000, {0, 48});
    const NamedTickets tickets = TicketsOfPlays(rules, plays);

    EXPECT_EQ(tickets.names, (Names{"1.B", "1000.E"}));
    EXPECT_EQ(tickets.leftOut, (Names{"1.C"}));
    ASSERT_EQ(tickets.tickets.size(), 2U);
    EXPECT_EQ(tickets.tickets[1].picks, (Picks{.main = {1, 49}}));
    EXPECT_EQ(tickets.tickets[1].ownDraw, std::nullopt);
}

TEST(Tickets, DrawsKnowWhichOfThoseHeldAgainstThemTheyAre) {
    const NamedTickets tickets = TicketsOfDraws(rules, draws, 1);

    EXPECT_EQ(tickets.names, (Names{"1986-09-27", "1986-10-04", "1986-10-04"}));
    EXPECT_EQ(tickets.leftOut, (Names{"1986-10-11"}));
    EXPECT_EQ(tickets.tickets[0].ownDraw, std::nullopt);
    EXPECT_EQ(tickets.tickets[1].ownDraw, 0U);
    EXPECT_EQ(tickets.tickets[2].ownDraw, 2U);
}

}  // namespace
}  // namespace ballhaven::data
