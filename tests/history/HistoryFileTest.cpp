#include "history/HistoryFile.h"

#include "state/AppState.h"
#include "support/PointerKeeper.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::DataFileTest;
using support::MendFolder;
using support::NumberGame;
using support::Padded;
using support::RecordFormat;
using support::SetUpDraws;
using support::SetUpGame;
using support::WithColumns;

const RecordFormat historyFormat{64,
                                 1001,
                                 {{"date", 1, 4},
                                  {"pick 1", 6, 2},
                                  {"pick 2", 9, 2},
                                  {"pick 3", 12, 2},
                                  {"pick 4", 15, 2},
                                  {"pick 5", 18, 2},
                                  {"pick 6", 21, 2},
                                  {"pick 7", 24, 2},
                                  {"pick 8", 27, 2},
                                  {"pick 9", 30, 2},
                                  {"pick 10", 33, 2}}};

const std::string header = "10-26-2002";
const std::string file7 = "GAME07.CDB";

class HistoryFile : public DataFileTest {
  protected:
    HistoryFile() { SetUpGame(NumberGame().Picks(3).From(0).To(49).InSlot(7)); }

    void Write(const std::string& bytes) const { directory.Write(file7, bytes); }
    [[nodiscard]] std::string Bytes() const { return directory.Read(file7); }

    void Load(const std::string& bytes) const {
        Write(bytes);
        LoadHistory();
    }
};

using QuirkHistoryDateFourDigits1 = HistoryFile;
using QuirkHistoryGaps1 = HistoryFile;

/// The cells of a row of `HistoryTable`, the date first.
std::vector<int> Row(int row) {
    std::vector<int> cells;
    for (int column = 0; column < appState.HistoryTable.Columns(); ++column) {
        cells.push_back(appState.HistoryTable(column, row));
    }
    return cells;
}

std::vector<int> RowsWithCells() {
    std::vector<int> rows;
    for (int row = 0; row < appState.HistoryTable.Rows(); ++row) {
        if (Row(row) != std::vector<int>(static_cast<std::size_t>(appState.HistoryTable.Columns()), 0)) {
            rows.push_back(row);
        }
    }
    return rows;
}

using Cells = std::vector<int>;

/// A file of the version with 100 draws: header and 100 rows, of which each tells its number in its first pick.
std::string OlderFile() {
    const RecordFormat older{64, 101, {}};
    std::map<int, std::string> records = {{1, "an older stamp"}};
    for (int row = 0; row < 100; ++row) {
        records[row + 2] =
            WithColumns(std::string(64, ' '), {{1, std::to_string(1000 + row)}, {6, Padded(std::to_string(row), 2)}});
    }
    return older.File(records);
}

// Creating

TEST_F(HistoryFile, TheFirstLoadOfASlotCreatesItsFileWithAHeaderAndBlankRows) {
    LoadHistory();
    EXPECT_EQ(Bytes().size(), 64064U);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}}), Bytes()));
    EXPECT_EQ(appState.historyLast, -1);
    EXPECT_EQ(RowsWithCells(), Cells{});
}

TEST_F(HistoryFile, AnEmptyFileIsFilledLikeAMissingOne) {
    Load("");
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}}), Bytes()));
    EXPECT_EQ(appState.historyLast, -1);
}

TEST_F(HistoryFile, TheFileIsNamedByTheCurrentSlotInTwoDigits) {
    appState.currentGame = 20;
    LoadHistory();
    EXPECT_TRUE(directory.Has("GAME20.CDB"));
    EXPECT_FALSE(directory.Has(file7));
}

TEST_F(HistoryFile, TheTableHasAColumnForTheDateAndForEachPick) {
    LoadHistory();
    EXPECT_EQ(appState.HistoryTable.Columns(), 4);
    EXPECT_EQ(appState.HistoryTable.Rows(), 1000);
}

// The older size

