#include "data/MendCommand.h"

#include "data/CommandTest.h"

namespace ballhaven::data {
namespace {

class MendCommandTest : public CommandTest {};

TEST_F(MendCommandTest, TheTableAndEveryFileOfDrawsAreMarked) {
    auto expected = Files();
    expected.at("LOTTOSYS")[63] = 'M';
    for (const char* name : {"GAME01.CDB", "GAME02.CDB", "GAME03.CDB", "GAME04.CDB", "GAME05.CDB", "GAME06.CDB",
                             "GAME07.CDB", "GAME08.CDB", "GAME09.CDB", "GAME10.CDB"}) {
        expected.at(name)[63] = 'M';
    }
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(Files(), expected);
    EXPECT_TRUE(Says(directory.Path() + " is mended now.\n"));
    EXPECT_TRUE(Says("- dates after 18 May 2011 are kept, to 17 September 2073;\n"));
}

TEST_F(MendCommandTest, TheWayBackIsTheCopyThatItNames) {
    const auto before = Files();
    EXPECT_EQ(Run({"mend"}), done);
    const std::string copy = OnlyCopy();
    EXPECT_TRUE(Says("ballhaven-data --folder \"" + directory.Path() + "\" restore \"" + copy + "\"\n")) << out.str();
    EXPECT_EQ(Run({"restore", copy}), done);
    EXPECT_EQ(Files(), before);
}

TEST_F(MendCommandTest, AMendedFolderIsNoRefusalBecauseTheWordsAboutItAreLost) {
    EXPECT_EQ(RunWithoutOutput({"mend"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS")[63], 'M');
    EXPECT_EQ(notes.str(), "ballhaven-data: The output could not be written to its end, but the command is done: " +
                               directory.Path() + " is mended now. What was there is kept in " + OnlyCopy() + ".\n");
    EXPECT_EQ(RunWithoutOutput({"mend"}), refused) << "nothing was changed by this one";
}

TEST_F(MendCommandTest, AMendedFolderStaysAsItIs) {
    EXPECT_EQ(Run({"mend"}), done);
    const auto before = Files();
    const std::string copy = OnlyCopy();
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(out.str(), directory.Path() + " is mended already. Nothing was changed.\n");
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(OnlyCopy(), copy);
}

TEST_F(MendCommandTest, AnEmptyFolderGetsANewTable) {
    const support::TemporaryDirectory empty;
    EXPECT_EQ(Run({"--folder", empty.Path(), "mend"}), done);
    const std::string table = empty.Read("LOTTOSYS");
    EXPECT_EQ(table.size(), 1344U);
    EXPECT_EQ(table.substr(0, 64), "01/1/1/000000" + std::string(50, ' ') + "M");
    EXPECT_EQ(table.substr(64, 64), "1 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ");
}

TEST_F(MendCommandTest, AFolderOfOtherThingsIsNotMadeOneOfBallhaven) {
    const support::TemporaryDirectory other;
    other.Write("letter.txt", "Dear Ann");
    EXPECT_EQ(Run({"--folder", other.Path(), "mend"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: " + other.Path() +
                               " holds other things and no LOTTOSYS, so it is no folder of Ballhaven. Name the right "
                               "one, or an empty one, with --folder.\n");
    EXPECT_EQ(other.Files(), (std::map<std::string, std::string>{{"letter.txt", "Dear Ann"}}));
    other.Write("ballhaven", "the program");
    EXPECT_EQ(Run({"--folder", other.Path(), "mend"}), done) << "it lies beside the program";
}

TEST_F(MendCommandTest, ATableOfOneRecordIsBuiltAnewAsTheProgramWould) {
    directory.Write("LOTTOSYS", directory.Read("LOTTOSYS").substr(0, 64));
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(directory.Read("LOTTOSYS").size(), 1344U);
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 13), "01/1/1/000000");
}

TEST_F(MendCommandTest, AShortTableKeepsItsGamesAndIsFilledUp) {
    const std::string table = directory.Read("LOTTOSYS");
    directory.Write("LOTTOSYS", table.substr(0, 3 * 64));
    EXPECT_EQ(Run({"mend"}), done);
    const std::string mended = directory.Read("LOTTOSYS");
    EXPECT_EQ(mended.size(), 1344U);
    EXPECT_EQ(mended.substr(0, 64), table.substr(0, 63) + "M");
    EXPECT_EQ(mended.substr(64, 128), table.substr(64, 128));
}

TEST_F(MendCommandTest, EachDateStaysTheOneThatItIsReadAs) {
    PutInto("GAME01.CDB", 2, 5, "7");
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB")[64 + 4], ' ');
}

TEST_F(MendCommandTest, FilesOfTheOlderFormAndEmptyOnesKeepTheirLengths) {
    const std::string draws = directory.Read("GAME01.CDB");
    directory.Write("GAME01.CDB", draws.substr(0, 6464));
    directory.Write("GAME02.CDB", "");
    directory.Write("GAME03.CDB", "10-26");
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB"), draws.substr(0, 63) + "M" + draws.substr(64, 6400));
    EXPECT_EQ(directory.Read("GAME02.CDB"), "");
    EXPECT_EQ(directory.Read("GAME03.CDB"), "10-26" + std::string(58, ' ') + "M");
}

TEST_F(MendCommandTest, AFileThatKeepsFiveDigitsAlreadyStays) {
    PutInto("GAME01.CDB", 1, 64, "M");
    PutInto("GAME01.CDB", 2, 1, "15300");
    const std::string before = directory.Read("GAME01.CDB");
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
}

}  // namespace
}  // namespace ballhaven::data
