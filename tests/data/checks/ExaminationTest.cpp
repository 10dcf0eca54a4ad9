#include "data/checks/Examination.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

constexpr int recordLength = 8;

FoundFile Found(const std::string& bytes, std::int64_t length = -1) {
    return {{"GAME01.CDB", recordLength, 3}, bytes, length < 0 ? static_cast<std::int64_t>(bytes.size()) : length};
}

TEST(ExaminationTest, OnlyDigitsWithBlanksAroundThemAreANumber) {
    EXPECT_EQ(NumberAmongBlanks(" 7"), 7);
    EXPECT_EQ(NumberAmongBlanks("7 "), 7);
    EXPECT_EQ(NumberAmongBlanks("000"), 0);
    EXPECT_EQ(NumberAmongBlanks("32768"), 32768);
    for (const char* text : {"", "  ", "7x", "-1", "1 2", "+3", "1."}) {
        EXPECT_EQ(NumberAmongBlanks(text), std::nullopt) << text;
    }
}

TEST(ExaminationTest, BytesBelowABlankAreNoText) {
    EXPECT_EQ(BytesOf("plain \x80\xFF"), Bytes::Text);
    EXPECT_EQ(BytesOf(std::string(8, '\0')), Bytes::Zeros);
    EXPECT_EQ(BytesOf("line\n"), Bytes::NoText);
    EXPECT_EQ(BytesOf("\x7F"), Bytes::NoText);
    EXPECT_EQ(BytesOf(std::string("\0 ", 2)), Bytes::NoText);
}

TEST(ExaminationTest, QuotedBytesAreUtf8AndShowTheCodesOfWhatIsNoText) {
    EXPECT_EQ(QuotedBytes("caf\xE9\n"), "\"caf\xC3\xA9\\x0a\"");
}

TEST(ExaminationTest, ACutRecordIsFilledUpWithBlanks) {
    const Examination examination(Found("12345678abc"));
    EXPECT_EQ(examination.Record(1), "12345678");
    EXPECT_EQ(examination.Record(2), "abc     ");
    EXPECT_EQ(examination.Record(3), "        ");
}

TEST(ExaminationTest, AMendedFieldIsInTheContentAndInTheFindings) {
    Examination examination(Found("12345678abcdefgh        "));
    examination.BeginRecord(2, "draw");
    examination.MendField({{3, 2}, "field"}, "XY", "So it is.");
    const CheckedFile checked = std::move(examination).Result();
    EXPECT_EQ(checked.mended, "12345678abXYefgh        ");
    EXPECT_EQ(checked.findings, (std::vector<Finding>{{"GAME01.CDB", 2, "draw", "columns 3-4 (field)",
                                                       "holds \"cd\" and not \"XY\"", "So it is.", Remedy::Mend}}));
}

TEST(ExaminationTest, AFieldThatIsLeftStaysAsItIs) {
    Examination examination(Found("12345678abcdefgh        "));
    examination.BeginRecord(1, "");
    examination.LeaveField({{8, 1}, "field"}, "no letter", "Change it.");
    const CheckedFile checked = std::move(examination).Result();
    EXPECT_EQ(checked.mended, "12345678abcdefgh        ");
    EXPECT_EQ(checked.findings,
              (std::vector<Finding>{{"GAME01.CDB", 1, "", "column 8 (field)", "holds \"8\", which is no letter",
                                     "Change it.", Remedy::User}}));
}

TEST(ExaminationTest, UnusedColumnsAreBlankedInOneFinding) {
    Examination examination(Found("12345678abcdefgh        "));
    examination.BeginRecord(1, "");
    examination.MendUnused(ColumnsOf({{1, 4}, {6, 2}}, recordLength), StrayDigits::Blank);
    const CheckedFile checked = std::move(examination).Result();
    EXPECT_EQ(checked.mended, "1234 67 abcdefgh        ");
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(checked.findings[0].what,
              "something stands in columns that are blank in such a record: 5 \"5\", 8 \"8\"");
}

TEST(ExaminationTest, DigitsInUnusedColumnsCanBeLeft) {
    Examination examination(Found("1234x67 ab defgh        "));
    examination.BeginRecord(1, "");
    examination.MendUnused(ColumnsOf({{1, 4}, {6, 1}}, recordLength), StrayDigits::Leave);
    examination.BeginRecord(2, "");
    examination.MendUnused(ColumnsOf({{1, 4}, {5, 3}}, recordLength), StrayDigits::Leave);
    const CheckedFile checked = std::move(examination).Result();
    EXPECT_EQ(checked.mended, "1234x67 ab defg         ");
    ASSERT_EQ(checked.findings.size(), 2U);
    EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
    EXPECT_EQ(checked.findings[1].remedy, Remedy::Mend);
}

