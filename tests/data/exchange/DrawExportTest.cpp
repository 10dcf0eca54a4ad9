#include "data/exchange/DrawExport.h"

#include "data/exchange/DrawImport.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <sstream>

namespace ballhaven::data {
namespace {

using Draws = std::vector<DrawOnFile>;

const GameRules twoAndOne{.gameType = 2,
                          .mainPickCount = 2,
                          .bonusPickCount = 1,
                          .mainLow = 1,
                          .mainHigh = 49,
                          .bonusLow = 0,
                          .bonusHigh = 9};

TEST(CsvOfDraws, DatesPicksAndNamesStandInColumns) {
    EXPECT_EQ(CsvOfDraws(twoAndOne, {{1000, {7, 3, 0}}, {9999, {49, 1, 9}}}),
              "date,main1,main2,bonus\n1986-09-27,7,3,0\n2011-05-18,49,1,9\n");
    EXPECT_EQ(CsvOfDraws(twoAndOne, {}), "date,main1,main2,bonus\n");
}

TEST(CsvOfDraws, TheOldestDrawComesFirst) {
    EXPECT_EQ(CsvOfDraws(twoAndOne, {{10'000, {1, 2, 3}}, {1, {4, 5, 6}}}),
              "date,main1,main2,bonus\n1984-01-02,4,5,6\n2011-05-19,1,2,3\n");
}

TEST(CsvOfDraws, AnEmptyCellIsAnEmptyField) {
    EXPECT_EQ(CsvOfDraws(twoAndOne, {{1, {-1, 5, -1}}}), "date,main1,main2,bonus\n1984-01-02,,5,\n");
}

TEST(CsvOfDraws, CardsAreTexts) {
    const GameRules cards{.gameType = 3, .mainPickCount = 3, .mainLow = 1, .mainHigh = 52};
    EXPECT_EQ(CsvOfDraws(cards, {{1, {1, 23, 52}}}), "date,main1,main2,main3\n1984-01-02,Ah,10c,Ks\n");
    EXPECT_EQ(CsvOfDraws(cards, {{1, {0, 53, -1}}}), "date,main1,main2,main3\n1984-01-02,?,?,\n") << "no cards";
}

TEST(PickColumnNames, TellMainPicksFromBonusPicks) {
    EXPECT_EQ(PickColumnNames({.gameType = 0, .mainPickCount = 1, .bonusPickCount = 3}), ",main");
    EXPECT_EQ(PickColumnNames({.gameType = 4, .mainPickCount = 2, .bonusPickCount = 2}), ",main1,main2,bonus1,bonus2");
    EXPECT_EQ(PickColumnNames({.gameType = 1, .mainPickCount = 2}), ",main1,main2");
    EXPECT_EQ(PickColumnNames({}), ",main") << "a draw has one pick at least";
}

GameRules AnyRules() {
    GameRules rules;
    rules.gameType = *rc::gen::inRange(0, 6);
    const bool cards = rules.gameType > 2;
    const bool hasBonus = rules.gameType != 0 && rules.gameType != 3;
    rules.mainPickCount = *rc::gen::inRange(1, 10);
    rules.bonusPickCount = hasBonus ? *rc::gen::inRange(0, 11 - rules.mainPickCount) : 0;
    rules.mainLow = cards ? 1 : *rc::gen::inRange(0, 2);
    rules.mainHigh = cards ? 52 : *rc::gen::inRange(12, 100);
    rules.bonusLow = rules.gameType == 2 ? *rc::gen::inRange(0, 2) : rules.mainLow;
    rules.bonusHigh = rules.gameType == 2 ? *rc::gen::inRange(12, 100) : rules.mainHigh;
    rules.duplicatesAllowed = !cards && *rc::gen::arbitrary<bool>();
    return rules;
}

std::vector<std::int16_t> AnyPicks(int count, int low, int high, bool repeat) {
    const auto pick =
        rc::gen::inRange<std::int16_t>(static_cast<std::int16_t>(low), static_cast<std::int16_t>(high + 1));
    const auto size = static_cast<std::size_t>(count);
    return repeat ? *rc::gen::container<std::vector<std::int16_t>>(size, pick)
                  : *rc::gen::unique<std::vector<std::int16_t>>(size, pick);
}

DrawOnFile AnyDraw(const GameRules& rules, std::int16_t date) {
    const bool samePool = rules.gameType == 1 || rules.gameType == 4;
    if (samePool) {
        return {date, AnyPicks(rules.mainPickCount + rules.bonusPickCount, rules.mainLow, rules.mainHigh,
                               rules.duplicatesAllowed)};
    }
    DrawOnFile draw{date, AnyPicks(rules.mainPickCount, rules.mainLow, rules.mainHigh, rules.duplicatesAllowed)};
    const auto bonus = AnyPicks(rules.bonusPickCount, rules.bonusLow, rules.bonusHigh, rules.duplicatesAllowed);
    draw.picks.insert(draw.picks.end(), bonus.begin(), bonus.end());
    return draw;
}

Draws AnyDraws(const GameRules& rules) {
    auto dates = *rc::gen::unique<std::vector<std::int16_t>>(rc::gen::inRange<std::int16_t>(1, 32'767));
    std::ranges::sort(dates);
    Draws draws;
    for (const std::int16_t date : dates) {
        draws.push_back(AnyDraw(rules, date));
        for (std::int16_t& pick : draws.back().picks) {
            pick = *rc::gen::inRange(0, 20) == 0 ? std::int16_t{-1} : pick;
        }
    }
    return draws;
}

RC_GTEST_PROP(CsvOfDraws, AnyDrawsOfAnyGameComeBackByAnImport, ()) {
    const GameRules rules = AnyRules();
    const Draws draws = AnyDraws(rules);
    RC_PRE(!draws.empty());
    std::istringstream csv(CsvOfDraws(rules, draws));
    const FileForm form = RecognisedForm(csv, {}, rules);
    RC_ASSERT(form.recordsAbove == 1);
    const ImportedDraws imported = ImportDraws(csv, form, rules, 32'767);
    RC_ASSERT(imported.faults.Count() == 0);
    RC_ASSERT(imported.draws == draws);
}

}  // namespace
}  // namespace ballhaven::data
