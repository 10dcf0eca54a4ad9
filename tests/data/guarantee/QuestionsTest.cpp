#include "data/guarantee/Questions.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using List = std::vector<Question>;

TEST(Questions, WithoutAWishEveryNumberOfDrawnOnesIsAskedFor) {
    EXPECT_EQ(QuestionsFor(8, 3, 0, 0).asked, (List{{.drawn = 1, .fewestHits = 1, .mostHits = 1, .sets = 8},
                                                    {.drawn = 2, .fewestHits = 1, .mostHits = 2, .sets = 28},
                                                    {.drawn = 3, .fewestHits = 1, .mostHits = 3, .sets = 56}}));
}

TEST(Questions, NoMoreAreDrawnThanAreChosen) {
    EXPECT_EQ(QuestionsFor(2, 6, 0, 0).asked.back().drawn, 2);
    EXPECT_THROW(static_cast<void>(QuestionsFor(2, 6, 3, 0)), Refusal);
    EXPECT_THROW(static_cast<void>(QuestionsFor(9, 6, 7, 0)), Refusal);
}

TEST(Questions, HitsAloneAskForAllDrawsThatCanHaveSoMany) {
    EXPECT_EQ(QuestionsFor(8, 4, 0, 3).asked, (List{{.drawn = 3, .fewestHits = 3, .mostHits = 3, .sets = 56},
                                                    {.drawn = 4, .fewestHits = 3, .mostHits = 3, .sets = 70}}));
    EXPECT_THROW(static_cast<void>(QuestionsFor(8, 4, 0, 5)), Refusal);
}

TEST(Questions, DrawnAndHitsAskForOneThing) {
    EXPECT_EQ(QuestionsFor(16, 6, 5, 4).asked, (List{{.drawn = 5, .fewestHits = 4, .mostHits = 4, .sets = 4368}}));
    EXPECT_THROW(static_cast<void>(QuestionsFor(16, 6, 4, 5)), Refusal);
}

TEST(Questions, AHundredMillionSetsAreTheMostThatNobodyHasToAskFor) {
    const Questions questions = QuestionsFor(80, 6, 0, 0);

    EXPECT_EQ(questions.asked.size(), 5U);
    EXPECT_EQ(questions.leftOut, (List{{.drawn = 6, .fewestHits = 1, .mostHits = 6, .sets = 300'500'200}}));
    EXPECT_EQ(QuestionsFor(80, 6, 6, 0).asked, questions.leftOut);
}

TEST(Questions, MoreThanFourThousandMillionSetsAreRefused) {
    EXPECT_EQ(QuestionsFor(80, 10, 7, 0).asked.front().sets, 3'176'716'400U);
    try {
        static_cast<void>(QuestionsFor(99, 10, 7, 0));
        FAIL();
    } catch (const Refusal& refusal) {
        EXPECT_EQ(
            std::string(refusal.what()),
            "14887031544 sets of 7 out of 99 are too many to look at: 4000000000 are the most. Name fewer numbers "
            "with --numbers, or ask for fewer with --drawn.");
    }
}

TEST(Questions, MoreThanTenMillionSetsTakeAWhile) {
    EXPECT_FALSE(TakesAWhile({.sets = 10'000'000}));
    EXPECT_TRUE(TakesAWhile({.sets = 10'000'001}));
}

}  // namespace
}  // namespace ballhaven::data
