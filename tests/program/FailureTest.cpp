#include "forms/MainForm.h"
#include "platform/files/FileSystem.h"
#include "start/Start.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "support/qt/RunningProgram.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;

std::string ToldInReading(const std::string& failure) {
    return failure +
           "\n\nThis came up while draws were counted or shown in the game \"Six of 49\". The program ends; your draws "
           "and "
           "plays are saved. Choose a smaller history set for this game. If it ends again before you can, type in the "
           "folder of the program: ballhaven-data set 1 --history-set 100.";
}

const std::string overflowInDrawing = ToldInReading("Overflow: a number does not fit into 16 bits.");

const std::string tooManyPairs = ToldInReading("Subscript out of range: a table has no room for another row.");

/// What ends the program: one box that names the failure and the way out, and no file half written.
class FailuresOfTheProgram : public support::RunningProgram {
  protected:
    void SetUp() override { Store({.low = 0, .draws = {{"01/01/1990", {1, 2, 3, 4, 5, 6}}}}); }

    [[nodiscard]] std::string FileError(const std::string& file, const std::string& reason) const {
        return "File error: " + (directory / file) + "\n" + reason;
    }

    void ExpectQuestion(const std::string& file, const std::string& reason, BoxAnswer answer) {
        boxes.Expect("Ballhaven",
                     FileError(file, reason) +
                         "\n\nThe file is as it was when it was last saved. Make it possible to write it, and try "
                         "again.\nOtherwise the program ends, and what has been changed since is lost.\n\nTry again?",
                     BoxButtons::YesNo, BoxIcon::Critical, answer);
    }

    /// Lets a save fail for as long as `room` is false.
    static void FillDisk(const bool& room) {
        platform::fileSystem.write = [&room, write = platform::fileSystem.write](int file, const char* bytes,
                                                                                 std::size_t count) {
            return room ? write(file, bytes, count) : std::int64_t{-ENOSPC};
        };
    }

    void TypeAPick() {
        ClickCell("grdHist", 0, 1);
        Type("7");
        Press(Qt::Key_Return);
        ASSERT_EQ(appState.HistoryTable(1, 0), 7);
        ASSERT_TRUE(appState.historyDirty);
    }
};

TEST_F(FailuresOfTheProgram, AFullDiskAtTheCloseIsNamedOnceAndLeavesTheOldDraws) {
    Start();
    const std::string before = directory.Read("GAME01.CDB");
    TypeAPick();
    const bool room = false;
    FillDisk(room);
    ExpectQuestion("GAME01.CDB", "No space left on device", BoxAnswer::No);
    Close();
    EXPECT_EQ(exitCodes.front(), 1);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    EXPECT_FALSE(directory.Has("GAME01.CDB.new"));
}

TEST_F(FailuresOfTheProgram, ADiskThatWasFullIsTriedAgainAndNothingIsLost) {
    Start();
    TypeAPick();
    bool room = false;
    FillDisk(room);
    platform::services.showMessageBox = [&room](const platform::MessageBoxRequest&) {
        room = true;
        return BoxAnswer::Yes;
    };
    Close();
    EXPECT_EQ(exitCodes.front(), 0);
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf({{"01/01/1990", {7, 2, 3, 4, 5, 6}}}),
                                                directory.Read("GAME01.CDB")));
}

TEST_F(FailuresOfTheProgram, WhenTheDrawsAreGivenUpThePlaysAreSaved) {
    Start();
    TypeAPick();
    const std::string before = directory.Read("PLAYS01.CDB");
    appState.PlayTable(0, 1, 1) = 9;
    appState.playsDirty = true;
    platform::fileSystem.rename = [](const std::string& from, const std::string& to) {
        return to.ends_with("GAME01.CDB") ? -EACCES : platform::SystemFiles().rename(from, to);
    };
    ExpectQuestion("GAME01.CDB", "Permission denied", BoxAnswer::No);
    Close();
    EXPECT_EQ(exitCodes.front(), 1);
    EXPECT_NE(directory.Read("PLAYS01.CDB"), before);
}

TEST_F(FailuresOfTheProgram, ADirectoryThatCannotBeWrittenIsNamedWhenTheGameIsLeft) {
    Start();
    const std::string before = directory.Read("GAME01.CDB");
    TypeAPick();
    platform::fileSystem.open = [open = platform::fileSystem.open](const std::string& path,
                                                                   platform::FileAccess access) {
        return access == platform::FileAccess::CreateNew ? -EACCES : open(path, access);
    };
    ExpectQuestion("GAME01.CDB", "Permission denied", BoxAnswer::No);
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(exitCodes, (std::vector<int>{1}));
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
}

TEST_F(FailuresOfTheProgram, AFileThatCannotBeReadIsNamedAtTheStart) {
    platform::fileSystem.read = [](int, std::int64_t, char*, std::size_t) { return std::int64_t{-EIO}; };
    boxes.Expect(
        "Ballhaven",
        FileError("LOTTOSYS", "Input/output error") +
            "\n\nThe program ends. The files are as they were when they were last saved. Make it possible to "
            "read and write this one, and start again. If it is one of a game's, another one comes first when you "
            "type in the folder of the program: ballhaven-data set --shown 1.",
        BoxButtons::Ok, BoxIcon::Critical);
    support::ResetState();
    StartProgram();
    EXPECT_EQ(exitCodes, (std::vector<int>{1}));
}

