#include "platform/files/FileSystem.h"

#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace ballhaven::platform {
namespace {

class FileSystemTest : public ::testing::Test {
  protected:
    int Open(const std::string& name, FileAccess access) { return files.open(directory / name, access); }

    support::TemporaryDirectory directory;
    FileSystem files = SystemFiles();
};

TEST_F(FileSystemTest, ReadOrCreateMakesAMissingFileEmptyForTheUsersMask) {
    const mode_t oldMask = umask(027);
    const int file = Open("new", FileAccess::ReadOrCreate);
    umask(oldMask);
    ASSERT_GE(file, 0);

    FileStatus status;
    EXPECT_EQ(files.getStatus(file, status), 0);
    EXPECT_TRUE(status.isRegular);
    EXPECT_EQ(status.length, 0);
    EXPECT_EQ(status.permissions, 0640U);
    EXPECT_EQ(files.close(file), 0);
}

TEST_F(FileSystemTest, ReadOrCreateLeavesAFileAsItIsAndCannotWriteIt) {
    directory.Write("old", "content");
    const int file = Open("old", FileAccess::ReadOrCreate);
    ASSERT_GE(file, 0);

    EXPECT_EQ(files.write(file, "x", 1), -EBADF);
    EXPECT_EQ(files.close(file), 0);
    EXPECT_EQ(directory.Read("old"), "content");
}

TEST_F(FileSystemTest, UpdateOrCreateLeavesAFileAsItIsAndMakesAMissingOne) {
    directory.Write("old", "content");
    const int old = Open("old", FileAccess::UpdateOrCreate);
    const int made = Open("made", FileAccess::UpdateOrCreate);
    ASSERT_GE(old, 0);
    ASSERT_GE(made, 0);

    EXPECT_EQ(files.close(old), 0);
    EXPECT_EQ(files.close(made), 0);
    EXPECT_EQ(directory.Read("old"), "content");
    EXPECT_EQ(directory.Read("made"), "");
}

TEST_F(FileSystemTest, CreateNewRefusesANameThatIsTaken) {
    directory.Write("taken", "content");
    EXPECT_EQ(Open("taken", FileAccess::CreateNew), -EEXIST);
    EXPECT_EQ(directory.Read("taken"), "content");
}

TEST_F(FileSystemTest, CreateNewDoesNotFollowALinkThatPointsNowhere) {
    ASSERT_EQ(symlink((directory / "elsewhere").c_str(), (directory / "link").c_str()), 0);
    EXPECT_EQ(Open("link", FileAccess::CreateNew), -EEXIST);
    EXPECT_FALSE(directory.Has("elsewhere"));
}

TEST_F(FileSystemTest, AFileMadeNewBelongsToTheUserAloneUntilItsPermissionsAreSet) {
    const int file = Open("new", FileAccess::CreateNew);
    ASSERT_GE(file, 0);

    FileStatus status;
    EXPECT_EQ(files.getStatus(file, status), 0);
    EXPECT_EQ(status.permissions, 0600U);
    EXPECT_EQ(files.setPermissions(file, 0664), 0);
    EXPECT_EQ(files.getStatus(file, status), 0);
    EXPECT_EQ(status.permissions, 0664U);
    EXPECT_EQ(files.close(file), 0);
}

TEST_F(FileSystemTest, WhatIsWrittenIsReadFromAnyOffset) {
    const int written = Open("new", FileAccess::CreateNew);
    ASSERT_GE(written, 0);
    EXPECT_EQ(files.write(written, "01234", 5), 5);
    EXPECT_EQ(files.write(written, "56789", 5), 5);
    EXPECT_EQ(files.flush(written), 0);
    EXPECT_EQ(files.close(written), 0);

    const int file = Open("new", FileAccess::ReadOrCreate);
    ASSERT_GE(file, 0);
    std::string bytes(4, '.');
    EXPECT_EQ(files.read(file, 5, bytes.data(), 4), 4);
    EXPECT_EQ(bytes, "5678");
    EXPECT_EQ(files.read(file, 8, bytes.data(), 4), 2);
    EXPECT_EQ(bytes.substr(0, 2), "89");
    EXPECT_EQ(files.read(file, 10, bytes.data(), 4), 0);
    EXPECT_EQ(files.close(file), 0);
}

TEST_F(FileSystemTest, AHoleIsFoundAndTakesNoRoom) {
    constexpr std::int64_t mebibyte = 1024 * 1024;
    const int file = Open("new", FileAccess::CreateNew);
    ASSERT_GE(file, 0);
    EXPECT_EQ(files.setLength(file, mebibyte), 0);
    EXPECT_EQ(files.write(file, "end", 3), 3);

    EXPECT_EQ(files.findBytes(file, 0), mebibyte);
    EXPECT_EQ(files.findHole(file, 0), 0);
    EXPECT_EQ(files.findHole(file, mebibyte), mebibyte + 3);
    EXPECT_EQ(files.findBytes(file, mebibyte + 3), -ENXIO);
    struct stat found {};
    ASSERT_EQ(stat((directory / "new").c_str(), &found), 0);
    EXPECT_LT(found.st_blocks * 512, mebibyte / 2);
    EXPECT_EQ(files.close(file), 0);
    EXPECT_EQ(directory.Read("new"), std::string(mebibyte, '\0') + "end");
}

TEST_F(FileSystemTest, ADirectoryIsLockedUntilItIsClosed) {
    const int first = files.open(directory.Path(), FileAccess::Directory);
    const int second = files.open(directory.Path(), FileAccess::Directory);
    EXPECT_EQ(files.lock(first), 0);
    EXPECT_EQ(files.lock(second), -EWOULDBLOCK);
    EXPECT_EQ(files.close(first), 0);
    EXPECT_EQ(files.lock(second), 0);
    EXPECT_EQ(files.close(second), 0);
}

TEST_F(FileSystemTest, ADirectoryIsOpenedForFlushingAndLockingOnly) {
    const int opened = files.open(directory.Path(), FileAccess::Directory);
    ASSERT_GE(opened, 0);
    EXPECT_EQ(files.flush(opened), 0);
    EXPECT_EQ(files.close(opened), 0);

    directory.Write("file", "");
    EXPECT_EQ(Open("file", FileAccess::Directory), -ENOTDIR);
    EXPECT_EQ(files.open(directory.Path(), FileAccess::ReadOrCreate), -EISDIR);
}

TEST_F(FileSystemTest, APipeOpensAtOnceAndIsNoRegularFile) {
    ASSERT_EQ(mkfifo((directory / "pipe").c_str(), 0600), 0);
    const int file = Open("pipe", FileAccess::ReadOrCreate);
    ASSERT_GE(file, 0);

    FileStatus status{true, 1, 0};
    EXPECT_EQ(files.getStatus(file, status), 0);
    EXPECT_FALSE(status.isRegular);
    EXPECT_EQ(files.close(file), 0);
}

TEST_F(FileSystemTest, RenameReplacesTheFileUnderTheNewName) {
    directory.Write("a", "new");
    directory.Write("b", "old");
    EXPECT_EQ(files.rename(directory / "a", directory / "b"), 0);
    EXPECT_EQ(directory.Read("b"), "new");
    EXPECT_FALSE(directory.Has("a"));
    EXPECT_EQ(files.rename(directory / "a", directory / "b"), -ENOENT);
}

TEST_F(FileSystemTest, RenameToFreeGivesWayToWhatBearsTheName) {
    directory.Write("from", "new");
    directory.Write("to", "old");
    EXPECT_EQ(files.renameToFree(directory / "from", directory / "to"), -EEXIST);
    EXPECT_EQ(directory.Read("to"), "old");
    EXPECT_EQ(directory.Read("from"), "new");

    EXPECT_EQ(files.renameToFree(directory / "from", directory / "free"), 0);
    EXPECT_EQ(directory.Read("free"), "new");
    EXPECT_FALSE(directory.Has("from"));
    EXPECT_EQ(files.renameToFree(directory / "missing", directory / "other"), -ENOENT);
}

TEST_F(FileSystemTest, RemoveTakesAFileAwayAndSaysWhenThereIsNone) {
    directory.Write("a", "");
    EXPECT_EQ(files.remove(directory / "a"), 0);
    EXPECT_FALSE(directory.Has("a"));
    EXPECT_EQ(files.remove(directory / "a"), -ENOENT);
}

TEST_F(FileSystemTest, ResolveGoesThroughAllLinks) {
    directory.Write("file", "");
    ASSERT_EQ(symlink("file", (directory / "one").c_str()), 0);
    ASSERT_EQ(symlink("one", (directory / "two").c_str()), 0);

    std::string direct;
    std::string linked;
    EXPECT_EQ(files.resolve(directory / "file", direct), 0);
    EXPECT_EQ(files.resolve(directory / "two", linked), 0);
    EXPECT_TRUE(direct.ends_with("/file"));
    EXPECT_EQ(linked, direct);
    EXPECT_EQ(files.resolve(directory / "missing", linked), -ENOENT);
    EXPECT_EQ(linked, direct);
}

TEST_F(FileSystemTest, EveryCallOnAClosedHandleSaysSo) {
    const int closed = Open("file", FileAccess::ReadOrCreate);
    ASSERT_GE(closed, 0);
    ASSERT_EQ(files.close(closed), 0);

    FileStatus status;
    char letter = 0;
    EXPECT_EQ(files.getStatus(closed, status), -EBADF);
    EXPECT_EQ(files.read(closed, 0, &letter, 1), -EBADF);
    EXPECT_EQ(files.write(closed, &letter, 1), -EBADF);
    EXPECT_EQ(files.findBytes(closed, 0), -EBADF);
    EXPECT_EQ(files.findHole(closed, 0), -EBADF);
    EXPECT_EQ(files.setLength(closed, 0), -EBADF);
    EXPECT_EQ(files.setPermissions(closed, 0600), -EBADF);
    EXPECT_EQ(files.lock(closed), -EBADF);
    EXPECT_EQ(files.flush(closed), -EBADF);
    EXPECT_EQ(files.close(closed), -EBADF);
}

TEST(TextOfSystem, TurnsTheSystemsEncodingIntoTheProgramsOne) {
    EXPECT_EQ(TextOfSystem("/home/maria/LOTTOSYS"), "/home/maria/LOTTOSYS");
    EXPECT_EQ(TextOfSystem("/home/j\xC3\xBCrgen"), "/home/j\xFCrgen");
    EXPECT_EQ(TextOfSystem("\xE2\x82\xAC and \xE2\x98\x83"), "\x80 and ?");
}

TEST(TextOfSystem, LeavesBytesThatAreNoTextAsTheyAre) {
    EXPECT_EQ(TextOfSystem("/disk/\xFCrgen"), "/disk/\xFCrgen");
}

}  // namespace
}  // namespace ballhaven::platform
