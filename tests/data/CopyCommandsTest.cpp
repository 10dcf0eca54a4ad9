#include "data/CopyCommands.h"

#include "data/CommandTest.h"
#include "support/ChildProcess.h"
#include "support/WatchedFiles.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace ballhaven::data {
namespace {

class CopyCommandsTest : public CommandTest {
  protected:
    void SetUp() override {
        CommandTest::SetUp();
        zip = elsewhere / "a copy.zip";
    }

    [[nodiscard]] static std::string BytesOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// Leaves three files in the folder, so that copying it takes a moment only.
    void KeepThreeFiles() const {
        for (const auto& [name, bytes] : directory.Files()) {
            if (name != "LOTTOSYS" && name != "GAME09.CDB" && name != "SHUFFLE.CDB") {
                std::filesystem::remove(directory / name);
            }
        }
    }

    void RemoveCopies() const { std::filesystem::remove_all(directory / "copies"); }

    support::TemporaryDirectory elsewhere;
    std::string zip;
};

TEST_F(CopyCommandsTest, ABackupHoldsEveryFileAndRestoresThem) {
    const auto before = directory.Files();
    EXPECT_EQ(Run({"backup", zip}), done);
    EXPECT_EQ(out.str(), "22 files are in " + zip + ".\n");
    EXPECT_EQ(directory.Files(), before);
    EXPECT_EQ(FilesOf(BytesOf(zip), zip).size(), 42U);

    directory.Write("LOTTOSYS", "");
    directory.Write("GAME11.CDB", "was not there");
    std::filesystem::remove(directory / "PLAYS03.CDB");
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(out.str(),
              "GAME11.CDB was not there, and is gone.\nLOTTOSYS is as it was.\nPLAYS03.CDB is as it was.\n"
              "What was there is kept in " +
                  OnlyCopy() + ".\n");
}

TEST_F(CopyCommandsTest, WhatTheRestoreReplacedComesBackFromItsCopy) {
    EXPECT_EQ(Run({"backup", zip}), done);
    directory.Write("GAME11.CDB", "was not there");
    std::filesystem::remove(directory / "PLAYS03.CDB");
    const auto before = Files();
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_EQ(Run({"restore", OnlyCopy()}), done);
    EXPECT_EQ(Files(), before);
}

TEST_F(CopyCommandsTest, ACopyOfWhatIsThereChangesNothing) {
    EXPECT_EQ(Run({"backup", zip}), done);
    const auto before = directory.Files();
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_EQ(out.str(), "The folder holds just what " + zip + " holds. Nothing was changed.\n");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(CopyCommandsTest, AShorterFileTakesThePlaceOfALongerOneWhole) {
    const std::string draws = directory.Read("GAME01.CDB");
    directory.Write("GAME01.CDB", draws.substr(0, 6464));
    EXPECT_EQ(Run({"backup", zip}), done);
    directory.Write("GAME01.CDB", draws);
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB"), draws.substr(0, 6464));
}

TEST_F(CopyCommandsTest, NoRestoreTakesAwayWhatNoCopyKeeps) {
    const std::string draws = directory.Read("GAME01.CDB");
    for (const bool wasThere : {true, false}) {
        std::filesystem::remove(zip);
        if (wasThere) {
            directory.Write("GAME01.CDB", draws.substr(0, 6464));
        } else {
            std::filesystem::remove(directory / "GAME01.CDB");
        }
        EXPECT_EQ(Run({"backup", zip}), done);
        directory.Write("GAME01.CDB", draws + "behind");
        const auto before = directory.Files();
        EXPECT_EQ(Run({"restore", zip}), refused);
        EXPECT_EQ(notes.str(),
                  "ballhaven-data: Nothing was changed: " + directory / "GAME01.CDB" +
                      " goes on for 6 bytes behind its last record, which would be lost, and which no copy "
                      "keeps. Move the file to another place, and try again.\n");
        EXPECT_EQ(directory.Files(), before);
    }
}

TEST_F(CopyCommandsTest, ABackupTellsWhatItLeavesOut) {
    directory.Write("GAME01.CDB", directory.Read("GAME01.CDB") + "behind");
    EXPECT_EQ(Run({"backup", zip}), done);
    EXPECT_EQ(out.str(), "22 files are in " + zip +
                             ".\nGAME01.CDB goes on for 6 bytes behind its last record, which no Ballhaven reads. They "
                             "are not in the copy.\n");
}

TEST_F(CopyCommandsTest, ARestoreTellsWhereTheFolderIsMendedOrOrdinaryAgain) {
    EXPECT_EQ(Run({"set", "--shown", "2"}), done);
    const std::string ordinary = OnlyCopy();
    EXPECT_EQ(Run({"mend"}), done);
    EXPECT_EQ(Run({"backup", zip}), done);
    EXPECT_EQ(Run({"restore", ordinary}), done);
    EXPECT_TRUE(
        Says("LOTTOSYS is as it was.\nThe folder is an ordinary one now, as it was then; \"ballhaven-data mend\" "
             "marks it as mended.\n"))
        << out.str();
    EXPECT_EQ(Run({"check"}), done);
    EXPECT_TRUE(Says("note: LOTTOSYS: has no mark of a mended folder, though 10 files of draws ")) << out.str();
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_TRUE(Says("LOTTOSYS is as it was.\nThe folder is a mended one now, as it was then.\n")) << out.str();
    EXPECT_EQ(Run({"set", "--shown", "3"}), done);
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_FALSE(Says("The folder is ")) << out.str();
}

TEST_F(CopyCommandsTest, AFileInThePlaceOfTheCopiesIsToldAsOne) {
    EXPECT_EQ(Run({"backup", zip}), done);
    directory.Write("LOTTOSYS", "x");
    directory.Write("copies", "mine");
    EXPECT_EQ(Run({"restore", zip}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: Nothing was changed, since no copy could be kept in " +
                               directory / "copies" + ": it is no folder; move it to another place.\n");
    EXPECT_EQ(directory.Read("copies"), "mine");
}

TEST_F(CopyCommandsTest, WhatStandsBehindTheLastRecordStays) {
    const std::string draws = directory.Read("GAME01.CDB");
    EXPECT_EQ(Run({"backup", zip}), done);
    directory.Write("GAME01.CDB", std::string(64'064, 'x') + "behind");
    EXPECT_EQ(Run({"restore", zip}), done);
    EXPECT_EQ(directory.Read("GAME01.CDB"), draws + "behind");
}

TEST_F(CopyCommandsTest, ABackupIsNeverOverAFile) {
    elsewhere.Write("a copy.zip", "mine");
    EXPECT_EQ(Run({"backup", zip}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: " + zip + " is there already, and is not overwritten. Name another file.\n");
    EXPECT_EQ(elsewhere.Files(), (std::map<std::string, std::string>{{"a copy.zip", "mine"}}));
}

TEST_F(CopyCommandsTest, AFolderWithoutDataIsNotCopied) {
    const support::TemporaryDirectory empty;
    EXPECT_EQ(Run({"--folder", empty.Path(), "backup", zip}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: " + empty.Path() +
                               " holds no data of Ballhaven. Name the right folder with --folder.\n");
    EXPECT_TRUE(elsewhere.Files().empty());
}

TEST_F(CopyCommandsTest, ABackupThatCannotBeWrittenLeavesNothing) {
    EXPECT_EQ(Run({"backup", "/not/there/copy.zip"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: /not/there/copy.zip could not be made: No such file or directory.\n");
    support::WatchedFiles watched;
    watched.room = 1000;
    EXPECT_EQ(Run({"backup", zip}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: " + zip + " could not be made: No space left on device.\n");
    EXPECT_TRUE(elsewhere.Files().empty());
}

TEST_F(CopyCommandsTest, ABackupOfAFileThatCannotBeReadIsRefused) {
    std::filesystem::remove(directory / "GAME05.CDB");
    std::filesystem::create_directory(directory / "GAME05.CDB");
    EXPECT_EQ(Run({"backup", zip}), refused);
    EXPECT_TRUE(Notes(directory / "GAME05.CDB" + " cannot be read: ")) << notes.str();
    EXPECT_TRUE(elsewhere.Files().empty());
}

TEST_F(CopyCommandsTest, WhatIsNoCopyIsRefused) {
    const auto before = directory.Files();
    EXPECT_EQ(Run({"restore", zip}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: There is no file " + zip + ".\n");
    EXPECT_EQ(Run({"restore", elsewhere.Path()}), refused);
    EXPECT_TRUE(Notes(" cannot be read: ")) << notes.str();
    elsewhere.Write("a copy.zip", "no zip");
    EXPECT_EQ(Run({"restore", zip}), refused);
    EXPECT_TRUE(Notes(zip + " is no whole copy of a Ballhaven folder: ")) << notes.str();
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(CopyCommandsTest, AFileFarLongerThanAnyCopyIsNotRead) {
    elsewhere.Write("a copy.zip", "");
    std::filesystem::resize_file(zip, 5'000'000'000U);
    EXPECT_EQ(Run({"restore", zip}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: " + zip + " is no copy of a Ballhaven folder: it is far longer than any.\n");
}

TEST_F(CopyCommandsTest, AFullDiskAtAnyByteOfARestoreLeavesTheFolderAsItWas) {
    KeepThreeFiles();
    EXPECT_EQ(Run({"backup", zip}), done);
    directory.Write("LOTTOSYS", std::string(1344, 'x'));
    directory.Write("SHUFFLE.CDB", std::string(12'800, 'y'));
    std::filesystem::remove(directory / "GAME09.CDB");
    const auto before = Files();
    std::size_t needed = 0;
    for (bool restored = false; !restored; needed += needed < 2000 ? 13 : 997) {
        {
            support::WatchedFiles watched;
            watched.room = needed;
            restored = Run({"restore", zip}) == done;
        }
        if (!restored) {
            EXPECT_TRUE(!directory.Has("copies") || std::filesystem::is_empty(directory / "copies")) << needed;
        }
        RemoveCopies();
        if (!restored) {
            EXPECT_TRUE(Notes("No space left on device")) << notes.str();
            const std::string words = notes.str();
            EXPECT_EQ(std::ranges::count(words, '\n'), 1) << words;
            ASSERT_EQ(Files(), before) << needed;
        }
    }
    EXPECT_GT(needed, 78'208U);  // the bytes of the three files
    EXPECT_EQ(directory.Read("GAME09.CDB").size(), 64'064U);
}

TEST_F(CopyCommandsTest, AnyCallThatFailsLeavesTheFolderAsItWasOrTheChangeDecided) {
    KeepThreeFiles();
    EXPECT_EQ(Run({"backup", zip}), done);
    const auto whole = Files();
    const auto damage = [this] {
        RemoveCopies();
        directory.Write("LOTTOSYS", std::string(1344, 'x'));
        std::filesystem::remove(directory / "SHUFFLE.CDB");
    };
    damage();
    const auto before = Files();
    int undone = 0;
    int decided = 0;
    bool allCallsFailed = false;
    for (std::size_t failing = 0; !allCallsFailed; ++failing) {
        {
            support::WatchedFiles watched;
            watched.before = [failing](std::size_t call) { return call == failing ? EIO : 0; };
            (void)Run({"restore", zip});
            allCallsFailed = watched.calls.size() <= failing;
        }
        RemoveCopies();
        if (Files() == before) {
            ++undone;
            continue;
        }
        ++decided;
        EXPECT_EQ(Run({"check", "--mend"}), done) << out.str() << notes.str();  // it is brought to its end
        ASSERT_EQ(Files(), whole) << "call " << failing;
        damage();
    }
    EXPECT_GT(undone, 20);
    EXPECT_GT(decided, 5);
}

TEST_F(CopyCommandsTest, AFolderThatCannotBeWrittenIsToldInOneLine) {
    EXPECT_EQ(Run({"backup", zip}), done);
    ASSERT_EQ(chmod(zip.c_str(), 0644), 0);
    ASSERT_EQ(chmod(elsewhere.Path().c_str(), 0755), 0);
    directory.Write("LOTTOSYS", std::string(1344, 'x'));
    const auto before = directory.Files();
    ASSERT_EQ(chmod(directory.Path().c_str(), 0555), 0);
    const auto restore = [&] {
        support::BecomeOrdinaryUser();
        const ExitCode end = Run({"restore", zip});
        return std::to_string(end) + notes.str();
    };
    EXPECT_EQ(support::RunInChild(restore).words,
              "1ballhaven-data: Nothing was changed, since no copy could be kept in " + directory.Path() +
                  "copies: Permission denied.\n");
    ASSERT_EQ(chmod(directory.Path().c_str(), 0755), 0);
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(CopyCommandsTest, NoCommandTouchesAFolderThatIsInUse) {
    EXPECT_EQ(Run({"backup", zip}), done);
    const auto before = directory.Files();
    platform::FolderLock program(directory.Path());
    ASSERT_TRUE(program.Take());
    const std::vector<std::vector<std::string>> lines = {
        {"games"},        {"check"}, {"check", "--mend"},    {"backup", elsewhere / "another.zip"},
        {"restore", zip}, {"mend"},  {"set", "--shown", "2"}};
    for (const auto& line : lines) {
        EXPECT_EQ(Run(line), refused);
        EXPECT_EQ(notes.str(), "ballhaven-data: " + directory.Path() +
                                   " is in use by Ballhaven or by another run of this program. Close it, and try "
                                   "again.\n");
    }
    EXPECT_EQ(directory.Files(), before);
    EXPECT_FALSE(elsewhere.Has("another.zip"));
}

TEST_F(CopyCommandsTest, ACopyAndARestoreAreDoneThoughTheWordsAboutThemAreLost) {
    EXPECT_EQ(RunWithoutOutput({"backup", directory / "all.zip"}), done);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: The output could not be written to its end, but the command is done: 22 files are in " +
                  (directory / "all.zip") + ".\n");
    directory.Write("GAME01.CDB", "");
    EXPECT_EQ(RunWithoutOutput({"restore", directory / "all.zip"}), done);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: The output could not be written to its end, but the command is done: What was there is "
              "kept in " +
                  OnlyCopy() + ".\n");
    EXPECT_NE(directory.Read("GAME01.CDB"), "");
}

}  // namespace
}  // namespace ballhaven::data
