#include "data/checks/GameTableCheck.h"

#include "state/GameRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ballhaven::data {
namespace {

// Six of 49, as the dialog saves it.
constexpr std::string_view sixOf49 = "1 /Harbour Six           /100/0/1/49/ / /N/N/06/0/N /  /-/00/   ";

class GameTableCheckTest : public testing::Test {
  protected:
    void SetUp() override {
        table = "03/0/1/010010" + std::string(51, ' ') + std::string(sixOf49);
        for (int slot = 2; slot <= 20; ++slot) {
            table += BuildDefaultGameRecord(slot, 0);
        }
        ASSERT_EQ(table.size(), 1344U);
    }

    /// Puts a text over the columns of a record, from 1.
    void Put(int record, int column, std::string_view text) {
        table.replace(static_cast<std::size_t>((record - 1) * 64 + column - 1), text.size(), text);
    }

    [[nodiscard]] CheckedFile Check() const { return CheckTable().file; }
    [[nodiscard]] CheckedTable CheckTable() const {
        return CheckGameTable({{"LOTTOSYS", 64, 21}, table, static_cast<std::int64_t>(table.size())}, drawsAreMarked);
    }

    /// The findings as lines.
    [[nodiscard]] std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const Finding& finding : Check().findings) {
            lines.push_back(LineOf(finding));
        }
        return lines;
    }

    /// Expects that a text over some columns is one finding, and that mending it, if that is the remedy, gives `right`.
    void ExpectFinding(int record, int column, std::string_view text, Remedy remedy, std::string_view right = "") {
        const std::string whole = table;
        Put(record, column, text);
        const CheckedFile checked = Check();
        ASSERT_EQ(checked.findings.size(), 1U) << "record " << record << ", column " << column << ": " << text;
        EXPECT_EQ(checked.findings[0].remedy, remedy) << LineOf(checked.findings[0]);
        EXPECT_EQ(checked.findings[0].record, record);
        if (remedy == Remedy::Mend) {
            Put(record, column, right);
        }
        EXPECT_EQ(checked.mended, table);
        table = whole;
    }

    void ExpectNoFinding(int record, int column, std::string_view text) {
        const std::string whole = table;
        Put(record, column, text);
        EXPECT_TRUE(Check().findings.empty())
            << "record " << record << ", column " << column << ": " << text << ": " << Lines().front();
        table = whole;
    }

    std::string table;
    bool drawsAreMarked = false;
};

TEST_F(GameTableCheckTest, ATableAsTheProgramLeavesItHasNoFinding) {
    EXPECT_EQ(Lines(), std::vector<std::string>());
    EXPECT_EQ(Check().mended, table);
}

TEST_F(GameTableCheckTest, NewTablesAndUnusedSlotsOfAllKindsHaveNone) {
    for (int kind = 0; kind <= 5; ++kind) {
        Put(2 + kind, 1, BuildDefaultGameRecord(1 + kind, kind));
    }
    Put(1, 1, NewSystemRecord());
    EXPECT_EQ(Lines(), std::vector<std::string>());
}

TEST_F(GameTableCheckTest, AMendedFolderIsNoFinding) {
    ExpectNoFinding(1, 64, "M");
    ExpectFinding(1, 64, "m", Remedy::Mend, " ");
    EXPECT_FALSE(CheckTable().folderIsMended);
    Put(1, 64, "M");
    EXPECT_TRUE(CheckTable().folderIsMended);
}

TEST_F(GameTableCheckTest, AMarkThatMayHaveBeenThatOfAMendedFolderIsLeft) {
    drawsAreMarked = true;
    ExpectFinding(1, 64, "L", Remedy::User);
    Put(1, 64, "L");
    EXPECT_EQ(Lines(),
              std::vector<std::string>{
                  "LOTTOSYS, record 1 (settings), column 64 (mark of a mended folder): holds \"L\", which is "
                  "neither \"M\" nor blank. Ballhaven takes the folder for an ordinary one. If it was a mended "
                  "one, mark it again with \"ballhaven-data mend\"."});
}

TEST_F(GameTableCheckTest, SettingsOfZeroBytesAreMendedAtOnce) {
    Put(1, 1, std::string(64, '\0'));
    const CheckedFile checked = Check();
    EXPECT_EQ(Lines(),
              std::vector<std::string>{"LOTTOSYS, record 1 (settings): holds zero bytes and no text. Ballhaven "
                                       "reads them as unset, and shows slot 1."});
    EXPECT_EQ(checked.findings[0].remedy, Remedy::Mend);
    EXPECT_EQ(checked.mended.substr(0, 64), "01/0/1/000000" + std::string(51, ' '));
}

