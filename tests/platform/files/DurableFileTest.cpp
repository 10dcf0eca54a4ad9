#include "platform/files/DurableFile.h"

#include "platform/files/FileSystem.h"
#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <map>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <vector>

namespace ballhaven::platform {
namespace {

using Files = std::map<std::string, std::string>;
using Names = std::vector<std::string>;

constexpr std::int64_t noTail = 1'000'000'000;

/// The error number that work ends in, 0 for none.
template <typename Work>
int ErrorOf(const Work& work) {
    try {
        work();
        return 0;
    } catch (const std::system_error& error) {
        return error.code().value();
    }
}

class DurableFileTest : public ::testing::Test {
  protected:
    [[nodiscard]] unsigned PermissionsOf(const std::string& name) const {
        struct stat found {};
        EXPECT_EQ(stat((directory / name).c_str(), &found), 0);
        return found.st_mode & 07777U;
    }

    support::TemporaryDirectory directory;
    std::string path = directory / "DATA";
};

TEST_F(DurableFileTest, ReadingAMissingFileMakesItEmpty) {
    const FileHead head = ReadHead(path, 100);
    EXPECT_EQ(head.bytes, "");
    EXPECT_EQ(head.length, 0);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", ""}}));
}

TEST_F(DurableFileTest, NoMoreThanTheLimitIsRead) {
    directory.Write("DATA", "0123456789");
    EXPECT_EQ(ReadHead(path, 11).bytes, "0123456789");
    EXPECT_EQ(ReadHead(path, 10).bytes, "0123456789");

    support::WatchedFiles watched;
    const FileHead head = ReadHead(path, 4);
    EXPECT_EQ(head.bytes, "0123");
    EXPECT_EQ(head.length, 10);
    ASSERT_EQ(watched.Count("read"), 1U);
    EXPECT_EQ(watched.calls[4].bytes, 4U);
}

TEST_F(DurableFileTest, ShortReadsGoOnWhereTheyStopped) {
    directory.Write("DATA", "0123456789");
    support::WatchedFiles watched;
    watched.mostBytesOfRead = 3;
    EXPECT_EQ(ReadHead(path, 10).bytes, "0123456789");
    EXPECT_EQ(watched.Count("read"), 4U);
}

TEST_F(DurableFileTest, AFileThatShrinksWhileItIsReadHasTheLengthOfWhatWasRead) {
    directory.Write("DATA", "0123456789");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) {
        if (watched.calls[call].name == "read") {
            directory.Write("DATA", "0123");
        }
        return 0;
    };
    const FileHead head = ReadHead(path, 10);
    EXPECT_EQ(head.bytes, "0123");
    EXPECT_EQ(head.length, 4);
}

TEST_F(DurableFileTest, ReadingRemovesTheTemporaryFileThatACrashLeft) {
    directory.Write("DATA", "old");
    directory.Write("DATA.new", "half writ");
    directory.Write("DATA2.new", "of another file");
    EXPECT_EQ(ReadHead(path, 100).bytes, "old");
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "old"}, {"DATA2.new", "of another file"}}));
}

TEST_F(DurableFileTest, ALeftOverThatCannotBeRemovedHindersNoReaderButEveryWriter) {
    directory.Write("DATA", "old");
    std::filesystem::create_directory(directory / "DATA.new");
    EXPECT_EQ(ReadHead(path, 100).bytes, "old");
    EXPECT_EQ(ErrorOf([&] { ReplaceHead(path, "new", noTail); }), EEXIST);
    EXPECT_EQ(directory.Read("DATA"), "old");
    EXPECT_TRUE(directory.Has("DATA.new"));
}

TEST_F(DurableFileTest, WhatIsNoRegularFileIsRefused) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { (void)ReadHead(path, 100); }), ENOTSUP);
    EXPECT_EQ(ErrorOf([&] { (void)ReadHead(directory.Path(), 100); }), EISDIR);
    EXPECT_EQ(ErrorOf([&] { (void)ReadHead("/dev/zero", 100); }), ENOTSUP);
}

TEST_F(DurableFileTest, AMissingDirectoryIsNotMade) {
    EXPECT_EQ(ErrorOf([&] { (void)ReadHead(directory / "missing/DATA", 100); }), ENOENT);
    EXPECT_EQ(directory.Files(), Files{});
}

