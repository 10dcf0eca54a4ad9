#include "data/CommandLine.h"
#include "support/RecordBytes.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace ballhaven::data {
namespace {

const support::RecordFormat playFormat{64, 5000, {}};

/// Four plays of six out of eight numbers, 1 to 8, each without another pair: the smallest wheel that guarantees three
/// in three. Picks are cells, one less than the numbers.
const std::string threeInThree = playFormat.File({{1, "FW    2  3  4  5  6  7"},
                                                  {2, "FW    0  1  4  5  6  7"},
                                                  {3, "FW    0  1  2  3  6  7"},
                                                  {7, "FW    0  1  2  3  4  5"}});

class GuaranteeCommandTest : public testing::Test {
  protected:
    GuaranteeCommandTest() {
        EXPECT_EQ(tools::FillSampleFolder(directory.Path()), "");
        directory.Write("PLAYS01.CDB", threeInThree);
    }

    ExitCode Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "guarantee");
        out.str("");
        notes.str("");
        return RunCommandLine(arguments, directory.Path(), {out, notes});
    }

    /// The lines of the table.
    [[nodiscard]] std::string Lines() const {
        const std::string text = out.str();
        return text.substr(text.find("for\n") + 4);
    }

    support::TemporaryDirectory directory;
    support::TemporaryDirectory elsewhere;
    std::ostringstream out;
    std::ostringstream notes;
};

