#include "platform/files/FolderChange.h"

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <string>
#include <sys/stat.h>
#include <system_error>

namespace ballhaven::platform {
namespace {

using Files = std::map<std::string, std::string>;

constexpr std::int64_t noTail = 1'000'000'000;

class FolderChangeTest : public ::testing::Test {
  protected:
    void SetUp() override { PutOldFiles(); }

    void PutOldFiles() const {
        for (const auto& [name, bytes] : directory.Files()) {
            std::filesystem::remove(directory / name);
        }
        for (const auto& [name, bytes] : oldFiles) {
            directory.Write(name, bytes);
        }
    }

    /// Changes one file with a tail, removes one and adds one. Whether the change was decided, and its error's number.
    [[nodiscard]] std::pair<bool, int> Change() const {
        FolderChange change(directory.Path());
        try {
            change.Put("A", "new", 3);
            change.Remove("B");
            change.Put("C", "added", noTail);
            change.Commit();
            return {change.IsDecided(), 0};
        } catch (const std::system_error& error) {
            return {change.IsDecided(), error.code().value()};
        }
    }

    [[nodiscard]] unsigned PermissionsOf(const std::string& name) const {
        struct stat found {};
        EXPECT_EQ(stat((directory / name).c_str(), &found), 0);
        return found.st_mode & 0777U;
    }

