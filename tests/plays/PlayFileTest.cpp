#include "plays/PlayFile.h"

#include "plays/PlayMethodCode.h"
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

using support::DataFileTest;
using support::NumberGame;
using support::Padded;
using support::RecordFormat;
using support::SetUpGame;
using support::SetUpPlay;
using support::WithColumns;

const RecordFormat playFormat{
    64, 5000, {{"method", 1, 2},        {"main slot 1", 6, 2},   {"main slot 2", 9, 2},   {"main slot 3", 12, 2},
               {"main slot 4", 15, 2},  {"main slot 5", 18, 2},  {"main slot 6", 21, 2},  {"main slot 7", 24, 2},
               {"main slot 8", 27, 2},  {"main slot 9", 30, 2},  {"main slot 10", 33, 2}, {"bonus slot 1", 36, 2},
               {"bonus slot 2", 39, 2}, {"bonus slot 3", 42, 2}, {"bonus slot 4", 45, 2}, {"bonus slot 5", 48, 2},
               {"bonus slot 6", 51, 2}, {"bonus slot 7", 54, 2}, {"bonus slot 8", 57, 2}, {"bonus slot 9", 60, 2},
               {"bonus slot 10", 63, 2}}};

const std::string file3 = "PLAYS03.CDB";

class PlayFile : public DataFileTest {
  protected:
    PlayFile() { SetUpGame(NumberGame().Picks(6).InSlot(3)); }

    void Write(const std::string& bytes) const { directory.Write(file3, bytes); }
    [[nodiscard]] std::string Bytes() const { return directory.Read(file3); }

    void Load(const std::string& bytes) const {
        Write(bytes);
        LoadPlayFile();
    }
};

using Cells = std::vector<int>;

const Cells noPicks(10, -1);

/// The ten slots of one list of a play.
Cells Slots(int pickColumn, int play) {
    Cells cells;
    for (int slot = 1; slot <= 10; ++slot) {
        cells.push_back(appState.PlayTable(pickColumn, play, slot));
    }
    return cells;
}

bool IsEmpty(int play) {
    return Slots(mainPicks, play) == noPicks && Slots(bonusPicks, play) == noPicks &&
           appState.PlayTable(mainPicks, play, 0) == 0;
}

int EmptyPlays() {
    int empty = 0;
    for (int play = 1; play <= 5000; ++play) {
        empty += IsEmpty(play) ? 1 : 0;
    }
    return empty;
}

/// A file of the version with 1000 plays, each with its number in the hundreds as its first pick.
std::string OlderFile() {
    const RecordFormat older{64, 1000, {}};
    std::map<int, std::string> records;
    for (int play = 1; play <= 1000; ++play) {
        records[play] = "SH   " + std::string(play % 100 < 10 ? " " : "") + std::to_string(play % 100);
    }
    return older.File(records);
}

// Creating and the older size

TEST_F(PlayFile, AMissingFileBecomesFiveThousandBlankRecordsAndEmptyPlays) {
    LoadPlayFile();
    EXPECT_EQ(Bytes().size(), 320000U);
    EXPECT_TRUE(playFormat.Same(playFormat.File(), Bytes()));
    EXPECT_EQ(EmptyPlays(), 5000);
}

TEST_F(PlayFile, AnEmptyFileBecomesFiveThousandBlankRecordsAndEmptyPlays) {
    Load("");
    EXPECT_TRUE(playFormat.Same(playFormat.File(), Bytes()));
    EXPECT_EQ(EmptyPlays(), 5000);
}

TEST_F(PlayFile, TheFileIsNamedByTheCurrentSlotInTwoDigits) {
    appState.currentGame = 14;
    LoadPlayFile();
    EXPECT_TRUE(directory.Has("PLAYS14.CDB"));
    EXPECT_FALSE(directory.Has(file3));
}

