#include "wheels/FullWheel.h"

#include "plays/PlayMethodCode.h"
#include "support/MessageScript.h"
#include "support/Plays.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::EmptyPlays;
using support::PicksText;
using support::PlaysInUse;
using support::PutPicks;

const std::string tooManyForTheSlips =
    "The number of plays required to do a full wheel\nexceeds the total number of plays allowed.\nDo you wish to "
    "continue?";
const std::string tooManyForTheRest =
    "There are not enough empty plays to do a full wheel.\n\nDo you wish to continue?";

std::vector<std::int16_t> PicksTo(int last) {
    std::vector<std::int16_t> pool(static_cast<std::size_t>(last));
    std::iota(pool.begin(), pool.end(), std::int16_t{1});
    return pool;
}

class FullWheel : public ::testing::Test {
  protected:
    void ExpectQuestion(const std::string& text, BoxAnswer answer) {
        boxes.Expect("Ballhaven", text, BoxButtons::YesNo, BoxIcon::Question, answer);
    }

    void Wheel(PickColumn list, const std::vector<std::int16_t>& pool, int slots) {
        FullWheelPass({list, pool, slots}, plays, table);
    }

    PlayPicks table = EmptyPlays();
    PlayStretch plays{1, 5000, 5000};
    support::MessageScript boxes;
};

TEST_F(FullWheel, ThreePicksInAGameOfTwoGiveThreePlays) {
    Wheel(mainPicks, {4, 8, 6}, 2);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 4), "4 8|4 6|8 6|");
    EXPECT_EQ(plays.lastPlay, 3);
    EXPECT_EQ(table(mainPicks, 3, 0), byFullWheel);
    EXPECT_EQ(table(mainPicks, 4, 0), 0);
}

TEST_F(FullWheel, OnlyTheSlotsOfTheGameChangeInAPlay) {
    PutPicks(table, mainPicks, 1, {9, 9, 9, 9});
    PutPicks(table, bonusPicks, 1, {5});
    Wheel(mainPicks, {1, 2, 3}, 2);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 1), "1 2 9 9");
    EXPECT_EQ(PicksText(table, bonusPicks, 1, 1), "5");
}

TEST_F(FullWheel, ItFollowsThePlaysInUseAndLeavesThemAlone) {
    PutPicks(table, mainPicks, 6, {40, 41});
    plays.firstPlay = 7;
    Wheel(mainPicks, {1, 2, 3}, 2);

    EXPECT_EQ(PicksText(table, mainPicks, 5, 10), "|40 41|1 2|1 3|2 3|");
    EXPECT_EQ(plays.lastPlay, 9);
}

TEST_F(FullWheel, AsManyCombinationsAsPlaysAskNothing) {
    plays = {4991, 5000, 5000};
    Wheel(mainPicks, PicksTo(5), 2);  // 10 combinations

    EXPECT_EQ(plays.lastPlay, 5000);
    EXPECT_EQ(PicksText(table, mainPicks, 5000, 5000), "4 5");
}

TEST_F(FullWheel, SixOfSixteenAskOnEmptySlipsAndYesFillsFiveThousandPlays) {
    ExpectQuestion(tooManyForTheSlips, BoxAnswer::Yes);
    Wheel(mainPicks, PicksTo(16), 6);

    EXPECT_EQ(plays.lastPlay, 5000);
    EXPECT_EQ(PlaysInUse(table, mainPicks), 5000);
    EXPECT_EQ(PicksText(table, mainPicks, 1, 2), "1 2 3 4 5 6|1 2 3 4 5 7");
}

TEST_F(FullWheel, NoLeavesThePlaysAsTheyWere) {
    PutPicks(table, mainPicks, 3, {7});
    const PlayPicks before = table;
    ExpectQuestion(tooManyForTheSlips, BoxAnswer::No);
    Wheel(mainPicks, PicksTo(16), 6);

    EXPECT_EQ(plays.lastPlay, 0);
    EXPECT_TRUE(table == before);
}

TEST_F(FullWheel, WithPlaysInUseTheQuestionSpeaksOfEmptyPlays) {
    plays.firstPlay = 4990;
    ExpectQuestion(tooManyForTheRest, BoxAnswer::Yes);
    Wheel(mainPicks, PicksTo(12), 1);

    EXPECT_EQ(plays.lastPlay, 5000);
    EXPECT_EQ(PicksText(table, mainPicks, 4989, 4991), "|1|2");
    EXPECT_EQ(PicksText(table, mainPicks, 5000, 5000), "11");
}

TEST_F(FullWheel, FromPlayTwoOnTheQuestionSpeaksOfEmptyPlays) {
    plays.firstPlay = 2;
    ExpectQuestion(tooManyForTheRest, BoxAnswer::No);
    Wheel(mainPicks, PicksTo(16), 6);

    EXPECT_EQ(plays.lastPlay, 0);
}

TEST_F(FullWheel, BonusPicksGoRoundBesideTheMainOnes) {
    Wheel(mainPicks, PicksTo(4), 2);
    Wheel(bonusPicks, {21, 22}, 1);

    EXPECT_EQ(PicksText(table, mainPicks, 1, 7), "1 2|1 3|1 4|2 3|2 4|3 4|");
    EXPECT_EQ(PicksText(table, bonusPicks, 1, 7), "21|22|21|22|21|22|");
    EXPECT_EQ(plays.lastPlay, 6);
}

TEST_F(FullWheel, MoreBonusCombinationsThanPlaysAskNothing) {
    Wheel(mainPicks, PicksTo(3), 2);
    Wheel(bonusPicks, PicksTo(9), 1);

    EXPECT_EQ(PicksText(table, bonusPicks, 1, 4), "1|2|3|");
    EXPECT_EQ(plays.lastPlay, 3);
}

// Not a bug: FULL-WHEEL-NO-1 in docs/not-bugs.md.
TEST_F(FullWheel, QuirkFullWheelNo1TheBonusPassAfterANoEndsBeforeItsFirstPlay) {
    plays.firstPlay = 8;
    ExpectQuestion(tooManyForTheRest, BoxAnswer::No);
    Wheel(mainPicks, PicksTo(16), 6);
    Wheel(bonusPicks, {1, 2}, 1);

    EXPECT_EQ(plays.lastPlay, 7);
    EXPECT_EQ(PlaysInUse(table, bonusPicks), 0);
}

TEST_F(FullWheel, TheBonusPassAfterANoOnEmptySlipsHasNoLastPlay) {
    ExpectQuestion(tooManyForTheSlips, BoxAnswer::No);
    Wheel(mainPicks, PicksTo(16), 6);
    Wheel(bonusPicks, {1, 2}, 1);

    EXPECT_EQ(plays.lastPlay, 0);
    EXPECT_EQ(PlaysInUse(table, bonusPicks), 0);
}

}  // namespace
}  // namespace ballhaven
