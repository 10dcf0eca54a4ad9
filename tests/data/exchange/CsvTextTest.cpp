#include "data/exchange/CsvText.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace ballhaven::data {
namespace {

using Record = std::vector<std::string>;
using Records = std::vector<Record>;

Records RecordsOf(const std::string& bytes, char delimiter = ',') {
    std::istringstream stream(bytes);
    CsvText text(stream, delimiter);
    Records records;
    while (text.Next()) {
        records.emplace_back(text.Fields().begin(), text.Fields().end());
    }
    return records;
}

std::vector<std::int64_t> LinesOf(const std::string& bytes) {
    std::istringstream stream(bytes);
    CsvText text(stream, ',');
    std::vector<std::int64_t> lines;
    while (text.Next()) {
        lines.push_back(text.Line());
    }
    return lines;
}

std::string RefusalOf(const std::string& bytes) {
    try {
        (void)RecordsOf(bytes);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

char DelimiterOf(const std::string& bytes) {
    std::istringstream stream(bytes);
    return RecognisedDelimiter(stream);
}

TEST(CsvText, TheDelimiterDividesTheFields) {
    EXPECT_EQ(RecordsOf("a,b,c\nd,,\n"), (Records{{"a", "b", "c"}, {"d", "", ""}}));
    EXPECT_EQ(RecordsOf("a,b;c", ';'), (Records{{"a,b", "c"}}));
    EXPECT_EQ(RecordsOf("a\t\tb c", '\t'), (Records{{"a", "", "b c"}}));
}

TEST(CsvText, LinesEndInAnyOfTheThreeWaysAndTheLastOneNeedNot) {
    const Records expected{{"a"}, {"b"}, {"c"}};
    EXPECT_EQ(RecordsOf("a\nb\nc\n"), expected);
    EXPECT_EQ(RecordsOf("a\r\nb\r\nc\r\n"), expected);
    EXPECT_EQ(RecordsOf("a\rb\rc"), expected);
}

TEST(CsvText, LinesWithoutTextArePassedOverAndCounted) {
    EXPECT_EQ(RecordsOf("\n\na,1\n ,\t\n;\n\n"), (Records{{"a", "1"}, {";"}}));
    EXPECT_EQ(LinesOf("\r\n\r\na\r\n,,\r\nb"), (std::vector<std::int64_t>{3, 5}));
    EXPECT_EQ(RecordsOf(""), Records{});
    EXPECT_EQ(RecordsOf("\n\n"), Records{});
}

TEST(CsvText, AFieldInQuotesHoldsDelimitersQuotesAndLineEnds) {
    EXPECT_EQ(RecordsOf("\"a,b\",\"say \"\"so\"\"\"\n"), (Records{{"a,b", "say \"so\""}}));
    EXPECT_EQ(RecordsOf("\"a\r\nb\",c\nd"), (Records{{"a\nb", "c"}, {"d"}}));
    EXPECT_EQ(LinesOf("\"a\nb\r\nc\",1\nd"), (std::vector<std::int64_t>{1, 4}));
    EXPECT_EQ(RecordsOf("\"\",\"\""), Records{}) << "nothing but empty fields";
}

TEST(CsvText, AQuoteMayFollowBlanksAndTextMayFollowTheQuote) {
    EXPECT_EQ(RecordsOf("1, \"2\" ,3"), (Records{{"1", "2", "3"}}));
    EXPECT_EQ(RecordsOf("5\" disc,b"), (Records{{"5\" disc", "b"}}));
}

TEST(CsvText, BlanksAroundAFieldAreTakenOffUnlessTheyDivideFields) {
    EXPECT_EQ(RecordsOf(" a ,\tb c\t\n"), (Records{{"a", "b c"}}));
    EXPECT_EQ(RecordsOf("\" a \",b\n"), (Records{{"a", "b"}}));
    EXPECT_EQ(RecordsOf("a\t\tb \n", '\t'), (Records{{"a", "", "b"}}));
}

TEST(CsvText, BlanksAtWhichNoLineIsBrokenAreTakenOffToo) {
    EXPECT_EQ(RecordsOf("\xC2\xA0 1\xE2\x80\xAF,\xA0\x32\xA0,3 \xC2\xA0\n"), (Records{{"1", "2", "3"}}));
    EXPECT_EQ(RecordsOf("d\xC3\xA0,\xE3\x81\xA0\n"), (Records{{"d\xC3\xA0", "\xE3\x81\xA0"}}))
        << "the last byte of another character";
    EXPECT_EQ(RecordsOf("\xA0,\xC2\xA0\n"), Records{});
}

TEST(CsvText, SeveralBlanksDivideFieldsAsOneDoes) {
    EXPECT_EQ(RecordsOf(" 2011-05-21  1 2\t  3 \r\n\n  \n\"a b\" c\n", ' '),
              (Records{{"2011-05-21", "1", "2", "3"}, {"a b", "c"}}));
}

TEST(CsvText, RecordsOfAllKindsMayFollowEachOther) {
    const std::string longOne(2000, 'x');
    EXPECT_EQ(RecordsOf("a,b\r\n\"c\",d\ne\rf\n" + longOne + ",g\n,h\n\ni"),
              (Records{{"a", "b"}, {"c", "d"}, {"e"}, {"f"}, {longOne, "g"}, {"", "h"}, {"i"}}));
    EXPECT_EQ(LinesOf("a\r\n\"c\"\ne\rf\n" + longOne + "\n\ni"), (std::vector<std::int64_t>{1, 2, 3, 4, 5, 7}));
}

TEST(CsvText, AQuoteThatNeverClosesIsToldWithItsLine) {
    EXPECT_EQ(RefusalOf("a\nb,\"c\nd\n"), "the quote that opens in line 2 never closes");
}

TEST(CsvText, ARecordOfMoreThan64KiBIsRefusedWhateverItIsMadeOf) {
    const std::string words = "line 2 is longer than 65536 bytes, so it holds no draw; a quote may be missing in it";
    EXPECT_EQ(RecordsOf("a\n" + std::string(65'536, 'x')).size(), 2U);
    EXPECT_EQ(RefusalOf("a\n" + std::string(65'537, 'x')), words);
    EXPECT_EQ(RefusalOf("a\n" + std::string(65'537, ',')), words);
    EXPECT_EQ(RefusalOf("a\n\"" + std::string(65'537, '\n')), words);
    EXPECT_EQ(RefusalOf("a\n" + std::string(200'000, ' ') + "b"), "none") << "blanks before a field are not kept";
}

TEST(CsvText, FieldsAndLineEndsThatAChunkCutsComeWhole) {
    for (std::size_t length = 65'530; length < 65'540; ++length) {
        const std::string first(length / 2, 'x');
        const std::string second(length - length / 2 - 1, 'y');
        EXPECT_EQ(RecordsOf(first + "\n" + second + "\r\n\"z\"\"z\"\r\nw"),
                  (Records{{first}, {second}, {"z\"z"}, {"w"}}));
    }
}

TEST(RecognisedDelimiter, IsTheOneThatMostLinesAgreeOn) {
    EXPECT_EQ(DelimiterOf("date,a,b\n2011-05-21,1,2\n"), ',');
    EXPECT_EQ(DelimiterOf("date;a;b\n2011-05-21;1;2\n"), ';');
    EXPECT_EQ(DelimiterOf("date\ta\tb\n2011-05-21\t1\t2\n"), '\t');
    EXPECT_EQ(DelimiterOf("Sat, 21 May 2011;1;2\nWed, 25 May 2011;3;4\n"), ';');
    EXPECT_EQ(DelimiterOf("Draws, as told\ndate;a;b\n2011-05-21;1;2\n"), ';');
    EXPECT_EQ(DelimiterOf("\"May 21, 2011\"\t1\n\"May 25, 2011\"\t2\n"), '\t');
}

TEST(RecognisedDelimiter, LeavesTheStreamAtItsBeginning) {
    std::istringstream stream("a;b\nc;d\n");
    EXPECT_EQ(RecognisedDelimiter(stream), ';');
    CsvText text(stream, ';');
    ASSERT_TRUE(text.Next());
    EXPECT_EQ(text.Fields().front(), "a");
}

std::string RefusalOfDelimiter(const std::string& bytes) {
    try {
        (void)DelimiterOf(bytes);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

TEST(RecognisedDelimiter, IsAskedForWhereNothingDividesTheLines) {
    EXPECT_EQ(RefusalOfDelimiter("2011-05-21 1 2 3\n").substr(0, 36), "no comma, semicolon or tab divides i");
}

TEST(RecognisedDelimiter, WhatKeepsTheLinesFromBeingReadIsToldAsItIs) {
    EXPECT_EQ(RefusalOfDelimiter("\"a,b;c\n"), "the quote that opens in line 1 never closes");
    EXPECT_EQ(RefusalOfDelimiter("2011-05-21,1,2\n2011-05-22,\"3,4\n2011-05-23,5,6\n"),
              "the quote that opens in line 2 never closes");
    EXPECT_EQ(RefusalOfDelimiter(std::string(70'000, 'x') + "\n").substr(0, 34), "line 1 is longer than 65536 bytes,");
    EXPECT_EQ(DelimiterOf("5;\",\"\n6;7\n8,\"\n9;1\n"), ';') << "a delimiter that reads the lines comes first";
}

TEST(RecognisedDelimiter, IsTheOneThatTheFirstLineNamesForASpreadsheet) {
    EXPECT_EQ(DelimiterOf("sep=|\na,b|c\n"), '|');
    EXPECT_EQ(DelimiterOf("sep=\t\r\na,b\tc\n"), '\t');
    EXPECT_EQ(DelimiterOf("sep=ab\na,b\n"), ',');
}

TEST(RequireText, WantsMoreThanBlanksAndNoZeros) {
    const auto refusalOf = [](const std::string& bytes) -> std::string {
        std::istringstream stream(bytes);
        try {
            RequireText(stream);
        } catch (const Refusal& refusal) {
            return refusal.what();
        }
        return stream.tellg() == 0 ? "none" : "not at its beginning";
    };
    EXPECT_EQ(refusalOf(std::string(40'000, '\n') + "a"), "none");
    EXPECT_EQ(refusalOf(std::string(40'000, '\n')), "it is empty");
    EXPECT_EQ(refusalOf(std::string("a\0,\0", 4)), "it holds zeros, so it is no text; save the draws as CSV");
}

TEST(DelimiterNamed, TakesAWordOrTheCharacterItself) {
    EXPECT_EQ(DelimiterNamed("comma"), ',');
    EXPECT_EQ(DelimiterNamed("semicolon"), ';');
    EXPECT_EQ(DelimiterNamed("tab"), '\t');
    EXPECT_EQ(DelimiterNamed("\t"), '\t');
    EXPECT_EQ(DelimiterNamed("|"), '|');
    for (const char* name : {"", "a", "7", "  ", "\"", "\n", "\r", "||", "\xE9", "colon"}) {
        EXPECT_EQ(DelimiterNamed(name), std::nullopt) << name;
    }
    EXPECT_EQ(DelimiterNamed("blank"), ' ');
    EXPECT_EQ(DelimiterNamed(" "), ' ');
    EXPECT_EQ(NameOfDelimiter(' '), "blank");
    EXPECT_EQ(NameOfDelimiter('\t'), "tab");
    EXPECT_EQ(NameOfDelimiter('|'), "|");
}

}  // namespace
}  // namespace ballhaven::data
