#include "state/GameTable.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::DataFileTest;
using support::Padded;
using support::RecordFormat;
using support::WithColumns;

const RecordFormat gameTable{64,
                             21,
                             {{"slot", 1, 2},
                              {"name", 4, 20},
                              {"history set", 27, 3},
                              {"kind of game", 31, 1},
                              {"lowest main pick", 33, 1},
                              {"highest main pick", 35, 2},
                              {"duplicates allowed", 42, 1},
                              {"order matters", 44, 1},
                              {"main picks", 46, 2},
                              {"bonus picks", 49, 1},
                              {"conversion mark", 51, 2},
                              {"older text", 54, 2},
                              {"lowest bonus pick", 57, 1},
                              {"highest bonus pick", 59, 2}}};

//                                    1         2         3         4         5         6
//                           1234567890123456789012345678901234567890123456789012345678901234
const std::string slot7 = "7 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ";
const std::string slot12 = "12/un-defined            /010/1/1/99/ / /N/N/9 /1/N /  /1/99/   ";
const std::string cardSlot = "20/un-defined            /010/3/1/52/ / /N/N/10/0/N /  /1/52/   ";
const std::string bonusCardSlot = "3 /un-defined            /010/5/1/52/ / /N/N/9 /1/N /  /1/52/   ";
const std::string pickSix = "2 /Pick Six              /050/2/1/49/ / /N/N/06/1/N /  /0/10/   ";
const std::string createdSystem = "01/1/1/000000                                                   ";

/// The file that the first start makes.
std::string CreatedFile() {
    std::map<int, std::string> records = {{1, createdSystem}};
    for (int slot = 1; slot <= 20; ++slot) {
        records[slot + 1] = WithColumns(slot7, {{1, Padded(std::to_string(slot), 2)}});
    }
    return gameTable.File(records);
}

class GameTable : public DataFileTest {
  protected:
    GameTable() {
        appState.systemRecord = createdSystem;
        appState.currentGame = 2;
    }

    /// Makes `record` the record of slot 2, and that slot the one that is loaded.
    void Load(const std::string& record) {
        directory.Write("LOTTOSYS", WithColumns(CreatedFile(), {{2 * 64 + 1, record}}));
        LoadGameRecord(2);
    }

    [[nodiscard]] std::string Stored(int slot) const { return gameTable.Record(directory.Read("LOTTOSYS"), slot + 1); }
};

using QuirkGameTableOneRecord1 = GameTable;
using QuirkLoadStoresUnderCurrent1 = GameTable;

// Opening

TEST_F(GameTable, AMissingFileIsCreatedWithTwentyUndefinedSlots) {
    OpenGameTable();
    const std::string file = directory.Read("LOTTOSYS");
    EXPECT_EQ(file.size(), 1344U);
    EXPECT_TRUE(gameTable.Same(CreatedFile(), file));
    EXPECT_EQ(appState.systemRecord, createdSystem);
}

TEST_F(GameTable, AnEmptyFileIsCreatedLikeAMissingOne) {
    directory.Write("LOTTOSYS", "");
    OpenGameTable();
    EXPECT_TRUE(gameTable.Same(CreatedFile(), directory.Read("LOTTOSYS")));
}

TEST_F(GameTable, AnExistingFileGivesItsFirstRecordAndStaysAsItIs) {
    const std::string settings = Padded("14/0/1/101010", 64);
    const std::string file = gameTable.File({{1, settings}, {3, pickSix}});
    directory.Write("LOTTOSYS", file);
    OpenGameTable();
    EXPECT_EQ(appState.systemRecord, settings);
    EXPECT_TRUE(gameTable.Same(file, directory.Read("LOTTOSYS")));
}

// Not a bug: GAME-TABLE-ONE-RECORD-1 in docs/not-bugs.md.
TEST_F(QuirkGameTableOneRecord1, AFileOfOneRecordIsRebuiltAndLosesIt) {
    directory.Write("LOTTOSYS", Padded("14/0/1/101010", 64));
    OpenGameTable();
    EXPECT_EQ(appState.systemRecord, createdSystem);
    EXPECT_TRUE(gameTable.Same(CreatedFile(), directory.Read("LOTTOSYS")));
}

struct BrokenFile {
    std::string defect;
    std::string bytes;
    std::string systemRecord;
    bool rebuilt;
};