TEST_F(PlayFile, AFileOfAThousandPlaysGrowsAndKeepsThem) {
    const std::string older = OlderFile();
    ASSERT_EQ(older.size(), 64000U);
    Load(older);
    EXPECT_TRUE(playFormat.Same(older + std::string(256000, ' '), Bytes()));
    EXPECT_EQ(EmptyPlays(), 4000);
    EXPECT_EQ(Slots(mainPicks, 999), (Cells{99, -1, -1, -1, -1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(Slots(mainPicks, 1000), (Cells{0, -1, -1, -1, -1, -1, -1, -1, -1, -1}));
    EXPECT_TRUE(IsEmpty(1001));
}

TEST_F(PlayFile, AFileOfAThousandPlaysAndOneByteIsLeftAsItIs) {
    const std::string file = OlderFile() + "S";
    Load(file);
    EXPECT_TRUE(playFormat.Same(file, Bytes()));
    EXPECT_EQ(EmptyPlays(), 4000);
}

TEST_F(PlayFile, AFileBetweenTheOlderAndTheFullSizeReadsAsEmptyPlaysAtItsEnd) {
    const std::string file = OlderFile() + Padded("FW    5 77", 64);
    Load(file);
    EXPECT_TRUE(playFormat.Same(file, Bytes()));
    EXPECT_EQ(Slots(mainPicks, 1001), (Cells{5, 77, -1, -1, -1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(EmptyPlays(), 3999);
}

struct BrokenFile {
    std::string defect;
    std::string bytes;
    std::string bytesAfterwards;
    int emptyPlays;
};

TEST_F(PlayFile, BrokenFilesAreReadAsFarAsTheyGo) {
    const std::string older = OlderFile();
    const std::string full = playFormat.File({{1, "SH    1"}, {5000, "PW    2"}});
    const std::string lettered = WithColumns(full, {{65, "xx"}, {128 + 6, "ab"}, {192 + 36, "?5"}});
    const std::vector<BrokenFile> gallery = {
        {"one byte", "S", Padded("S", 320000), 5000},
        {"half a play", "SH    1 2", Padded("SH    1 2", 320000), 4999},
        {"one byte short of 1000 plays", older.substr(0, 63999), Padded(older.substr(0, 63999), 320000), 4000},
        {"letters in method and picks", lettered, lettered, 4996},
        {"a partial last record", full.substr(0, 319999 - 57), full.substr(0, 319999 - 57), 4998},
        {"one byte short of the full size", full.substr(0, 319999), full.substr(0, 319999), 4998},
        {"the full size", full, full, 4998},
        {"one byte more than the full size", full + "S", full + "S", 4998},
        {"far too long", full + std::string(100000, '9'), full + std::string(100000, '9'), 4998},
    };
    for (const BrokenFile& file : gallery) {
        SCOPED_TRACE(file.defect);
        Load(file.bytes);
        EXPECT_TRUE(playFormat.Same(file.bytesAfterwards, Bytes()));
        EXPECT_EQ(EmptyPlays(), file.emptyPlays);
    }
}

// Loading

TEST_F(PlayFile, EverySlotIsReadFromItsColumnsWhateverTheGamesCounts) {
    Load(playFormat.File({{2, "PW    1  2 33  4  5 66  7  8  9 10 11  0 13 14 15 16 17 18 19 99"}}));
    EXPECT_EQ(appState.PlayTable(mainPicks, 2, 0), byPartialWheel);
    EXPECT_EQ(Slots(mainPicks, 2), (Cells{1, 2, 33, 4, 5, 66, 7, 8, 9, 10}));
    EXPECT_EQ(Slots(bonusPicks, 2), (Cells{11, 0, 13, 14, 15, 16, 17, 18, 19, 99}));
}

TEST_F(PlayFile, TheMethodIsReadFromItsCode) {
    const std::map<std::string, int> codes = {{"  ", 0}, {"SH", 1}, {"PW", 2}, {"FW", 3}, {"sh", 0},
                                              {"S ", 0}, {"H ", 0}, {"WF", 0}, {"1 ", 0}};
    for (const auto& [code, method] : codes) {
        Load(playFormat.File({{1, code}}));
        EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), method) << code;
    }
}

TEST_F(PlayFile, LettersInAFieldReadAsThePickZero) {
    Load(playFormat.File({{1, "     xy 4z 5"}}));
    EXPECT_EQ(Slots(mainPicks, 1), (Cells{0, 4, 5, -1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(PlayFile, ALoadLeavesTheDirtyFlag) {
    appState.playsDirty = true;
    LoadPlayFile();
    EXPECT_TRUE(appState.playsDirty);
}

// Saving

TEST_F(PlayFile, EverySlotIsWrittenToTheRightOfItsColumns) {
    Write(playFormat.File());
    SetUpPlay(2, {1, 2, 33, 4, 5, 66, 7, 8, 9, 10}, {11, 0, 13, 14, 15, 16, 17, 18, 19, 99});
    appState.PlayTable(mainPicks, 2, 0) = byPartialWheel;
    SetUpPlay(5000, {3});
    SavePlayFile();
    EXPECT_TRUE(playFormat.Same(
        playFormat.File({{2, "PW    1  2 33  4  5 66  7  8  9 10 11  0 13 14 15 16 17 18 19 99"}, {5000, "      3"}}),
        Bytes()));
}

TEST_F(PlayFile, TheMethodIsWrittenAsItsCodeAndAnyOtherValueAsBlanks) {
    const std::map<int, std::string> codes = {{0, "  "}, {1, "SH"}, {2, "PW"}, {3, "FW"}, {4, "  "}, {-1, "  "}};
    for (const auto& [method, code] : codes) {
        appState.PlayTable(mainPicks, 1, 0) = static_cast<std::int16_t>(method);
        SavePlayFile();
        EXPECT_EQ(Bytes().substr(0, 2), code) << method;
    }
}

TEST_F(PlayFile, AHoleBetweenThePicksSurvives) {
    SetUpPlay(1, {8, 9, -1, 11});
    SavePlayFile();
    EXPECT_EQ(playFormat.Record(Bytes(), 1), Padded("      8  9    11", 64));
    LoadPlayFile();
    EXPECT_EQ(Slots(mainPicks, 1), (Cells{8, 9, -1, 11, -1, -1, -1, -1, -1, -1}));
}

TEST_F(PlayFile, CellZeroIsAPickAndNotAnEmptySlot) {
    SetUpPlay(1, {0});
    SavePlayFile();
    EXPECT_EQ(playFormat.Record(Bytes(), 1), Padded("      0", 64));
    LoadPlayFile();
    EXPECT_EQ(appState.PlayTable(mainPicks, 1, 1), 0);
}

// Not a bug: PICK-TWO-DIGITS-1 in docs/not-bugs.md.
TEST_F(PlayFile, QuirkPickTwoDigits1ACellAbove99ComesBackAsItsFirstTwoDigits) {
    SetUpPlay(1, {99, 100, 105});
    SavePlayFile();
    EXPECT_EQ(playFormat.Record(Bytes(), 1), Padded("     99 10 10", 64));
    LoadPlayFile();
    EXPECT_EQ(Slots(mainPicks, 1), (Cells{99, 10, 10, -1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(PlayFile, APlayChangedByHandIsWrittenWithBlanksAsItsMethod) {
    SetUpPlay(1, {1, 2, 3});
    appState.PlayTable(mainPicks, 1, 0) = byShuffle;
    SavePlayFile();
    ASSERT_EQ(Bytes().substr(0, 2), "SH");
    appState.PlayTable(mainPicks, 1, 1) = 4;
    appState.PlayTable(mainPicks, 1, 0) = byHand;
    SavePlayFile();
    EXPECT_EQ(playFormat.Record(Bytes(), 1), Padded("      4  2  3", 64));
}

TEST_F(PlayFile, SlotZeroOfTheBonusPicksDoesNotSurvive) {
    appState.PlayTable(bonusPicks, 1, 0) = 7;
    SavePlayFile();
    LoadPlayFile();
    EXPECT_EQ(appState.PlayTable(bonusPicks, 1, 0), 0);
}

TEST_F(PlayFile, ASaveKeepsWhatStandsBehindTheLastPlay) {
    Write(playFormat.File({{1, "SH    1"}}) + "kept");
    SavePlayFile();
    EXPECT_TRUE(playFormat.Same(playFormat.File() + "kept", Bytes()));
}

TEST_F(PlayFile, ASaveOfAShortFileGivesItItsFullSize) {
    Write("SH");
    SetUpPlay(1, {6});
    SavePlayFile();
    EXPECT_TRUE(playFormat.Same(playFormat.File({{1, "      6"}}), Bytes()));
}

TEST_F(PlayFile, ASaveLeavesTheDirtyFlagToItsCaller) {
    appState.playsDirty = true;
    SavePlayFile();
    EXPECT_TRUE(appState.playsDirty);
}

TEST_F(PlayFile, EveryCellUpTo99SurvivesInEverySlotOfEveryPlay) {
    for (int play = 1; play <= 5000; ++play) {
        appState.PlayTable(mainPicks, play, 0) = static_cast<std::int16_t>(play % 4);
        for (int slot = 1; slot <= 10; ++slot) {
            appState.PlayTable(mainPicks, play, slot) = static_cast<std::int16_t>((play + 7 * slot) % 101 - 1);
            appState.PlayTable(bonusPicks, play, slot) = static_cast<std::int16_t>((play * slot) % 101 - 1);
        }
    }
    const PlayPicks plays = appState.PlayTable;
    SavePlayFile();
    LoadPlayFile();
    EXPECT_TRUE(appState.PlayTable == plays);
}

// Clearing

TEST_F(PlayFile, ClearingEmptiesEveryPlayInMemoryOnly) {
    const std::string file = playFormat.File({{1, "SH    1  2"}, {5000, "FW    3"}});
    Load(file);
    appState.PlayTable(bonusPicks, 5000, 10) = 4;
    ClearAllPlays();
    EXPECT_EQ(EmptyPlays(), 5000);
    EXPECT_TRUE(appState.playsDirty);
    EXPECT_TRUE(playFormat.Same(file, Bytes()));
    SavePlayFile();
    EXPECT_TRUE(playFormat.Same(playFormat.File(), Bytes()));
}

RC_GTEST_FIXTURE_PROP(PlayFile, AnyBytesLoadTheSameAgainAfterASave, ()) {
    const auto character = rc::gen::elementOf(std::string("0123456789   -SHPWFWx\xE9"));
    const std::string front = *rc::gen::element(std::string(), std::string(63990, ' '), std::string(319000, ' '));
    Load(front + *rc::gen::container<std::string>(*rc::gen::inRange<std::size_t>(0, 64 * 20), character));
    const PlayPicks plays = appState.PlayTable;
    SavePlayFile();
    LoadPlayFile();
    RC_ASSERT(appState.PlayTable == plays);
}

TEST_F(PlayFile, EventsAreLetInWhenAFileHasBeenFilledUpAndNotOtherwise) {
    support::PointerKeeper toolkit;
    int calls = 0;
    toolkit.pendingEvents = [&calls] { ++calls; };
    Load("");
    EXPECT_EQ(calls, 1);
    LoadPlayFile();
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace ballhaven