TEST_F(HistoryFile, AFileOf100DrawsGrowsKeepsItsRowsAndGetsANewHeader) {
    const std::string older = OlderFile();
    ASSERT_EQ(older.size(), 6464U);
    Load(older);
    const std::string expected = Padded(header, 64) + older.substr(64) + std::string(64064 - 6464, ' ');
    EXPECT_TRUE(historyFormat.Same(expected, Bytes()));
    EXPECT_EQ(appState.historyLast, 99);
    EXPECT_EQ(Row(0), (Cells{1000, 0, -1, -1}));
    EXPECT_EQ(Row(99), (Cells{1099, 99, -1, -1}));
    EXPECT_EQ(Row(100), (Cells{0, 0, 0, 0}));
}

TEST_F(HistoryFile, AFileOf102RecordsIsNotUpgradedAndReadAsItStands) {
    const std::string row100 = WithColumns(std::string(64, ' '), {{1, "2000"}, {6, " 5"}});
    const std::string file = OlderFile() + row100;
    ASSERT_EQ(file.size(), 6528U);
    Load(file);
    EXPECT_TRUE(historyFormat.Same(file, Bytes()));
    EXPECT_EQ(appState.historyLast, 100);
    EXPECT_EQ(Row(100), (Cells{2000, 5, -1, -1}));
    EXPECT_EQ(Row(101), (Cells{0, 0, 0, 0}));
}

TEST_F(HistoryFile, AShorterFileIsExtendedWithBlankRows) {
    const std::string file = OlderFile().substr(0, 64 * 5);
    Load(file);
    EXPECT_TRUE(historyFormat.Same(Padded(Padded(header, 64) + file.substr(64), 64064), Bytes()));
    EXPECT_EQ(appState.historyLast, 3);
}

struct BrokenFile {
    std::string defect;
    std::string bytes;
    std::string bytesAfterwards;
    int historyLast;
};

TEST_F(HistoryFile, BrokenFilesAreReadAsFarAsTheyGo) {
    const std::string older = OlderFile();
    const std::string rows = older.substr(64);
    const std::string stamped = Padded(header, 64);
    const std::string full = historyFormat.File({{1, "x"}, {2, "4000  1"}, {1001, "4001  2"}});
    const std::vector<BrokenFile> gallery = {
        {"one byte", "1", Padded(header, 64064), -1},
        {"half a row", older.substr(0, 64 + 3), Padded(stamped + "100", 64064), 0},
        {"one byte short of 100 rows", older.substr(0, 6463), Padded(stamped + rows, 64064), 99},
        {"100 rows", older, Padded(stamped + rows, 64064), 99},
        {"one byte more than 100 rows", older + "7", older + "7", 100},
        {"letters in date and picks", WithColumns(full, {{65, "date"}, {129, "12x4"}, {134, "ab"}}),
         WithColumns(full, {{65, "date"}, {129, "12x4"}, {134, "ab"}}), 1},
        {"a partial last record", full.substr(0, 64064 - 60), full.substr(0, 64064 - 60), 1},
        {"one byte short of the full size", full.substr(0, 64063), full.substr(0, 64063), 1},
        {"the full size", full, full, 1},
        {"one byte more than the full size", full + "9", full + "9", 1},
        {"far too long", full + std::string(100000, '9'), full + std::string(100000, '9'), 1},
    };
    for (const BrokenFile& file : gallery) {
        SCOPED_TRACE(file.defect);
        Load(file.bytes);
        EXPECT_TRUE(historyFormat.Same(file.bytesAfterwards, Bytes()));
        EXPECT_EQ(appState.historyLast, file.historyLast);
    }
}

// Loading

TEST_F(HistoryFile, APickIsReadWhereverItStandsInItsField) {
    Load(historyFormat.File({{2, "7000  3 4  05"}}));
    EXPECT_EQ(Row(0), (Cells{7000, 3, 4, 5}));
}

TEST_F(HistoryFile, TwoBlanksAreAnEmptyCellAndLettersAreZero) {
    Load(historyFormat.File({{2, "7000    ab  0"}}));
    EXPECT_EQ(Row(0), (Cells{7000, -1, 0, 0}));
}

TEST_F(HistoryFile, ADateOfFewerDigitsMayHaveBlanksAroundIt) {
    Load(historyFormat.File({{2, " 7 5  1"}, {3, "9     2"}}));
    EXPECT_EQ(Row(0), (Cells{75, 1, -1, -1}));
    EXPECT_EQ(Row(1), (Cells{9, 2, -1, -1}));
}

