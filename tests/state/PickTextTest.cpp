#include "state/PickText.h"

#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/Games.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;
using support::SetUpGame;

struct NamedCard {
    int value;
    std::string text;
};

const NamedCard namedCards[] = {
    {1, "Ah"},  {2, "2h"},   {10, "10h"}, {11, "Jh"}, {12, "Qh"},  {13, "Kh"}, {14, "Ac"}, {26, "Kc"},
    {27, "Ad"}, {36, "10d"}, {39, "Kd"},  {40, "As"}, {49, "10s"}, {50, "Js"}, {51, "Qs"}, {52, "Ks"},
};

std::vector<std::string> CellTexts(int first, int last) {
    std::vector<std::string> texts;
    for (int cell = first; cell <= last; ++cell) {
        texts.push_back(PickCellText(cell));
    }
    return texts;
}

const std::vector<std::string> bonusLetters = {"B", "O", "N", "U", "S"};

TEST(PickText, ACardIsItsRankAndTheLetterOfItsSuit) {
    for (const NamedCard& card : namedCards) {
        EXPECT_EQ(CardToText(card.value), card.text) << card.value;
    }
}

TEST(PickText, AValueThatIsNoCardHasNoText) {
    EXPECT_EQ(CardToText(0), "");
    EXPECT_EQ(CardToText(-1), "");
    EXPECT_EQ(CardToText(53), "");
}

TEST(PickText, ACardsTextIsReadAndNormalised) {
    std::string text = "kd";
    EXPECT_EQ(TextToCard(text), 39);
    EXPECT_EQ(text, "Kd");
    text = "10S";
    EXPECT_EQ(TextToCard(text), 49);
    EXPECT_EQ(text, "10s");
}

TEST(PickText, RankLettersAreReadInEitherCase) {
    const std::array<NamedCard, 8> cards = {
        {{1, "ah"}, {1, "AH"}, {11, "jh"}, {11, "JH"}, {12, "qH"}, {12, "Qh"}, {13, "kH"}, {13, "KH"}}};
    for (NamedCard card : cards) {
        EXPECT_EQ(TextToCard(card.text), card.value) << card.text;
        EXPECT_EQ(card.text, CardToText(card.value));
    }
}

TEST(PickText, TheRankOfACardIsNotChecked) {
    std::string text = "14h";
    EXPECT_EQ(TextToCard(text), 14);
    EXPECT_EQ(text, "14h");
    text = "99s";
    EXPECT_EQ(TextToCard(text), 138);
}

TEST(PickText, ATextWithoutASuitIsThirteenBelowItsRank) {
    for (const auto& [value, text] : {NamedCard{-3, "10"}, {0, "13"}, {0, "K"}, {2, "15"}, {-13, "x"}, {-12, "A"}}) {
        std::string copy = text;
        EXPECT_EQ(TextToCard(copy), value) << text;
        EXPECT_EQ(copy, text);
    }
}

TEST(PickText, ASuitAloneIsTheCardBelowItsAce) {
    std::string text = "D";
    EXPECT_EQ(TextToCard(text), 26);
    EXPECT_EQ(text, "d");
}

TEST(PickText, AnEmptyTextIsNeitherRankNorSuit) {
    std::string text;
    EXPECT_EQ(TextToCard(text), -13);
    EXPECT_EQ(text, "");
}

TEST(PickText, ARankBeyond16BitsIsAnOverflow) {
    std::string text = "32768h";
    EXPECT_THROW((void)TextToCard(text), RuntimeFailure);
}

TEST(PickText, EveryCardSurvivesItsText) {
    for (int card = 1; card <= 52; ++card) {
        std::string text = CardToText(card);
        const std::string before = text;
        EXPECT_EQ(TextToCard(text), card);
        EXPECT_EQ(text, before);
    }
}

RC_GTEST_PROP(PickText, ANormalisedTextStaysAsItIs, (std::string text)) {
    RC_PRE(text.find_first_of("0123456789") == std::string::npos || text.size() < 4U);
    const int value = TextToCard(text);
    const std::string normalised = text;
    RC_ASSERT(TextToCard(text) == value);
    RC_ASSERT(text == normalised);
}

TEST(PickToText, TellsACardOnlyInAKindOfGameThatIsPlayedWithCards) {
    EXPECT_EQ(PickToText(36, 2), "36");
    EXPECT_EQ(PickToText(36, 3), "10d");
}

TEST(PickText, APickIsDigitsInANumberGameAndACardInACardGame) {
    SetUpGame(NumberGame());
    EXPECT_EQ(PickToText(0), "0");
    EXPECT_EQ(PickToText(36), "36");
    SetUpGame(CardGame());
    EXPECT_EQ(PickToText(36), "10d");
    EXPECT_EQ(PickToText(0), "");
}

