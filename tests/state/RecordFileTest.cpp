#include "state/RecordFile.h"

#include "platform/Services.h"
#include "platform/process/Signals.h"
#include "state/RuntimeFailure.h"
#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <sys/stat.h>

namespace ballhaven {
namespace {

using Files = std::map<std::string, std::string>;

/// The words of the failure that work ends in, empty for none.
template <typename Work>
std::string FailureOf(const Work& work) {
    try {
        work();
        return {};
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.GetKind(), RuntimeFailure::Kind::FileError);
        return failure.what();
    }
}

/// The words of a file error.
std::string FileError(const std::string& path, const std::string& reason) {
    return "File error: " + path + "\n" + reason;
}

std::string RandomBytes(std::mt19937& chance, std::size_t length) {
    std::string bytes(length, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(chance() % 256); });
    return bytes;
}

/// The bytes from `begin` on, `length` of them, with blanks where there are none.
std::string WithBlanks(const std::string& bytes, std::size_t begin, std::size_t length) {
    std::string cut = begin < bytes.size() ? bytes.substr(begin, length) : std::string();
    return cut + std::string(length - cut.size(), ' ');
}

/// A user who gives a save up when it has failed.
void GiveFailedSavesUp() {
    platform::services.showMessageBox = [](const platform::MessageBoxRequest&) { return platform::BoxAnswer::No; };
}

class RecordFileTest : public ::testing::Test {
  protected:
    void SetUp() override { GiveFailedSavesUp(); }

    support::TemporaryDirectory directory;
    std::string path = directory / "DATA";
};

TEST_F(RecordFileTest, AMissingFileComesIntoBeingEmpty) {
    const RecordFile file(path, 4, 3);
    EXPECT_EQ(file.Length(), 0);
    EXPECT_EQ(file.Read(1), "    ");
    EXPECT_EQ(file.Read(3), "    ");
    EXPECT_EQ(directory.Files(), (Files{{"DATA", ""}}));
}

TEST_F(RecordFileTest, AViewIsTheRecordAndNeedsNoCopyOfAWholeOne) {
    directory.Write("DATA", "abcdef");
    const RecordFile file(path, 4, 3);
    std::string padded;
    EXPECT_EQ(file.View(1, padded), "abcd");
    EXPECT_EQ(padded, "");
    EXPECT_EQ(file.View(2, padded), "ef  ");
    EXPECT_EQ(file.View(3, padded), "    ");
    EXPECT_THROW(static_cast<void>(file.View(4, padded)), RuntimeFailure);
}

TEST_F(RecordFileTest, RecordsStandOneBehindTheOtherWithoutMarks) {
    RecordFile file(path, 4, 3);
    file.Write(1, "abcd");
    file.Write(2, "efgh");
    file.Write(3, "ijkl");
    EXPECT_EQ(file.Length(), 12);
    file.Close();
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcdefghijkl"}}));
}

TEST_F(RecordFileTest, ARecordIsCutOrPaddedWithBlanksToItsLength) {
    RecordFile file(path, 4, 3);
    file.Write(1, "ab");
    file.Write(2, "abcdefgh");
    file.Write(3, "");
    file.Close();
    EXPECT_EQ(directory.Read("DATA"), "ab  abcd    ");
}

TEST_F(RecordFileTest, ARecordReadsAsWrittenBeforeTheFileIsClosed) {
    RecordFile file(path, 4, 3);
    file.Write(2, "ab");
    EXPECT_EQ(file.Read(1), "    ");
    EXPECT_EQ(file.Read(2), "ab  ");
    EXPECT_EQ(file.Length(), 8);
    EXPECT_EQ(directory.Read("DATA"), "");
}

TEST_F(RecordFileTest, AGapBeforeAWrittenRecordBecomesBlanks) {
    directory.Write("DATA", "ab");
    RecordFile file(path, 4, 3);
    file.Write(3, "cdef");
    file.Close();
    EXPECT_EQ(directory.Read("DATA"), "ab      cdef");
}

