#include "platform/files/FileSystem.h"
#include "start/Start.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxButtons;
using platform::BoxIcon;
using support::Draw;

/// What ends the program: one box that names the failure, and the files as they were.
class FailuresOfTheProgram : public support::RunningProgram {
  protected:
    void SetUp() override { Store({.low = 0, .draws = {{"01/01/1990", {1, 2, 3, 4, 5, 6}}}}); }

    void ExpectFileError(const std::string& file, const std::string& reason) {
        boxes.Expect("Ballhaven", "File error: " + (directory / file) + "\n" + reason, BoxButtons::Ok,
                     BoxIcon::Critical);
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
    platform::fileSystem.write = [](int, const char*, std::size_t) { return std::int64_t{-ENOSPC}; };
    ExpectFileError("GAME01.CDB", "No space left on device");
    Close();
    EXPECT_EQ(exitCodes.front(), 1);
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
    EXPECT_FALSE(directory.Has("GAME01.CDB.new"));
}

TEST_F(FailuresOfTheProgram, ADirectoryThatCannotBeWrittenIsNamedWhenTheGameIsLeft) {
    Start();
    const std::string before = directory.Read("GAME01.CDB");
    TypeAPick();
    platform::fileSystem.open = [open = platform::fileSystem.open](const std::string& path,
                                                                   platform::FileAccess access) {
        return access == platform::FileAccess::CreateNew ? -EACCES : open(path, access);
    };
    ExpectFileError("GAME01.CDB", "Permission denied");
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(exitCodes, (std::vector<int>{1}));
    EXPECT_EQ(directory.Read("GAME01.CDB"), before);
}

TEST_F(FailuresOfTheProgram, AFileThatCannotBeReadIsNamedAtTheStart) {
    platform::fileSystem.read = [](int, std::int64_t, char*, std::size_t) { return std::int64_t{-EIO}; };
    ExpectFileError("LOTTOSYS", "Input/output error");
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
    boxes.Expect("Ballhaven", "Overflow: a number does not fit into 16 bits.", BoxButtons::Ok, BoxIcon::Critical);
    Start();
    EXPECT_EQ(boxes.Left(), 0U);
    EXPECT_EQ(exitCodes.front(), 1);
}

}  // namespace
}  // namespace ballhaven
