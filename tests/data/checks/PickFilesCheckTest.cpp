#include "data/checks/PickFilesCheck.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::data {
namespace {

class PickFilesCheckTest : public testing::Test {
  protected:
    void SetUp() override {
        slots = SlotsWithoutTable(SlotUse::Free);
        slots[0].rules = GameRules{.gameType = 0, .mainPickCount = 3, .mainLow = 1, .mainHigh = 49};
        slots[1].rules = GameRules{.gameType = 2,
                                   .mainPickCount = 3,
                                   .bonusPickCount = 1,
                                   .mainLow = 1,
                                   .mainHigh = 49,
                                   .bonusLow = 0,
                                   .bonusHigh = 9};
        plays.resize(320'000, ' ');
        chosen.resize(12'800, ' ');
    }

    static void Put(std::string& content, int recordLength, int record, int column, std::string_view text) {
        content.replace(static_cast<std::size_t>((record - 1) * recordLength + column - 1), text.size(), text);
    }

    [[nodiscard]] CheckedFile CheckPlays(int slot = 1) const {
        return CheckPlayFile({{"PLAYS01.CDB", 64, 5000}, plays, static_cast<std::int64_t>(plays.size())},
                             slots[static_cast<std::size_t>(slot - 1)]);
    }
    [[nodiscard]] CheckedFile CheckChosen() const {
        return CheckChosenPicksFile({{"SHUFFLE.CDB", 320, 40}, chosen, static_cast<std::int64_t>(chosen.size())},
                                    slots);
    }

    [[nodiscard]] static std::vector<std::string> Lines(const CheckedFile& checked) {
        std::vector<std::string> lines;
        for (const Finding& finding : checked.findings) {
            lines.push_back(LineOf(finding));
        }
        return lines;
    }

    std::vector<CheckedSlot> slots;
    std::string plays;
    std::string chosen;
};

using Texts = std::vector<std::string>;

TEST_F(PickFilesCheckTest, PlaysOfTheGamesBoardHaveNoFinding) {
    Put(plays, 64, 1, 1, "SH    0 48  7");
    Put(plays, 64, 5000, 1, "FW   48    12");
    EXPECT_EQ(Lines(CheckPlays()), Texts());
    EXPECT_EQ(CheckPlays().mended, plays);
}

TEST_F(PickFilesCheckTest, APlayThatIsNotOnTheBoardIsARemark) {
    Put(plays, 64, 7, 1, "      0 49");
    EXPECT_EQ(Lines(CheckPlays()), Texts{"PLAYS01.CDB, record 7 (play 2.B), columns 9-10 (main pick 2): holds \"49\", "
                                         "which is no cell of the game's board. An alteration of the game leaves such "
                                         "picks. Look at it in Ballhaven."});
    EXPECT_EQ(CheckPlays().findings.at(0).remedy, Remedy::None);
    EXPECT_EQ(CheckPlays().mended, plays);
}

TEST_F(PickFilesCheckTest, BonusPicksAreCellsOfTheirOwnArea) {
    Put(plays, 64, 1, 36, " 9");
    EXPECT_EQ(Lines(CheckPlays(2)), Texts());
    Put(plays, 64, 1, 36, "10");
    EXPECT_EQ(CheckPlays(2).findings.at(0).place, "columns 36-37 (bonus pick 1)");
    EXPECT_EQ(Lines(CheckPlays(1)), Texts());  // no bonus picks there
}

// Not a bug: PLAY-SORT-1 in docs/not-bugs.md.
TEST_F(PickFilesCheckTest, ZerosOfASortedReportHaveNoFinding) {
    for (int play = 1; play <= 5000; ++play) {
        for (int field = 1; field <= 20; ++field) {
            Put(plays, 64, play, 3 * field + 3, " 0");
        }
    }
    EXPECT_EQ(Lines(CheckPlays()), Texts());
    EXPECT_EQ(Lines(CheckPlays(2)), Texts());
}

// Not a bug: DELETE-GAME-1 in docs/not-bugs.md.
TEST_F(PickFilesCheckTest, PicksBehindThoseOfTheGameAreNoFinding) {
    Put(plays, 64, 1, 1, "      1  2  3 77");
    Put(plays, 64, 1, 36, "88");
    EXPECT_EQ(Lines(CheckPlays()), Texts());
    EXPECT_EQ(Lines(CheckPlays(3)), Texts());  // an unused slot
}

TEST_F(PickFilesCheckTest, AnUnknownMethodBecomesOneByHand) {
    Put(plays, 64, 1, 1, "XX    1  2  3");
    EXPECT_EQ(Lines(CheckPlays()),
              Texts{"PLAYS01.CDB, record 1 (play 1.A), columns 1-2 (how the plays were made): holds "
                    "\"XX\" and not \"  \". Ballhaven takes them for made by hand."});
    std::string expected = plays;
    Put(expected, 64, 1, 1, "  ");
    EXPECT_EQ(CheckPlays().mended, expected);
}

TEST_F(PickFilesCheckTest, FieldsAndColumnsOfAPlayAreLookedAt) {
    Put(plays, 64, 1, 1, "SH x  1 -   3/");
    EXPECT_EQ(Lines(CheckPlays()),
              (Texts{"PLAYS01.CDB, record 1 (play 1.A), columns 9-10 (main pick 2): holds \"- \", which is no number. "
                     "Ballhaven reads it as cell 0 of the board.",
                     "PLAYS01.CDB, record 1 (play 1.A): something stands in columns that are blank in such a record: 4 "
                     "\"x\", 14 \"/\". Nothing reads it."}));
}

TEST_F(PickFilesCheckTest, PlaysOfZeroBytesBecomeEmpty) {
    Put(plays, 64, 9, 1, std::string(64, '\0'));
    const CheckedFile checked = CheckPlays();
    ASSERT_EQ(checked.findings.size(), 1U);
    EXPECT_EQ(checked.findings[0].remedy, Remedy::Mend);
    EXPECT_EQ(checked.mended, std::string(320'000, ' '));
    plays.assign(320'000, '\0');
    EXPECT_EQ(Lines(CheckPlays()), Texts{"PLAYS01.CDB: holds zero bytes and no text in records 1 to 5000. Nothing is "
                                         "left of what stood there, if anything did."});
}

TEST_F(PickFilesCheckTest, AFileThatEndsInTheMiddleOfAPlayStaysAsItIs) {
    Put(plays, 64, 31, 1, "QP    1  2  3");
    plays.resize(1932);
    EXPECT_EQ(CheckPlays().findings.at(0).remedy, Remedy::User);
    EXPECT_EQ(CheckPlays().findings.at(0).what,
              "ends after 1932 bytes, in record 31 of 5000, which was cut in the middle: \"QP    1  2  \"");
    plays.resize(1920);
    EXPECT_EQ(CheckPlays().findings.at(0).remedy, Remedy::Mend);
}

TEST_F(PickFilesCheckTest, LengthsOfFilesOfPlays) {
    plays.resize(64'000);
    EXPECT_EQ(CheckPlays().findings.at(0).remedy, Remedy::None);
    plays.resize(64'001, ' ');
    EXPECT_EQ(CheckPlays().findings.at(0).remedy, Remedy::Mend);
    EXPECT_EQ(CheckPlays().mended.size(), 320'000U);
}

TEST_F(PickFilesCheckTest, ChosenPicksOfTheBoardHaveNoFinding) {
    Put(chosen, 320, 1, 1, "7  48 0 ");
    Put(chosen, 320, 1, 300, "PW");
    Put(chosen, 320, 22, 1, "9 ");
    EXPECT_EQ(Lines(CheckChosen()), Texts());
    EXPECT_EQ(CheckChosen().mended, chosen);
}

TEST_F(PickFilesCheckTest, ChosenPicksAreLookedAtByTheirGames) {
    Put(chosen, 320, 1, 1, "49");
    Put(chosen, 320, 21, 1, "88");  // the bonus list of a game without bonus is not read
    Put(chosen, 320, 22, 298, "10");
    Put(chosen, 320, 5, 1, "88");  // an unused slot
    EXPECT_EQ(
        Lines(CheckChosen()),
        (Texts{
            "SHUFFLE.CDB, record 1 (main picks chosen in slot 1), columns 1-2 (main pick 1): holds \"49\", which "
            "is no cell of the game's board. An alteration of the game leaves such picks. Look at it in Ballhaven.",
            "SHUFFLE.CDB, record 22 (bonus picks chosen in slot 2), columns 298-299 (bonus pick 100): holds "
            "\"10\", which is no cell of the game's board. An alteration of the game leaves such picks. Look at it in "
            "Ballhaven."}));
    for (const Finding& finding : CheckChosen().findings) {
        EXPECT_EQ(finding.remedy, Remedy::None);
    }
}

TEST_F(PickFilesCheckTest, ColumnsOfChosenPicksAreMended) {
    Put(chosen, 320, 1, 3, "x");
    Put(chosen, 320, 1, 300, "ZZ");
    Put(chosen, 320, 1, 320, "y");
    const CheckedFile checked = CheckChosen();
    EXPECT_EQ(checked.findings.size(), 2U);
    EXPECT_EQ(checked.mended, std::string(12'800, ' '));
}

TEST_F(PickFilesCheckTest, LengthsOfTheFileOfChosenPicks) {
    chosen.resize(6400);
    EXPECT_EQ(CheckChosen().findings.at(0).remedy, Remedy::None);
    chosen.resize(6399);
    EXPECT_EQ(CheckChosen().findings.at(0).remedy, Remedy::Mend);
}

}  // namespace
}  // namespace ballhaven::data