TEST_F(RecordFileTest, APartialLastRecordReadsAsFarAsItGoes) {
    directory.Write("DATA", "abcdef");
    const RecordFile file(path, 4, 3);
    EXPECT_EQ(file.Length(), 6);
    EXPECT_EQ(file.Read(1), "abcd");
    EXPECT_EQ(file.Read(2), "ef  ");
    EXPECT_EQ(file.Read(3), "    ");
}

TEST_F(RecordFileTest, WhatStandsBehindTheLastRecordStays) {
    directory.Write("DATA", "abcdefghTAIL\nof bytes");
    RecordFile file(path, 4, 2);
    EXPECT_EQ(file.Length(), 21);
    file.Write(2, "ijkl");
    EXPECT_EQ(file.Length(), 21);
    file.Close();
    EXPECT_EQ(directory.Read("DATA"), "abcdijklTAIL\nof bytes");
}

TEST_F(RecordFileTest, OnlyTheRecordsOfTheFormatAreReadFromAFarLargerFile) {
    directory.Write("DATA", std::string(8'000'000, 'x'));
    support::WatchedFiles watched;
    const RecordFile file(path, 64, 21);
    EXPECT_EQ(file.Length(), 8'000'000);
    ASSERT_EQ(watched.Count("read"), 1U);
    EXPECT_EQ(watched.calls[4].bytes, 1344U);
}

TEST_F(RecordFileTest, AllBytesSurvive) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    RecordFile written(path, 256, 1);
    written.Write(1, bytes);
    written.Close();
    EXPECT_EQ(directory.Read("DATA"), bytes);
    EXPECT_EQ(RecordFile(path, 256, 1).Read(1), bytes);
}

TEST_F(RecordFileTest, ARecordThatTheFormatDoesNotHaveIsASubscriptFailure) {
    RecordFile file(path, 4, 3);
    for (const int record : {-1, 0, 4, 1000}) {
        EXPECT_THROW((void)file.Read(record), RuntimeFailure) << record;
        EXPECT_THROW(file.Write(record, "abcd"), RuntimeFailure) << record;
    }
    file.Close();
    EXPECT_EQ(directory.Read("DATA"), "");
}

// ---- Files of every length ----

TEST_F(RecordFileTest, RandomFilesOfEveryLengthUpToTwoRecordsReadAsTheirBytesWithBlanksBehind) {
    std::mt19937 chance(1984);
    for (std::size_t length = 0; length <= 128; ++length) {
        const std::string bytes = RandomBytes(chance, length);
        for (int recordCount = 1; recordCount <= 3; ++recordCount) {
            directory.Write("DATA", bytes);
            RecordFile file(path, 64, recordCount);
            EXPECT_EQ(file.Length(), static_cast<std::int64_t>(length));
            for (int record = 1; record <= recordCount; ++record) {
                EXPECT_EQ(file.Read(record), WithBlanks(bytes, static_cast<std::size_t>(record - 1) * 64, 64));
            }
            file.Close();
            EXPECT_EQ(directory.Read("DATA"), bytes);
        }
    }
}

TEST_F(RecordFileTest, AWriteIntoARandomFileOfEveryLengthChangesThatRecordAlone) {
    std::mt19937 chance(2002);
    for (std::size_t length = 0; length <= 32; ++length) {
        const std::string bytes = RandomBytes(chance, length);
        for (int recordCount = 1; recordCount <= 3; ++recordCount) {
            for (int record = 1; record <= recordCount; ++record) {
                const std::size_t begin = static_cast<std::size_t>(record - 1) * 16;
                const std::string text = RandomBytes(chance, 16);
                std::string expected = WithBlanks(bytes, 0, std::max(length, begin + 16));
                expected.replace(begin, 16, text);

                directory.Write("DATA", bytes);
                RecordFile file(path, 16, recordCount);
                file.Write(record, text);
                EXPECT_EQ(file.Length(), static_cast<std::int64_t>(expected.size()));
                file.Close();
                EXPECT_EQ(directory.Files(), (Files{{"DATA", expected}})) << length << " " << record;
            }
        }
    }
}

