#include "wheels/ShuffleFile.h"

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

using support::BonusPool;
using support::CardGame;
using support::DataFileTest;
using support::Game;
using support::NumberGame;
using support::Padded;
using support::RecordFormat;
using support::SetUpGame;
using support::WithColumns;

RecordFormat Format() {
    RecordFormat format{320, 40, {{"option", 300, 2}}};
    for (int pick = 1; pick <= 100; ++pick) {
        format.fields.push_back({"pick " + std::to_string(pick), 3 * pick - 2, 2});
    }
    return format;
}

const RecordFormat shuffleFormat = Format();
const std::string fileName = "SHUFFLE.CDB";

class ShuffleFile : public DataFileTest {
  protected:
    ShuffleFile() { SetUpGame(NumberGame().Picks(6).InSlot(4)); }

    void Write(const std::string& bytes) const { directory.Write(fileName, bytes); }
    [[nodiscard]] std::string Bytes() const { return directory.Read(fileName); }

    void Load(const std::string& bytes) const {
        Write(bytes);
        LoadShuffleFile();
    }
};

using QuirkShuffleOptionBonus1 = ShuffleFile;

using Cells = std::vector<int>;

Game GameWithBonus() {
    return NumberGame().Picks(5).Bonus(1, BonusPool::Separate).InSlot(4);
}

/// The chosen picks of a list up to the first empty slot.
Cells Chosen(int pickColumn) {
    Cells cells;
    for (int slot = 1; slot <= 100 && appState.ShuffleTable(pickColumn, slot) != -1; ++slot) {
        cells.push_back(appState.ShuffleTable(pickColumn, slot));
    }
    return cells;
}

/// Slots of both lists that hold a pick.
int ChosenInAll() {
    int picks = 0;
    for (int slot = 1; slot <= 100; ++slot) {
        picks += appState.ShuffleTable(mainPicks, slot) != -1 ? 1 : 0;
        picks += appState.ShuffleTable(bonusPicks, slot) != -1 ? 1 : 0;
    }
    return picks;
}

void Choose(int pickColumn, const Cells& cells) {
    int slot = 0;
    for (const int cell : cells) {
        appState.ShuffleTable(pickColumn, ++slot) = static_cast<std::int16_t>(cell);
    }
}

int Option() {
    return appState.ShuffleTable(mainPicks, 0);
}

/// A file of the version without bonus lists, with one pick for each game: its slot.
std::string OlderFile() {
    const RecordFormat older{320, 20, {}};
    std::map<int, std::string> records;
    for (int slot = 1; slot <= 20; ++slot) {
        records[slot] = std::to_string(slot);
    }
    return older.File(records);
}

// Creating and the older size

TEST_F(ShuffleFile, AMissingFileBecomesFortyBlankRecordsAndEmptyLists) {
    LoadShuffleFile();
    EXPECT_EQ(Bytes().size(), 12800U);
    EXPECT_TRUE(shuffleFormat.Same(shuffleFormat.File(), Bytes()));
    EXPECT_EQ(ChosenInAll(), 0);
    EXPECT_EQ(Option(), 0);
}

TEST_F(ShuffleFile, AnEmptyFileBecomesFortyBlankRecordsAndEmptyLists) {
    Load("");
    EXPECT_TRUE(shuffleFormat.Same(shuffleFormat.File(), Bytes()));
    EXPECT_EQ(ChosenInAll(), 0);
}

TEST_F(ShuffleFile, TheUnusedSlotOfTheBonusListIsLeftAtZero) {
    appState.ShuffleTable(bonusPicks, 0) = 7;
    LoadShuffleFile();
    EXPECT_EQ(appState.ShuffleTable(bonusPicks, 0), 0);
}

TEST_F(ShuffleFile, AFileOfTwentyRecordsGrowsAndKeepsItsMainLists) {
    const std::string older = OlderFile();
    ASSERT_EQ(older.size(), 6400U);
    Load(older);
    EXPECT_TRUE(shuffleFormat.Same(older + std::string(6400, ' '), Bytes()));
    EXPECT_EQ(Chosen(mainPicks), Cells{4});
}

TEST_F(ShuffleFile, AFileOfOneByteMoreThanTwentyRecordsIsLeftAsItIs) {
    SetUpGame(GameWithBonus().InSlot(1));
    const std::string file = OlderFile() + "7";
    Load(file);
    EXPECT_TRUE(shuffleFormat.Same(file, Bytes()));
    EXPECT_EQ(Chosen(mainPicks), Cells{1});
    EXPECT_EQ(Chosen(bonusPicks), Cells{7});
}

struct BrokenFile {
    std::string defect;
    std::string bytes;
    std::string bytesAfterwards;
    Cells mainList;
    Cells bonusList;
};