TEST_F(GuaranteeCommandTest, EveryQuestionHasItsLine) {
    const auto before = directory.Files();

    ASSERT_EQ(Run({"harbour six"}), done);
    EXPECT_EQ(out.str().substr(0, out.str().find("    2")),
              "Harbour Six, 6 picks a play. Plays: 4. Chosen picks: 8, 1 2 3 4 5 6 7 8\n"
              "drawn  hits  holds        sets      missed  least plays  for\n"
              "    1     1    yes           8           0            3  1\n");
    EXPECT_NE(out.str().find("    3     3    yes          56           0            1  1 3 5\n"), std::string::npos);
    EXPECT_NE(out.str().find("    4     4     no          70          16            0  1 3 5 7\n"), std::string::npos);
    EXPECT_NE(out.str().find("    6     6     no          28          24            0  1 2 3 4 5 7\n"),
              std::string::npos);
    const std::string lines = Lines();
    EXPECT_EQ(std::ranges::count(lines, '\n'), 1 + 2 + 3 + 4 + 5 + 6);
    EXPECT_EQ(notes.str(), "");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(GuaranteeCommandTest, AQuestionThatIsAskedStandsAlone) {
    ASSERT_EQ(Run({"1", "-m", "4", "-t", "3"}), done);
    EXPECT_EQ(Lines(), "    4     3    yes          70           0            2  1 2 3 4\n");
    ASSERT_EQ(Run({"1", "--hits", "5"}), done);
    EXPECT_EQ(Lines(),
              "    5     5     no          56          32            0  1 2 3 5 7\n"
              "    6     5    yes          28           0            1  1 2 3 4 5 6\n");
}

TEST_F(GuaranteeCommandTest, TheChosenNumbersAreThoseThatAreNamed) {
    ASSERT_EQ(Run({"1", "--numbers", "1-3,9", "-m", "3", "-t", "3"}), done);
    EXPECT_NE(out.str().find("Chosen picks: 4, 1 2 3 9\n"), std::string::npos) << out.str();
    EXPECT_EQ(Lines(), "    3     3     no           4           3            0  1 2 9\n");
}

TEST_F(GuaranteeCommandTest, TheChosenNumbersAreThoseOfTheWheels) {
    directory.Write("SHUFFLE.CDB", support::RecordFormat{320, 40, {}}.File({{1, "4  0  9"}}));
    ASSERT_EQ(Run({"1", "--chosen", "-m", "2", "-t", "2"}), done);
    EXPECT_NE(out.str().find("Chosen picks: 3, 1 5 10\n"), std::string::npos) << out.str();
    EXPECT_EQ(Lines(), "    2     2     no           3           2            0  1 10\n");

    directory.Write("SHUFFLE.CDB", support::RecordFormat{320, 40, {}}.File());
    EXPECT_EQ(Run({"1", "--chosen"}), refused);
    EXPECT_EQ(
        notes.str(),
        "ballhaven-data: No picks are chosen for the wheels of Harbour Six. Choose some in Ballhaven's \"Wheel and "
        "Shuffle\", or name them with --numbers.\n");
}

TEST_F(GuaranteeCommandTest, PartPlaysAreToldAndLeftOut) {
    std::string plays = threeInThree;
    plays.replace(7 * 64, 15, "      8     9  ");
    directory.Write("PLAYS01.CDB", plays);

    ASSERT_EQ(Run({"1", "-m", "1"}), done);
    EXPECT_EQ(notes.str(), "Plays without all their main picks are left out: 2.C\n");
    EXPECT_NE(out.str().find("Plays: 4. Chosen picks: 8,"), std::string::npos) << out.str();
}

TEST_F(GuaranteeCommandTest, TheProofOfAFailureListsTheSetsThatNoPlayHits) {
    const std::string proof = elsewhere / "proof.csv";
    ASSERT_EQ(Run({"1", "-m", "4", "-t", "4", "--numbers", "1-6,8", "--proof", proof}), done);

    EXPECT_EQ(elsewhere.Read("proof.csv"),
              "pick1,pick2,pick3,pick4\n1,3,5,8\n1,3,6,8\n1,4,5,8\n1,4,6,8\n2,3,5,8\n2,3,6,8\n2,4,5,8\n2,4,6,8\n");
    EXPECT_NE(Lines().find("          35           8            0  1 3 5 8\n"), std::string::npos) << Lines();
    EXPECT_EQ(notes.str(), proof + " lists the sets that no play hits.\n");
}

TEST_F(GuaranteeCommandTest, TheProofOfAGuaranteeHasAPlayForEverySet) {
    const std::string proof = elsewhere / "proof.csv";
    ASSERT_EQ(Run({"1", "-m", "2", "-t", "2", "--numbers", "1-3,5", "--proof", proof}), done);

    EXPECT_EQ(elsewhere.Read("proof.csv"), "pick1,pick2,play\n1,2,1.B\n1,3,1.C\n1,5,1.B\n2,3,1.C\n2,5,1.B\n3,5,1.A\n");
    EXPECT_EQ(notes.str(), proof + " lists every set with a play that hits it.\n");
}

TEST_F(GuaranteeCommandTest, AProofNeedsItsQuestionAndNeverTakesAnotherFilesPlace) {
    EXPECT_EQ(Run({"1", "--proof", elsewhere / "proof.csv"}), wrongUsage);

    const std::string taken = directory / "GAME01.CDB";
    const std::string before = directory.Read("GAME01.CDB");
    EXPECT_EQ(Run({"1", "-m", "4", "-t", "4", "--proof", taken}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: " + taken + " is there already, and is not overwritten. Name another file.\n");
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
}

TEST_F(GuaranteeCommandTest, CardsAreNamedByTheirTexts) {
    directory.Write("PLAYS04.CDB", playFormat.File({{1, "      0 12 13 35 51"}}));
    ASSERT_EQ(Run({"4", "-m", "5", "-t", "5"}), done);
    EXPECT_NE(out.str().find("Chosen picks: 5, Ah Kh Ac 10d Ks\n"), std::string::npos) << out.str();
    EXPECT_EQ(Lines(), "    5     5    yes           1           0            1  Ah Kh Ac 10d Ks\n");
}

TEST_F(GuaranteeCommandTest, WhereTheOrderMattersItIsToldThatItIsLeftAside) {
    ASSERT_EQ(Run({"8", "-m", "1"}), done);
    EXPECT_EQ(notes.str(), "The order of the picks is left aside.\n");
}

TEST_F(GuaranteeCommandTest, WhatCannotBeReckonedIsRefused) {
    EXPECT_EQ(Run({"7"}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: In Three Digits a number can be drawn twice, and guarantees are reckoned for different "
              "numbers alone.\n");
    EXPECT_EQ(Run({"10"}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: Clean Slate has no play with all its main picks. Make some in Ballhaven first.\n");
    EXPECT_EQ(Run({"1", "--numbers", "50"}), refused);
    EXPECT_EQ(Run({"1", "-m", "7"}), refused);
    EXPECT_EQ(Run({"1", "-m", "0"}), wrongUsage);
    EXPECT_EQ(Run({"1", "--chosen", "--numbers", "1-9"}), wrongUsage);
    EXPECT_EQ(Run({}), wrongUsage);
    EXPECT_EQ(out.str(), "");
}

TEST_F(GuaranteeCommandTest, WhatWouldTakeLongIsToldBefore) {
    directory.Write("PLAYS09.CDB", playFormat.File({{1, "FW    0  1  2  3  4  5  6  7  8  9"}}));
    ASSERT_EQ(Run({"9", "--numbers", "1-33", "--hits", "10"}), done);
    EXPECT_EQ(notes.str(), "Looking at 92561040 sets of 10 out of 33.\n");
    EXPECT_EQ(Lines(), "   10    10     no    92561040    92561039            0  1 2 3 4 5 6 7 8 9 11\n");
    ASSERT_EQ(Run({"9", "--numbers", "1-40", "--hits", "9"}), done);
    EXPECT_EQ(Lines(), "");
    EXPECT_EQ(notes.str(),
              "Left out: 273438880 sets of 9 out of 40. Ask for them with --drawn 9, or name fewer numbers with "
              "--numbers.\n"
              "Left out: 847660528 sets of 10 out of 40. Ask for them with --drawn 10, or name fewer numbers with "
              "--numbers.\n");
    EXPECT_EQ(Run({"9", "--numbers", "1-80", "--drawn", "7", "--hits", "7"}), done);
    EXPECT_EQ(Run({"9", "--numbers", "1-80", "--drawn", "8", "--hits", "7"}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: 28987537150 sets of 8 out of 80 are too many to look at: 4000000000 are the most. Name "
              "fewer numbers with --numbers, or ask for fewer with --drawn.\n");
}

TEST_F(GuaranteeCommandTest, ItsHelpShowsAnExample) {
    EXPECT_EQ(Run({"--help"}), done);
    EXPECT_NE(out.str().find("Example: ballhaven-data guarantee Lotto"), std::string::npos) << out.str();
}

}  // namespace
}  // namespace ballhaven::data
