#include "platform/files/FolderLock.h"

#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

namespace fs = std::filesystem;
using support::TemporaryDirectory;

TEST(FolderLock, TheFirstOnAFolderIsNotTakenAndTheSecondIs) {
    const TemporaryDirectory folder;
    const FolderLock first(folder.Path());
    const FolderLock second(folder.Path());

    EXPECT_FALSE(first.IsTakenByAnother());
    EXPECT_TRUE(second.IsTakenByAnother());
}

TEST(FolderLock, AFolderIsFreeAgainWhenItsLockIsGone) {
    const TemporaryDirectory folder;
    std::optional<FolderLock> first(std::in_place, folder.Path());
    first.reset();
    const FolderLock second(folder.Path());

    EXPECT_FALSE(second.IsTakenByAnother());
}

TEST(FolderLock, AnotherFolderIsFree) {
    const TemporaryDirectory folder;
    const TemporaryDirectory other;
    const FolderLock first(folder.Path());
    const FolderLock second(other.Path());

    EXPECT_FALSE(second.IsTakenByAnother());
    EXPECT_NE(first.Key(), second.Key());
}

TEST(FolderLock, TheSameFolderByAnotherPathIsTheSame) {
    const TemporaryDirectory folder;
    const TemporaryDirectory other;
    const fs::path link = fs::path(other.Path()) / "link";
    fs::create_directory_symlink(folder.Path(), link);
    const FolderLock first(folder.Path());
    const FolderLock second(link.string());

    EXPECT_TRUE(second.IsTakenByAnother());
    EXPECT_EQ(first.Key(), second.Key());
}

TEST(FolderLock, NothingIsWrittenIntoTheFolder) {
    const TemporaryDirectory folder;
    const FolderLock lock(folder.Path());

    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(FolderLock, AFolderThatCannotBeOpenedHasNoOtherLock) {
    const FolderLock lock("/no/such/folder");

    EXPECT_FALSE(lock.IsTakenByAnother());
    EXPECT_EQ(lock.Key(), "");
}

TEST(FolderLock, AKilledProcessLeavesTheFolderFree) {
    const TemporaryDirectory folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        const FolderLock lock(folder.Path());
        const char sign = lock.IsTakenByAnother() ? 'n' : 'y';
        if (write(ready[1], &sign, 1) == 1) {
            pause();
        }
        _exit(0);
    }
    char sign = ' ';
    ASSERT_EQ(read(ready[0], &sign, 1), 1);
    EXPECT_EQ(sign, 'y');
    EXPECT_TRUE(FolderLock(folder.Path()).IsTakenByAnother());

    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    close(ready[0]);
    close(ready[1]);
    EXPECT_FALSE(FolderLock(folder.Path()).IsTakenByAnother());
}

}  // namespace
}  // namespace ballhaven::platform
