#include "data/folder/GamesOnFile.h"

#include "data/folder/Refusal.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

/// A record of a number game without bonus, six of 1 to 49, in the columns that the table has.
std::string RecordNamed(const std::string& name, const std::string& historySet = "050") {
    std::string padded = name;
    padded.resize(20, ' ');
    return "1 /" + padded + "  /" + historySet + "/0/1/49/ / /N/N/6 /0/N /  /1/49/   ";
}

/// A table with these names in its first slots.
std::string TableOf(const std::vector<std::string>& names) {
    std::string table = "01/1/1/000000";
    table.resize(64, ' ');
    for (const std::string& name : names) {
        table += RecordNamed(name);
    }
    return table;
}

std::string RefusalOf(const std::vector<GameOnFile>& games, const std::string& word) {
    try {
        return "found " + FindGame(games, word).Title();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

TEST(GamesOnFileTest, ARecordTellsNameRulesAndHistorySet) {
    ASSERT_EQ(RecordNamed("").size(), 64U);
    const std::vector<GameOnFile> games = GamesOf(TableOf({"Harbour Six"}));
    ASSERT_EQ(games.size(), 20U);
    EXPECT_EQ(games[0].slot, 1);
    EXPECT_EQ(games[0].name, "Harbour Six");
    EXPECT_TRUE(games[0].defined);
    EXPECT_EQ(games[0].historySet, 50);
    EXPECT_EQ(games[0].rules.gameType, 0);
    EXPECT_EQ(games[0].rules.mainPickCount, 6);
    EXPECT_EQ(games[0].rules.mainLow, 1);
    EXPECT_EQ(games[0].rules.mainHigh, 49);
}

TEST(GamesOnFileTest, SlotsThatTheTableLacksAreUnused) {
    const std::vector<GameOnFile> games = GamesOf(TableOf({"One"}));
    EXPECT_FALSE(games[1].defined);
    EXPECT_EQ(games[19].slot, 20);
    EXPECT_FALSE(games[19].defined);
}

TEST(GamesOnFileTest, ANameIsShownInUtf8) {
    EXPECT_EQ(GamesOf(TableOf({"Gl\xFC\x63k"}))[0].Title(), "Gl\xC3\xBC\x63k");
    EXPECT_EQ(GamesOf(TableOf({"a\x1B[2J\x9D"}))[0].Title(), "a?[2J?") << "it moves no cursor";
}

TEST(GamesOnFileTest, AGameIsFoundByItsSlotOrItsNameInAnyCase) {
    const std::vector<GameOnFile> games = GamesOf(TableOf({"One", "Gl\xFC\x63k", "3"}));
    EXPECT_EQ(FindGame(games, "2").slot, 2);
    EXPECT_EQ(FindGame(games, "oNE").slot, 1);
    EXPECT_EQ(FindGame(games, "gl\xC3\xBC\x63k").slot, 2);
    EXPECT_EQ(FindGame(games, "3").slot, 3);
}

TEST(GamesOnFileTest, AGameThatIsNotThereIsRefusedWithTheWayOut) {
    const std::vector<GameOnFile> games = GamesOf(TableOf({"One", "Twin", "twin"}));
    EXPECT_EQ(RefusalOf(games, "0"), "There is no slot 0: slots go from 1 to 20.");
    EXPECT_EQ(RefusalOf(games, "21"), "There is no slot 21: slots go from 1 to 20.");
    EXPECT_EQ(RefusalOf(games, "Two"), "There is no game \"Two\"; \"ballhaven-data games\" lists them.");
    EXPECT_EQ(RefusalOf(games, "un-defined"), "There is no game \"un-defined\"; \"ballhaven-data games\" lists them.");
    EXPECT_EQ(RefusalOf(games, "TWIN"),
              "There are several games \"TWIN\"; name the one you mean by the number of its slot.");
    EXPECT_EQ(RefusalOf(games, "4"),
              "No game has been set up in slot 4. Set it up in Ballhaven first, with \"Add New Game\".");
}

TEST(GamesOnFileTest, AFolderWithoutATableIsNone) {
    const support::TemporaryDirectory directory;
    EXPECT_THROW((void)ReadGames(directory.Path()), Refusal);
    directory.Write("LOTTOSYS", TableOf({"One"}));
    EXPECT_EQ(ReadGames(directory.Path())[0].name, "One");
}

}  // namespace
}  // namespace ballhaven::data
