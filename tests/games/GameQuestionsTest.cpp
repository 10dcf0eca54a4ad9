#include "games/GameQuestions.h"

#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::WithColumns;
using Texts = std::vector<std::string>;

//                                1         2         3         4         5         6
//                       1234567890123456789012345678901234567890123456789012345678901234
const std::string sixOf49 = "1 /Six of 49             /050/0/1/49/ / /N/N/06/0/N /  /-/00/   ";
const std::string fiveAndOne = "1 /Five and one          /000/2/1/69/ / /N/Y/05/1/N /  /0/26/   ";
const std::string samePool = "1 /Five and one          /000/1/0/36/ / /N/N/05/1/N /  /1/99/   ";
const std::string cards = "1 /Cards                 /010/5/1/52/ / /N/N/09/1/N /  /1/52/   ";

Texts NumbersTo(int last) {
    Texts numbers;
    for (int number = 1; number <= last; ++number) {
        numbers.push_back(std::to_string(number));
    }
    return numbers;
}

GameQuestion Asked(const Texts& entries, int selected) {
    return {entries, selected, true};
}

GameQuestion NotAsked(const Texts& entries, int selected = -1) {
    return {entries, selected, false};
}

const Texts noYes = {"No", "Yes"};
const Texts zeroOne = {"0", "1"};

TEST(GameQuestions, AGameWithABonusPoolOfItsOwnIsAskedEverything) {
    const AskedGame game = AskAbout(fiveAndOne, true);
    EXPECT_EQ(game.questions.type.entries.size(), 6U);
    EXPECT_EQ(game.questions.type.selected, 2);
    EXPECT_EQ(game.questions.mainCount, Asked(NumbersTo(10), 4));
    EXPECT_EQ(game.questions.bonusCount, Asked(NumbersTo(5), 0));
    EXPECT_EQ(game.questions.order, Asked(noYes, 1));
    EXPECT_EQ(game.questions.duplicates, Asked(noYes, 0));
    EXPECT_EQ(game.questions.mainLow, Asked(zeroOne, 1));
    EXPECT_EQ(game.questions.mainHigh, Asked(NumbersTo(99), 68));
    EXPECT_EQ(game.questions.bonusLow, Asked(zeroOne, 0));
    EXPECT_EQ(game.questions.bonusHigh, Asked(NumbersTo(99), 25));
    EXPECT_EQ(game.record, fiveAndOne);
}

TEST(GameQuestions, AGameWithoutBonusIsAskedNothingOfABonus) {
    const AskedGame game = AskAbout(sixOf49, true);
    EXPECT_EQ(game.questions.bonusCount, NotAsked({}));
    EXPECT_EQ(game.questions.bonusLow, NotAsked(zeroOne));
    EXPECT_EQ(game.questions.bonusHigh, NotAsked({}));
    EXPECT_EQ(game.questions.mainHigh, Asked(NumbersTo(99), 48));
    EXPECT_EQ(game.record, WithColumns(sixOf49, {{59, "52"}}));
}

TEST(GameQuestions, ABonusFromTheSamePoolHasTheLimitsOfTheMainPicksUnasked) {
    const AskedGame game = AskAbout(samePool, true);
    EXPECT_EQ(game.questions.bonusCount, Asked(NumbersTo(5), 0));
    EXPECT_EQ(game.questions.bonusLow, NotAsked(zeroOne, 0));
    EXPECT_EQ(game.questions.bonusHigh, NotAsked(NumbersTo(99), 35));
    EXPECT_EQ(game.record, WithColumns(samePool, {{57, "0"}, {59, "36"}}));
}

TEST(GameQuestions, ABonusFromTheSamePoolHasNoHighestNumberBeyondItsOwnLimit) {
    const AskedGame game = AskAbout(WithColumns(samePool, {{33, "1"}, {42, "Y"}, {46, "02"}, {49, "8"}}), true);
    EXPECT_EQ(game.questions.mainHigh, Asked(NumbersTo(49), 35));
    EXPECT_EQ(game.questions.bonusHigh, NotAsked(NumbersTo(12), 11)) << "99 / 8, from 1 on";
    EXPECT_EQ(game.record.substr(58, 2), "12");
}

TEST(GameQuestions, ACardGameIsAskedItsCountsAndItsOrderOnly) {
    const AskedGame game = AskAbout(WithColumns(cards, {{42, "Y"}, {59, "07"}}), true);
    EXPECT_EQ(game.questions.mainCount, Asked(NumbersTo(10), 8));
    EXPECT_EQ(game.questions.bonusCount, Asked(NumbersTo(1), 0));
    EXPECT_EQ(game.questions.order, Asked(noYes, 0));
    EXPECT_EQ(game.questions.duplicates, NotAsked(noYes));
    EXPECT_EQ(game.questions.mainLow, NotAsked(zeroOne));
    EXPECT_EQ(game.questions.mainHigh, NotAsked({}));
    EXPECT_EQ(game.questions.bonusLow, NotAsked(zeroOne));
    EXPECT_EQ(game.questions.bonusHigh, NotAsked({}));
    EXPECT_EQ(game.record.substr(41, 1), "N");
    EXPECT_EQ(game.record.substr(58, 2), "52");
}

