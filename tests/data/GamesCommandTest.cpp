#include "data/CommandLine.h"
#include "support/TemporaryDirectory.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

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
