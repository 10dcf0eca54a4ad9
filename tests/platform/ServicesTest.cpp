#include "platform/Services.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace ballhaven::platform {
namespace {

using std::chrono::month;
using std::chrono::weekday;

TEST(Services, MonthsAndDaysHaveTheirEnglishNames) {
    EXPECT_EQ(EnglishMonthName(month{1}), "January");
    EXPECT_EQ(EnglishMonthName(month{12}), "December");
    EXPECT_EQ(EnglishShortDayName(weekday{0}), "Sun");
    EXPECT_EQ(EnglishShortDayName(weekday{6}), "Sat");
    EXPECT_EQ(EnglishShortDayName(weekday{7}), "Sun");
}

TEST(Services, AMachineWithoutAScreenAnswersNothingThatCommits) {
    const Services plain;
    EXPECT_EQ(plain.showMessageBox({"Erase?", BoxButtons::YesNo, BoxIcon::None, "Ballhaven"}), BoxAnswer::No);
    EXPECT_EQ(plain.showMessageBox({"Done", BoxButtons::Ok, BoxIcon::None, "Ballhaven"}), BoxAnswer::Ok);
    EXPECT_FALSE(plain.earlierInstanceRuns());
    EXPECT_EQ(plain.shortDatePattern("/windows/"), "");
    EXPECT_TRUE(plain.savesBeforeTheEnd.empty());
    plain.beep();
}

TEST(Services, NumbersByChanceDifferFromCallToCallHoweverFastTheyAreDrawn) {
    std::set<float> numbers;
    for (int draw = 0; draw < 1000; ++draw) {
        const float number = DrawByChance();
        ASSERT_GE(number, 0.0F);
        ASSERT_LT(number, 1.0F);
        numbers.insert(number);
    }
    EXPECT_GT(numbers.size(), 990U);
}

TEST(Services, TheProgramsChanceIsTheRealOneUntilATestReplacesIt) {
    Services plain;
    EXPECT_NE(plain.drawByChance(), plain.drawByChance());
    plain.drawByChance = [] { return 0.5F; };
    EXPECT_EQ(plain.drawByChance(), 0.5F);
}

TEST(Services, AFailureIsExplainedByItsOwnWordsUntilTheProgramHasOthers) {
    EXPECT_EQ(Services().explainFailure(std::runtime_error("Overflow"), true), "Overflow");
}

}  // namespace
}  // namespace ballhaven::platform
