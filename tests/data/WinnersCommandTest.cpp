#include "data/CommandLine.h"
#include "support/RecordBytes.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace ballhaven::data {
namespace {

const support::RecordFormat playFormat{64, 5000, {}};
const support::RecordFormat drawFormat{64, 1001, {}};

class WinnersCommandTest : public testing::Test {
  protected:
    WinnersCommandTest() {
        EXPECT_EQ(tools::FillSampleFolder(directory.Path()), "");
        // Six of 49: serials 9000, 9007 and 9014 are 2008-08-22, -29 and -09-05.
        directory.Write("GAME01.CDB", drawFormat.File({{1, "10-26-2002"},
                                                       {2, "9000  1  2  3  4  5  6"},
                                                       {3, "9007  1  2  3 14 15 16"},
                                                       {4, "9014 11 12  3 14 15   "}}));
        directory.Write(
            "PLAYS01.CDB",
            playFormat.File({{1, "      0  1  2  3 40 41"}, {2, "     10 11 12 13 14 15"}, {3, "     10 11 12"}}));
    }

    ExitCode Run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "winners");
        out.str("");
        notes.str("");
        return RunCommandLine(arguments, directory.Path(), {out, notes});
    }

    support::TemporaryDirectory directory;
    std::ostringstream out;
    std::ostringstream notes;
};