TEST_F(GameTable, BrokenFilesAreReadAsFarAsTheyGo) {
    const std::string settings = Padded("14/0/1/101010", 64);
    const std::vector<BrokenFile> gallery = {
        {"one byte", "1", Padded("1", 64), false},
        {"one byte short of a record", settings.substr(0, 63), settings, false},
        {"exactly a record", settings, createdSystem, true},
        {"one byte more than a record", settings + "x", settings, false},
        {"a partial last record", gameTable.File({{1, settings}}).substr(0, 1300), settings, false},
        {"letters everywhere", std::string(1344, 'x'), std::string(64, 'x'), false},
        {"far too long", gameTable.File({{1, settings}}) + std::string(5000, 'z'), settings, false},
    };
    for (const BrokenFile& file : gallery) {
        SCOPED_TRACE(file.defect);
        directory.Write("LOTTOSYS", file.bytes);
        OpenGameTable();
        EXPECT_EQ(appState.systemRecord, file.systemRecord);
        EXPECT_EQ(directory.Read("LOTTOSYS") == CreatedFile(), file.rebuilt);
        EXPECT_EQ(directory.Read("LOTTOSYS") == file.bytes, !file.rebuilt);
    }
}

// Writing

TEST_F(GameTable, TheSystemRecordIsWrittenCutOrPaddedToItsLength) {
    directory.Write("LOTTOSYS", CreatedFile());
    appState.systemRecord = "07/0/1/111111";
    SaveSystemRecord();
    EXPECT_TRUE(gameTable.Same(WithColumns(CreatedFile(), {{1, "07/0/1/111111"}}), directory.Read("LOTTOSYS")));

    appState.systemRecord = std::string(70, 's');
    SaveSystemRecord();
    EXPECT_TRUE(gameTable.Same(WithColumns(CreatedFile(), {{1, std::string(64, 's')}}), directory.Read("LOTTOSYS")));
}

TEST_F(GameTable, AGameRecordIsWrittenBehindTheSystemRecord) {
    directory.Write("LOTTOSYS", CreatedFile());
    appState.gameRecord = pickSix;
    SaveGameRecord(20);
    EXPECT_TRUE(gameTable.Same(WithColumns(CreatedFile(), {{20 * 64 + 1, pickSix}}), directory.Read("LOTTOSYS")));
}

TEST_F(GameTable, ReadingARecordChangesNeitherStateNorFile) {
    directory.Write("LOTTOSYS", WithColumns(CreatedFile(), {{2 * 64 + 1, pickSix}}));
    appState.gameRecord = "kept";
    EXPECT_EQ(ReadGameRecord(2), pickSix);
    EXPECT_EQ(ReadGameRecord(7), slot7);
    EXPECT_EQ(appState.gameRecord, "kept");
    EXPECT_EQ(Stored(2), pickSix);
}

TEST_F(GameTable, TheNameOfAGameKeepsItsTrailingBlanks) {
    EXPECT_EQ(GameName(pickSix), "Pick Six            ");
    EXPECT_EQ(GameName(slot7), "un-defined          ");
    EXPECT_EQ(GameName(""), std::string(20, ' '));
}

// The default record

TEST_F(GameTable, TheDefaultRecordOfEachKindHasItsColumns) {
    EXPECT_EQ(BuildDefaultGameRecord(7, 0), slot7);
    EXPECT_EQ(BuildDefaultGameRecord(12, 1), slot12);
    EXPECT_EQ(BuildDefaultGameRecord(12, 2), WithColumns(slot12, {{31, "2"}}));
    EXPECT_EQ(BuildDefaultGameRecord(20, 3), cardSlot);
    EXPECT_EQ(BuildDefaultGameRecord(3, 4), WithColumns(bonusCardSlot, {{31, "4"}}));
    EXPECT_EQ(BuildDefaultGameRecord(3, 5), bonusCardSlot);
}

TEST_F(GameTable, TheDefaultRecordTouchesNoFile) {
    ASSERT_EQ(BuildDefaultGameRecord(7, 0).size(), 64U);
    EXPECT_FALSE(directory.Has("LOTTOSYS"));
}

// Loading

