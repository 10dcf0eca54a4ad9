#include "data/exchange/FileForm.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ballhaven::data {
namespace {

FileForm FormOf(const std::string& bytes, const GivenForm& given = {}, int picks = 2) {
    std::istringstream stream(bytes);
    return RecognisedForm(stream, given, picks);
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
    EXPECT_TRUE(form.hasHeader);
    EXPECT_EQ(form.dates, DateOrder::dayFirst);
    EXPECT_EQ(form.columns, (DrawColumns{{0, 1, 2}, false}));
}

TEST(FileForm, AFirstLineWhoseDateHasADigitIsADraw) {
    EXPECT_FALSE(FormOf("2011-05-21,1,2\n").hasHeader);
    EXPECT_FALSE(FormOf("2011-99-99,1,2\n").hasHeader) << "a fault of that line, not a header";
    EXPECT_TRUE(FormOf(",1,2\n2011-05-21,1,2\n").hasHeader);
    EXPECT_TRUE(FormOf("n1,n2,when\n1,2,2011-05-21\n", {.columns = "3,1,2"}).hasHeader);
}

TEST(FileForm, WhatIsGivenIsNotRecognised) {
    EXPECT_FALSE(FormOf("date,a,b\n2011-05-21,1,2\n", {.header = false}).hasHeader);
    EXPECT_TRUE(FormOf("2011-05-21,1,2\n2011-05-25,1,2\n", {.header = true}).hasHeader);
    EXPECT_EQ(FormOf("05/06/2011,1,2\n", {.dates = DateOrder::dayFirst}).dates, DateOrder::dayFirst);
    EXPECT_EQ(FormOf("2011-05-21 1 2\n", {.delimiter = '|'}).delimiter, '|');
}

TEST(FileForm, ColumnsChosenByNameMeanThatThereIsAHeader) {
    const FileForm form = FormOf("no,a,b,day 1\n7,1,2,2011-05-21\n", {.columns = "day 1,a,b"});
    EXPECT_TRUE(form.hasHeader) << "its date has a digit, and is a name all the same";
    EXPECT_EQ(form.columns, (DrawColumns{{3, 1, 2}, true}));
}

TEST(FileForm, TheStreamStandsAtItsBeginningAgain) {
    std::istringstream stream("2011-05-21,1,2\n");
    (void)RecognisedForm(stream, {}, 2);
    std::string first;
    stream >> first;
    EXPECT_EQ(first, "2011-05-21,1,2");
}

TEST(FileForm, AFileWithoutADrawIsRefused) {
    EXPECT_EQ(RefusalOf("", {.delimiter = ','}), "it holds no draw");
    EXPECT_EQ(RefusalOf("date,a,b\n"), "it holds a header and no draw");
}

TEST(FileForm, TheOrderOfTheDatesIsSoughtInTheChosenColumn) {
    EXPECT_EQ(FormOf("05/06/2011,1,2,21/05/2011\n", {.columns = "4,2,3"}).dates, DateOrder::dayFirst);
    EXPECT_NE(RefusalOf("05/06/2011,1,2,21/05/2011\n").find("say with --dates"), std::string::npos);
}

}  // namespace
}  // namespace ballhaven::data