// ---- What is written, and when ----

TEST_F(RecordFileTest, NothingIsWrittenWhenNoByteHasChanged) {
    directory.Write("DATA", "abcdef  ghij");
    support::WatchedFiles watched;
    RecordFile file(path, 4, 3);
    file.Write(1, "abcd");
    file.Write(2, "ef");
    file.Write(3, "ghijk");
    const std::size_t callsOfTheOpening = watched.calls.size();
    file.Close();
    EXPECT_EQ(callsOfTheOpening, 6U);
    EXPECT_EQ(watched.calls.size(), callsOfTheOpening);
}

TEST_F(RecordFileTest, BlanksThatMakeTheFileLongerAreAChange) {
    directory.Write("DATA", "abcdef");
    RecordFile file(path, 4, 3);
    file.Write(2, "ef");
    file.Close();
    EXPECT_EQ(directory.Read("DATA"), "abcdef  ");
}

TEST_F(RecordFileTest, AFileThatIsNotClosedIsLeftAsItWas) {
    directory.Write("DATA", "abcd");
    {
        RecordFile file(path, 4, 3);
        file.Write(1, "efgh");
    }
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcd"}}));
}

TEST_F(RecordFileTest, ASecondCloseWritesOnlyWhatHasChangedSince) {
    support::WatchedFiles watched;
    RecordFile file(path, 4, 3);
    file.Write(1, "abcd");
    file.Close();
    file.Close();
    EXPECT_EQ(watched.Count("rename"), 1U);
    file.Write(2, "efgh");
    file.Close();
    EXPECT_EQ(watched.Count("rename"), 2U);
    EXPECT_EQ(directory.Read("DATA"), "abcdefgh");
}

TEST_F(RecordFileTest, AFailedCloseCanBeTakenAgain) {
    directory.Write("DATA", "abcd");
    support::WatchedFiles watched;
    watched.room = 2;
    RecordFile file(path, 4, 3);
    file.Write(1, "efgh");
    EXPECT_THROW(file.Close(), RuntimeFailure);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcd"}}));

    watched.room = 100;
    file.Close();
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "efgh"}}));
}

TEST_F(RecordFileTest, AFailedSaveIsTriedAgainForAsLongAsTheUserSaysSo) {
    directory.Write("DATA", "abcd");
    support::WatchedFiles watched;
    watched.room = 2;
    int asked = 0;
    platform::services.showMessageBox = [&](const platform::MessageBoxRequest& request) {
        EXPECT_TRUE(request.text.starts_with(FileError(path, "No space left on device"))) << request.text;
        watched.room = ++asked == 3 ? 100 : 2;
        return platform::BoxAnswer::Yes;
    };
    RecordFile file(path, 4, 3);
    file.Write(1, "efgh");
    file.Close();
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "efgh"}}));
}

// ---- The words of failures ----

TEST_F(RecordFileTest, ADirectoryInTheFilesPlaceIsNamedWithTheReason) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(FailureOf([&] { RecordFile(path, 4, 3); }), FileError(path, "Is a directory"));
}

TEST_F(RecordFileTest, AMissingDirectoryIsNamedWithTheReason) {
    const std::string missing = directory / "missing/DATA";
    EXPECT_EQ(FailureOf([&] { RecordFile(missing, 4, 3); }), FileError(missing, "No such file or directory"));
}

TEST_F(RecordFileTest, APathIsNamedInTheProgramsOwnEncoding) {
    const std::string missing = directory / "M\xC3\xBCller/DATA";
    EXPECT_EQ(FailureOf([&] { RecordFile(missing, 4, 3); }),
              FileError(directory / "M\xFCller/DATA", "No such file or directory"));
}