TEST(ExaminationTest, BytesThatAreNoTextAreLeft) {
    Examination examination(Found("        a\tc     text    "));
    examination.BeginRecord(2, "");
    EXPECT_FALSE(examination.IsText("Look."));
    examination.BeginRecord(3, "");
    EXPECT_TRUE(examination.IsText(""));
    EXPECT_EQ(examination.LeftCount(), 1);
    const CheckedFile checked = std::move(examination).Result();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(LineOf(checked.findings[0]),
              "GAME01.CDB, record 2: holds bytes that are no text: \"a\\x09c     \". Look.");
    EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
}

TEST(ExaminationTest, RunsOfZeroBytesAreBlanked) {
    const std::string zeros(8, '\0');
    for (const auto& [bytes, records] :
         {std::pair{zeros + "text    " + zeros, "record 1"}, std::pair{"text    " + zeros + zeros, "records 2 to 3"}}) {
        Examination examination(Found(bytes));
        examination.MendZeros();
        const CheckedFile checked = std::move(examination).Result();
        EXPECT_EQ(checked.mended.find('\0'), std::string::npos);
        EXPECT_EQ(checked.findings.at(0).what, "holds zero bytes and no text in " + std::string(records));
        EXPECT_EQ(checked.findings.at(0).remedy, Remedy::Mend);
    }
}

TEST(ExaminationTest, ARecordOfZeroBytesCanGetAText) {
    Examination examination(Found(std::string(8, '\0') + "text            "));
    examination.BeginRecord(1, "slot");
    examination.MendZeroRecord("free", "It is free.");
    examination.BeginRecord(2, "slot");
    examination.MendZeroRecord("free", "It is free.");
    const CheckedFile checked = std::move(examination).Result();
    EXPECT_EQ(checked.mended, "free    text            ");
    EXPECT_EQ(checked.findings.size(), 1U);
}

struct LengthCase {
    std::int64_t length;
    bool hasRecords;
    std::vector<Remedy> remedies;
};

TEST(ExaminationTest, TheLengthTellsAnEmptyAnOlderACutAndALongFile) {
    const LengthCase cases[] = {{0, false, {Remedy::None}}, {8, true, {Remedy::None}},   {7, false, {Remedy::User}},
                                {16, true, {Remedy::Mend}}, {23, false, {Remedy::User}}, {24, true, {}},
                                {25, true, {Remedy::None}}};
    for (const LengthCase& each : cases) {
        const std::string bytes(static_cast<std::size_t>(std::min<std::int64_t>(each.length, 24)), 'x');
        const FoundFile found = Found(bytes, each.length);
        Examination examination(found);
        EXPECT_EQ(CheckLength(examination, found, 1), each.hasRecords) << each.length;
        std::vector<Remedy> remedies;
        for (const Finding& finding : std::move(examination).Result().findings) {
            remedies.push_back(finding.remedy);
        }
        EXPECT_EQ(remedies, each.remedies) << each.length;
    }
}

TEST(ExaminationTest, ARecordThatIsBlankWhereItWasCutHasLostNothing) {
    const FoundFile found = Found("12345678   ");
    Examination examination(found);
    EXPECT_TRUE(CheckLength(examination, found, 1));
    EXPECT_EQ(std::move(examination).Result().findings.at(0).remedy, Remedy::Mend);
}

TEST(ExaminationTest, ACutFileIsToldByItsBytesAndItsLastRecord) {
    const FoundFile one = Found("1");
    Examination short1(one);
    CheckEnd(short1, one, "");
    EXPECT_EQ(std::move(short1).Result().findings.at(0).what, "ends after 1 byte, in record 1 of 3");
    const FoundFile found = Found("12345678abc");
    Examination examination(found);
    CheckEnd(examination, found, "Filled.");
    EXPECT_EQ(LineOf(std::move(examination).Result().findings.at(0)),
              "GAME01.CDB: ends after 11 bytes, in record 2 of 3. Filled.");
}

}  // namespace
}  // namespace ballhaven::data