TEST_F(GameTable, ALoadFillsTheGameVariablesFromTheirColumns) {
    Load(WithColumns(pickSix, {{42, "Y"}, {44, "Y"}}));
    EXPECT_EQ(appState.gameRecord, WithColumns(pickSix, {{42, "Y"}, {44, "Y"}}));
    EXPECT_EQ(appState.gameType, 2);
    EXPECT_EQ(appState.historySetSize, 50);
    EXPECT_EQ(appState.mainLow, 1);
    EXPECT_EQ(appState.mainHigh, 49);
    EXPECT_EQ(appState.bonusLow, 0);
    EXPECT_EQ(appState.bonusHigh, 10);
    EXPECT_EQ(appState.mainPickCount, 6);
    EXPECT_EQ(appState.bonusPickCount, 1);
    EXPECT_EQ(appState.totalPicks, 7);
    EXPECT_TRUE(appState.duplicatesAllowed);
    EXPECT_TRUE(appState.orderMatters);
}

TEST_F(GameTable, OnlyAYesAllowsDuplicatesOrMakesTheOrderMatter) {
    for (const std::string answer : {"N", " ", "y", "1"}) {
        Load(WithColumns(pickSix, {{42, answer}, {44, answer}}));
        EXPECT_FALSE(appState.duplicatesAllowed) << answer;
        EXPECT_FALSE(appState.orderMatters) << answer;
    }
}

TEST_F(GameTable, ALoadSetsTheSelectionsBack) {
    appState.nextLogDate = 5;
    appState.hotSortChoice = 0;
    appState.hotTableChoice = 4;
    appState.currentSlip = 9;
    appState.currentPlay = 45;
    Load(pickSix);
    EXPECT_EQ(appState.nextLogDate, 0);
    EXPECT_EQ(appState.hotSortChoice, 2);
    EXPECT_EQ(appState.hotTableChoice, 1);
    EXPECT_EQ(appState.currentSlip, 1);
    EXPECT_EQ(appState.currentPlay, 1);
}

TEST_F(GameTable, TheSortOrderComesFromTheSystemRecord) {
    Load(pickSix);
    EXPECT_EQ(appState.historySortOrder, 1);
    appState.systemRecord = "01/0/1/000000";
    Load(pickSix);
    EXPECT_EQ(appState.historySortOrder, 0);
}

TEST_F(GameTable, AHistorySetOfThreeZerosIsAThousandDraws) {
    Load(WithColumns(pickSix, {{27, "000"}}));
    EXPECT_EQ(appState.historySetSize, 1000);
    EXPECT_EQ(Stored(2), WithColumns(pickSix, {{27, "000"}}));
}

TEST_F(GameTable, ABlankHistorySetIsZero) {
    Load(WithColumns(pickSix, {{27, "   "}}));
    EXPECT_EQ(appState.historySetSize, 0);
}

TEST_F(GameTable, ACardGameHasTheLimitsOfItsDeckWhateverTheRecordSays) {
    for (const std::string kind : {"3", "4", "5"}) {
        Load(WithColumns(pickSix, {{31, kind}, {33, "7"}, {35, "12"}, {42, "Y"}, {57, "3"}, {59, "44"}}));
        EXPECT_EQ(appState.mainLow, 1);
        EXPECT_EQ(appState.mainHigh, 52);
        EXPECT_EQ(appState.bonusLow, 1);
        EXPECT_EQ(appState.bonusHigh, 52);
        EXPECT_FALSE(appState.duplicatesAllowed);
    }
}

TEST_F(GameTable, TheBonusPicksCountInAGameWithABonusOnly) {
    const std::map<std::string, int> picksOfKinds = {{"0", 6}, {"1", 9}, {"2", 9}, {"3", 6}, {"4", 9}, {"5", 9}};
    for (const auto& [kind, picks] : picksOfKinds) {
        Load(WithColumns(pickSix, {{31, kind}, {49, "3"}}));
        EXPECT_EQ(appState.totalPicks, picks) << kind;
        EXPECT_EQ(appState.bonusPickCount, 3);
    }
}

TEST_F(GameTable, AGameWithoutPicksHasOneColumn) {
    Load(WithColumns(pickSix, {{31, "0"}, {46, "00"}}));
    EXPECT_EQ(appState.mainPickCount, 0);
    EXPECT_EQ(appState.totalPicks, 1);
}

TEST_F(GameTable, APickCountOfOneDigitMayStandOnEitherSide) {
    Load(WithColumns(pickSix, {{46, "9 "}}));
    EXPECT_EQ(appState.mainPickCount, 9);
    Load(WithColumns(pickSix, {{46, " 9"}}));
    EXPECT_EQ(appState.mainPickCount, 9);
}

