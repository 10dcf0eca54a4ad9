#include "data/ExportCommand.h"

#include "data/CommandTest.h"
#include "support/TemporaryDirectory.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace ballhaven::data {
namespace {

class ExportCommandTest : public testing::Test {
  protected:
    ExportCommandTest() { EXPECT_EQ(tools::FillSampleFolder(directory.Path()), ""); }

    ExitCode Run(const std::vector<std::string>& arguments) {
        out.str("");
        notes.str("");
        return RunCommandLine(arguments, directory.Path(), {out, notes});
    }

    support::TemporaryDirectory directory;
    support::TemporaryDirectory files;
    std::ostringstream out;
    std::ostringstream notes;
};

TEST_F(ExportCommandTest, DrawsGoToTheOutputAndNothingIsWritten) {
    const auto before = directory.Files();
    EXPECT_EQ(Run({"export", "Harbour Six"}), done) << notes.str();
    const std::string csv = out.str();
    EXPECT_EQ(csv.substr(0, csv.find('\n')), "date,main1,main2,main3,main4,main5,main6");
    EXPECT_EQ(std::ranges::count(csv, '\n'), 601);
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(ExportCommandTest, PlaysGoToTheOutput) {
    EXPECT_EQ(Run({"export", "1", "--plays"}), done) << notes.str();
    const std::string csv = out.str();
    EXPECT_EQ(csv.substr(0, csv.find('\n')), "slip,line,method,main1,main2,main3,main4,main5,main6");
    EXPECT_EQ(std::ranges::count(csv, '\n'), 61);
}

TEST_F(ExportCommandTest, AFileIsMadeAndNeverReplaced) {
    EXPECT_EQ(Run({"export", "1", "--output", files / "six.csv"}), done) << notes.str();
    EXPECT_EQ(out.str(), "");
    const std::string csv = files.Read("six.csv");
    EXPECT_EQ(csv.substr(0, 5), "date,");
    files.Write("six.csv", "the user's");
    EXPECT_EQ(Run({"export", "1", "--output", files / "six.csv"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: " + (files / "six.csv") +
                               " is there already, and is not overwritten. Name another file.\n");
    EXPECT_EQ(files.Files(), (std::map<std::string, std::string>{{"six.csv", "the user's"}}));
}

TEST_F(ExportCommandTest, NothingIsWrittenOfAGameWhoseRecordIsDamaged) {
    std::string table = directory.Read("LOTTOSYS");
    table[2 * 64 + 30] = '9';
    directory.Write("LOTTOSYS", table);
    for (const std::vector<std::string>& line :
         {std::vector<std::string>{"export", "2"}, {"export", "2", "--plays"}, {"guarantee", "2"}}) {
        EXPECT_EQ(Run(line), refused);
        EXPECT_EQ(out.str(), "");
        EXPECT_EQ(notes.str(),
                  "ballhaven-data: Lantern Five Plus has no known kind, so its record is damaged. Look at "
                  "it with ballhaven-data check.\n");
    }
}

TEST_F(ExportCommandTest, NoFileIsMadeUnderANameOfTheDatasOwn) {
    const auto before = directory.Files();
    EXPECT_EQ(Run({"export", "1", "--output", directory / "GAME15.CDB"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: " + directory / "GAME15.CDB" +
                               " has a name that Ballhaven keeps for itself in its folder. Name another file.\n");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(ExportCommandTest, AnOutputThatTakesNothingIsTold) {
    FullDisk disk;
    std::ostream full(&disk);
    EXPECT_EQ(RunCommandLine({"export", "1"}, directory.Path(), {full, notes}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: The output could not be written to its end.\n");
}

TEST_F(ExportCommandTest, EveryGamesDrawsComeBackByAnImportIntoAnEmptyGame) {
    for (int slot = 1; slot <= 9; ++slot) {
        const std::string game = std::to_string(slot);
        const std::string name = "GAME0" + game + ".CDB";
        const std::string before = directory.Read(name);
        ASSERT_EQ(Run({"export", game, "--output", files / game}), done) << notes.str();
        directory.Write(name, "");
        ASSERT_EQ(Run({"import", game, files / game, "--apply"}), done) << slot << notes.str();
        EXPECT_EQ(directory.Read(name), before) << slot;
    }
}

}  // namespace
}  // namespace ballhaven::data