TEST_F(DurableFileTest, ASaveTakesTheseCallsInThisOrder) {
    directory.Write("DATA", "old");
    support::WatchedFiles watched;
    ReplaceHead(path, "new", noTail);
    EXPECT_EQ(watched.Names(),
              (Names{"resolve", "open UpdateOrCreate", "getStatus", "open Directory", "open CreateNew",
                     "setPermissions", "write", "close", "flush", "close", "rename", "flush", "close"}));
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "new"}}));
}

TEST_F(DurableFileTest, TheHeadIsWrittenInOneCallHoweverLargeItIs) {
    directory.Write("DATA", "old");
    const std::string head(320'000, 'x');
    support::WatchedFiles watched;
    ReplaceHead(path, head, noTail);
    EXPECT_EQ(watched.calls.size(), 13U);
    EXPECT_EQ(directory.Read("DATA"), head);
}

TEST_F(DurableFileTest, AShorterHeadMakesTheFileShorter) {
    directory.Write("DATA", "0123456789");
    ReplaceHead(path, "ab", noTail);
    EXPECT_EQ(directory.Read("DATA"), "ab");
    ReplaceHead(path, "", noTail);
    EXPECT_EQ(directory.Read("DATA"), "");
}

TEST_F(DurableFileTest, AFileThatHasGoneMeanwhileIsMadeAgain) {
    directory.Write("DATA", "old");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) {
        if (watched.calls[call].name == "open UpdateOrCreate") {
            std::filesystem::remove(path);
        }
        return 0;
    };
    ReplaceHead(path, "new", noTail);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "new"}}));
}

TEST_F(DurableFileTest, TheTailStaysAndIsCopiedInChunks) {
    std::string tail;
    for (int i = 0; i < 200'000; ++i) {
        tail += static_cast<char>('a' + i % 23);
    }
    directory.Write("DATA", "0123456789" + tail);

    support::WatchedFiles watched;
    ReplaceHead(path, "abcdefghij", 10);
    EXPECT_EQ(directory.Read("DATA"), "abcdefghij" + tail);
    // 200,000 bytes are three chunks of 65,536 and a rest of 3392; the head is the fifth write.
    EXPECT_EQ(watched.Count("read"), 4U);
    EXPECT_EQ(watched.Count("write"), 5U);
    for (const auto& call : watched.calls) {
        EXPECT_LE(call.bytes, 65'536U) << call.name;
    }
}

TEST_F(DurableFileTest, ATailThatShrinksWhileItIsCopiedEndsWhereItEnds) {
    directory.Write("DATA", "0123456789tail");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) {
        if (watched.calls[call].name == "read") {
            std::filesystem::resize_file(path, 12);
        }
        return 0;
    };
    ReplaceHead(path, "abcdefghij", 10);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcdefghijta"}}));
}

/// A file of bytes and holes, each of these lengths in turn, the first one bytes.
void WriteWithHoles(const std::string& path, std::initializer_list<std::int64_t> lengths) {
    std::ofstream file(path, std::ios::binary);
    std::int64_t length = 0;
    bool isHole = false;
    for (const std::int64_t each : lengths) {
        length += each;
        if (isHole) {
            file.seekp(length);
        } else {
            file << std::string(static_cast<std::size_t>(each), 'b');
        }
        isHole = !isHole;
    }
    file.close();
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(length));
}

TEST_F(DurableFileTest, HolesInTheTailStayHolesAndAreNotReadHoweverLargeTheyAre) {
    constexpr std::int64_t gibibyte = 1024 * 1024 * 1024;
    constexpr std::int64_t piece = 64 * 1024;  // no system has smaller holes
    WriteWithHoles(path, {piece, gibibyte, piece, gibibyte});
    support::WatchedFiles watched;
    ReplaceHead(path, std::string(10, 'h'), 10);

    struct stat found {};
    ASSERT_EQ(stat(path.c_str(), &found), 0);
    EXPECT_EQ(found.st_size, 2 * piece + 2 * gibibyte);
    EXPECT_LE(found.st_blocks * 512, 4 * piece);
    EXPECT_LE(watched.Count("read"), 4U);

    std::ifstream file(path, std::ios::binary);
    std::string bytes(piece + 1, '.');
    file.read(bytes.data(), piece + 1);
    EXPECT_EQ(bytes, std::string(10, 'h') + std::string(piece - 10, 'b') + '\0');
    file.seekg(piece + gibibyte - 1);
    file.read(bytes.data(), piece + 1);
    EXPECT_EQ(bytes, '\0' + std::string(piece, 'b'));
}