TEST_F(HistoryFile, ARowWithoutADateStaysZeroInAllItsCells) {
    Load(historyFormat.File({{2, "0000  1  2  3"}, {3, "-100  1  2  3"}, {4, "      1  2  3"}}));
    EXPECT_EQ(RowsWithCells(), Cells{});
    EXPECT_EQ(appState.historyLast, -1);
}

// Not a bug: HISTORY-GAPS-1 in docs/not-bugs.md.
TEST_F(QuirkHistoryGaps1, RowsKeepTheirPlaceAndAreCounted) {
    Load(historyFormat.File({{4, "3000  1"}, {1001, "2000  2"}}));
    EXPECT_EQ(RowsWithCells(), (Cells{2, 999}));
    EXPECT_EQ(appState.historyLast, 1);
}

TEST_F(QuirkHistoryGaps1, InAMendedFolderTheyCloseUpInTheirOrder) {
    MendFolder();
    const std::string file =
        historyFormat.File({{1, header}, {2, "7000  1"}, {3, "x007  2"}, {4, "7014  3"}, {1001, "2000  4"}});
    Load(file);
    EXPECT_EQ(RowsWithCells(), (Cells{0, 1, 2}));
    EXPECT_EQ(appState.historyLast, 2);
    EXPECT_EQ(Row(0), (Cells{7000, 1, -1, -1}));
    EXPECT_EQ(Row(1), (Cells{7014, 3, -1, -1}));
    EXPECT_EQ(Row(2), (Cells{2000, 4, -1, -1}));
    EXPECT_TRUE(historyFormat.Same(file, Bytes())) << "a load writes nothing";
}

TEST_F(HistoryFile, TheTenthPickStandsInColumns33And34) {
    SetUpGame(NumberGame().Picks(9).Bonus(1, BonusPool::Same).InSlot(7));
    Load(historyFormat.File({{2, "7000  1  2  3  4  5  6  7  8  9 10"}}));
    EXPECT_EQ(Row(0), (Cells{7000, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(HistoryFile, MorePicksInTheGameThanInTheFileComeUpEmpty) {
    SetUpDraws({{"01/02/1990", {1, 2, 3}}});
    SaveHistory(0);
    SetUpGame(NumberGame().Picks(5).InSlot(7));
    LoadHistory();
    EXPECT_EQ(Row(0), (Cells{2193, 1, 2, 3, -1, -1}));
}

TEST_F(HistoryFile, PicksBeyondTheGamesAreDroppedAtTheNextSaveAndNotBefore) {
    const std::string file = historyFormat.File({{1, header}, {2, "7000  1  2  3  4"}});
    Load(file);
    EXPECT_TRUE(historyFormat.Same(file, Bytes()));
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}, {2, "7000  1  2  3"}}), Bytes()));
}

// Saving

TEST_F(HistoryFile, ADrawStandsInItsColumnsWithBlanksForAnEmptyCell) {
    Write(historyFormat.File({{1, header}}));
    appState.HistoryTable(0, 0) = 7000;
    appState.HistoryTable(1, 0) = 3;
    appState.HistoryTable(2, 0) = 14;
    appState.HistoryTable(3, 0) = -1;
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}, {2, "7000  3 14"}}), Bytes()));
}

TEST_F(HistoryFile, EveryPickStandsInItsColumns) {
    SetUpGame(NumberGame().Picks(7).To(99).Bonus(3, BonusPool::Separate).InSlot(7));
    Write(historyFormat.File({{1, header}}));
    SetUpDraws({{"01/02/1984", {1, 22, 3, 44, 5, 66, 7, 88, 9, 10}}, {"01/11/1984", {11, 2}}});
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(
        historyFormat.File({{1, header}, {2, "1     1 22  3 44  5 66  7 88  9 10"}, {3, "10   11  2"}}), Bytes()));
}

TEST_F(HistoryFile, CardsAreStoredAsTheirValues) {
    SetUpGame(CardGame().Picks(2).InSlot(7));
    Write(historyFormat.File({{1, header}}));
    SetUpDraws({{"09/27/1986", {1, 52}}});
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}, {2, "1000  1 52"}}), Bytes()));
}

