#include "games/ChosenRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

//                           1         2         3         4         5         6
//                  1234567890123456789012345678901234567890123456789012345678901234
const std::string emptyRecord = "1 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ";

/// Five numbers of 1 to 36 and two bonus numbers of 0 to 9.
constexpr GameChoices numberChoices{.type = 2,
                                    .mainCount = 4,
                                    .bonusCount = 1,
                                    .order = 1,
                                    .duplicates = 0,
                                    .mainLow = 1,
                                    .mainHigh = 35,
                                    .bonusLow = 0,
                                    .bonusHigh = 8};

TEST(HighestNumber, Is99WithoutDuplicatesWhateverTheCounts) {
    for (int picks = 0; picks <= 10; ++picks) {
        EXPECT_EQ(HighestNumberLimit(false, picks, 0), 99);
        EXPECT_EQ(HighestNumberLimit(false, picks, 1), 99);
    }
}

TEST(HighestNumber, LeavesEachPickARunOfCellsWhereNumbersCanRepeat) {
    const std::vector<int> fromOne = {99, 49, 33, 24, 19, 16, 14, 12, 11, 9};
    const std::vector<int> fromZero = {98, 47, 30, 20, 14, 10, 7, 4, 2, -1};
    for (int picks = 1; picks <= 10; ++picks) {
        EXPECT_EQ(HighestNumberLimit(true, picks, 1), fromOne[static_cast<std::size_t>(picks - 1)]) << picks;
        EXPECT_EQ(HighestNumberLimit(true, picks, 0), fromZero[static_cast<std::size_t>(picks - 1)]) << picks;
    }
}

TEST(HighestNumber, Is99WithoutPicks) {
    EXPECT_EQ(HighestNumberLimit(true, 0, 0), 99);
    EXPECT_EQ(HighestNumberLimit(true, 0, 1), 99);
}

TEST(ChosenRules, ANumberGameIsPlayedAsItIsChosen) {
    EXPECT_EQ(RulesOf(numberChoices), (GameRules{2, 5, 2, 1, 36, 0, 9, false, true}));
    GameChoices choices = numberChoices;
    choices.order = 0;
    choices.duplicates = 1;
    choices.mainLow = 0;
    EXPECT_EQ(RulesOf(choices), (GameRules{2, 5, 2, 0, 36, 0, 9, true, false}));
}

TEST(ChosenRules, ACardGameHasAllCardsInBothPoolsAndNoDuplicates) {
    for (int type = 3; type <= 5; ++type) {
        GameChoices choices = numberChoices;
        choices.type = type;
        choices.duplicates = 1;
        EXPECT_EQ(RulesOf(choices), (GameRules{type, 5, 2, 1, 52, 1, 52, false, true}));
    }
}

TEST(ChosenRules, AnEmptyBonusListIsACountOf0) {
    GameChoices choices = numberChoices;
    choices.bonusCount = -1;
    EXPECT_EQ(RulesOf(choices).bonusPickCount, 0);
}

TEST(ChosenRules, ARecordTakesNameAndRulesAndKeepsTheRest) {
    EXPECT_EQ(WithRules(emptyRecord, "  Five and two ", {2, 5, 2, 1, 36, 0, 9, false, true}),
              "1 /Five and two          /010/2/1/36/ / /N/Y/05/2/N /  /0/09/   ");
    EXPECT_EQ(WithRules("7 /Old name              /050/3/7/77/a/b/?/?/99/9/Y /cd/7/77/xyz", "New",
                        {0, 10, 0, 0, 9, 1, 99, true, false}),
              "7 /New                   /050/0/0/09/a/b/Y/N/10/0/Y /cd/1/99/xyz");
}

// Not a bug: GAME-BONUS-LIMITS-1 in docs/not-bugs.md.
TEST(ChosenRules, WithoutSelectedBonusLimitsTheRecordHasAMinusAndZeros) {
    GameChoices choices = numberChoices;
    choices.type = 0;
    choices.bonusLow = -1;
    choices.bonusHigh = -1;
    const GameRules rules = RulesOf(choices);
    EXPECT_EQ(rules.bonusLow, -1);
    EXPECT_EQ(rules.bonusHigh, 0);
    EXPECT_EQ(WithRules(emptyRecord, "Plain", rules).substr(56, 4), "-/00");
}

}  // namespace
}  // namespace ballhaven