TEST_F(ShuffleFile, BrokenFilesAreReadAsFarAsTheyGo) {
    const std::string older = OlderFile();
    const std::string full = shuffleFormat.File({{4, "8  9"}, {24, "5"}, {40, "1  2"}});
    const std::string lettered = WithColumns(full, {{3 * 320 + 1, "ab"}, {23 * 320 + 4, "?"}});
    const std::string head = older.substr(0, 3 * 320 + 2);
    const std::vector<BrokenFile> gallery = {
        {"one byte", "1", Padded("1", 12800), {}, {}},
        {"a partial record", head, Padded(head, 12800), {4}, {}},
        {"one byte short of 20 records", older.substr(0, 6399), Padded(older.substr(0, 6399), 12800), {4}, {}},
        {"letters in picks", lettered, lettered, {0, 9}, {5, 0}},
        {"between the sizes", full.substr(0, 7000), full.substr(0, 7000), {8, 9}, {}},
        {"one byte short of the full size", full.substr(0, 12799), full.substr(0, 12799), {8, 9}, {5}},
        {"the full size", full, full, {8, 9}, {5}},
        {"one byte more than the full size", full + "7", full + "7", {8, 9}, {5}},
        {"far too long", full + std::string(100000, '7'), full + std::string(100000, '7'), {8, 9}, {5}},
    };
    SetUpGame(GameWithBonus());
    for (const BrokenFile& file : gallery) {
        SCOPED_TRACE(file.defect);
        Load(file.bytes);
        EXPECT_TRUE(shuffleFormat.Same(file.bytesAfterwards, Bytes()));
        EXPECT_EQ(Chosen(mainPicks), file.mainList);
        EXPECT_EQ(Chosen(bonusPicks), file.bonusList);
    }
}

// Loading

TEST_F(ShuffleFile, HolesInARecordCloseUp) {
    Load(shuffleFormat.File({{4, "   7        0  12"}}));
    EXPECT_EQ(Chosen(mainPicks), (Cells{7, 0, 12}));
    EXPECT_EQ(ChosenInAll(), 3);
}

TEST_F(ShuffleFile, APickIsReadOnEitherSideOfItsField) {
    Load(shuffleFormat.File({{4, "7   8 09 xy"}}));
    EXPECT_EQ(Chosen(mainPicks), (Cells{7, 8, 9, 0}));
}

TEST_F(ShuffleFile, AllHundredFieldsAreRead) {
    std::string record;
    for (int pick = 0; pick < 100; ++pick) {
        record += Padded(std::to_string(pick), 3);
    }
    Load(shuffleFormat.File({{4, record.substr(0, 299) + "PW"}}));
    EXPECT_EQ(Chosen(mainPicks).size(), 100U);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 1), 0);
    EXPECT_EQ(appState.ShuffleTable(mainPicks, 100), 99);
    EXPECT_EQ(Option(), byPartialWheel);
}

TEST_F(ShuffleFile, TheBonusListIsReadFromTheRecordTwentyBehind) {
    SetUpGame(GameWithBonus().InSlot(20));
    Load(shuffleFormat.File({{20, "1  2"}, {40, "3  4  5"}}));
    EXPECT_EQ(Chosen(mainPicks), (Cells{1, 2}));
    EXPECT_EQ(Chosen(bonusPicks), (Cells{3, 4, 5}));
}

TEST_F(ShuffleFile, AGameWithoutABonusLeavesItsOldBonusListUnread) {
    const std::string file = shuffleFormat.File({{4, "1  2"}, {24, "3  4  5"}});
    for (const Game& game : {NumberGame().InSlot(4), CardGame().InSlot(4)}) {
        SetUpGame(game);
        Load(file);
        EXPECT_EQ(Chosen(bonusPicks), Cells{});
        SaveShuffleFile();
        EXPECT_TRUE(shuffleFormat.Same(file, Bytes()));
    }
}

TEST_F(ShuffleFile, TheOptionIsReadFromItsCode) {
    const std::map<std::string, int> codes = {{"  ", 0}, {"SH", 1}, {"PW", 2}, {"FW", 3}, {"sh", 0}, {"1 ", 0}};
    for (const auto& [code, option] : codes) {
        Load(shuffleFormat.File({{4, WithColumns(std::string(320, ' '), {{300, code}})}}));
        EXPECT_EQ(Option(), option) << code;
    }
}

// Not a bug: SHUFFLE-OPTION-BONUS-1 in docs/not-bugs.md.
TEST_F(QuirkShuffleOptionBonus1, AGameWithABonusForgetsItsOption) {
    SetUpGame(GameWithBonus());
    appState.ShuffleTable(mainPicks, 0) = byFullWheel;
    SaveShuffleFile();
    EXPECT_EQ(Bytes().substr(3 * 320 + 299, 2), "FW");
    LoadShuffleFile();
    EXPECT_EQ(Option(), 0);
}

// Not a bug: SHUFFLE-OPTION-BONUS-1 in docs/not-bugs.md.
TEST_F(QuirkShuffleOptionBonus1, ACodeInTheBonusRecordWouldBeReadThere) {
    SetUpGame(GameWithBonus());
    Load(shuffleFormat.File({{24, WithColumns(std::string(320, ' '), {{300, "PW"}})}}));
    EXPECT_EQ(Option(), byPartialWheel);
}

