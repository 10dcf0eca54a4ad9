#include "data/exchange/FileForm.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ballhaven::data {
namespace {

const GameRules twoOf49{.gameType = 0, .mainPickCount = 2, .mainLow = 1, .mainHigh = 49};

FileForm FormOf(const std::string& bytes, const GivenForm& given = {}, const GameRules& rules = twoOf49) {
    std::istringstream stream(bytes);
    return RecognisedForm(stream, given, rules);
}

std::string RefusalOf(const std::string& bytes, const GivenForm& given = {}) {
    try {
        (void)FormOf(bytes, given);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

TEST(FileForm, DelimiterHeaderAndDatesAreRecognised) {
    const FileForm form = FormOf("date;a;b\n21/05/2011;1;2\n");
    EXPECT_EQ(form.delimiter, ';');
    EXPECT_EQ(form.recordsAbove, 1);
    EXPECT_EQ(form.dates, DateOrder::dayFirst);
    EXPECT_EQ(form.columns, (DrawColumns{{0, 1, 2}, false}));
}

TEST(FileForm, AFirstLineWithADateOrAPickIsADraw) {
    EXPECT_EQ(FormOf("2011-05-21,1,2\n").recordsAbove, 0);
    EXPECT_EQ(FormOf("2011-99-99,1,2\n").recordsAbove, 0) << "a fault of that line, not a header";
    EXPECT_EQ(FormOf(",1,2\n2011-05-21,1,2\n").recordsAbove, 0) << "its date is missing";
    EXPECT_EQ(FormOf("yesterday,1,2\n2011-05-21,1,2\n").recordsAbove, 0);
    EXPECT_EQ(FormOf("2011-05-21,,\n2011-05-22,1,2\n").recordsAbove, 0);
    EXPECT_EQ(FormOf("n1,n2,when\n1,2,2011-05-21\n", {.columns = "3,1,2"}).recordsAbove, 1);
}

TEST(FileForm, WhatIsGivenIsNotRecognised) {
    EXPECT_EQ(FormOf("date,a,b\n2011-05-21,1,2\n", {.header = false}).recordsAbove, 0);
    EXPECT_EQ(FormOf("2011-05-21,1,2\n2011-05-25,1,2\n", {.header = true}).recordsAbove, 1);
    EXPECT_EQ(FormOf("05/06/2011,1,2\n", {.dates = DateOrder::dayFirst}).dates, DateOrder::dayFirst);
    EXPECT_EQ(FormOf("2011-05-21 1 2\n", {.delimiter = '|'}).delimiter, '|');
}

TEST(FileForm, ColumnsChosenByNameMeanThatThereIsAHeader) {
    const FileForm form = FormOf("no,a,b,day 1\n7,1,2,2011-05-21\n", {.columns = "day 1,a,b"});
    EXPECT_EQ(form.recordsAbove, 1) << "its date has a digit, and is a name all the same";
    EXPECT_EQ(form.columns, (DrawColumns{{3, 1, 2}, true}));
}

TEST(FileForm, ATitleAndWhatTellsASpreadsheetTheDelimiterStandAboveTheDrawsToo) {
    const std::string draws = "date;a;b\n2011-05-21;1;2\n";
    EXPECT_EQ(FormOf("Draws of 2011\n\n" + draws).recordsAbove, 2);
    EXPECT_EQ(FormOf("Draws of 2011\n" + draws, {.header = true}).recordsAbove, 2);
    EXPECT_EQ(FormOf("sep=|\nday|a|b\n2011-05-21|1|2\n").delimiter, '|');
    EXPECT_EQ(FormOf("sep=;\r\n" + draws).recordsAbove, 2);
    EXPECT_EQ(FormOf("sep=;\n2011-05-21;1;2\n").recordsAbove, 1);
    EXPECT_EQ(FormOf("sep=;\n" + draws, {.columns = "date,b,a"}).columns, (DrawColumns{{0, 2, 1}, true}));
}

TEST(FileForm, WhereNoDrawIsInSightTheLinesAreLeftToBeTold) {
    EXPECT_EQ(FormOf("1999-05-21 1 2\n1999-05-22 3 4\n", {.delimiter = '|'}).recordsAbove, 0);
    EXPECT_EQ(FormOf("when,what,why\nnever,nothing,no\n").recordsAbove, 1);
}

TEST(FileForm, AnExportOfPlaysIsNamedAsWhatItIs) {
    EXPECT_EQ(RefusalOf("slip,line,method,main1,main2\n1,A,by hand,1,2\n"),
              "it holds plays, as \"export --plays\" writes them; draws alone can be imported");
}

TEST(FileForm, TheStreamStandsAtItsBeginningAgain) {
    std::istringstream stream("2011-05-21,1,2\n");
    (void)RecognisedForm(stream, {}, twoOf49);
    std::string first;
    stream >> first;
    EXPECT_EQ(first, "2011-05-21,1,2");
}

TEST(FileForm, AFileWithoutADrawIsRefused) {
    EXPECT_EQ(RefusalOf("", {.delimiter = ','}), "it is empty");
    EXPECT_EQ(RefusalOf(""), "it is empty");
    EXPECT_EQ(RefusalOf("\xEF\xBB\xBF"), "it is empty");
    EXPECT_EQ(RefusalOf(" \r\n\t\n"), "it is empty");
    EXPECT_EQ(RefusalOf(",,\n,,\n", {.delimiter = ','}), "it holds no draw");
    EXPECT_EQ(RefusalOf("sep=;\n"), "it holds no draw");
    EXPECT_EQ(RefusalOf("date,a,b,c\n"),
              "none of its first lines holds a date or a pick in the columns of a draw; choose the right ones with "
              "--columns");
}

TEST(FileForm, AHeaderOfThisGameAloneIsAFileWithoutDraws) {
    EXPECT_EQ(FormOf("date,a,b\n").recordsAbove, 1);
}

TEST(FileForm, TheOrderOfTheDatesIsSoughtInTheChosenColumn) {
    EXPECT_EQ(FormOf("05/06/2011,1,2,21/05/2011\n", {.columns = "4,2,3"}).dates, DateOrder::dayFirst);
    EXPECT_NE(RefusalOf("05/06/2011,1,2,21/05/2011\n").find("say with --dates"), std::string::npos);
}

}  // namespace
}  // namespace ballhaven::data