TEST_F(HistoryFile, APickOfZeroIsAPickAndNotAnEmptyCell) {
    SetUpDraws({{"09/27/1986", {0, 4, 7}}});
    SaveHistory(0);
    EXPECT_EQ(historyFormat.Record(Bytes(), 2), Padded("1000  0  4  7", 64));
    LoadHistory();
    EXPECT_EQ(Row(0), (Cells{1000, 0, 4, 7}));
}

// Not a bug: HISTORY-DATE-FOUR-DIGITS-1 in docs/not-bugs.md.
TEST_F(QuirkHistoryDateFourDigits1, ADateOfFiveDigitsLosesItsLastOne) {
    appState.HistoryTable(0, 0) = 12345;
    SaveHistory(0);
    EXPECT_EQ(historyFormat.Record(Bytes(), 2), Padded("1234  0  0  0", 64));
    LoadHistory();
    EXPECT_EQ(appState.HistoryTable(0, 0), 1234);
}

// Not a bug: HISTORY-DATE-FOUR-DIGITS-1 in docs/not-bugs.md.
TEST_F(QuirkHistoryDateFourDigits1, TheNineteenthOfMay2011ComesBackAsADateOf1986) {
    SetUpDraws({{"05/18/2011", {1, 2, 3}}, {"05/19/2011", {4, 5, 6}}});
    SaveHistory(0);
    LoadHistory();
    EXPECT_EQ(appState.HistoryTable(0, 0), support::SerialOf("05/18/2011"));
    EXPECT_EQ(appState.HistoryTable(0, 1), support::SerialOf("09/27/1986"));
}

const std::string markedHeader = Padded(header, 63) + "M";

TEST_F(QuirkHistoryDateFourDigits1, InAMendedFolderADateComesBackAsItIsFromItsFirstSaveOn) {
    MendFolder();
    LoadHistory();
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}}), Bytes())) << "a new file has nothing to tell";
    SetUpDraws({{"05/18/2011", {1, 2, 3}}, {"05/19/2011", {4, 5, 6}}, {"11/22/2026", {7, 8, 9}}});
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(
        historyFormat.File({{1, markedHeader}, {2, "9999  1  2  3"}, {3, "10000 4  5  6"}, {4, "15666 7  8  9"}}),
        Bytes()));
    LoadHistory();
    EXPECT_EQ(appState.HistoryTable(0, 0), support::SerialOf("05/18/2011"));
    EXPECT_EQ(appState.HistoryTable(0, 1), support::SerialOf("05/19/2011"));
    EXPECT_EQ(appState.HistoryTable(0, 2), support::SerialOf("11/22/2026"));
}

TEST_F(QuirkHistoryDateFourDigits1, InAMendedFolderAFileWithoutTheMarkIsReadByFourDigits) {
    MendFolder();
    Load(historyFormat.File({{1, header}, {2, "10005 1  2  3"}}));
    EXPECT_EQ(Row(0), (Cells{1000, 1, 2, 3}));
}

TEST_F(QuirkHistoryDateFourDigits1, AFileWithTheMarkKeepsItsFormInAnOrdinaryFolder) {
    const std::string file = historyFormat.File({{1, markedHeader}, {2, "15666 7  8  9"}});
    Load(file);
    EXPECT_EQ(Row(0), (Cells{15666, 7, 8, 9}));
    appState.HistoryTable(1, 0) = 10;
    SaveHistory(1);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, markedHeader}, {2, "1566610  8  9"}}), Bytes()));
}

TEST_F(QuirkHistoryDateFourDigits1, AFileWithTheMarkThatWasCutShortKeepsItWhenItIsFilledUp) {
    Load((markedHeader + Padded("15666 7  8  9", 64)).substr(0, 128));
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, markedHeader}, {2, "15666 7  8  9"}}), Bytes()));
    EXPECT_EQ(Row(0), (Cells{15666, 7, 8, 9}));
}

TEST_F(HistoryFile, ARowWithoutADateBecomesBlanksWhateverItsPicks) {
    Write(historyFormat.File({{1, header}, {2, "7000  1  2  3"}, {3, "7001  1  2  3"}}));
    appState.HistoryTable = Table(4, 1000, 5);
    for (int row = 0; row < 1000; ++row) {
        appState.HistoryTable(0, row) = row % 2 == 0 ? std::int16_t{0} : std::int16_t{-1};
    }
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}}), Bytes()));
}