TEST_F(DurableFileTest, AHoleMovesWithTheTailThatItStandsIn) {
    constexpr std::int64_t piece = 64 * 1024;
    WriteWithHoles(path, {piece, 4 * piece, piece});
    ReplaceHead(path, "head", piece);
    EXPECT_EQ(directory.Read("DATA"), "head" + std::string(4 * piece, '\0') + std::string(piece, 'b'));
}

TEST_F(DurableFileTest, AnErrorWhileAHoleIsMadeLeavesTheOldFile) {
    constexpr std::int64_t piece = 64 * 1024;
    WriteWithHoles(path, {piece, piece, piece});
    const std::string before = directory.Read("DATA");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) { return watched.calls[call].name == "setLength" ? EFBIG : 0; };
    EXPECT_EQ(ErrorOf([&] { ReplaceHead(path, "head", 10); }), EFBIG);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", before}}));
}

TEST_F(DurableFileTest, AFileThatEndsWhereTheTailWouldBeginHasNone) {
    directory.Write("DATA", "0123456789");
    support::WatchedFiles watched;
    ReplaceHead(path, "abcdefghij", 10);
    EXPECT_EQ(directory.Read("DATA"), "abcdefghij");
    EXPECT_EQ(watched.Count("read"), 0U);
}

TEST_F(DurableFileTest, ShortWritesGoOnWhereTheyStopped) {
    directory.Write("DATA", "0123456789tail of the file");
    support::WatchedFiles watched;
    watched.mostBytesOfWrite = 3;
    ReplaceHead(path, "abcdefghij", 10);
    EXPECT_EQ(directory.Read("DATA"), "abcdefghijtail of the file");
    EXPECT_EQ(watched.Count("write"), 4U + 6U);
}

TEST_F(DurableFileTest, AWriteThatTakesNothingIsAFullDisk) {
    directory.Write("DATA", "old");
    support::WatchedFiles watched;
    fileSystem.write = [](int, const char*, std::size_t) { return std::int64_t{0}; };
    EXPECT_EQ(ErrorOf([&] { ReplaceHead(path, "new", noTail); }), ENOSPC);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "old"}}));
}

TEST_F(DurableFileTest, EveryCallThatASignalInterruptsIsTakenAgain) {
    directory.Write("DATA", "0123456789tail");
    support::WatchedFiles watched;
    bool interrupted = false;
    watched.before = [&](std::size_t call) {
        const bool isRepeat = call > 0 && watched.calls[call - 1].name == watched.calls[call].name;
        const bool interrupts = !isRepeat && watched.calls[call].name != "close";
        interrupted = interrupted || interrupts;
        return interrupts ? EINTR : 0;
    };
    ReplaceHead(path, "abcdefghij", 10);
    EXPECT_TRUE(interrupted);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcdefghijtail"}}));
}

TEST_F(DurableFileTest, AnInterruptedCloseIsNotRepeatedSinceTheHandleIsGone) {
    directory.Write("DATA", "old");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) { return watched.calls[call].name == "close" ? EINTR : 0; };
    ReplaceHead(path, "new", noTail);
    EXPECT_EQ(watched.Count("close"), 3U);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "new"}}));
}

TEST_F(DurableFileTest, AFileSystemWithoutFlushOfDirectoriesIsNoError) {
    for (const int error : {EINVAL, ENOTSUP}) {
        directory.Write("DATA", "old");
        support::WatchedFiles watched;
        watched.before = [&](std::size_t call) { return call == 11 ? error : 0; };
        EXPECT_EQ(ErrorOf([&] { ReplaceHead(path, "new", noTail); }), 0);
        EXPECT_EQ(watched.calls[11].name, "flush");
        EXPECT_EQ(directory.Files(), (Files{{"DATA", "new"}}));
    }
}

