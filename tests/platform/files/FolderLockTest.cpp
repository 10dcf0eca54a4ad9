#include "platform/files/FolderLock.h"

#include "platform/files/FileSystem.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

namespace fs = std::filesystem;
using support::TemporaryDirectory;

TEST(FolderLock, TheFirstOnAFolderIsNotTakenAndTheSecondIs) {
    const TemporaryDirectory folder;
    FolderLock first(folder.Path());
    FolderLock second(folder.Path());

    EXPECT_TRUE(first.Take());
    EXPECT_FALSE(second.Take());
    EXPECT_TRUE(first.Take()) << "it keeps what it has";
    EXPECT_FALSE(second.Take());
}

TEST(FolderLock, AFolderIsFreeAgainWhenItsLockIsGone) {
    const TemporaryDirectory folder;
    std::optional<FolderLock> first(std::in_place, folder.Path());
    FolderLock second(folder.Path());
    ASSERT_TRUE(first->Take());
    ASSERT_FALSE(second.Take());
    first.reset();

    EXPECT_TRUE(second.Take());
}

TEST(FolderLock, AnotherFolderIsFree) {
    const TemporaryDirectory folder;
    const TemporaryDirectory other;
    FolderLock first(folder.Path());
    FolderLock second(other.Path());

    EXPECT_TRUE(first.Take());
    EXPECT_TRUE(second.Take());
    EXPECT_NE(first.Key(), second.Key());
}

TEST(FolderLock, TheSameFolderByAnotherPathIsTheSame) {
    const TemporaryDirectory folder;
    const TemporaryDirectory other;
    const fs::path link = fs::path(other.Path()) / "link";
    fs::create_directory_symlink(folder.Path(), link);
    FolderLock first(folder.Path());
    FolderLock second(link.string());

    EXPECT_TRUE(first.Take());
    EXPECT_FALSE(second.Take());
    EXPECT_EQ(first.Key(), second.Key());
}

TEST(FolderLock, NothingIsWrittenIntoTheFolder) {
    const TemporaryDirectory folder;
    FolderLock lock(folder.Path());

    EXPECT_TRUE(lock.Take());
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

/// The number of the error that work ends in, 0 for none.
template <typename Work>
int ErrorOf(const Work& work) {
    try {
        work();
        return 0;
    } catch (const std::system_error& error) {
        return error.code().value();
    }
}

TEST(FolderLock, AFolderThatCannotBeOpenedIsAnError) {
    EXPECT_EQ(ErrorOf([] { const FolderLock lock("/no/such/folder"); }), ENOENT);
}

TEST(FolderLock, AFolderThatCannotBeLockedForAnyOtherReasonIsAnErrorAndNobodysOwn) {
    const TemporaryDirectory folder;
    for (const int error : {ENOLCK, EBADF, EOPNOTSUPP, EIO}) {
        fileSystem.lock = [error](int) { return -error; };
        FolderLock lock(folder.Path());
        EXPECT_EQ(ErrorOf([&] { (void)lock.Take(); }), error);
    }
    fileSystem = SystemFiles();
}

TEST(FolderLock, AKilledProcessLeavesTheFolderFree) {
    const TemporaryDirectory folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        FolderLock lock(folder.Path());
        const char sign = lock.Take() ? 'y' : 'n';
        if (write(ready[1], &sign, 1) == 1) {
            pause();
        }
        _exit(0);
    }
    char sign = ' ';
    ASSERT_EQ(read(ready[0], &sign, 1), 1);
    EXPECT_EQ(sign, 'y');
    EXPECT_FALSE(FolderLock(folder.Path()).Take());

    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    close(ready[0]);
    close(ready[1]);
    EXPECT_TRUE(FolderLock(folder.Path()).Take());
}

}  // namespace
}  // namespace ballhaven::platform