TEST(GameQuestions, TheOrderOfTheRecordCountsAtTheOpeningOnly) {
    EXPECT_EQ(AskAbout(fiveAndOne, true).questions.order.selected, 1);
    const AskedGame later = AskAbout(fiveAndOne, false);
    EXPECT_EQ(later.questions.order.selected, 0);
    EXPECT_EQ(later.record, WithColumns(fiveAndOne, {{44, "N"}}));
}

TEST(GameQuestions, WithDuplicatesTheHighestNumbersAreCutToTheirLimitsInTheRecordToo) {
    const AskedGame game = AskAbout(WithColumns(fiveAndOne, {{42, "Y"}, {49, "5"}}), true);
    EXPECT_EQ(game.questions.duplicates, Asked(noYes, 1));
    EXPECT_EQ(game.questions.mainHigh, Asked(NumbersTo(19), 18)) << "99 / 5, from 1 on";
    EXPECT_EQ(game.questions.bonusHigh, Asked(NumbersTo(14), 13)) << "99 / 5 less 5, from 0 on";
    EXPECT_EQ(game.record.substr(34, 2), "19");
    EXPECT_EQ(game.record.substr(58, 2), "14");
}

TEST(GameQuestions, AnswersBeyondTheListsAreHeldAtTheirEnds) {
    const AskedGame game = AskAbout(WithColumns(fiveAndOne, {{31, "9"}, {46, "77"}, {49, "9"}}), true);
    EXPECT_EQ(game.questions.type.selected, 5);
    EXPECT_EQ(game.questions.mainCount.selected, 9);
    EXPECT_EQ(game.questions.bonusCount, Asked({}, -1));
    const AskedGame lows = AskAbout(WithColumns(fiveAndOne, {{33, "7"}, {57, "8"}}), true);
    EXPECT_EQ(lows.questions.mainLow.selected, 1);
    EXPECT_EQ(lows.questions.bonusLow.selected, 1);
    EXPECT_EQ(lows.record.substr(32, 1), "7") << "the main one is written back as it is";
    EXPECT_EQ(lows.record.substr(56, 1), "1") << "the bonus one as it is selected";
}

TEST(GameQuestions, ALowestNumberThatIsNoDigitIsWrittenBackAsItsValue) {
    const AskedGame game = AskAbout(WithColumns(fiveAndOne, {{33, "-"}}), true);
    EXPECT_EQ(game.questions.mainLow, Asked(zeroOne, 0));
    EXPECT_EQ(game.record.substr(32, 1), "0");
}

TEST(GameQuestions, TenPicksFrom0WithDuplicatesLeaveNoHighestNumber) {
    const AskedGame game = AskAbout(WithColumns(sixOf49, {{33, "0"}, {42, "Y"}, {46, "10"}}), true);
    EXPECT_EQ(game.questions.mainHigh, Asked({}, -1));
}

TEST(CountBeside, OffersWhatTheChangedCountLeavesOfTenPicks) {
    EXPECT_EQ(CountBeside(7, 0, 1), Asked(NumbersTo(3), 0));
    EXPECT_EQ(CountBeside(7, 2, 1), Asked(NumbersTo(3), 2));
    EXPECT_EQ(CountBeside(7, 3, 1), Asked(NumbersTo(3), 2)) << "four are one too many";
    EXPECT_EQ(CountBeside(10, 3, 1), Asked({}, -1));
}

TEST(CountBeside, TakesTheCountOfTheRecordWhereNoneIsSelected) {
    EXPECT_EQ(CountBeside(4, -1, 3), Asked(NumbersTo(6), 2));
    EXPECT_EQ(CountBeside(8, -1, 3), Asked(NumbersTo(2), 1));
    EXPECT_EQ(CountBeside(4, 0, 3), Asked(NumbersTo(6), 0)) << "a selected count goes first";
}

// Not a bug: GAME-HIGHEST-1 in docs/not-bugs.md.
TEST(HighestNumberQuestion, ACutNumberStaysCut) {
    const GameQuestion cut = HighestNumber(true, 6, 1, 48);
    EXPECT_EQ(cut, Asked(NumbersTo(16), 15));
    EXPECT_EQ(HighestNumber(false, 6, 1, cut.selected), Asked(NumbersTo(99), 15));
}

TEST(HighestNumberQuestion, KeepsASelectedNumberThatItOffers) {
    EXPECT_EQ(HighestNumber(true, 6, 0, 8), Asked(NumbersTo(10), 8));
    EXPECT_EQ(HighestNumber(true, 10, 0, 8), Asked({}, -1));
}

}  // namespace
}  // namespace ballhaven