TEST_F(DurableFileTest, ThePermissionsOfTheFileStay) {
    for (const unsigned permissions : {0600U, 0644U, 0664U, 0640U, 0666U}) {
        directory.Write("DATA", "old");
        ASSERT_EQ(chmod(path.c_str(), permissions), 0);
        ReplaceHead(path, "new", noTail);
        EXPECT_EQ(PermissionsOf("DATA"), permissions);
    }
}

TEST_F(DurableFileTest, ALinkGoesOnPointingToTheFileThatIsReplaced) {
    std::filesystem::create_directory(directory / "there");
    directory.Write("there/REAL", "old");
    std::filesystem::create_symlink("there/REAL", path);

    ReplaceHead(path, "new", noTail);
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(directory.Read("there/REAL"), "new");
    EXPECT_FALSE(directory.Has("DATA.new"));

    directory.Write("there/REAL.new", "left over");
    EXPECT_EQ(ReadHead(path, 100).bytes, "new");
    EXPECT_FALSE(directory.Has("there/REAL.new"));
}

TEST_F(DurableFileTest, ALinkThatPointsNowhereMakesItsFileWhereItPoints) {
    std::filesystem::create_symlink("REAL", path);
    EXPECT_EQ(ReadHead(path, 100).length, 0);
    ReplaceHead(path, "new", noTail);
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(directory.Read("REAL"), "new");
}

TEST_F(DurableFileTest, AFileThatIsProtectedAgainstWritingIsNotReplaced) {
    directory.Write("DATA", "old");
    ASSERT_EQ(chmod(directory.Path().c_str(), 0777), 0);
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    const auto save = [&] {
        support::BecomeOrdinaryUser();
        const std::string read = ReadHead(path, 100).bytes;
        return read + ", " + std::to_string(ErrorOf([&] { ReplaceHead(path, "new", noTail); }));
    };
    EXPECT_EQ(support::RunInChild(save).words, "old, " + std::to_string(EACCES));
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "old"}}));
}

// ---- Errors at every call
// ---------------------------------------------------------------------------------------------

enum class Outcome { OldAndFailure, NewAndFailure, NewWithoutFailure };

struct FaultyCall {
    const char* name;
    Outcome outcome;
};

// A read and a save of a file with a tail, call by call, and what becomes of the file when that call fails. Without an
// effect are only the removal of a left-over that is not there, and the closing of what was only read.
constexpr FaultyCall callsOfASave[] = {
    {"open ReadOrCreate", Outcome::OldAndFailure},
    {"getStatus", Outcome::OldAndFailure},
    {"resolve", Outcome::OldAndFailure},
    {"remove", Outcome::NewWithoutFailure},
    {"read", Outcome::OldAndFailure},
    {"close", Outcome::NewWithoutFailure},
    {"resolve", Outcome::OldAndFailure},
    {"open UpdateOrCreate", Outcome::OldAndFailure},
    {"getStatus", Outcome::OldAndFailure},
    {"open Directory", Outcome::OldAndFailure},
    {"open CreateNew", Outcome::OldAndFailure},
    {"setPermissions", Outcome::OldAndFailure},
    {"write", Outcome::OldAndFailure},
    {"findBytes", Outcome::OldAndFailure},
    {"findHole", Outcome::OldAndFailure},
    {"read", Outcome::OldAndFailure},
    {"write", Outcome::OldAndFailure},
    {"close", Outcome::NewWithoutFailure},
    {"flush", Outcome::OldAndFailure},
    {"close", Outcome::OldAndFailure},
    {"rename", Outcome::OldAndFailure},
    {"flush", Outcome::NewAndFailure},
    {"close", Outcome::NewWithoutFailure},
};

class ErrorAtEveryCall : public DurableFileTest, public ::testing::WithParamInterface<int> {
  protected:
    void ReadAndSave() const {
        (void)ReadHead(path, 10);
        ReplaceHead(path, "abcdefghij", 10);
    }

    const std::string oldContent = "0123456789tail";
    const std::string newContent = "abcdefghijtail";
};

