#include "data/SetCommand.h"

#include "data/CommandTest.h"

#include <sys/stat.h>

namespace ballhaven::data {
namespace {

class SetCommandTest : public CommandTest {};

TEST_F(SetCommandTest, AHistorySetIsWrittenInThreeDigits) {
    auto expected = Files();
    EXPECT_EQ(Run({"set", "7", "--history-set", "30"}), done);
    EXPECT_TRUE(Says("Three Digits shows the last 30 draws from now on.\n")) << out.str();
    expected["LOTTOSYS"].replace(7 * 64 + 26, 3, "030");
    EXPECT_EQ(Files(), expected);
}

TEST_F(SetCommandTest, AThousandIsThreeZeros) {
    auto expected = Files();
    EXPECT_EQ(Run({"set", "three digits", "--history-set", "1000"}), done);
    expected["LOTTOSYS"].replace(7 * 64 + 26, 3, "000");
    EXPECT_EQ(Files(), expected);
}

TEST_F(SetCommandTest, TheShownSlotIsWrittenInTwoDigits) {
    auto expected = Files();
    EXPECT_EQ(Run({"set", "--shown", "9"}), done);
    EXPECT_EQ(out.str(), "Ballhaven starts with slot 9.\nWhat was there is kept in " + OnlyCopy() + ".\n");
    expected["LOTTOSYS"].replace(0, 2, "09");
    EXPECT_EQ(Files(), expected);
    EXPECT_EQ(Run({"set", "--shown", "20"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 2), "20");
}

TEST_F(SetCommandTest, BothAreSetTogether) {
    EXPECT_EQ(Run({"set", "3", "--history-set", "10", "--shown", "4"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(3 * 64 + 26, 3), "010");
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 2), "04");
}

TEST_F(SetCommandTest, ItNeedsNoOtherFileThanTheTable) {
    for (const char* name : {"GAME07.CDB", "PLAYS07.CDB", "SHUFFLE.CDB"}) {
        std::filesystem::remove(directory / name);
        std::filesystem::create_directory(directory / name);  // cannot be read as a file
    }
    EXPECT_EQ(Run({"set", "7", "--history-set", "100", "--shown", "1"}), done) << notes.str();
}

TEST_F(SetCommandTest, ARecordOfTheOlderFormIsBroughtToThePresentOneWithItsSet) {
    PutInto("LOTTOSYS", 4, 1, "3 /Old                   /000/N/1/40/ / /N/N/6 /1/7 /xx/ /  /   ");
    EXPECT_EQ(Run({"set", "Old", "--history-set", "1000"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(3 * 64, 64),
              "3 /Old                   /000/1/1/40/ / /N/N/6 /1/7 /  /1/40/   ");
}

TEST_F(SetCommandTest, ATableThatEndsEarlyIsFilledUp) {
    directory.Write("LOTTOSYS", directory.Read("LOTTOSYS").substr(0, 100));
    EXPECT_EQ(Run({"set", "--shown", "20"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS").size(), 1344U);
}

TEST_F(SetCommandTest, WhatCannotBeChosenIsWrongUsage) {
    const auto before = directory.Files();
    const std::vector<std::vector<std::string>> lines = {
        {"set"},
        {"set", "7"},
        {"set", "--history-set", "10"},
        {"set", "7", "--history-set", "0"},
        {"set", "7", "--history-set", "15"},
        {"set", "7", "--history-set", "1010"},
        {"set", "7", "--history-set", "-10"},
        {"set", "7", "--history-set", "ten"},
        {"set", "7", "--history-set", "10x"},
        {"set", "--shown", "0"},
        {"set", "--shown", "21"},
        {"set", "7", "--shown", "3"},
    };
    for (const auto& line : lines) {
        EXPECT_EQ(Run(line), wrongUsage) << ::testing::PrintToString(line);
        EXPECT_NE(notes.str(), "");
    }
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(SetCommandTest, AnUnknownOrUnusedGameIsRefused) {
    const auto before = directory.Files();
    for (const char* game : {"Nobody's", "20", "21"}) {
        EXPECT_EQ(Run({"set", game, "--history-set", "10"}), refused);
    }
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(SetCommandTest, ASettingIsNoRefusalBecauseTheWordsAboutItAreLost) {
    EXPECT_EQ(RunWithoutOutput({"set", "--shown", "2"}), done);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: The output could not be written to its end, but the command is done: What was there is "
              "kept in " +
                  OnlyCopy() + ".\n");
}

}  // namespace
}  // namespace ballhaven::data