TEST(PickText, ANumberBoardShowsTheRangeOnceWhenNumbersCannotRepeat) {
    SetUpGame(NumberGame().Picks(6).From(1).To(49));
    EXPECT_EQ(PickCellText(0), "1");
    EXPECT_EQ(PickCellText(48), "49");
    EXPECT_EQ(PickCellText(49), "");
}

TEST(PickText, ABoardFromZeroRepeatsTheRangeForEachPickWhenNumbersCanRepeat) {
    SetUpGame(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    EXPECT_EQ(PickCellText(0), "0");
    EXPECT_EQ(PickCellText(9), "9");
    EXPECT_EQ(PickCellText(10), "0");
    EXPECT_EQ(PickCellText(29), "9");
    EXPECT_EQ(PickCellText(30), "");
}

TEST(PickText, ABoardFromOneRepeatsTheRangeForEachPickWhenNumbersCanRepeat) {
    SetUpGame(NumberGame().Picks(4).From(1).To(6).WithDuplicates());
    EXPECT_EQ(PickCellText(5), "6");
    EXPECT_EQ(PickCellText(6), "1");
    EXPECT_EQ(PickCellText(23), "6");
    EXPECT_EQ(PickCellText(24), "");
}

TEST(PickText, ARepeatedBonusBlockHasARunForEachBonusPick) {
    SetUpGame(
        NumberGame().Picks(3).From(1).To(9).WithDuplicates().Bonus(2, BonusPool::Separate).BonusFrom(0).BonusTo(4));
    EXPECT_EQ(PickCellText(108), "0");
    EXPECT_EQ(PickCellText(112), "4");
    EXPECT_EQ(PickCellText(113), "0");
    EXPECT_EQ(PickCellText(117), "4");
    EXPECT_EQ(PickCellText(118), "");
}

TEST(PickText, ANumberGameWithoutABonusHasNoWordOnItsBoard) {
    SetUpGame(NumberGame().Picks(6).From(1).To(99));
    EXPECT_EQ(CellTexts(101, 105), std::vector<std::string>(5));
}

TEST(PickText, ANumberGameWithABonusSpellsTheWordInFrontOfItsBonusBlock) {
    SetUpGame(NumberGame().Picks(6).Bonus(1, BonusPool::Same));
    EXPECT_EQ(CellTexts(101, 105), bonusLetters);
    EXPECT_EQ(PickCellText(106), "");
    EXPECT_EQ(PickCellText(107), "");
}

TEST(PickText, TheBonusBlockBeginsInCell108WithItsOwnLimits) {
    SetUpGame(NumberGame().Picks(5).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(26));
    EXPECT_EQ(PickCellText(108), "0");
    EXPECT_EQ(PickCellText(134), "26");
    EXPECT_EQ(PickCellText(135), "");
}

TEST(PickText, TheMainBlockEndsWithCell100) {
    SetUpGame(NumberGame().Picks(1).From(0).To(105));
    EXPECT_EQ(PickCellText(100), "100");
    EXPECT_EQ(PickCellText(101), "");
}

TEST(PickText, ACellInFrontOfTheBoardIsEmpty) {
    SetUpGame(NumberGame().From(1).To(49));
    EXPECT_EQ(PickCellText(-1), "");
    SetUpGame(CardGame());
    EXPECT_EQ(PickCellText(-1), "");
}

TEST(PickText, ARangeOfNothingIsEmptyEvenWhenNumbersCanRepeat) {
    SetUpGame(NumberGame().Picks(3).From(1).To(0).WithDuplicates());
    EXPECT_EQ(PickCellText(0), "");
}

TEST(PickText, ACardBoardNumbersItsCards) {
    SetUpGame(CardGame());
    EXPECT_EQ(PickCellText(0), "1");
    EXPECT_EQ(PickCellText(51), "52");
    EXPECT_EQ(PickCellText(52), "");
    EXPECT_EQ(PickCellText(65), "");
}

TEST(PickText, ACardGameWithoutABonusHasNoWordOnItsBoard) {
    SetUpGame(CardGame());
    EXPECT_EQ(CellTexts(66, 70), std::vector<std::string>(5));
}

TEST(PickText, ACardGameWithABonusSpellsTheWordInFrontOfItsBonusCards) {
    for (const BonusPool pool : {BonusPool::Same, BonusPool::Separate}) {
        SetUpGame(CardGame().Bonus(1, pool));
        EXPECT_EQ(CellTexts(66, 70), bonusLetters);
        EXPECT_EQ(PickCellText(71), "");
    }
}

TEST(PickText, TheBonusCardsBeginInCell72) {
    SetUpGame(CardGame().Bonus(1, BonusPool::Same));
    EXPECT_EQ(PickCellText(72), "1");
    EXPECT_EQ(PickCellText(123), "52");
    EXPECT_EQ(PickCellText(124), "");
}

}  // namespace
}  // namespace ballhaven
