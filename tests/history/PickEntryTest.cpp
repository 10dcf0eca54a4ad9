#include "history/PickEntry.h"

#include "state/AppState.h"
#include "support/Games.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;

GameRules Rules(const support::Game& game) {
    support::ResetState();
    support::SetUpGame(game);
    return CurrentRules();
}

/// The numbers of 0 to 99 that a column takes.
std::vector<int> Taken(const GameRules& rules, int column) {
    std::vector<int> taken;
    for (int value = 0; value <= 99; ++value) {
        if (IsPickInRange(rules, column, value)) {
            taken.push_back(value);
        }
    }
    return taken;
}

TEST(TypedPick, IsTheValueOfTheLeadingDigits) {
    EXPECT_EQ(TypedPick("12"), 12);
    EXPECT_EQ(TypedPick(" 1 2x9 "), 12);
    EXPECT_EQ(TypedPick("x"), 0);
    EXPECT_EQ(TypedPick("99999999999"), 99999999999);
}

TEST(TypedPick, OfAnEmptyTextIsNone) {
    EXPECT_EQ(TypedPick(""), std::nullopt);
    EXPECT_EQ(TypedPick("   "), std::nullopt);
}

TEST(IsPickInRange, AllowsBothEndsAndNothingBehindThem) {
    const GameRules rules = Rules(NumberGame().Picks(2).From(3).To(6));
    EXPECT_EQ(Taken(rules, 1), (std::vector<int>{3, 4, 5, 6}));
    EXPECT_EQ(Taken(rules, 2), (std::vector<int>{3, 4, 5, 6}));
}

TEST(IsPickInRange, ChecksABonusAgainstItsOwnLimits) {
    const GameRules rules =
        Rules(NumberGame().Picks(2).From(3).To(6).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(2));
    EXPECT_EQ(Taken(rules, 2), (std::vector<int>{3, 4, 5, 6}));
    EXPECT_EQ(Taken(rules, 3), (std::vector<int>{0, 1, 2}));
}

TEST(IsPickInRange, AllowsAnEmptyCell) {
    EXPECT_TRUE(IsPickInRange(Rules(NumberGame().Picks(2).From(3).To(6)), 1, std::nullopt));
}

TEST(IsPickInRange, LetsEverythingThroughBehindTheMainPicksOfAGameWithoutBonus) {
    const GameRules rules = Rules(NumberGame().Picks(2).From(1).To(9));
    EXPECT_FALSE(IsPickInRange(rules, 2, 99));
    EXPECT_TRUE(IsPickInRange(rules, 3, 99));
}

TEST(IsPickInRange, LetsEverythingThroughOnTheDateAndInACardGame) {
    EXPECT_TRUE(IsPickInRange(Rules(NumberGame().Picks(2).From(1).To(9)), 0, 99));
    EXPECT_TRUE(IsPickInRange(Rules(CardGame().Picks(2)), 1, 99));
}

TEST(StorePick, GoesToEveryRowOfTheDateInTableAndView) {
    support::ResetState();
    support::SetUpGame(NumberGame().Picks(2));
    support::SetUpDraws({{"01/01/1990", {1, 2}}, {"01/02/1990", {3, 4}}, {"01/01/1990", {5, 6}}});
    appState.historyView = appState.HistoryTable;
    appState.historyViewLast = 2;

    StorePick(support::SerialOf("01/01/1990"), 2, 40);

    for (const Table* table : {&appState.HistoryTable, &appState.historyView}) {
        EXPECT_EQ((*table)(2, 0), 40);
        EXPECT_EQ((*table)(2, 1), 4);
        EXPECT_EQ((*table)(2, 2), 40);
        EXPECT_EQ((*table)(1, 0), 1);
    }
    EXPECT_FALSE(appState.historyDirty);
}

TEST(StorePick, LooksAtNoRowBehindTheLast) {
    support::ResetState();
    support::SetUpGame(NumberGame().Picks(1));
    support::SetUpDraws({{"01/01/1990", {1}}, {"01/02/1990", {2}}, {"01/03/1990", {3}}});
    appState.historyView = appState.HistoryTable;
    appState.historyViewLast = 1;
    appState.historyLast = 1;

    StorePick(support::SerialOf("01/02/1990"), 1, 40);
    StorePick(support::SerialOf("01/03/1990"), 1, 40);

    EXPECT_EQ(appState.HistoryTable(1, 1), 40);
    EXPECT_EQ(appState.historyView(1, 1), 40);
    EXPECT_EQ(appState.HistoryTable(1, 2), 3);
    EXPECT_EQ(appState.historyView(1, 2), 3);
}

TEST(StorePick, MarksTheFourTablesStale) {
    support::ResetState();
    StorePick(1000, 1, 4);
    EXPECT_TRUE(appState.hotPairStale && appState.pairedOnceStale && appState.repeaterStale && appState.noHitterStale);
}

}  // namespace
}  // namespace ballhaven
