#include "data/CommandLine.h"
#include "support/TemporaryDirectory.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace ballhaven::data {
namespace {

TEST(GamesCommandTest, EverySlotHasItsLine) {
    const support::TemporaryDirectory directory;
    ASSERT_EQ(tools::FillSampleFolder(directory.Path()), "");
    const auto before = directory.Files();
    std::ostringstream out;
    std::ostringstream notes;
    EXPECT_EQ(RunCommandLine({"games"}, directory.Path(), {out, notes}), done);
    EXPECT_EQ(notes.str(), "");
    const std::string text = out.str();
    for (const char* line :
         {" 1  Harbour Six: numbers, 6 of 1 to 49; 600 draws, 1999-11-10 to 2011-05-04; 60 plays in use\n",
          " 3  Twin Drums: numbers, bonus from numbers of its own, 5 of 1 to 50 and 2 of 1 to 12; 520 draws, ",
          " 5  Queen's Extra: cards, bonus from the same cards, 4 of 52 and 1 of 52; ",
          " 7  Three Digits: numbers, 3 of 0 to 9, duplicates allowed; ", "4 of 1 to 24, order matters; ",
          "10  Clean Slate: numbers, 6 of 1 to 42; no draws; 0 plays in use\n", "20  (no game)\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
    EXPECT_EQ(directory.Files(), before);
}

TEST(GamesCommandTest, AFileThatCannotBeReadHidesNoOtherGame) {
    const support::TemporaryDirectory directory;
    ASSERT_EQ(tools::FillSampleFolder(directory.Path()), "");
    for (const char* name : {"GAME03.CDB", "PLAYS08.CDB"}) {
        std::filesystem::remove(directory / name);
        std::filesystem::create_directory(directory / name);
    }
    std::ostringstream out;
    std::ostringstream notes;
    EXPECT_EQ(RunCommandLine({"games"}, directory.Path(), {out, notes}), refused);
    EXPECT_EQ(notes.str(), directory / "GAME03.CDB" + " cannot be read: it is a folder and no file.\n" +
                               directory / "PLAYS08.CDB" + " cannot be read: it is a folder and no file.\n" +
                               "ballhaven-data: 2 files could not be read.\n");
    const std::string text = out.str();
    EXPECT_EQ(std::ranges::count(text, '\n'), 20) << text;
    EXPECT_NE(text.find("2 of 1 to 12; draws that cannot be read; 100 plays in use\n"), std::string::npos) << text;
    EXPECT_NE(text.find("order matters; 150 draws, 2008-06-24 to 2011-05-03; plays that cannot be read\n"),
              std::string::npos)
        << text;
}

TEST(GamesCommandTest, AFolderWithoutATableIsRefused) {
    const support::TemporaryDirectory directory;
    std::ostringstream out;
    std::ostringstream notes;
    EXPECT_EQ(RunCommandLine({"--folder", directory.Path(), "games"}, "/nowhere", {out, notes}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: " + directory.Path() +
                  " holds no LOTTOSYS, so it is no folder of Ballhaven. Name the right one with --folder.\n");
    EXPECT_TRUE(directory.Files().empty());
}

}  // namespace
}  // namespace ballhaven::data