TEST_F(GameTable, ABlankRecordIsANumberGameOfOneColumn) {
    Load(std::string(64, ' '));
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(appState.totalPicks, 1);
    EXPECT_EQ(appState.historySetSize, 0);
    EXPECT_EQ(Stored(2), WithColumns(std::string(64, ' '), {{31, "0"}, {51, "N "}}));
}

TEST_F(GameTable, LettersInTheFieldsReadAsZero) {
    Load(std::string(64, 'x'));
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(appState.mainLow, 0);
    EXPECT_EQ(appState.mainHigh, 0);
    EXPECT_EQ(appState.totalPicks, 1);
    EXPECT_EQ(Stored(2), WithColumns(std::string(64, 'x'), {{31, "0"}, {51, "N "}}));
}

TEST_F(GameTable, ARecordBehindTheEndOfTheFileLoadsAsBlank) {
    directory.Write("LOTTOSYS", createdSystem + slot7.substr(0, 30));
    LoadGameRecord(2);
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(appState.totalPicks, 1);
}

// Records of the older form: "N" or "C" as the kind of game, and fields that their conversion fills or clears.

struct OlderRecord {
    std::string name;
    std::map<int, std::string> stored;
    std::map<int, std::string> converted;
    int gameType;
};

TEST_F(GameTable, RecordsOfTheOlderFormAreConvertedAndStored) {
    const std::map<int, std::string> older = {{33, "0"}, {35, "39"}, {54, "ab"}, {57, "8"}, {59, "77"}};
    const std::vector<OlderRecord> records = {
        {"numbers", {{31, "N"}, {49, "0"}}, {{31, "0"}, {54, "  "}}, 0},
        {"numbers with bonus", {{31, "N"}, {49, "3"}}, {{31, "1"}, {54, "  "}, {57, "0"}, {59, "39"}}, 1},
        {"numbers with a blank bonus", {{31, "N"}, {49, " "}}, {{31, "1"}, {54, "  "}, {57, "0"}, {59, "39"}}, 1},
        {"cards", {{31, "C"}, {49, "0"}}, {{31, "3"}, {33, "1"}, {35, "52"}, {54, "  "}}, 3},
        {"cards with bonus",
         {{31, "C"}, {49, "1"}},
         {{31, "4"}, {33, "1"}, {35, "52"}, {54, "  "}, {57, "1"}, {59, "52"}},
         4},
    };
    for (const OlderRecord& record : records) {
        SCOPED_TRACE(record.name);
        const std::string stored = WithColumns(WithColumns(pickSix, older), record.stored);
        Load(stored);
        EXPECT_EQ(appState.gameType, record.gameType);
        EXPECT_EQ(Stored(2), WithColumns(stored, record.converted));
        EXPECT_EQ(appState.gameRecord, Stored(2));
    }
}

TEST_F(GameTable, AnOlderGameWithABonusHasItsBonusInTheMainLimits) {
    Load(WithColumns(pickSix, {{31, "N"}, {33, "1"}, {35, "42"}, {49, "3"}}));
    EXPECT_EQ(appState.gameType, 1);
    EXPECT_EQ(appState.bonusLow, 1);
    EXPECT_EQ(appState.bonusHigh, 42);
    EXPECT_EQ(appState.totalPicks, 9);
}

TEST_F(GameTable, AnOlderHistorySetBecomesOneThatTheSelectorShows) {
    const std::map<std::string, std::string> sets = {{"015", "020"}, {"095", "100"}, {"995", "000"}, {"005", "010"},
                                                     {"000", "010"}, {"   ", "010"}, {"abc", "010"}, {"020", "020"},
                                                     {"012", "012"}, {"7  ", "007"}, {"5  ", "010"}, {"150", "150"}};
    for (const auto& [stored, converted] : sets) {
        Load(WithColumns(pickSix, {{27, stored}, {31, "N"}}));
        EXPECT_EQ(Stored(2).substr(26, 3), converted) << stored;
    }
}

TEST_F(GameTable, ARecordOfTheCurrentFormKeepsItsHistorySetAndOlderText) {
    const std::string record = WithColumns(pickSix, {{27, "015"}, {54, "ab"}});
    Load(record);
    EXPECT_EQ(Stored(2), record);
    EXPECT_EQ(appState.historySetSize, 15);
}