TEST_F(GameTableCheckTest, ASlotOfZeroBytesBecomesAnUnusedOne) {
    Put(2, 1, std::string(64, '\0'));
    const CheckedTable checked = CheckTable();
    ASSERT_EQ(checked.file.findings.size(), 1U);
    EXPECT_EQ(LineOf(checked.file.findings[0]),
              "LOTTOSYS, record 2 (slot 1): holds zero bytes and no text. The slot becomes an unused one; a copy may "
              "still have its game.");
    EXPECT_EQ(checked.file.mended.substr(64, 64), "1 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ");
    EXPECT_EQ(checked.slots.at(0).use, SlotUse::Free);
}

TEST_F(GameTableCheckTest, TheRulesOfASlotAreKnownWhereNothingIsWrongWithThem) {
    const CheckedTable checked = CheckTable();
    ASSERT_EQ(checked.slots.size(), 20U);
    EXPECT_EQ(checked.slots[0].slot, 1);
    EXPECT_EQ(checked.slots[0].use, SlotUse::Game);
    ASSERT_TRUE(checked.slots[0].rules);
    EXPECT_EQ(checked.slots[0].rules->mainHigh, 49);
    EXPECT_EQ(checked.slots[19].use, SlotUse::Free);
    EXPECT_FALSE(checked.slots[19].rules);
    const std::string whole = table;
    const auto expectRules = [&](int column, std::string_view text, bool areKnown) {
        Put(2, column, text);
        EXPECT_EQ(CheckTable().slots[0].rules.has_value(), areKnown) << text;
        EXPECT_EQ(CheckTable().slots[0].use, SlotUse::Game);
        table = whole;
    };
    expectRules(27, "015", true);  // the history set is no rule of the draws
    expectRules(31, "7", false);
    expectRules(35, "4x", false);
    expectRules(35, "01", false);
    expectRules(46, "11", false);
    Put(2, 10, "\n");
    EXPECT_EQ(CheckTable().slots[0].use, SlotUse::Unknown);
}

TEST_F(GameTableCheckTest, SettingsOfTheProgramBecomeWhatTheyAreReadAs) {
    ExpectFinding(1, 1, "21", Remedy::Mend, "01");
    ExpectFinding(1, 1, "00", Remedy::Mend, "01");
    ExpectFinding(1, 1, "x3", Remedy::Mend, "01");
    ExpectFinding(1, 3, "-", Remedy::Mend, "/");
    ExpectFinding(1, 4, "2", Remedy::Mend, "1");
    ExpectFinding(1, 4, "x", Remedy::Mend, "0");
    ExpectFinding(1, 6, " ", Remedy::Mend, "1");
    ExpectFinding(1, 8, "1a0 11", Remedy::Mend, "100011");
    ExpectFinding(1, 14, "x", Remedy::Mend, " ");
    ExpectFinding(1, 63, "x", Remedy::Mend, " ");
}

TEST_F(GameTableCheckTest, WhatNothingReadsIsMended) {
    ExpectFinding(2, 1, "xx", Remedy::Mend, "1 ");
    ExpectFinding(6, 1, "  ", Remedy::Mend, "5 ");
    ExpectFinding(2, 3, ".", Remedy::Mend, "/");
    ExpectFinding(2, 61, " ", Remedy::Mend, "/");
    ExpectFinding(2, 24, "x", Remedy::Mend, " ");
    ExpectFinding(2, 38, "x", Remedy::Mend, " ");
    ExpectFinding(2, 54, "xy", Remedy::Mend, "  ");
    ExpectFinding(2, 64, "x", Remedy::Mend, " ");
    ExpectFinding(2, 51, "  ", Remedy::Mend, "N ");
}

// A slot that was given up for a new game holds the free slot's record, number and all.
TEST_F(GameTableCheckTest, TheNumberOfAnotherSlotIsNoFinding) {
    ExpectNoFinding(2, 1, BuildDefaultGameRecord(7, 0));
}

TEST_F(GameTableCheckTest, HistorySetsThatCannotBeChosenAreLeft) {
    for (const char* set : {"015", "005", "0 0", "   ", "abc", "999", " 00"}) {
        ExpectFinding(2, 27, set, Remedy::User);
    }
    for (const char* set : {"000", "010", "990"}) {
        ExpectNoFinding(2, 27, set);
    }
    Put(2, 27, "015");
    EXPECT_EQ(Lines(),
              std::vector<std::string>{"LOTTOSYS, record 2 (slot 1, Harbour Six), columns 27-29 (history set): holds "
                                       "\"015\", which is none that can be chosen. Choose one in Ballhaven, or with "
                                       "\"ballhaven-data set 1 --history-set 100\"."});
}