TEST_F(ShuffleFile, AGameWithoutABonusRemembersItsOption) {
    for (const PlayMethod option : {byShuffle, byPartialWheel, byFullWheel}) {
        appState.ShuffleTable(mainPicks, 0) = option;
        SaveShuffleFile();
        LoadShuffleFile();
        EXPECT_EQ(Option(), option);
    }
}

// Saving

TEST_F(ShuffleFile, PicksAreWrittenToTheLeftOfTheirColumnsWithTheOptionBehindThem) {
    Write(shuffleFormat.File());
    Choose(mainPicks, {7, 0, 48, 12});
    appState.ShuffleTable(mainPicks, 0) = byFullWheel;
    SaveShuffleFile();
    const std::string record = WithColumns(std::string(320, ' '), {{1, "7  0  48 12"}, {300, "FW"}});
    EXPECT_TRUE(shuffleFormat.Same(shuffleFormat.File({{4, record}}), Bytes()));
}

TEST_F(ShuffleFile, AHundredPicksFillTheirColumnsUpToTheOption) {
    Write(shuffleFormat.File());
    std::string record;
    for (int slot = 1; slot <= 100; ++slot) {
        appState.ShuffleTable(mainPicks, slot) = static_cast<std::int16_t>(100 - slot);
        record += Padded(std::to_string(100 - slot), 3);
    }
    appState.ShuffleTable(mainPicks, 0) = byShuffle;
    SaveShuffleFile();
    EXPECT_TRUE(shuffleFormat.Same(shuffleFormat.File({{4, record.substr(0, 299) + "SH"}}), Bytes()));
}

TEST_F(ShuffleFile, TheBonusListHasNoOption) {
    Write(shuffleFormat.File());
    SetUpGame(GameWithBonus());
    Choose(mainPicks, {1, 2});
    Choose(bonusPicks, {0, 10});
    appState.ShuffleTable(mainPicks, 0) = byShuffle;
    SaveShuffleFile();
    const std::string mainRecord = WithColumns(std::string(320, ' '), {{1, "1  2"}, {300, "SH"}});
    EXPECT_TRUE(shuffleFormat.Same(shuffleFormat.File({{4, mainRecord}, {24, "0  10"}}), Bytes()));
}

TEST_F(ShuffleFile, AListWithAHoleComesBackClosedUpInItsOrder) {
    Choose(mainPicks, {9, -1, 3, -1, -1, 5});
    SaveShuffleFile();
    EXPECT_EQ(shuffleFormat.Record(Bytes(), 4), Padded("9  3  5", 320));
    LoadShuffleFile();
    EXPECT_EQ(Chosen(mainPicks), (Cells{9, 3, 5}));
}

// Not a bug: PICK-TWO-DIGITS-1 in docs/not-bugs.md.
TEST_F(ShuffleFile, QuirkPickTwoDigits1ACellAbove99ComesBackAsItsFirstTwoDigits) {
    Choose(mainPicks, {99, 100, 105});
    SaveShuffleFile();
    EXPECT_EQ(shuffleFormat.Record(Bytes(), 4), Padded("99 10 10", 320));
    LoadShuffleFile();
    EXPECT_EQ(Chosen(mainPicks), (Cells{99, 10, 10}));
}

TEST_F(ShuffleFile, OtherGamesKeepTheirLists) {
    const std::string file = OlderFile() + OlderFile();
    Write(file);
    SetUpGame(GameWithBonus());
    SaveShuffleFile();
    const std::string blank(320, ' ');
    EXPECT_TRUE(shuffleFormat.Same(WithColumns(file, {{3 * 320 + 1, blank}, {23 * 320 + 1, blank}}), Bytes()));
}

TEST_F(ShuffleFile, AnOptionThatIsNoneIsWrittenAsBlanks) {
    appState.ShuffleTable(mainPicks, 0) = 4;
    SaveShuffleFile();
    EXPECT_EQ(shuffleFormat.Record(Bytes(), 4), std::string(320, ' '));
}

RC_GTEST_FIXTURE_PROP(ShuffleFile, AnyBytesLoadTheSameAgainAfterASave, ()) {
    const auto character = rc::gen::elementOf(std::string("0123456789     -SHPWx\xE9"));
    SetUpGame(*rc::gen::arbitrary<bool>() ? GameWithBonus() : NumberGame().InSlot(4));
    const auto record = rc::gen::container<std::string>(320, character);
    const std::string file = shuffleFormat.File({{4, *record}, {24, *record}});
    Load(file.substr(0, *rc::gen::inRange<std::size_t>(0, file.size() + 1)));
    ChosenPicks table = appState.ShuffleTable;
    SaveShuffleFile();
    LoadShuffleFile();
    if (HasBonus(appState.gameType)) {
        table(mainPicks, 0) = byHand;  // SHUFFLE-OPTION-BONUS-1
    }
    RC_ASSERT(appState.ShuffleTable == table);
}

TEST_F(ShuffleFile, EventsAreLetInWhenAFileHasBeenFilledUpAndNotOtherwise) {
    support::PointerKeeper toolkit;
    int calls = 0;
    toolkit.pendingEvents = [&calls] { ++calls; };
    Load("");
    EXPECT_EQ(calls, 1);
    LoadShuffleFile();
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace ballhaven