TEST_F(FailuresOfTheProgram, APercentageBeyond16BitsEndsTheProgramWhileItIsDrawn) {
    std::vector<Draw> draws;
    for (int day = 0; day < 55; ++day) {
        draws.push_back(
            {std::to_string(day / 28 + 1) + "/" + std::to_string(day % 28 + 1) + "/1990", {9, 9, 9, 9, 9, 9}});
    }
    Store({.draws = draws});
    boxes.Expect("Ballhaven", overflowInDrawing, BoxButtons::Ok, BoxIcon::Critical);
    Start();
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(exitCodes.front(), 1);
}

TEST_F(FailuresOfTheProgram, AFailureInDrawingSavesTheDrawsAndTheWindowsBehindItsBoxKeepTheirContents) {
    Start();
    TypeAPick();
    std::string told;
    std::string behind;
    platform::services.showMessageBox = [&](const platform::MessageBoxRequest& box) {
        told = box.text;
        behind = CellText("grdHist", 0, 2);
        return BoxAnswer::Ok;
    };
    frmMainForm.grdHot.cellText = [](const platform::GridCell&) -> std::optional<std::string> {
        throw RuntimeFailure(RuntimeFailure::Kind::Overflow);
    };
    static_cast<void>(CellText("grdHot", 0, 0));
    EXPECT_EQ(told, overflowInDrawing);
    EXPECT_EQ(behind, "2");
    EXPECT_FALSE(appState.historyDirty);
    EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf({{"01/01/1990", {7, 2, 3, 4, 5, 6}}}),
                                                directory.Read("GAME01.CDB")));
    frmMainForm.grdHot.cellText = nullptr;
}

/// Ninety draws of ten picks: the first one 1 to 10, the second one 2 to 11, and so on; a bonus is always 99. Far more
/// than 501 pairs were drawn at least twice, but none of two bonus picks, and not in the first ten draws.
class FailuresOfACount : public FailuresOfTheProgram {
  protected:
    void SetUp() override { StoreDraws("100", 0); }

    void StoreDraws(const std::string& historySet, int bonusPicks) {
        const std::vector<int> lastDays = {31, 28, 31};
        for (int month = 1; month <= 3; ++month) {
            for (int day = 1; day <= lastDays.at(static_cast<std::size_t>(month) - 1); ++day) {
                std::vector<int> picks(10);
                std::iota(picks.begin(), picks.end(), static_cast<int>(draws.size()) + 1);
                if (bonusPicks > 0) {
                    picks.back() = 99;
                }
                draws.push_back({std::to_string(month) + "/" + std::to_string(day) + "/1990", picks});
            }
        }
        Store({.gameType = bonusPicks > 0 ? 1 : 0,
               .mainPicks = 10 - bonusPicks,
               .bonusPicks = bonusPicks,
               .high = 99,
               .bonusHigh = 99,
               .historySet = historySet,
               .draws = draws});
    }

    void ExpectTooManyPairs() { boxes.Expect("Ballhaven", tooManyPairs, BoxButtons::Ok, BoxIcon::Critical); }

    void ExpectTheEndWithTheTypedPickSaved() {
        draws[0].picks[0] = 7;
        EXPECT_EQ(boxes.Left(), 0U);
        EXPECT_EQ(exitCodes, (std::vector<int>{1}));
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(draws), directory.Read("GAME01.CDB")));
    }

    std::vector<Draw> draws;
};

TEST_F(FailuresOfACount, WhenItsTableIsChosenSaveTheDrawsFirst) {
    Start();
    TypeAPick();
    ExpectTooManyPairs();
    ChooseEntry("cboList(2)", 1);
    ExpectTheEndWithTheTypedPickSaved();
}

/// The same with a bonus as the tenth pick.
class FailuresOfACountOfAllPicks : public FailuresOfACount {
  protected:
    void SetUp() override { StoreDraws("100", 1); }
};

TEST_F(FailuresOfACountOfAllPicks, WhenMorePicksAreCountedSaveTheDrawsFirst) {
    Start();
    Click("optHot(1)");
    ChooseEntry("cboList(2)", 1);
    TypeAPick();
    ExpectTooManyPairs();
    Click("optHot(2)");
    ExpectTheEndWithTheTypedPickSaved();
}

/// The same where ten of them are in view at first.
class FailuresOfACountOfMoreDraws : public FailuresOfACount {
  protected:
    void SetUp() override { StoreDraws("010", 0); }
};

TEST_F(FailuresOfACountOfMoreDraws, WhenTheHistorySetIsChosenSaveThePlaysFirst) {
    Start();
    ChooseEntry("cboList(2)", 1);
    const std::string before = directory.Read("PLAYS01.CDB");
    ClickCell("grdPlay", 0, 4);
    ASSERT_TRUE(appState.playsDirty);
    ExpectTooManyPairs();
    ChooseEntry("cboList(1)", 9);
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(exitCodes, (std::vector<int>{1}));
    EXPECT_FALSE(appState.playsDirty);
    EXPECT_NE(directory.Read("PLAYS01.CDB"), before);
}

}  // namespace
}  // namespace ballhaven
