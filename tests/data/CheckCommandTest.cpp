#include "data/CheckCommand.h"

#include "data/CommandTest.h"
#include "support/WatchedFiles.h"

#include <cerrno>

namespace ballhaven::data {
namespace {

class CheckCommandTest : public CommandTest {};

TEST_F(CheckCommandTest, TheSampleGamesHaveNoFinding) {
    const auto before = directory.Files();
    EXPECT_EQ(Run({"check"}), done);
    EXPECT_EQ(out.str(), "22 files checked: nothing is wrong.\n");
    EXPECT_EQ(Run({"check", "--mend"}), done);
    EXPECT_EQ(out.str(), "Nothing is wrong any more.\n");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(CheckCommandTest, FindingsAreToldAndNothingIsChanged) {
    PutInto("GAME01.CDB", 3, 8, "x");
    PutInto("LOTTOSYS", 2, 42, "?");
    directory.Write("PLAYS01.CDB.new", "");
    const auto before = directory.Files();
    EXPECT_EQ(Run({"check"}), refused);
    EXPECT_EQ(notes.str(), "");
    EXPECT_TRUE(
        Says("PLAYS01.CDB.new: was left by a run that did not come to its end. Nothing reads it. \"check --mend\" "
             "repairs it.\n"))
        << out.str();
    EXPECT_TRUE(
        Says("LOTTOSYS, record 2 (slot 1, Harbour Six), column 42 (duplicates allowed): holds \"?\", which is "
             "neither Y nor N. "));
    EXPECT_TRUE(Says("22 files checked: 3 findings, of which \"check --mend\" repairs 2.\n"));
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(CheckCommandTest, MendingRepairsWhatItCanAndTellsTheRest) {
    const auto before = Files();
    PutInto("GAME01.CDB", 3, 8, "x");
    PutInto("LOTTOSYS", 2, 42, "?");
    directory.Write("PLAYS01.CDB.new", "");
    const std::string damaged = directory.Read("GAME01.CDB");
    EXPECT_EQ(Run({"check", "--mend"}), refused);
    EXPECT_TRUE(Says("mended: GAME01.CDB, record 3 (draw of ")) << out.str();
    EXPECT_TRUE(Says("mended: PLAYS01.CDB.new: was left "));
    EXPECT_TRUE(Says("left: LOTTOSYS, record 2 "));
    EXPECT_TRUE(Says("1 finding left, for you to put right.\n"));
    auto expected = before;
    expected["LOTTOSYS"][64 + 41] = '?';
    EXPECT_EQ(Files(), expected);

    EXPECT_TRUE(Says("What was there is kept in " + OnlyCopy() + ".\n"));
    EXPECT_EQ(Run({"restore", OnlyCopy()}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB"), damaged);
}

TEST_F(CheckCommandTest, WhatCannotBeRemovedIsToldBesideAllThatWasMended) {
    PutInto("LOTTOSYS", 1, 3, "-");
    std::filesystem::create_directory(directory / "GAME01.CDB.new");
    directory.Write("PLAYS01.CDB.new", "");
    EXPECT_EQ(Run({"check", "--mend"}), refused);
    EXPECT_EQ(notes.str(), "");
    EXPECT_EQ(
        out.str(),
        "mended: PLAYS01.CDB.new: was left by a run that did not come to its end. Nothing reads it.\n"
        "mended: LOTTOSYS, record 1 (settings), column 3 (separator): holds \"-\" and not \"/\". Nothing reads it.\n"
        "What was there is kept in " +
            OnlyCopy() +
            ".\n"
            "left: GAME01.CDB.new: was left by a run that did not come to its end, and cannot be removed: Is a "
            "directory. Remove it yourself.\n"
            "1 finding left, for you to put right.\n");
    EXPECT_FALSE(directory.Has("PLAYS01.CDB.new"));
}

TEST_F(CheckCommandTest, OneRunMendsAllThatCanBeMended) {
    PutInto("LOTTOSYS", 1, 1, std::string(3 * 64, '\0'));
    PutInto("GAME03.CDB", 1, 1, std::string(5 * 64, '\0'));
    PutInto("PLAYS03.CDB", 2, 1, std::string(64, '\0'));
    PutInto("SHUFFLE.CDB", 3, 1, std::string(320, '\0'), 320);
    EXPECT_EQ(Run({"check", "--mend"}), done) << out.str();
    EXPECT_EQ(Run({"check"}), done) << out.str();
}

TEST_F(CheckCommandTest, AHalfDrawIsLeftAtEachRun) {
    directory.Write("GAME01.CDB", directory.Read("GAME01.CDB").substr(0, 3266));
    const auto before = Files();
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(Run({"check", "--mend"}), refused);
        EXPECT_TRUE(
            Says("left: GAME01.CDB: ends after 3266 bytes, in record 52 of 1001, which was cut in the middle: "))
            << out.str();
        EXPECT_EQ(Files(), before);
    }
}

TEST_F(CheckCommandTest, ANoteIsNoFinding) {
    directory.Write("GAME11.CDB", "");
    EXPECT_EQ(Run({"check"}), done);
    EXPECT_EQ(out.str(),
              "note: GAME11.CDB: is empty. Ballhaven fills it with blank records when its game is shown.\n"
              "23 files checked: nothing is wrong.\n");
    EXPECT_EQ(Run({"check", "--mend"}), done);
    EXPECT_EQ(out.str(),
              "note: GAME11.CDB: is empty. Ballhaven fills it with blank records when its game is shown.\n"
              "Nothing is wrong any more.\n");
}

TEST_F(CheckCommandTest, ADecidedChangeIsLeftToTheMending) {
    const std::string table = directory.Read("LOTTOSYS");
    directory.Write("LOTTOSYS.next", "02" + table.substr(2));
    directory.Write("CHANGE", "put LOTTOSYS\nremove GAME10.CDB\n");
    const auto before = directory.Files();
    EXPECT_EQ(Run({"check"}), refused);
    EXPECT_TRUE(Says("CHANGE: tells of a change that was decided and not brought to its end. ")) << out.str();
    EXPECT_EQ(directory.Files(), before);

    EXPECT_EQ(Run({"check", "--mend"}), done);
    EXPECT_EQ(out.str(),
              "mended: A change that was decided has been brought to its end.\nNothing is wrong any more.\n");
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 2), "02");
    EXPECT_FALSE(directory.Has("GAME10.CDB"));
    EXPECT_FALSE(directory.Has("CHANGE"));
}

TEST_F(CheckCommandTest, AListOfAChangeThatCannotBeReadKeepsEveryCheckFromBeginning) {
    for (const char* option : {"", "--mend"}) {
        support::WatchedFiles watched;
        watched.before = [&watched](std::size_t call) { return watched.Names()[call] == "open Read" ? EACCES : 0; };
        std::vector<std::string> line{"check"};
        if (*option != '\0') {
            line.emplace_back(option);
        }
        EXPECT_EQ(Run(line), refused);
        EXPECT_TRUE(Notes("ballhaven-data: " + directory.Path() + " cannot be ")) << notes.str();
        EXPECT_TRUE(Notes(": Permission denied.\n")) << notes.str();
    }
}

TEST_F(CheckCommandTest, AFolderWithoutDataIsRefused) {
    const support::TemporaryDirectory empty;
    EXPECT_EQ(Run({"--folder", empty.Path(), "check"}), refused);
    EXPECT_TRUE(empty.Files().empty());
    EXPECT_EQ(Run({"--folder", "/not/there", "check"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: /not/there/ cannot be used: No such file or directory.\n");
}

TEST_F(CheckCommandTest, ARepairIsNoRefusalBecauseTheWordsAboutItAreLost) {
    PutInto("GAME01.CDB", 1, 20, "x");
    EXPECT_EQ(RunWithoutOutput({"check"}), refused);
    EXPECT_EQ(RunWithoutOutput({"check", "--mend"}), done);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: The output could not be written to its end, but the command is done: What was there is "
              "kept in " +
                  OnlyCopy() + ".\n");
}

}  // namespace
}  // namespace ballhaven::data