TEST_F(WinnersCommandTest, TheHitsByTierAndTheBestFirst) {
    const auto before = directory.Files();

    ASSERT_EQ(Run({"Harbour Six"}), done);
    EXPECT_EQ(out.str(),
              "Harbour Six. Tickets: 2. Draws: 3, 2008-08-22 to 2008-09-05\n"
              "main hits  bonus hits     times\n"
              "        4           0         2\n"
              "        3           0         2\n"
              "        1           0         1\n"
              "main + bonus  draw        ticket\n"
              "   4 + 0      2008-09-05  1.B: 11 12 13 14 15 16\n"
              "   4 + 0      2008-08-22  1.A: 1 2 3 4 41 42\n"
              "   3 + 0      2008-08-29  1.A: 1 2 3 4 41 42\n"
              "   3 + 0      2008-08-29  1.B: 11 12 13 14 15 16\n"
              "   1 + 0      2008-09-05  1.A: 1 2 3 4 41 42\n");
    EXPECT_EQ(notes.str(), "Without all their main picks these are left out: 1.C\n");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(WinnersCommandTest, ARangeOfDaysOrTheNewestDraws) {
    const std::string draws = ". Draws: ";
    const auto drawsOf = [this, &draws](const std::vector<std::string>& arguments) {
        EXPECT_EQ(Run(arguments), done) << notes.str();
        const std::size_t begin = out.str().find(draws) + draws.size();
        return out.str().substr(begin, out.str().find('\n') - begin);
    };

    EXPECT_EQ(drawsOf({"1", "--from", "2008-08-29"}), "2, 2008-08-29 to 2008-09-05");
    EXPECT_EQ(drawsOf({"1", "--to", "2008-08-29"}), "2, 2008-08-22 to 2008-08-29");
    EXPECT_EQ(drawsOf({"1", "--from", "2008-08-23", "--to", "2008-09-04"}), "1, 2008-08-29 to 2008-08-29");
    EXPECT_EQ(drawsOf({"1", "--last", "1"}), "1, 2008-09-05 to 2008-09-05");
    EXPECT_EQ(drawsOf({"1", "--last", "1", "--to", "2008-09-04"}), "1, 2008-08-29 to 2008-08-29");
}

TEST_F(WinnersCommandTest, CsvHoldsTheWinnersAlone) {
    ASSERT_EQ(Run({"1", "--csv", "--last", "2"}), done);
    EXPECT_EQ(out.str(),
              "main_hits,bonus_hits,draw,drawn,ticket,picks\n"
              "4,0,2008-09-05,11 12 3 14 15 -,1.B,11 12 13 14 15 16\n"
              "3,0,2008-08-29,1 2 3 14 15 16,1.A,1 2 3 4 41 42\n"
              "3,0,2008-08-29,1 2 3 14 15 16,1.B,11 12 13 14 15 16\n"
              "1,0,2008-09-05,11 12 3 14 15 -,1.A,1 2 3 4 41 42\n");
    ASSERT_EQ(Run({"1", "--csv", "--top", "1"}), done);
    EXPECT_EQ(out.str(),
              "main_hits,bonus_hits,draw,drawn,ticket,picks\n4,0,2008-09-05,11 12 3 14 15 -,1.B,11 12 13 14 15 16\n");
}

TEST_F(WinnersCommandTest, PastDrawsAreHeldAgainstAllDrawsButThemselves) {
    ASSERT_EQ(Run({"1", "--draws-as-tickets", "--last", "2", "--csv"}), done);
    EXPECT_EQ(out.str(),
              "main_hits,bonus_hits,draw,drawn,ticket,picks\n"
              "3,0,2008-09-05,11 12 3 14 15 -,2008-08-29,1 2 3 14 15 16\n"
              "3,0,2008-08-29,1 2 3 14 15 16,2008-08-22,1 2 3 4 5 6\n"
              "1,0,2008-09-05,11 12 3 14 15 -,2008-08-22,1 2 3 4 5 6\n");
    EXPECT_EQ(notes.str(), "Without all their main picks these are left out: 2008-09-05\n");
}

TEST_F(WinnersCommandTest, WithoutTopTwentyAreTold) {
    ASSERT_EQ(Run({"2"}), done);
    const std::string winners = out.str().substr(out.str().find("ticket\n") + 7);
    EXPECT_EQ(std::ranges::count(winners, '\n'), 20);
    ASSERT_EQ(Run({"2", "--top", "25"}), done);
    EXPECT_EQ(std::ranges::count(out.str().substr(out.str().find("ticket\n") + 7), '\n'), 25);
}

TEST_F(WinnersCommandTest, BonusPicksAndCardsAreWrittenAsOnTheSlips) {
    directory.Write("GAME05.CDB", drawFormat.File({{2, "9000  1 14 27 52  5"}}));
    directory.Write("PLAYS05.CDB", playFormat.File({{6, "      0 13 26  1                    4"}}));
    ASSERT_EQ(Run({"5", "--csv"}), done);
    EXPECT_EQ(out.str(),
              "main_hits,bonus_hits,draw,drawn,ticket,picks\n"
              "3,1,2008-08-22,Ah Ac Ad Ks + 5h,2.A,Ah Ac Ad 2h + 5h\n");
}

TEST_F(WinnersCommandTest, WhatCannotBeToldIsRefused) {
    EXPECT_EQ(Run({"1", "--from", "2011-02-31"}), wrongUsage);
    EXPECT_EQ(notes.str(),
              "--from: \"2011-02-31\" is none that it takes. The first day of the draws, such as "
              "2010-01-01\nRun with --help for more information.\n");
    EXPECT_EQ(Run({"1", "--to", "yesterday"}), wrongUsage);
    EXPECT_EQ(Run({"1", "--from", "2008-09-06"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: Harbour Six has no draws in this range.\n");
    EXPECT_EQ(Run({"1", "--from", "2008-09-05", "--to", "2008-08-22"}), refused);
    directory.Write("PLAYS01.CDB", playFormat.File());
    EXPECT_EQ(Run({"1"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: Harbour Six has no play with all its main picks.\n");
    EXPECT_EQ(Run({"1", "--top", "0"}), wrongUsage);
    EXPECT_EQ(out.str(), "");
}

TEST_F(WinnersCommandTest, NothingIsToldOfAGameWhoseRecordIsDamaged) {
    std::string table = directory.Read("LOTTOSYS");
    table.replace(64 + 45, 2, "99");
    directory.Write("LOTTOSYS", table);
    EXPECT_EQ(Run({"1"}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: Harbour Six has more than 10 picks in a draw, so its record is damaged. "
              "Look at it with ballhaven-data check.\n");
}

TEST_F(WinnersCommandTest, AnOutputThatTakesNothingIsTold) {
    out.setstate(std::ios::badbit);
    EXPECT_EQ(Run({"1"}), refused);
    EXPECT_NE(notes.str().find("ballhaven-data: The output could not be written to its end.\n"), std::string::npos);
}

TEST_F(WinnersCommandTest, ItsHelpShowsAnExample) {
    EXPECT_EQ(Run({"--help"}), done);
    EXPECT_NE(out.str().find("Example: ballhaven-data winners Lotto"), std::string::npos) << out.str();
}

}  // namespace
}  // namespace ballhaven::data
