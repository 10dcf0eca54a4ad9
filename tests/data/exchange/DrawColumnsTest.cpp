#include "data/exchange/DrawColumns.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using Places = std::vector<std::size_t>;

const Fields header{"Draw No", "DATE", "n1", "n2", "Caf\xE9", "n2 "};

std::string RefusalOf(std::string_view choice, int picks) {
    try {
        (void)ChosenColumns(choice, picks, header);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

TEST(DrawColumns, WithoutAChoiceTheDateStandsFirstAndThePicksFollow) {
    EXPECT_EQ(ChosenColumns("", 3, {}), (DrawColumns{{0, 1, 2, 3}, false}));
}

TEST(DrawColumns, NumbersAndRangesCountFromOneInTheOrderOfTheChoice) {
    EXPECT_EQ(ChosenColumns("2,5-7,1", 4, {}), (DrawColumns{{1, 4, 5, 6, 0}, true}));
    EXPECT_EQ(ChosenColumns(" 2 , 3 ", 1, {}), (DrawColumns{{1, 2}, true}));
}

TEST(DrawColumns, NamesAreThoseOfTheHeaderWhateverTheirCapitals) {
    EXPECT_EQ(ChosenColumns("date,N1,caf\xC3\xA9", 2, header).places, (Places{1, 2, 4}));
    EXPECT_EQ(ChosenColumns("date, draw no", 1, header).places, (Places{1, 0}));
    EXPECT_EQ(ChosenColumns("date,4", 1, header).places, (Places{1, 3}));
}

TEST(DrawColumns, OnlyAChoiceWithANameNeedsTheHeader) {
    EXPECT_FALSE(NamesColumns(""));
    EXPECT_FALSE(NamesColumns("1,3-8"));
    EXPECT_TRUE(NamesColumns("1,n1"));
    EXPECT_TRUE(NamesColumns("n-1"));
    EXPECT_TRUE(NamesColumns("1,"));
    EXPECT_TRUE(NamesColumns("1-2-3"));
}

TEST(DrawColumns, AChoiceThatCannotBeIsRefused) {
    EXPECT_EQ(RefusalOf("1,2", 2), "--columns chooses 2 columns where the game wants 3, a date and 2 picks");
    EXPECT_EQ(RefusalOf("1-3", 1), "--columns chooses 3 columns where the game wants 2, a date and 1 pick");
    EXPECT_EQ(RefusalOf("1,2,1", 2), "--columns chooses column 1 twice");
    EXPECT_EQ(RefusalOf("0,2", 1), "there is no column 0 to choose; columns count from 1");
    EXPECT_EQ(RefusalOf("3-2,1", 1), "there is no column 3-2 to choose; columns count from 1");
    EXPECT_EQ(RefusalOf("date,bonus", 1),
              "its header has no column \"bonus\"; it has \"Draw No\", \"DATE\", \"n1\", \"n2\", \"Caf\xC3\xA9\", "
              "\"n2 \"");
    EXPECT_EQ(RefusalOf("date,n2", 1), "its header has the column \"n2\" twice; choose it by its number");
}

TEST(DrawColumns, ARangeWithoutEndIsNoList) {
    EXPECT_EQ(RefusalOf("1-99999", 6), "--columns chooses 99999 columns where the game wants 7, a date and 6 picks");
    EXPECT_EQ(RefusalOf("1-4294967297", 1),
              "its header has no column \"1-4294967297\"; it has \"Draw No\", \"DATE\", "
              "\"n1\", \"n2\", \"Caf\xC3\xA9\", \"n2 \"");
}

TEST(FaultOfWidth, ARecordNeedsAllColumnsAndNoMore) {
    const DrawColumns first = ChosenColumns("", 2, {});
    EXPECT_EQ(FaultOfWidth({"d", "1", "2"}, first), "");
    EXPECT_EQ(FaultOfWidth({"d", "1", "2", "", ""}, first), "") << "empty fields at the end do not matter";
    EXPECT_EQ(FaultOfWidth({"d", "1"}, first), "it has 2 fields where a date and 2 picks are 3");
    EXPECT_EQ(FaultOfWidth({"d"}, first), "it has 1 field where a date and 2 picks are 3");
    EXPECT_EQ(FaultOfWidth({"d", "1", "2", "3"}, first),
              "it has 4 fields where a date and 2 picks are 3; choose the right ones with --columns");
}

TEST(FaultOfWidth, BesideChosenColumnsOthersDoNotMatter) {
    const DrawColumns chosen = ChosenColumns("4,1", 1, {});
    EXPECT_EQ(FaultOfWidth({"1", "a", "b", "d", "e"}, chosen), "");
    EXPECT_EQ(FaultOfWidth({"1", "a", "b"}, chosen), "it has 3 fields where column 4 is chosen");
}

TEST(DrawColumns, BlanksMayStandAroundAHyphen) {
    EXPECT_FALSE(NamesColumns("2,3 - 5"));
    EXPECT_EQ(ChosenColumns("2, 3 - 5", 3, {}), (DrawColumns{{1, 2, 3, 4}, true}));
    EXPECT_TRUE(NamesColumns("2,3 5"));
}

}  // namespace
}  // namespace ballhaven::data