TEST_F(RecordFileTest, AFullDiskIsNamedWithTheFileThatWasToBeSaved) {
    directory.Write("DATA", "abcd");
    support::WatchedFiles watched;
    watched.room = 2;
    RecordFile file(path, 4, 3);
    file.Write(1, "efgh");
    EXPECT_EQ(FailureOf([&] { file.Close(); }), FileError(path, "No space left on device"));
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcd"}}));
}

TEST_F(RecordFileTest, AFileThatCannotBeReadIsNamedWithTheReason) {
    directory.Write("DATA", "abcd");
    ASSERT_EQ(chmod(directory.Path().c_str(), 0777), 0);
    ASSERT_EQ(chmod(path.c_str(), 0644), 0);
    const auto open = [&] {
        support::BecomeOrdinaryUser();
        return FailureOf([&] { RecordFile(path, 4, 3); });
    };
    EXPECT_EQ(support::RunInChild(open).words, "");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    EXPECT_EQ(support::RunInChild(open).words, FileError(path, "Permission denied"));
}

TEST_F(RecordFileTest, InADirectoryThatCannotBeWrittenFilesAreReadAndSavesAreRefused) {
    directory.Write("DATA", "abcd");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(chmod(directory.Path().c_str(), 0555), 0);
    const auto save = [&] {
        support::BecomeOrdinaryUser();
        RecordFile file(path, 4, 3);
        const std::string read = file.Read(1);
        file.Write(1, "efgh");
        return read + " " + FailureOf([&] { file.Close(); });
    };
    EXPECT_EQ(support::RunInChild(save).words, "abcd " + FileError(path, "Permission denied"));

    const std::string missing = directory / "MISSING";
    const auto create = [&] {
        support::BecomeOrdinaryUser();
        return FailureOf([&] { RecordFile(missing, 4, 3); });
    };
    EXPECT_EQ(support::RunInChild(create).words, FileError(missing, "Permission denied"));
    EXPECT_EQ(directory.Files(), (Files{{"DATA", "abcd"}}));
    ASSERT_EQ(chmod(directory.Path().c_str(), 0777), 0);
}

// ---- Whole saves of the program's files ----

struct Format {
    const char* name;
    int recordLength;
    int recordCount;
};

/// A change of every record of a file, from one letter to another.
class WholeSave : public ::testing::TestWithParam<Format> {
  protected:
    void SetUp() override { GiveFailedSavesUp(); }

    /// Puts the old file into the directory, alone.
    void Restore() const {
        std::filesystem::remove(path + ".new");
        directory.Write(format.name, oldContent);
    }

    [[nodiscard]] RecordFile Open() const { return {path, format.recordLength, format.recordCount}; }

    /// Opens the file, writes all records and closes it.
    void Save() const {
        RecordFile file = Open();
        for (int record = 1; record <= format.recordCount; ++record) {
            file.Write(record, std::string(static_cast<std::size_t>(format.recordLength), 'n'));
        }
        file.Close();
    }

    const Format format = GetParam();
    const std::size_t length =
        static_cast<std::size_t>(format.recordLength) * static_cast<std::size_t>(format.recordCount);
    const std::string oldContent = std::string(length, 'o');
    const std::string newContent = std::string(length, 'n');
    const support::TemporaryDirectory directory;
    const std::string path = directory / format.name;
};

constexpr std::size_t callsOfAnOpening = 6;
constexpr std::size_t callsOfAClose = 13;   // one of them the write of all bytes
constexpr std::size_t sizeOfAWrite = 4096;  // where that one is taken in pieces, to stop inside the bytes too

