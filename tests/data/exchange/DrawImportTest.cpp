#include "data/exchange/DrawImport.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

namespace ballhaven::data {
namespace {

using Draws = std::vector<DrawOnFile>;
using Faults = std::vector<std::pair<std::int64_t, std::string>>;

const GameRules twoOf49{.mainPickCount = 2, .mainLow = 1, .mainHigh = 49};

ImportedDraws Import(const std::string& bytes) {
    std::istringstream stream(bytes);
    return ImportDraws(stream, RecognisedForm(stream, {}, twoOf49), twoOf49, 9999);
}

Faults FaultsOf(const ImportedDraws& imported) {
    Faults faults;
    for (const LineFault& fault : imported.faults.First()) {
        faults.emplace_back(fault.line, fault.words);
    }
    return faults;
}

TEST(ImportDraws, DrawsComeInAscendingOrderOfDateWithoutTheHeader) {
    const ImportedDraws imported = Import("date,a,b\n1984-01-04,1,2\n1984-01-02,3,4\n1984-01-03,5,\n");
    EXPECT_EQ(imported.draws, (Draws{{1, {3, 4}}, {2, {5, -1}}, {3, {1, 2}}}));
    EXPECT_EQ(imported.incomplete, 1);
    EXPECT_EQ(imported.faults.Count(), 0);
}

TEST(ImportDraws, EveryFaultHasItsLine) {
    const ImportedDraws imported =
        Import("date,a,b\n\n1984-01-02,1,2\n1984-02-31,1,2\n1984-01-03,1,50\n1984-01-04,1,1\n1984-01-05,1\n");
    EXPECT_EQ(FaultsOf(imported), (Faults{{4, "\"1984-02-31\" is no day of the calendar"},
                                          {5, "50 is no main pick of 1 to 49"},
                                          {6, "1 stands twice in the draw"},
                                          {7, "it has 2 fields where a date and 2 picks are 3"}}));
    EXPECT_EQ(imported.draws, (Draws{{1, {1, 2}}}));
}

TEST(ImportDraws, DatesOfAnotherOrderThanTheFirstThatTellsItAreFaults) {
    EXPECT_EQ(FaultsOf(Import("02/01/1984,1,2\n01/25/1984,1,2\n25/01/1984,1,2\n")),
              (Faults{{3, "\"25/01/1984\" is no day of the calendar with dates m/d/y"}}));
    EXPECT_EQ(FaultsOf(Import("1984-01-25,1,2\n01/26/1984,1,2\n")),
              (Faults{{2, "\"01/26/1984\" is no date of the form y-m-d, with four digits of the year"}}));
}

TEST(ImportDraws, ADateThatTheFileHasTwiceIsAFaultOfTheSecondLine) {
    const ImportedDraws imported = Import("1984-01-02,1,2\n1984-01-03,1,2\n2 Jan 1984,3,4\n");
    EXPECT_EQ(FaultsOf(imported), (Faults{{3, "1984-01-02 is the date of line 1 too"}}));
}

TEST(ImportDraws, FaultsAreCountedAndTheFirstTwentyKept) {
    std::string bytes = "1984-01-02,1,2\n";
    for (int line = 2; line <= 31; ++line) {
        bytes += "1984-01-02,1,2\n";
    }
    const ImportedDraws imported = Import(bytes);
    EXPECT_EQ(imported.faults.Count(), 30);
    ASSERT_EQ(imported.faults.First().size(), 20U);
    EXPECT_EQ(imported.faults.First().back().line, 21);
}

TEST(ImportDraws, AFileThatEndsInTheMiddleOfAQuoteIsRefusedWhole) {
    std::istringstream stream("1984-01-02,1,2\n1984-01-03,\"1,2\n");
    const FileForm form{.delimiter = ',', .columns = ChosenColumns("", 2, {})};
    EXPECT_THROW((void)ImportDraws(stream, form, twoOf49, 9999), Refusal);
}

}  // namespace
}  // namespace ballhaven::data