TEST_F(GameTable, TheKindOfAGameIsStoredAsItsDigit) {
    const std::map<std::string, std::string> kinds = {{" ", "0"}, {"x", "0"}, {"n", "0"}, {"c", "0"}, {"5", "5"}};
    for (const auto& [stored, digit] : kinds) {
        Load(WithColumns(pickSix, {{31, stored}}));
        EXPECT_EQ(Stored(2), WithColumns(pickSix, {{31, digit}})) << stored;
    }
}

TEST_F(GameTable, AnOlderConversionNumberBecomesYesWhereItIsAboveThePicks) {
    const std::map<std::string, std::string> marks = {{"7 ", "N "}, {"8 ", "Y "}, {"0 ", "N "},
                                                      {"  ", "N "}, {"9z", "Y "}, {"y ", "N "}};
    for (const auto& [stored, mark] : marks) {
        Load(WithColumns(pickSix, {{46, "06"}, {49, "1"}, {51, stored}}));
        EXPECT_EQ(Stored(2).substr(50, 2), mark) << stored;
        EXPECT_EQ(appState.gameRecord, Stored(2));
    }
}

TEST_F(GameTable, AConversionMarkStaysAsItIs) {
    for (const std::string mark : {"Y ", "N ", "Yx", "N9"}) {
        Load(WithColumns(pickSix, {{51, mark}}));
        EXPECT_EQ(Stored(2).substr(50, 2), mark);
    }
}

// Not a bug: LOAD-STORES-UNDER-CURRENT-1 in docs/not-bugs.md.
TEST_F(QuirkLoadStoresUnderCurrent1, ALoadOfAnotherSlotReplacesTheCurrentGamesRecord) {
    directory.Write("LOTTOSYS", WithColumns(CreatedFile(), {{2 * 64 + 1, pickSix}}));
    LoadGameRecord(7);
    EXPECT_EQ(appState.gameRecord, slot7);
    EXPECT_TRUE(gameTable.Same(WithColumns(CreatedFile(), {{2 * 64 + 1, slot7}}), directory.Read("LOTTOSYS")));
}

// Not a bug: LOAD-STORES-UNDER-CURRENT-1 in docs/not-bugs.md.
TEST_F(QuirkLoadStoresUnderCurrent1, TheConvertedMarkGoesUnderTheCurrentGameToo) {
    const std::string older = WithColumns(slot7, {{51, "  "}});
    directory.Write("LOTTOSYS", WithColumns(CreatedFile(), {{2 * 64 + 1, pickSix}, {7 * 64 + 1, older}}));
    LoadGameRecord(7);
    EXPECT_EQ(Stored(2), slot7);
    EXPECT_EQ(Stored(7), older);
}

TEST_F(QuirkLoadStoresUnderCurrent1, InAMendedFolderARecordIsStoredUnderTheSlotThatItWasReadFor) {
    support::MendFolder();
    const std::string older = WithColumns(slot7, {{51, "  "}});
    directory.Write("LOTTOSYS", WithColumns(CreatedFile(), {{2 * 64 + 1, pickSix}, {7 * 64 + 1, older}}));
    LoadGameRecord(7);
    EXPECT_EQ(appState.gameRecord, slot7);
    EXPECT_TRUE(gameTable.Same(WithColumns(CreatedFile(), {{2 * 64 + 1, pickSix}, {7 * 64 + 1, slot7}}),
                               directory.Read("LOTTOSYS")));
}

RC_GTEST_FIXTURE_PROP(GameTable, AnyRecordIsInItsCurrentFormAfterOneLoad, ()) {
    const auto character = rc::gen::elementOf(std::string("NCYnc0123456789 /\xE9"));
    Load(*rc::gen::container<std::string>(64, character));
    const std::string converted = Stored(2);
    const AppState first = appState;
    LoadGameRecord(2);
    RC_ASSERT(Stored(2) == converted);
    RC_ASSERT(appState.gameRecord == converted);
    RC_ASSERT(appState.gameType == first.gameType);
    RC_ASSERT(appState.totalPicks == first.totalPicks);
    RC_ASSERT(appState.historySetSize == first.historySetSize);
    RC_ASSERT(appState.bonusHigh == first.bonusHigh);
}

}  // namespace
}  // namespace ballhaven
