#include "data/folder/WorkFolder.h"

#include "data/folder/Refusal.h"
#include "platform/Services.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace ballhaven::data {
namespace {

class WorkFolderTest : public testing::Test {
  protected:
    void SetUp() override {
        using namespace std::chrono_literals;
        platform::services.now = [] {
            return std::chrono::local_days{std::chrono::year{2026} / 11 / 22} + 9h + 5min + 7s;
        };
        directory.Write("GAME01.CDB", "old one");
        directory.Write("GAME02.CDB", "old two");
    }

    /// The words in which work is refused.
    template <typename Work>
    static std::string RefusalOf(const Work& work) {
        try {
            work();
            return "not refused";
        } catch (const Refusal& refusal) {
            return refusal.what();
        }
    }

    support::TemporaryDirectory directory;
    const FileContents change{{"GAME01.CDB", "new one"}, {"GAME02.CDB", std::nullopt}, {"GAME03.CDB", "new three"}};
};

TEST_F(WorkFolderTest, AChangeKeepsADatedCopyOfWhatWasThere) {
    const WorkFolder folder(directory.Path());
    const std::string copy = folder.Change(change, "import");
    EXPECT_EQ(copy, directory / "copies/2026-11-22 09.05.07 import.zip");
    EXPECT_EQ(directory.Read("GAME01.CDB"), "new one");
    EXPECT_FALSE(directory.Has("GAME02.CDB"));
    EXPECT_EQ(directory.Read("GAME03.CDB"), "new three");

    std::ifstream file(copy, std::ios::binary);
    const std::string archive{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(FilesOf(archive, copy),
              (FileContents{{"GAME01.CDB", "old one"}, {"GAME02.CDB", "old two"}, {"GAME03.CDB", std::nullopt}}));
}

TEST_F(WorkFolderTest, CopiesOfTheSameSecondDoNotReplaceEachOther) {
    const WorkFolder folder(directory.Path());
    EXPECT_NE(folder.Change({{"GAME01.CDB", "a"}}, "set"), folder.Change({{"GAME01.CDB", "b"}}, "set"));
}

TEST_F(WorkFolderTest, WhatStandsBehindTheFormatStays) {
    directory.Write("LOTTOSYS", std::string(1344, 'o') + "behind");
    const WorkFolder folder(directory.Path());
    folder.Change({{"LOTTOSYS", std::string(1344, 'n')}}, "set");
    EXPECT_EQ(directory.Read("LOTTOSYS"), std::string(1344, 'n') + "behind");
}

TEST_F(WorkFolderTest, AFolderIsOnesOwnAsLongAsItIsHeld) {
    {
        const WorkFolder folder(directory.Path());
        EXPECT_EQ(
            RefusalOf([&] { const WorkFolder other(directory.Path()); }),
            directory.Path() + " is in use by Ballhaven or by another run of this program. Close it, and try again.");
    }
    EXPECT_EQ(WorkFolder(directory.Path()).Path(), directory.Path());
}

TEST_F(WorkFolderTest, AFolderThatIsNotThereIsRefused) {
    EXPECT_EQ(RefusalOf([] { const WorkFolder folder("/not/there"); }),
              "/not/there/ cannot be used: No such file or directory.");
}

TEST_F(WorkFolderTest, ADecidedChangeIsFinishedWhenTheFolderIsTaken) {
    directory.Write("GAME01.CDB.next", "decided");
    directory.Write("CHANGE", "put GAME01.CDB\nremove GAME02.CDB\n");
    {
        const WorkFolder folder(directory.Path());
        EXPECT_TRUE(folder.HasFinishedChange());
        EXPECT_EQ(directory.Read("GAME01.CDB"), "decided");
        EXPECT_FALSE(directory.Has("GAME02.CDB"));
    }
    EXPECT_FALSE(WorkFolder(directory.Path()).HasFinishedChange());
}

TEST_F(WorkFolderTest, ADecidedChangeCanBeLeftAsItIs) {
    directory.Write("GAME01.CDB.next", "decided");
    directory.Write("CHANGE", "put GAME01.CDB\nremove GAME02.CDB\n");
    const auto before = directory.Files();
    const WorkFolder folder(directory.Path(), DecidedChange::Leave);
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(WorkFolderTest, AContentThatEndsEarlyTakesTheWholePlace) {
    directory.Write("LOTTOSYS", std::string(1344, 'o'));
    const WorkFolder folder(directory.Path());
    folder.Change({{"LOTTOSYS", std::string(1343, 'n')}}, "restore");
    EXPECT_EQ(directory.Read("LOTTOSYS"), std::string(1343, 'n'));
}

TEST_F(WorkFolderTest, WhatNoCopyKeepsIsNeverCutOff) {
    directory.Write("LOTTOSYS", std::string(1344, 'o') + "behind");
    const auto before = directory.Files();
    const WorkFolder folder(directory.Path());
    const std::string words =
        "Nothing was changed: " + directory / "LOTTOSYS" +
        " goes on for 6 bytes behind its last record, which would be lost, and which no copy keeps. "
        "Move the file to another place, and try again.";
    EXPECT_EQ(RefusalOf([&] { folder.Change({{"LOTTOSYS", std::string(1343, 'n')}}, "restore"); }), words);
    EXPECT_EQ(RefusalOf([&] { folder.Change({{"LOTTOSYS", std::nullopt}}, "restore"); }), words);
    EXPECT_EQ(directory.Files(), before);
    folder.Change({{"LOTTOSYS", std::string(1344, 'n')}}, "restore");
    EXPECT_EQ(directory.Read("LOTTOSYS"), std::string(1344, 'n') + "behind");
}

TEST_F(WorkFolderTest, WithoutRoomForTheCopyNothingChanges) {
    const WorkFolder folder(directory.Path());
    support::WatchedFiles watched;
    watched.room = 100;
    EXPECT_EQ(
        RefusalOf([&] { folder.Change(change, "import"); }),
        "Nothing was changed, since no copy could be kept in " + directory.Path() + "copies: No space left on device.");
    EXPECT_EQ(directory.Read("GAME01.CDB"), "old one");
    EXPECT_EQ(directory.Read("GAME02.CDB"), "old two");
    EXPECT_FALSE(directory.Has("GAME03.CDB"));
}

TEST_F(WorkFolderTest, AFailingChangeSaysThatNothingWasChanged) {
    const WorkFolder folder(directory.Path());
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) { return watched.Names()[call] == "open Update" ? EACCES : 0; };
    EXPECT_EQ(RefusalOf([&] { folder.Change(change, "import"); }),
              "Nothing was changed: " + directory / "GAME01.CDB" + " could not be written: Permission denied.");
    EXPECT_EQ(directory.Read("GAME01.CDB"), "old one");
}

TEST_F(WorkFolderTest, WhatStandsInTheWayOfAChangeIsNamed) {
    const WorkFolder folder(directory.Path());
    const auto words = [&](const char* name) {
        return "Nothing was changed: what bears the name " + directory / name +
               " is none of Ballhaven's, and in its way. Move it to another place, and try again.";
    };
    directory.Write("CHANGE", "my list of changes");
    EXPECT_EQ(RefusalOf([&] { folder.Change(change, "import"); }), words("CHANGE"));
    std::filesystem::create_directory(directory / "GAME01.CDB.next");
    EXPECT_EQ(RefusalOf([&] { folder.Change(change, "import"); }), words("GAME01.CDB.next"));
    EXPECT_EQ(directory.Read("CHANGE"), "my list of changes");
    EXPECT_EQ(directory.Read("GAME01.CDB"), "old one");
    EXPECT_TRUE(std::filesystem::is_empty(directory / "copies"));
}

TEST_F(WorkFolderTest, ALinkToNowhereInThePlaceOfTheCopiesIsToldAsWhatItIs) {
    std::filesystem::create_symlink("/not/there", directory / "copies");
    const WorkFolder folder(directory.Path());
    EXPECT_EQ(RefusalOf([&] { folder.Change(change, "import"); }),
              "Nothing was changed, since no copy could be kept in " + directory / "copies" +
                  ": it is no folder; move it to another place.");
}

TEST_F(WorkFolderTest, AChangeThatIsDecidedAndNotFinishedSaysSo) {
    const WorkFolder folder(directory.Path());
    support::WatchedFiles watched;
    int removals = 0;
    watched.before = [&](std::size_t call) {
        return watched.Names()[call] == "remove" && directory.Has("CHANGE") && ++removals == 1 ? EIO : 0;
    };
    EXPECT_EQ(
        RefusalOf([&] { folder.Change(change, "import"); }),
        "The change could not be brought to its end: Input/output error. It will be when this program or Ballhaven is "
        "next started on " +
            directory.Path() + ".");
}

}  // namespace
}  // namespace ballhaven::data