TEST_P(ErrorAtEveryCall, LeavesTheOldFileOrTheNewOneAndNothingBesideIt) {
    std::size_t failures = 0;
    for (std::size_t failing = 0; failing < std::size(callsOfASave); ++failing) {
        const FaultyCall& expected = callsOfASave[failing];
        SCOPED_TRACE(std::to_string(failing) + " " + expected.name);
        directory.Write("DATA", oldContent);

        support::WatchedFiles watched;
        watched.before = [&](std::size_t call) { return call == failing ? GetParam() : 0; };
        const int error = ErrorOf([&] { ReadAndSave(); });

        ASSERT_GT(watched.calls.size(), failing);
        EXPECT_EQ(watched.calls[failing].name, expected.name);
        EXPECT_EQ(error, expected.outcome == Outcome::NewWithoutFailure ? 0 : GetParam());
        EXPECT_EQ(directory.Files(),
                  (Files{{"DATA", expected.outcome == Outcome::OldAndFailure ? oldContent : newContent}}));
        failures += error == 0 ? 0 : 1;
    }
    EXPECT_EQ(failures, 19U);
}

TEST_P(ErrorAtEveryCall, MeetsAllCallsThatASaveMakes) {
    directory.Write("DATA", oldContent);
    support::WatchedFiles watched;
    ReadAndSave();
    Names expected;
    std::transform(std::begin(callsOfASave), std::end(callsOfASave), std::back_inserter(expected),
                   [](const FaultyCall& call) { return call.name; });
    EXPECT_EQ(watched.Names(), expected);
}

INSTANTIATE_TEST_SUITE_P(Errors, ErrorAtEveryCall, ::testing::Values(ENOSPC, EIO, EACCES, EROFS, EDQUOT));

TEST_F(DurableFileTest, ADiskThatIsFullAfterAnyNumberOfBytesLeavesTheOldFile) {
    const std::string head(100, 'x');
    for (std::size_t room = 0; room < head.size() + 4; ++room) {
        directory.Write("DATA", std::string(100, 'o') + "tail");
        support::WatchedFiles watched;
        watched.room = room;
        EXPECT_EQ(ErrorOf([&] { ReplaceHead(path, head, 100); }), ENOSPC) << room;
        EXPECT_EQ(directory.Files(), (Files{{"DATA", std::string(100, 'o') + "tail"}})) << room;
    }
    support::WatchedFiles watched;
    watched.room = head.size() + 4;
    ReplaceHead(path, head, 100);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", head + "tail"}}));
}

class NewFileTest : public DurableFileTest {
  protected:
    /// Saves a report, and the path under which it stands.
    [[nodiscard]] std::string Save(const std::string& bytes) const {
        return NewFile(directory.Path(), "Report", ".pdf").Save(bytes);
    }
};

TEST_F(NewFileTest, StandsUnderItsNameWhenItIsSavedAndNotBefore) {
    NewFile file(directory.Path(), "Report", ".pdf");
    EXPECT_EQ(directory.Files(), (Files{{"Report.pdf.new", ""}}));
    EXPECT_EQ(file.Save("pages"), directory / "Report.pdf");
    EXPECT_EQ(directory.Files(), (Files{{"Report.pdf", "pages"}}));
}

TEST_F(NewFileTest, NeverTakesAnotherOnesPlace) {
    directory.Write("Report.pdf", "the user's");
    EXPECT_EQ(Save("second"), directory / "Report (2).pdf");
    EXPECT_EQ(Save("third"), directory / "Report (3).pdf");
    EXPECT_EQ(directory.Files(),
              (Files{{"Report.pdf", "the user's"}, {"Report (2).pdf", "second"}, {"Report (3).pdf", "third"}}));
}

TEST_F(NewFileTest, ThatIsNotSavedLeavesNothing) {
    { const NewFile file(directory.Path(), "Report", ".pdf"); }
    EXPECT_EQ(directory.Files(), Files{});
}

TEST_F(NewFileTest, LeavesAFileAloneThatBearsItsTemporaryName) {
    directory.Write("Report.pdf.new", "the user's");
    std::filesystem::create_symlink("nowhere", directory / "Report (2).pdf.new");
    {
        const NewFile file(directory.Path(), "Report", ".pdf");
        EXPECT_TRUE(directory.Has("Report (3).pdf.new"));
    }
    EXPECT_EQ(Save("pages"), directory / "Report.pdf");
    std::filesystem::remove(directory / "Report (2).pdf.new");
    EXPECT_EQ(directory.Files(), (Files{{"Report.pdf", "pages"}, {"Report.pdf.new", "the user's"}}));
}