TEST_F(HistoryFile, OnlyADeletionBlanksTheMarkOfTheHeader) {
    const std::string marked = "10-26-2002 ab rest";
    Write(historyFormat.File({{1, marked}}));
    SaveHistory(0);
    EXPECT_EQ(historyFormat.Record(Bytes(), 1), Padded(marked, 64));
    SaveHistory(1);
    EXPECT_EQ(historyFormat.Record(Bytes(), 1), Padded("10-26-2002    rest", 64));
}

TEST_F(HistoryFile, ASaveClearsTheDirtyFlag) {
    appState.historyDirty = true;
    SaveHistory(0);
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(HistoryFile, ASaveThatFailsLeavesTheDirtyFlag) {
    appState.historyDirty = true;
    appState.programDirectory = directory / "missing/";
    EXPECT_THROW(SaveHistory(0), RuntimeFailure);
    EXPECT_TRUE(appState.historyDirty);
}

TEST_F(HistoryFile, WhatStandsBehindTheLastRowSurvivesASave) {
    Write(historyFormat.File({{1, header}}) + "kept");
    SetUpDraws({{"09/27/1986", {1, 2, 3}}});
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}, {2, "1000  1  2  3"}}) + "kept", Bytes()));
}

TEST_F(HistoryFile, ATableWithFewerColumnsThanTheGameIsStoredWithEmptyCells) {
    SetUpDraws({{"09/27/1986", {1, 2, 3}}});
    appState.totalPicks = 5;
    SaveHistory(0);
    EXPECT_EQ(historyFormat.Record(Bytes(), 2), Padded("1000  1  2  3", 64));
}

TEST_F(HistoryFile, ATableWithoutRowsIsStoredAsBlankRows) {
    Write(historyFormat.File({{1, header}, {2, "7000  1"}}));
    appState.HistoryTable = Table();
    SaveHistory(0);
    EXPECT_TRUE(historyFormat.Same(historyFormat.File({{1, header}}), Bytes()));
}

RC_GTEST_FIXTURE_PROP(HistoryFile, AnyBytesLoadTheSameAgainAfterASave, ()) {
    const auto character = rc::gen::elementOf(std::string("0123456789   -x\xE9"));
    const std::string rows = *rc::gen::container<std::string>(*rc::gen::inRange<std::size_t>(0, 64 * 40), character);
    const std::string front = *rc::gen::element(std::string(), std::string(64, ' '), std::string(6528, ' '));
    Load(front + rows);
    const Table table = appState.HistoryTable;
    const int last = appState.historyLast;
    SaveHistory(0);
    LoadHistory();
    RC_ASSERT(appState.HistoryTable == table);
    RC_ASSERT(appState.historyLast == last);
}

RC_GTEST_FIXTURE_PROP(HistoryFile, AnyDrawsBefore2011SurviveTheFile, ()) {
    const auto picks = *rc::gen::inRange(1, 11);
    SetUpGame(NumberGame().Picks(picks).From(0).To(99).InSlot(7));
    const auto rows = *rc::gen::inRange(0, 1001);
    for (int row = 0; row < rows; ++row) {
        appState.HistoryTable(0, row) = *rc::gen::inRange<std::int16_t>(1, 10000);
        for (int column = 1; column <= picks; ++column) {
            appState.HistoryTable(column, row) = *rc::gen::inRange<std::int16_t>(-1, 100);
        }
    }
    const Table table = appState.HistoryTable;
    SaveHistory(0);
    LoadHistory();
    RC_ASSERT(appState.HistoryTable == table);
    RC_ASSERT(appState.historyLast == rows - 1);
}

TEST_F(HistoryFile, EventsAreLetInWhenAFileHasBeenFilledUpAndNotOtherwise) {
    support::PointerKeeper toolkit;
    int calls = 0;
    toolkit.pendingEvents = [&calls] { ++calls; };
    Load("");
    EXPECT_EQ(calls, 1);
    LoadHistory();
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace ballhaven