TEST_F(GameTableCheckTest, RulesAreNeverGuessed) {
    ExpectFinding(2, 4, std::string(20, ' '), Remedy::User);
    ExpectFinding(2, 31, "6", Remedy::User);
    ExpectFinding(2, 31, " ", Remedy::User);
    ExpectFinding(2, 31, "X", Remedy::User);
    ExpectFinding(2, 33, "2", Remedy::User);
    ExpectFinding(2, 33, "-", Remedy::User);
    ExpectFinding(2, 35, "x9", Remedy::User);
    ExpectFinding(2, 42, "y", Remedy::User);
    ExpectFinding(2, 44, " ", Remedy::User);
    ExpectFinding(2, 46, "00", Remedy::User);
    ExpectFinding(2, 46, "11", Remedy::User);
    ExpectFinding(2, 46, "  ", Remedy::User);
    ExpectFinding(2, 49, " ", Remedy::User);
}

TEST_F(GameTableCheckTest, ADrawOfMoreThanTenPicksIsLeft) {
    Put(2, 1, "1 /Twin Drums            /100/2/1/50/ / /N/N/05/2/N /  /1/12/   ");
    EXPECT_EQ(Lines(), std::vector<std::string>());
    ExpectNoFinding(2, 49, "5");
    ExpectFinding(2, 49, "6", Remedy::User);
    ExpectFinding(2, 57, "-", Remedy::User);
    ExpectFinding(2, 59, "0x", Remedy::User);
}

TEST_F(GameTableCheckTest, LimitsOfCardsAreNotRead) {
    Put(2, 1, "1 /Queens                /100/4/1/52/ / /N/N/04/1/N /  /1/52/   ");
    EXPECT_EQ(Lines(), std::vector<std::string>());
    ExpectNoFinding(2, 33, "7");
    ExpectNoFinding(2, 35, "xx");
    ExpectNoFinding(2, 57, "-");
}

// Not a bug: GAME-BONUS-LIMITS-1 in docs/not-bugs.md.
TEST_F(GameTableCheckTest, BonusLimitsOfAGameWithoutBonusAreWhatTheDialogLeaves) {
    ExpectNoFinding(2, 57, "-/00");
    ExpectNoFinding(2, 57, "1/99");
}

// With ten picks from 0 on that can repeat the dialog's list of highest numbers is empty.
TEST_F(GameTableCheckTest, AHighestNumberOfZeroIsWhatTheDialogLeaves) {
    ExpectNoFinding(2, 31, "0/0/00/ / /Y/N/10/0");
}

TEST_F(GameTableCheckTest, ARecordOfTheOlderFormIsARemark) {
    ExpectFinding(3, 1, "2 /Old numbers           /015/N/1/40/ / /N/N/6 /1/7 /xx/ /  /   ", Remedy::None);
    ExpectFinding(3, 1, "2 /Old cards             /015/C/1/40/ / /N/N/6 /0/7 /xx/ /  /   ", Remedy::None);
    ExpectFinding(2, 51, "7 ", Remedy::None);
}

TEST_F(GameTableCheckTest, ARecordThatIsNoTextIsLeft) {
    ExpectFinding(2, 10, "\n", Remedy::User);
    ExpectFinding(1, 10, std::string_view("\0", 1), Remedy::User);
}

TEST_F(GameTableCheckTest, ATableThatIsBuiltAnewIsToldAndLeft) {
    for (const std::size_t length : {std::size_t{0}, std::size_t{64}}) {
        table.resize(length);
        const CheckedFile checked = Check();
        ASSERT_EQ(checked.findings.size(), 1U);
        EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
        EXPECT_EQ(checked.findings[0].what,
                  length == 0 ? "has no games: it is empty" : "has no games: it ends after record 1");
    }
}

TEST_F(GameTableCheckTest, SlotsThatACutTableLacksBecomeUnusedOnes) {
    const std::string whole = table;
    table.resize(2 * 64);
    const CheckedFile checked = Check();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(LineOf(checked.findings[0]),
              "LOTTOSYS: ends after 128 bytes, in record 3 of 21. The slots that are missing become unused ones; a "
              "copy may still have their games.");
    EXPECT_EQ(checked.findings[0].remedy, Remedy::Mend);
    EXPECT_EQ(checked.mended, whole);
}

TEST_F(GameTableCheckTest, TheRulesOfARecordThatIsCutAreLeft) {
    table.resize(64 + 40);
    const CheckedFile checked = Check();
    EXPECT_EQ(checked.findings.front().remedy, Remedy::Mend);
    EXPECT_EQ(std::ranges::count(checked.findings, Remedy::User, &Finding::remedy), 3);
    EXPECT_EQ(checked.mended.substr(64, 64), "1 /Harbour Six           /100/0/1/49/ / / / /  / /N /  / /  /   ");
}

}  // namespace
}  // namespace ballhaven::data