TEST_F(NewFileTest, GivesUpWhereNoTemporaryNameIsFree) {
    fileSystem.open = [](const std::string&, FileAccess) { return -EEXIST; };
    EXPECT_EQ(ErrorOf([this] { const NewFile file(directory.Path(), "Report", ".pdf"); }), EEXIST);
}

TEST_F(NewFileTest, InAFolderThatDoesNotExistFailsAtOnce) {
    EXPECT_EQ(ErrorOf([this] { const NewFile file(directory / "missing", "Report", ".pdf"); }), ENOENT);
}

TEST_F(NewFileTest, OnAFullDiskLeavesNothing) {
    support::WatchedFiles watched;
    watched.room = 3;
    EXPECT_EQ(ErrorOf([this] { (void)Save("pages"); }), ENOSPC);
    EXPECT_EQ(directory.Files(), Files{});
}

TEST_F(NewFileTest, ReachesTheDiskBeforeItBearsItsName) {
    support::WatchedFiles watched;
    (void)Save("pages");
    EXPECT_EQ(watched.Names(),
              (Names{"open CreateNew", "open Directory", "write", "flush", "close", "renameToFree", "flush", "close"}));
}

TEST_F(NewFileTest, AnErrorInAnyCallLeavesNothingOrTheWholeFile) {
    // The last two calls come when the file has its name.
    for (std::size_t failing = 0; failing < 6; ++failing) {
        support::WatchedFiles watched;
        watched.before = [failing](std::size_t call) { return call == failing ? EIO : 0; };
        EXPECT_EQ(ErrorOf([this] { (void)Save("pages"); }), EIO) << failing;
        EXPECT_EQ(directory.Files(), Files{}) << failing;
    }
    support::WatchedFiles watched;
    watched.before = [](std::size_t call) { return call == 6 ? EIO : 0; };
    EXPECT_EQ(ErrorOf([this] { (void)Save("pages"); }), EIO);
    EXPECT_EQ(directory.Files(), (Files{{"Report.pdf", "pages"}}));
}

TEST_F(NewFileTest, GivesUpWhereNoNameIsFree) {
    fileSystem.renameToFree = [](const std::string&, const std::string&) { return -EEXIST; };
    EXPECT_EQ(ErrorOf([this] { (void)Save("pages"); }), EEXIST);
    EXPECT_EQ(directory.Files(), Files{});
}

TEST_F(NewFileTest, UnderItsOwnNameItTakesNoOther) {
    const auto saveHere = [this] { NewFile(directory.Path(), "Draws", ".csv").SaveUnderItsName("draws"); };
    saveHere();
    EXPECT_EQ(directory.Files(), (Files{{"Draws.csv", "draws"}}));
    directory.Write("Draws.csv", "the user's");
    EXPECT_EQ(ErrorOf(saveHere), EEXIST);
    EXPECT_EQ(directory.Files(), (Files{{"Draws.csv", "the user's"}}));
}

TEST_F(NewFileTest, UnderItsOwnNameItReachesTheDiskBeforeItBearsThat) {
    support::WatchedFiles watched;
    NewFile(directory.Path(), "Draws", ".csv").SaveUnderItsName("draws");
    EXPECT_EQ(watched.Names(),
              (Names{"open CreateNew", "open Directory", "write", "flush", "close", "renameToFree", "flush", "close"}));
}

TEST_F(NewFileTest, WhatIsAddedStandsBeforeWhatIsSaved) {
    NewFile file(directory.Path(), "Draws", ".csv");
    file.Add("first ");
    file.Add("second ");
    EXPECT_EQ(directory.Files(), (Files{{"Draws.csv.new", "first second "}}));

    file.SaveUnderItsName("third");
    EXPECT_EQ(directory.Files(), (Files{{"Draws.csv", "first second third"}}));
}

}  // namespace
}  // namespace ballhaven::platform
