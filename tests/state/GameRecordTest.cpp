#include "state/GameRecord.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using support::WithColumns;

const std::string record = "3 /Pick Six              /250/2/0/49/ / /Y/Y/05/2/Y /  /1/12/   ";

TEST(GameRecord, HoldsTheRulesOfAGame) {
    const GameRules rules = RulesOf(record);
    EXPECT_EQ(rules, (GameRules{.gameType = 2,
                                .mainPickCount = 5,
                                .bonusPickCount = 2,
                                .mainLow = 0,
                                .mainHigh = 49,
                                .bonusLow = 1,
                                .bonusHigh = 12,
                                .duplicatesAllowed = true,
                                .orderMatters = true}));
    EXPECT_EQ(TotalPicksOf(rules), 7);
    EXPECT_EQ(HistorySetOf(record), 250);
    EXPECT_EQ(GameName(record), "Pick Six            ");
}

TEST(IsUndefinedName, IsThatOfAFreeSlotWithItsBlanksOrWithout) {
    EXPECT_TRUE(IsUndefinedName("un-defined"));
    EXPECT_TRUE(IsUndefinedName("  un-defined        "));
    EXPECT_FALSE(IsUndefinedName("un-defined 2"));
    EXPECT_FALSE(IsUndefinedName("Pick Six"));
    EXPECT_FALSE(IsUndefinedName(""));
}

// Not a bug: UNDEFINED-NAME-1 in docs/not-bugs.md.
TEST(CountsAsFree, QuirkUndefinedName1ByTheFirstTenColumnsOfTheName) {
    EXPECT_TRUE(CountsAsFree(WithColumns(record, {{4, "un-defined          "}})));
    EXPECT_TRUE(CountsAsFree(WithColumns(record, {{4, "un-defined 2        "}})));
    EXPECT_FALSE(CountsAsFree(WithColumns(record, {{4, " un-defined         "}})));
    EXPECT_FALSE(CountsAsFree(record));
}

TEST(GameRecord, OfCardsHasTheLimitsOfADeckAndNoDuplicates) {
    const GameRules rules = RulesOf(WithColumns(record, {{31, "3"}}));
    EXPECT_EQ(rules.mainLow, 1);
    EXPECT_EQ(rules.mainHigh, 52);
    EXPECT_EQ(rules.bonusLow, 1);
    EXPECT_EQ(rules.bonusHigh, 52);
    EXPECT_FALSE(rules.duplicatesAllowed);
    EXPECT_EQ(TotalPicksOf(rules), 5);
}

TEST(GameRecord, IsReadWithoutTouchingTheGameAtHand) {
    support::ResetState();
    support::SetUpGame(support::NumberGame().Picks(6));
    const GameRules before = CurrentRules();
    static_cast<void>(RulesOf(InPresentForm(WithColumns(record, {{31, "N"}, {49, "0"}}))));
    EXPECT_EQ(CurrentRules(), before);
    EXPECT_EQ(appState.gameRecord, "");
    support::ResetState();
}

TEST(GameRecord, OfTheOlderFormBecomesOneOfThePresentForm) {
    EXPECT_EQ(InPresentForm(WithColumns(record, {{31, "N"}, {27, "015"}, {54, "xx"}})),
              WithColumns(record, {{31, "1"}, {27, "020"}, {54, "  "}, {57, "0"}, {59, "49"}}));
    EXPECT_EQ(InPresentForm(record), record);
}

TEST(GameRecord, OfTheOlderFormKeepsAHistorySetAboveNone) {
    const auto converted = [](const char* set) {
        return InPresentForm(WithColumns(record, {{31, "N"}, {27, set}})).substr(26, 3);
    };
    EXPECT_EQ(converted("000"), "010");
    EXPECT_EQ(converted("001"), "001");
    EXPECT_EQ(converted("995"), "000");
}

TEST(GameRecord, GetsItsConversionMarkFromTheNumberInItsPlace) {
    EXPECT_TRUE(HasConversionMark(record));
    EXPECT_FALSE(HasConversionMark(WithColumns(record, {{51, "7 "}})));
    EXPECT_EQ(WithConversionMark(WithColumns(record, {{51, "7 "}})), WithColumns(record, {{51, "N "}}));
    EXPECT_EQ(WithConversionMark(WithColumns(record, {{51, "8 "}})), record);
    EXPECT_EQ(WithConversionMark(WithColumns(record, {{51, "71"}})), WithColumns(record, {{51, "N "}}))
        << "the number has one digit";
}

}  // namespace
}  // namespace ballhaven
