#include "data/checks/HistoryFileCheck.h"

#include "data/folder/DrawsOnFile.h"
#include "state/GameRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ballhaven::data {
namespace {

class HistoryFileCheckTest : public testing::Test {
  protected:
    void SetUp() override {
        slot.rules = GameRules{.gameType = 0, .mainPickCount = 3, .mainLow = 1, .mainHigh = 49};
        content = "10-26-2002";
        content.resize(64'064, ' ');
        PutRow(2, "7000  3 14");
        PutRow(3, "7007  1  2 49");
        PutRow(4, "7014 10 20 30");
    }

    void PutRow(int record, std::string row) {
        row.resize(64, ' ');
        content.replace(static_cast<std::size_t>(record - 1) * 64, 64, row);
    }
    void Put(int record, int column, std::string_view text) {
        content.replace(static_cast<std::size_t>((record - 1) * 64 + column - 1), text.size(), text);
    }
    [[nodiscard]] static std::string Row(const std::string& bytes, int record) {
        const std::string row = bytes.substr(static_cast<std::size_t>(record - 1) * 64, 64);
        return row.substr(0, row.find_last_not_of(' ') + 1);
    }

    [[nodiscard]] CheckedFile Check() const {
        return CheckHistoryFile({{"GAME01.CDB", 64, 1001}, content, static_cast<std::int64_t>(content.size())}, slot,
                                folderIsMended);
    }

    void ExpectFinding(Remedy remedy, const std::string& line) const {
        const CheckedFile checked = Check();
        ASSERT_EQ(checked.findings.size(), 1U);
        EXPECT_EQ(LineOf(checked.findings[0]), line);
        EXPECT_EQ(checked.findings[0].remedy, remedy);
        if (remedy != Remedy::Mend) {
            EXPECT_EQ(checked.mended, content);
        }
    }

    /// The rows of the mended file, up to the last one in which anything stands.
    [[nodiscard]] std::vector<std::string> MendedRows() const {
        const std::string mended = Check().mended;
        std::vector<std::string> rows;
        for (int record = 2; record <= 1001; ++record) {
            rows.push_back(Row(mended, record));
        }
        rows.erase(
            std::ranges::find_if(rows.rbegin(), rows.rend(), [](const auto& row) { return !row.empty(); }).base(),
            rows.end());
        return rows;
    }

    CheckedSlot slot{.slot = 1, .use = SlotUse::Game};
    bool folderIsMended = false;
    std::string content;
};

TEST_F(HistoryFileCheckTest, AFileAsTheProgramLeavesItHasNoFinding) {
    const CheckedFile checked = Check();
    EXPECT_TRUE(checked.findings.empty());
    EXPECT_EQ(checked.mended, content);
}

TEST_F(HistoryFileCheckTest, AHeaderIsMended) {
    Put(1, 1, "10-26-20x2");
    ExpectFinding(Remedy::Mend,
                  "GAME01.CDB, record 1 (header), columns 1-10 (stamp of the form): holds \"10-26-20x2\" "
                  "and not \"10-26-2002\". Nothing reads it.");
    EXPECT_EQ(Row(Check().mended, 1), "10-26-2002");
    Put(1, 1, "10-26-2002 x");
    ExpectFinding(Remedy::Mend,
                  "GAME01.CDB, record 1 (header): something stands in columns that are blank in such a "
                  "record: 12 \"x\". Nothing reads it.");
}

TEST_F(HistoryFileCheckTest, AFileOfFiveDigitsHasNoFindingInAnyFolder) {
    Put(1, 64, "M");
    PutRow(5, "15300 1  2  3");
    EXPECT_TRUE(Check().findings.empty());
    folderIsMended = true;
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, TheMarkOfFiveDigitsComesBackInAMendedFolder) {
    PutRow(5, "15300 1  2  3");
    folderIsMended = true;
    ExpectFinding(
        Remedy::Mend,
        "GAME01.CDB, record 1 (header), column 64 (mark of dates with five digits): holds \" \" and not \"M\". "
        "Without it the fifth digit of the dates, which stands there, is not read.");
    EXPECT_EQ(Check().mended[63], 'M');
    EXPECT_EQ(MendedRows().back(), "15300 1  2  3");
}

TEST_F(HistoryFileCheckTest, TheMarkComesBackWhereAllDatesHaveFiveDigits) {
    PutRow(2, "15300 1  2  3");
    PutRow(3, "15307 1  2  3");
    PutRow(4, "15314 1  2  3");
    folderIsMended = true;
    EXPECT_EQ(Check().mended[63], 'M');
}

// A byte behind one date of four digits does not make a file of five.
TEST_F(HistoryFileCheckTest, AStrayFifthDigitChangesNoDateInAMendedFolder) {
    folderIsMended = true;
    for (const char* date : {"70213", "20213", "70010", "99993"}) {
        for (const int record : {2, 3, 5}) {
            SetUp();
            std::string row(date);
            PutRow(record, row.replace(0, 4, record == 2 ? "1999" : record == 3 ? "7003" : "7021") + " 1  2  3");
            const CheckedFile checked = Check();
            ASSERT_EQ(checked.findings.size(), 1U) << row << " in record " << record;
            EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
            EXPECT_TRUE(checked.findings[0].what.ends_with("a digit longer than this file's dates"));
            EXPECT_EQ(checked.mended, content);
        }
    }
}

TEST_F(HistoryFileCheckTest, AFileWhoseDatesContradictEachOtherIsLeftAsItIs) {
    PutRow(5, "15300 1  2  3");
    PutRow(6, "15290 1  2  3");
    for (const bool mended : {false, true}) {
        folderIsMended = mended;
        ExpectFinding(
            Remedy::User,
            "GAME01.CDB, record 1 (header), column 64 (mark of dates with five digits): holds \" \", which is "
            "in doubt. 2 of 5 dates have a fifth digit, the first in record 5, and by the first four the "
            "draws are not in order. Ballhaven reads four digits, and drops the fifth when it next saves the "
            "draws. Restore a copy; or look at the draws in Ballhaven, put them right, save them, and check "
            "again. The rows were not looked at.");
    }
    // One that is beyond the range is no date of five digits either.
    PutRow(6, "32768 1  2  3");
    EXPECT_EQ(Check().findings.at(0).what, "holds \" \", which is in doubt");
}

TEST_F(HistoryFileCheckTest, AMendedFolderWithDatesOfFourDigitsHasNoFinding) {
    folderIsMended = true;
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, AFifthDigitIsLeftInAnOrdinaryFolder) {
    PutRow(5, "70215 1  2  3");
    ExpectFinding(Remedy::User,
                  "GAME01.CDB, record 5 (draw of 2003-03-23), columns 1-5 (date): holds \"70215\", which "
                  "is a digit longer than this file's dates. Ballhaven reads the first four.");
    PutRow(5, "7021x 1  2  3");
    ExpectFinding(Remedy::Mend,
                  "GAME01.CDB, record 5 (draw of 2003-03-23), column 5 (blank behind the date): holds "
                  "\"x\" and not \" \". Nothing reads it.");
}

TEST_F(HistoryFileCheckTest, AnUnknownMarkMeansFourDigits) {
    Put(1, 64, "x");
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(checked.mended[63], ' ');
}

TEST_F(HistoryFileCheckTest, ARowWithoutADateShowsWhatIsInIt) {
    PutRow(5, "     10 20 30");
    ExpectFinding(Remedy::User,
                  "GAME01.CDB, record 5, columns 1-4 (date): holds \"    \", which is no date. Ballhaven sees no draw "
                  "here, and blanks the row when it next saves the game's draws: \"10 20 30\".");
}

TEST_F(HistoryFileCheckTest, DatesThatAreNoneAreLeft) {
    PutRow(5, "70x5  1  2  3");
    EXPECT_EQ(LineOf(Check().findings.at(0)),
              "GAME01.CDB, record 5 (draw of 1984-03-11), columns 1-4 (date): holds \"70x5\", which is no date. "
              "Ballhaven reads the digits before it.");
    PutRow(5, "0000  1  2  3");
    EXPECT_EQ(Check().findings.at(0).what, "holds \"0000\", which is outside the dates from 1984-01-02 to 2073-09-17");
    Put(1, 64, "M");
    PutRow(5, "32768 1  2  3");
    EXPECT_EQ(Check().findings.at(0).what, "holds \"32768\", which is outside the dates from 1984-01-02 to 2073-09-17");
    PutRow(5, "32767 1  2  3");
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, PicksOutsideTheLimitsAreARemark) {
    PutRow(5, "7021  0  2  3");
    ExpectFinding(Remedy::None,
                  "GAME01.CDB, record 5 (draw of 2003-03-23), columns 6-7 (pick 1): holds \" 0\", which is "
                  "outside 1 to 49. An alteration of the game leaves such picks. Type it again in Ballhaven if it is "
                  "none of the draw's.");
    PutRow(5, "7021  1  2 50");
    EXPECT_EQ(Check().findings.at(0).place, "columns 12-13 (pick 3)");
}

TEST_F(HistoryFileCheckTest, BonusPicksHaveTheirOwnLimits) {
    slot.rules = GameRules{.gameType = 2,
                           .mainPickCount = 2,
                           .bonusPickCount = 1,
                           .mainLow = 1,
                           .mainHigh = 49,
                           .bonusLow = 0,
                           .bonusHigh = 9};
    PutRow(3, "7007  1  2  9");
    PutRow(4, "7014  1  2  0");
    EXPECT_TRUE(Check().findings.empty());
    PutRow(4, "7014  1  2 10");
    EXPECT_EQ(Check().findings.at(0).what, "holds \"10\", which is outside 0 to 9");
}

// Not a bug: GAME-FEWER-PICKS-1 in docs/not-bugs.md.
TEST_F(HistoryFileCheckTest, PicksBehindThoseOfTheGameAreNoFinding) {
    PutRow(5, "7021  1  2  3 77 88");
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, APickThatIsNoNumberIsLeft) {
    PutRow(5, "7021  1 2x  3");
    ExpectFinding(Remedy::User,
                  "GAME01.CDB, record 5 (draw of 2003-03-23), columns 9-10 (pick 2): holds \"2x\", which "
                  "is no number. Ballhaven reads it as 2.");
}

TEST_F(HistoryFileCheckTest, ColumnsBetweenAndBehindThePicksAreBlanked) {
    PutRow(5, "7021  1- 2  3");
    Put(5, 64, "z");
    EXPECT_EQ(Check().findings.at(0).what,
              "something stands in columns that are blank in such a record: 8 \"-\", 64 \"z\"");
    EXPECT_EQ(MendedRows().back(), "7021  1  2  3");
}

TEST_F(HistoryFileCheckTest, ARowThatHasSlippedIsLeftWithAllItsDigits) {
    PutRow(5, "7021   1  2  3");
    ExpectFinding(Remedy::User,
                  "GAME01.CDB, record 5 (draw of 2003-03-23): something stands in columns that are blank in "
                  "such a record: 8 \"1\", 11 \"2\", 14 \"3\". Nothing reads it, and Ballhaven drops it when "
                  "it next saves the file. Look whether a number has slipped.");
}

TEST_F(HistoryFileCheckTest, WithoutRulesPicksAreOnlyNumbers) {
    PutRow(5, "7021 88 99");
    slot.rules.reset();
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, OfDrawsInASlotThatNothingIsKnownOfNothingIsSaid) {
    slot = {.slot = 1};
    EXPECT_TRUE(Check().findings.empty());
}

TEST_F(HistoryFileCheckTest, DrawsInAnUnusedSlotAreARemark) {
    slot = {.slot = 1, .use = SlotUse::Free};
    PutRow(5, "7021 88 99");
    ExpectFinding(Remedy::None,
                  "GAME01.CDB: holds 4 draws, and no game has been set up in slot 1. They belong to the "
                  "next game that is.");
}

TEST_F(HistoryFileCheckTest, TheOlderFormIsARemark) {
    content.resize(6464);
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(checked.findings[0].what, "is of the older form, with 101 records");
    EXPECT_EQ(checked.findings[0].remedy, Remedy::None);
}

TEST_F(HistoryFileCheckTest, ACutFileIsFilledUpWithBlankRows) {
    const std::string whole = content;
    for (const std::size_t length : {std::size_t{64'000}, std::size_t{256}, std::size_t{266}}) {
        content = whole.substr(0, length);
        ExpectFinding(Remedy::Mend,
                      "GAME01.CDB: ends after " + std::to_string(length) + " bytes, in record " +
                          (length == 64'000 ? "1001" : "5") +
                          " of 1001. Blanks take the place of what is missing; a copy may still have it.");
        EXPECT_EQ(Check().mended, whole);
    }
}

TEST_F(HistoryFileCheckTest, AFileThatEndsInTheMiddleOfADrawStaysAsItIs) {
    const std::string whole = content;
    content.resize(3 * 64 + 10);
    PutRow(2, "x000  3 14");  // nothing else is looked at
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(LineOf(checked.findings[0]),
              "GAME01.CDB: ends after 202 bytes, in record 4 of 1001, which was cut in the middle: \"7014 10 20\". The "
              "file was not looked at any further. Restore a copy; or look at the record in Ballhaven, put it right, "
              "save it, and check again.");
    EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
    for (const std::size_t length : {1U, 63U, 3U * 64 + 1, 3U * 64 + 4, 3U * 64 + 63}) {
        content = whole.substr(0, length);
        EXPECT_EQ(Check().findings.size(), 1U);
        EXPECT_EQ(Check().findings.at(0).remedy, Remedy::User) << length;
    }
}

TEST_F(HistoryFileCheckTest, AFileOfTheOlderFormAndAByteIsCut) {
    content.resize(6464);
    content += "7";
    EXPECT_EQ(Check().findings.at(0).what,
              "ends after 6465 bytes, in record 102 of 1001, which was cut in the middle: "
              "\"7\"");
}

TEST_F(HistoryFileCheckTest, AHeaderOfZeroBytesGetsItsStampAtOnce) {
    const std::string whole = content;
    Put(1, 1, std::string(64, '\0'));
    const CheckedFile checked = Check();
    EXPECT_EQ(checked.mended, whole);
    ASSERT_EQ(checked.findings.size(), 2U);
    EXPECT_EQ(LineOf(checked.findings[0]),
              "GAME01.CDB: holds zero bytes and no text in record 1. Nothing is left of what stood there, if anything "
              "did.");
    EXPECT_EQ(checked.findings[1].remedy, Remedy::Mend);
}

TEST_F(HistoryFileCheckTest, AHeaderOfZeroBytesGetsItsMarkInAMendedFolder) {
    PutRow(5, "15300 1  2  3");
    PutRow(6, "15307 1  2  3");
    const std::string whole = content.replace(0, 64, "10-26-2002" + std::string(53, ' ') + "M");
    Put(1, 1, std::string(64, '\0'));
    folderIsMended = true;
    const CheckedFile checked = Check();
    EXPECT_EQ(checked.mended, whole);
    for (const Finding& finding : checked.findings) {
        EXPECT_EQ(finding.remedy, Remedy::Mend) << LineOf(finding);
    }
}

TEST_F(HistoryFileCheckTest, ARunOfZeroBytesIsOneFinding) {
    Put(3, 1, std::string(64 * 2, '\0'));
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(checked.findings[0].what, "holds zero bytes and no text in records 3 to 4");
    EXPECT_EQ(MendedRows(), std::vector<std::string>{"7000  3 14"});
}

TEST_F(HistoryFileCheckTest, AnEmptyFileIsARemark) {
    content.clear();
    EXPECT_EQ(Check().findings.at(0).remedy, Remedy::None);
}

TEST_F(HistoryFileCheckTest, ADamagedRowBetweenDrawsGoesBehindThem) {
    PutRow(3, "x007  1  2 49");
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 2U);
    EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
    EXPECT_EQ(LineOf(checked.findings[1]),
              "GAME01.CDB: no draw stands in record 3, before others. As many of the newest draws are hidden, and the "
              "next ones take their places.");
    EXPECT_EQ(MendedRows(), (std::vector<std::string>{"7000  3 14", "7014 10 20 30", "x007  1  2 49"}));
}

}  // namespace
}  // namespace ballhaven::data
