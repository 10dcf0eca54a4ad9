#include "data/exchange/DateForm.h"

#include "data/folder/Refusal.h"
#include "state/DateSerial.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::data {
namespace {

using std::chrono::year;
using std::chrono::year_month_day;

const year_month_day may21 = year{2011} / 5 / 21;
const year_month_day may6 = year{2011} / 5 / 6;

constexpr auto monthFirst = DateOrder::monthFirst;
constexpr auto dayFirst = DateOrder::dayFirst;
constexpr auto yearFirst = DateOrder::yearFirst;

DateOrder OrderOf(const std::vector<std::string>& texts) {
    DateOrderFinder finder;
    std::int64_t line = 1;
    for (const std::string& text : texts) {
        finder.Look(text, line++);
    }
    return finder.Order();
}

std::string RefusalOf(const std::vector<std::string>& texts) {
    try {
        (void)OrderOf(texts);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

TEST(DateIn, AYearThatStandsFirstTellsItselfInEveryOrder) {
    for (const DateOrder order : {monthFirst, dayFirst, yearFirst}) {
        for (const char* text : {"2011-05-21", "2011/5/21", "2011.05.21", "20110521", " 2011-05-21 "}) {
            EXPECT_EQ(DateIn(text, order), may21) << text;
        }
    }
}

TEST(DateIn, AYearThatStandsLastLeavesTheOthersToTheOrder) {
    EXPECT_EQ(DateIn("05/06/2011", monthFirst), may6);
    EXPECT_EQ(DateIn("06.05.2011", dayFirst), may6);
    EXPECT_EQ(DateIn("5-6-2011", monthFirst), may6);
    EXPECT_EQ(DateIn("6. 5. 2011", dayFirst), may6);
    EXPECT_EQ(DateIn("05/06/2011", yearFirst), std::nullopt);
}

TEST(DateIn, AMonthsNameTellsItselfInEveryOrder) {
    for (const DateOrder order : {monthFirst, dayFirst, yearFirst}) {
        for (const char* text : {"21 May 2011", "May 21, 2011", "21-May-2011", "2011 MAY 21", "Sat, 21 May 2011",
                                 "saturday may 21 2011", "Sat May 21, 2011"}) {
            EXPECT_EQ(DateIn(text, order), may21) << text;
        }
    }
    EXPECT_EQ(DateIn("1 Sept 2010", dayFirst), (year{2010} / 9 / 1));
    EXPECT_EQ(DateIn("1 September 2010", dayFirst), (year{2010} / 9 / 1));
    EXPECT_EQ(DateIn("1 Se 2010", dayFirst), std::nullopt);
    EXPECT_EQ(DateIn("1 Septembers 2010", dayFirst), std::nullopt);
}

TEST(DateIn, ATimeOfDayBehindTheDateIsPassedOver) {
    EXPECT_EQ(DateIn("2011-05-21T00:00:00.000Z", yearFirst), may21);
    EXPECT_EQ(DateIn("2011-05-21 00:00", yearFirst), may21);
    EXPECT_EQ(DateIn("05/21/2011 12:00:00 AM", monthFirst), may21);
    EXPECT_EQ(DateIn("20110521T0000:00", yearFirst), may21);
    EXPECT_EQ(DateIn("2011-05-21 extra", yearFirst), std::nullopt);
    EXPECT_EQ(DateIn("2011-05-21 7", yearFirst), std::nullopt);
}

TEST(DateIn, ADayThatNoCalendarHasIsADateThatIsNotOk) {
    for (const char* text : {"2011-02-31", "2011-02-29", "2011-13-01", "2011-00-10", "31 June 2011", "2011-05-00"}) {
        const auto date = DateIn(text, yearFirst);
        ASSERT_TRUE(date) << text;
        EXPECT_FALSE(date->ok()) << text;
    }
    EXPECT_TRUE(DateIn("29.02.2000", dayFirst)->ok());
}

TEST(DateIn, AnythingElseIsNoDate) {
    for (const char* text :
         {"", " ", "date", "12", "05/21/11", "5/2011", "2011-05", "1/2/3/2011", "2011052", "201105211", "211-05-01",
          "2011-2011-05", "May 2011 21 3", "May June 2011", "May", "2011-05-21-", "99999999999999999999-1-1"}) {
        for (const DateOrder order : {monthFirst, dayFirst, yearFirst}) {
            EXPECT_EQ(DateIn(text, order), std::nullopt) << text;
        }
    }
}

TEST(SerialOf, CountsFromTheFirstDayOf1984AsTheProgramDoes) {
    EXPECT_EQ(SerialOf(year_month_day{year{1984} / 1 / 1}), 0);
    EXPECT_EQ(SerialOf(year_month_day{year{1986} / 9 / 27}), 1000);
    EXPECT_EQ(SerialOf(year_month_day{year{2011} / 5 / 18}), 9999);
    EXPECT_EQ(SerialOf(year_month_day{year{1983} / 12 / 31}), -1);
    for (int serial = 1; serial < 32'767; serial += 13) {
        const auto text = TextOfSerial(static_cast<std::int16_t>(serial), "y-m-d");
        EXPECT_EQ(SerialOf(*DateIn(text, yearFirst)), serial);
    }
}

TEST(SerialNamed, IsThatOfADayWithTheYearFirst) {
    EXPECT_EQ(SerialNamed("1984-01-02"), 1);
    EXPECT_EQ(SerialNamed("20110518"), 9999);
    for (const char* text : {"", "2011-02-31", "18.05.2011", "05/18/2011", "yesterday"}) {
        EXPECT_EQ(SerialNamed(text), std::nullopt) << text;
    }
}

TEST(OrderNamed, TakesAnySeparatorThatDatesHave) {
    EXPECT_EQ(OrderNamed("m/d/y"), monthFirst);
    EXPECT_EQ(OrderNamed("d.m.y"), dayFirst);
    EXPECT_EQ(OrderNamed("d/m/y"), dayFirst);
    EXPECT_EQ(OrderNamed("y/m/d"), yearFirst);
    for (const char* name : {"", "mdy", "y-d-m", "d.m/y", "d:m:y", "d.m.yy", "m m y"}) {
        EXPECT_EQ(OrderNamed(name), std::nullopt) << name;
    }
    for (const DateOrder order : {monthFirst, dayFirst, yearFirst}) {
        EXPECT_EQ(OrderNamed(NameOf(order)), order);
    }
}

TEST(DateOrderFinder, ADayAboveTwelveInOneLineDecidesForAll) {
    EXPECT_EQ(OrderOf({"01/02/2011", "02/03/2011", "05/21/2011"}), monthFirst);
    EXPECT_EQ(OrderOf({"01/02/2011", "21/05/2011", "02/03/2011"}), dayFirst);
    EXPECT_EQ(OrderOf({"01-02-2011", "21-05-2011"}), dayFirst);
}

TEST(DateOrderFinder, PointsPutTheDayFirstWhereThatIsADate) {
    EXPECT_EQ(OrderOf({"01.02.2011"}), dayFirst);
    EXPECT_EQ(OrderOf({"05.21.2011"}), monthFirst);
}

TEST(DateOrderFinder, AYearThatStandsFirstDecides) {
    EXPECT_EQ(OrderOf({"2011-01-02"}), yearFirst);
    EXPECT_EQ(OrderOf({"01/02/2011", "2011-01-02"}), yearFirst);
}

TEST(DateOrderFinder, DatesThatAreTheSameInBothOrdersNeedNone) {
    EXPECT_EQ(OrderOf({"05/05/2011"}), monthFirst);
    EXPECT_EQ(OrderOf({"3 May 2011", "nonsense"}), yearFirst);
    EXPECT_EQ(OrderOf({}), yearFirst);
}

TEST(DateOrderFinder, AFaultyDateDecidesNothing) {
    EXPECT_EQ(OrderOf({"31/02/2011", "21/05/2011"}), dayFirst);
    EXPECT_EQ(OrderOf({"45/99/2011", "05/21/2011"}), monthFirst);
    EXPECT_EQ(OrderOf({"45.99.2011", "05/21/2011"}), monthFirst);
}

TEST(DateOrderFinder, KnowsWhenItIsDecided) {
    DateOrderFinder finder;
    finder.Look("05/06/2011", 1);
    finder.Look("07/07/2011", 2);
    EXPECT_FALSE(finder.IsDecided());
    finder.Look("13/07/2011", 3);
    EXPECT_TRUE(finder.IsDecided());
}

TEST(DateOrderFinder, TwoOrdersThatAreLeftAreAskedFor) {
    EXPECT_EQ(RefusalOf({"header", "05/06/2011", "07/08/2011"}),
              "the date \"05/06/2011\" in line 2, as all others, can be read with the day or the month first; say with "
              "--dates d.m.y or --dates m/d/y which it is");
}

TEST(DateIn, AShortWeekdayOfAnotherLanguageAndAPointAtTheEndArePassedOver) {
    const auto expected = std::chrono::year{2012} / 1 / 23;
    for (const char* text :
         {"Mo. 23.01.2012", "lun 23/01/2012", "Mo., 23.01.2012", "23.01.2012.", "23.01.2012. 20:15", "20120123."}) {
        EXPECT_EQ(DateIn(text, DateOrder::dayFirst), expected) << text;
    }
    for (const char* text : {"Mo23.01.2012", "Draw 23.01.2012", "23.01.2012..", "Mo Di 23.01.2012", "Mo."}) {
        EXPECT_EQ(DateIn(text, DateOrder::dayFirst), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace ballhaven::data