    support::TemporaryDirectory directory;
    const Files oldFiles{{"A", "old and tail"}, {"B", "gone soon"}, {"D", "not concerned"}};
    const Files newFiles{{"A", "new and tail"}, {"C", "added"}, {"D", "not concerned"}};
};

TEST_F(FolderChangeTest, AllFilesChangeTogether) {
    EXPECT_EQ(Change(), std::pair(true, 0));
    EXPECT_EQ(directory.Files(), newFiles);
}

TEST_F(FolderChangeTest, NothingChangesWithoutACommit) {
    {
        FolderChange change(directory.Path());
        change.Put("A", "new", 3);
        change.Remove("B");
        EXPECT_FALSE(change.IsDecided());
    }
    EXPECT_EQ(directory.Files(), oldFiles);
}

TEST_F(FolderChangeTest, AChangeOfNothingIsNone) {
    FolderChange(directory.Path()).Commit();
    EXPECT_EQ(directory.Files(), oldFiles);
}

TEST_F(FolderChangeTest, OneFileNeedsNoList) {
    support::WatchedFiles watched;
    FolderChange change(directory.Path());
    change.Put("A", "new", 3);
    change.Commit();
    EXPECT_EQ(directory.Read("A"), "new and tail");
    EXPECT_EQ(watched.Count("rename"), 1U);
    EXPECT_EQ(watched.Count("renameToFree"), 0U);
    EXPECT_EQ(watched.Count("flush"), 2U);
}

TEST_F(FolderChangeTest, AFileKeepsItsPermissionsAndANewOneTakesTheFolders) {
    ASSERT_EQ(chmod((directory / "A").c_str(), 0640), 0);
    ASSERT_EQ(chmod(directory.Path().c_str(), 0750), 0);
    EXPECT_EQ(Change().second, 0);
    EXPECT_EQ(PermissionsOf("A"), 0640U);
    EXPECT_EQ(PermissionsOf("C"), 0640U);
}

TEST_F(FolderChangeTest, AFileThatIsProtectedAgainstWritingIsRefused) {
    ASSERT_EQ(chmod(directory.Path().c_str(), 0777), 0);
    ASSERT_EQ(chmod((directory / "A").c_str(), 0444), 0);
    const auto change = [&] {
        support::BecomeOrdinaryUser();
        return std::to_string(Change().second);
    };
    EXPECT_EQ(support::RunInChild(change).words, std::to_string(EACCES));
    EXPECT_EQ(directory.Files(), oldFiles);
}

TEST_F(FolderChangeTest, ALinkGoesOnPointingToItsFile) {
    std::filesystem::rename(directory / "A", directory / "E");
    std::filesystem::create_symlink("E", directory / "A");
    EXPECT_EQ(Change().second, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(directory / "A"));
    EXPECT_EQ(directory.Read("E"), "new and tail");
}

TEST_F(FolderChangeTest, AFolderInAFilesPlaceIsRefused) {
    std::filesystem::remove(directory / "A");
    std::filesystem::create_directory(directory / "A");
    EXPECT_NE(Change().second, 0);
    EXPECT_FALSE(directory.Has("C"));
    EXPECT_TRUE(directory.Has("B"));
}

TEST_F(FolderChangeTest, WhatACrashLeftOfAChangeHindersNone) {
    directory.Write("A.next", "left over");
    EXPECT_EQ(Change().second, 0);
    EXPECT_EQ(directory.Files(), newFiles);
}

TEST_F(FolderChangeTest, AnErrorInAnyCallLeavesNothingChangedOrIsFinishedLater) {
    std::size_t calls = 0;
    {
        const support::WatchedFiles watched;
        ASSERT_EQ(Change().second, 0);
        calls = watched.calls.size();
    }
    std::size_t undone = 0;
    std::size_t finished = 0;
    for (std::size_t failing = 0; failing < calls; ++failing) {
        PutOldFiles();
        std::pair<bool, int> result;
        std::string name;
        {
            support::WatchedFiles watched;
            watched.before = [&](std::size_t call) { return call == failing ? EIO : 0; };
            result = Change();
            name = watched.calls[failing].name;
        }
        const std::string at = std::to_string(failing) + " " + name;
        if (result.first) {
            FinishFolderChange(directory.Path());
            EXPECT_EQ(directory.Files(), newFiles) << at;
            finished += result.second == 0 ? 0 : 1;
        } else {
            EXPECT_EQ(result.second, EIO) << at;
            EXPECT_EQ(directory.Files(), oldFiles) << at;
            ++undone;
        }
    }
    EXPECT_GT(undone, 10U);
    EXPECT_GT(finished, 2U);
}

TEST_F(FolderChangeTest, AFullDiskLeavesNothingChangedWhereverItIsFull) {
    const std::size_t needed = std::string(
                                   "new and tail"
                                   "added"
                                   "put A\nremove B\nput C\n")
                                   .size();
    for (std::size_t room = 0; room < needed; ++room) {
        support::WatchedFiles watched;
        watched.room = room;
        EXPECT_EQ(Change(), std::pair(false, ENOSPC)) << room;
        EXPECT_EQ(directory.Files(), oldFiles) << room;
    }
    support::WatchedFiles watched;
    watched.room = needed;
    EXPECT_EQ(Change(), std::pair(true, 0));
}

TEST_F(FolderChangeTest, AProcessThatIsKilledAtAnyCallLeavesTheOldFilesOrTheNewOnes) {
    std::size_t calls = 0;
    {
        const support::WatchedFiles watched;
        ASSERT_EQ(Change().second, 0);
        calls = watched.calls.size();
    }
    std::size_t changed = 0;
    for (std::size_t killedAt = 0; killedAt < calls; ++killedAt) {
        PutOldFiles();
        const support::ChildEnd end = support::RunInChild([&] {
            support::WatchedFiles watched;
            watched.before = [&](std::size_t call) {
                if (call == killedAt) {
                    support::KillThisProcess();
                }
                return 0;
            };
            return std::to_string(Change().second);
        });
        ASSERT_TRUE(end.killed);

        FinishFolderChange(directory.Path());
        Files found = directory.Files();
        for (const char* name : {"A.next", "C.next", "CHANGE.new"}) {
            found.erase(name);  // a change that was not decided leaves them to the next one
        }
        EXPECT_TRUE(found == oldFiles || found == newFiles) << killedAt;
        changed += found == newFiles ? 1 : 0;
        EXPECT_EQ(Change().second, 0) << killedAt;
        EXPECT_EQ(directory.Files(), newFiles) << killedAt;
    }
    EXPECT_GT(changed, 4U);
    EXPECT_LT(changed, calls);
}

TEST_F(FolderChangeTest, FinishingGoesOnWhereItStopped) {
    directory.Write("A.next", "new and tail");
    directory.Write("C.next", "added");
    directory.Write("CHANGE", "put A\nremove B\nput C\n");
    {
        support::WatchedFiles watched;
        watched.before = [&](std::size_t call) { return watched.Names()[call] == "remove" ? EIO : 0; };
        EXPECT_THROW(FinishFolderChange(directory.Path()), std::system_error);
        EXPECT_EQ(directory.Read("A"), "new and tail");
        EXPECT_TRUE(directory.Has("CHANGE"));
    }
    FinishFolderChange(directory.Path());
    EXPECT_EQ(directory.Files(), newFiles);
}

TEST_F(FolderChangeTest, AFileOfThatNameThatIsNoListIsLeftAlone) {
    for (const char* list :
         {"", "hello\n", "xxxxxxxA\n", "remove ../A\n", "put \nremove B\n", "remove B\nremove ..\n", "remove /A\n"}) {
        directory.Write("CHANGE", list);
        EXPECT_FALSE(HasDecidedChange(directory.Path())) << list;
        FinishFolderChange(directory.Path());
        EXPECT_EQ(directory.Read("CHANGE"), list);
        EXPECT_EQ(Change(), std::pair(false, EEXIST)) << list;
        std::filesystem::remove(directory / "CHANGE");
        EXPECT_EQ(directory.Files(), oldFiles) << list;
    }
}

TEST_F(FolderChangeTest, AFolderOfThatNameIsLeftAlone) {
    std::filesystem::create_directory(directory / "CHANGE");
    EXPECT_FALSE(HasDecidedChange(directory.Path()));
    FinishFolderChange(directory.Path());
    EXPECT_EQ(Change(), std::pair(false, EEXIST));
    EXPECT_TRUE(std::filesystem::is_directory(directory / "CHANGE"));
}

TEST_F(FolderChangeTest, AListThatCannotBeReadIsNotPassedOver) {
    support::WatchedFiles watched;
    watched.before = [](std::size_t) { return EACCES; };
    EXPECT_THROW((void)HasDecidedChange(directory.Path()), std::system_error);
}

TEST_F(FolderChangeTest, ADecidedChangeIsKnownUntilItIsFinished) {
    EXPECT_FALSE(HasDecidedChange(directory.Path()));
    directory.Write("CHANGE", "remove B\n");
    EXPECT_TRUE(HasDecidedChange(directory.Path()));
    FinishFolderChange(directory.Path());
    EXPECT_FALSE(HasDecidedChange(directory.Path()));
    EXPECT_FALSE(directory.Has("CHANGE"));
}

TEST_F(FolderChangeTest, AFolderWithoutADecidedChangeStaysAsItIs) {
    const support::WatchedFiles watched;
    FinishFolderChange(directory.Path());
    EXPECT_EQ(directory.Files(), oldFiles);
    EXPECT_EQ(watched.Names(), std::vector<std::string>{"open Read"});
}

}  // namespace
}  // namespace ballhaven::platform