TEST_P(WholeSave, KilledBeforeOrAfterAnyCallLeavesTheOldFileOrTheNewOne) {
    const std::size_t writes = (length + sizeOfAWrite - 1) / sizeOfAWrite;
    const std::size_t calls = callsOfAnOpening + callsOfAClose - 1 + writes;
    std::size_t oldFiles = 0;
    std::size_t leftOvers = 0;
    for (std::size_t moment = 0; moment < 2 * calls; ++moment) {
        const auto killAt = [moment](std::size_t reached) {
            if (reached == moment) {
                support::KillThisProcess();
            }
        };
        Restore();
        const support::ChildEnd end = support::RunInChild([&] {
            support::WatchedFiles watched;
            watched.mostBytesOfWrite = sizeOfAWrite;
            watched.before = [&](std::size_t call) {
                killAt(2 * call);
                return 0;
            };
            watched.after = [&](std::size_t call) { killAt(2 * call + 1); };
            Save();
            return std::string("saved");
        });
        ASSERT_TRUE(end.killed) << moment;

        const std::string content = directory.Read(format.name);
        ASSERT_TRUE(content == oldContent || content == newContent) << moment;
        oldFiles += content == oldContent ? 1 : 0;
        leftOvers += directory.Has(std::string(format.name) + ".new") ? 1 : 0;

        EXPECT_EQ(Open().Length(), static_cast<std::int64_t>(length));
        ASSERT_EQ(directory.Files(), (Files{{format.name, content}})) << moment;
    }
    // The rename alone brings the new file: the kill after it finds it, and those at the flush and the closing of the
    // directory.
    EXPECT_EQ(oldFiles, 2 * calls - 5);
    // The temporary file is there after its creation, around its permissions, the writes, the closing of the old file,
    // its flush and its closing, and before the rename.
    EXPECT_EQ(leftOvers, 1 + 2 * (1 + writes + 3) + 1);
    RecordProperty("kills", static_cast<int>(2 * calls));
}

TEST_P(WholeSave, AnyCallThatFailsLeavesTheOldFileOrTheNewOneAndNothingBesideIt) {
    const std::size_t flushOfTheDirectory = callsOfAnOpening + callsOfAClose - 2;
    std::size_t failures = 0;
    for (const int error : {ENOSPC, EIO}) {
        for (std::size_t failing = 0; failing < callsOfAnOpening + callsOfAClose; ++failing) {
            Restore();
            support::WatchedFiles watched;
            watched.before = [&](std::size_t call) { return call == failing ? error : 0; };
            const std::string words = FailureOf([&] { Save(); });
            ASSERT_GT(watched.calls.size(), failing);

            const bool isNew = words.empty() || failing == flushOfTheDirectory;
            EXPECT_EQ(directory.Files(), (Files{{format.name, isNew ? newContent : oldContent}})) << failing;
            EXPECT_TRUE(words.empty() || words.starts_with(FileError(path, ""))) << words;
            failures += words.empty() ? 0 : 1;
        }
    }
    // Four are without effect: the removal of a left-over that is not there, the closing of the file that was read, of
    // the old file and of the directory.
    EXPECT_EQ(failures, 2 * (callsOfAnOpening + callsOfAClose - 4));
}

TEST_P(WholeSave, ASystemThatTakesOnlySoManyBytesLeavesTheOldFile) {
    Restore();
    const auto saveWithin = [this](std::size_t limit) {
        return support::RunInChild([&] {
            platform::LetWritesFail();
            support::LimitFileLength(limit);
            return FailureOf([&] { Save(); });
        });
    };
    for (const std::size_t limit : {std::size_t{0}, std::size_t{1}, std::size_t{64}, std::size_t{1000}, length - 1}) {
        EXPECT_EQ(saveWithin(limit).words, FileError(path, "File too large"));
        EXPECT_EQ(directory.Files(), (Files{{format.name, oldContent}})) << limit;
    }
    EXPECT_EQ(saveWithin(length).words, "");
    EXPECT_EQ(directory.Files(), (Files{{format.name, newContent}}));
}

INSTANTIATE_TEST_SUITE_P(Formats, WholeSave,
                         ::testing::Values(Format{"LOTTOSYS", 64, 21}, Format{"GAME07.CDB", 64, 1001},
                                           Format{"PLAYS07.CDB", 64, 5000}, Format{"SHUFFLE.CDB", 320, 40}),
                         [](const auto& tested) {
                             const std::string name = tested.param.name;
                             return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace ballhaven
