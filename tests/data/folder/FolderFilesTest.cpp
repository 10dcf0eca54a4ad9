#include "data/folder/FolderFiles.h"

#include "data/folder/Refusal.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace ballhaven::data {
namespace {

TEST(FolderFilesTest, ThereAreFortyTwoFiles) {
    const std::vector<FolderFile> files = AllFolderFiles();
    ASSERT_EQ(files.size(), 42U);
    EXPECT_EQ(files[0].name, "LOTTOSYS");
    EXPECT_EQ(files[0].FormatLength(), 21 * 64);
    EXPECT_EQ(files[1].name, "GAME01.CDB");
    EXPECT_EQ(files[20].name, "GAME20.CDB");
    EXPECT_EQ(files[20].FormatLength(), 1001 * 64);
    EXPECT_EQ(files[21].name, "PLAYS01.CDB");
    EXPECT_EQ(files[40].name, "PLAYS20.CDB");
    EXPECT_EQ(files[40].FormatLength(), 5000 * 64);
    EXPECT_EQ(files[41].name, "SHUFFLE.CDB");
    EXPECT_EQ(files[41].FormatLength(), 40 * 320);
}

TEST(FolderFilesTest, AFileThatIsNotThereIsNotMade) {
    const support::TemporaryDirectory directory;
    EXPECT_EQ(ReadFolderFile(directory.Path(), GameTableFile()), std::nullopt);
    EXPECT_TRUE(directory.Files().empty());
}

TEST(FolderFilesTest, AFileIsReadUpToItsLastRecord) {
    const support::TemporaryDirectory directory;
    directory.Write("LOTTOSYS", std::string(21 * 64, 'x') + "behind");
    EXPECT_EQ(ReadFolderFile(directory.Path(), GameTableFile()), std::string(21 * 64, 'x'));
}

TEST(FolderFilesTest, AFileThatCannotBeReadIsRefusedByItsPath) {
    const support::TemporaryDirectory directory;
    std::filesystem::create_directory(directory / "LOTTOSYS");
    try {
        (void)ReadFolderFile(directory.Path(), GameTableFile());
        FAIL() << "was read";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(std::string(refusal.what()),
                  (directory / "LOTTOSYS") + " cannot be read: it is a folder and no file.");
    }
}

TEST(FolderFilesTest, APipeInAFilesPlaceIsToldAsWhatItIs) {
    const support::TemporaryDirectory directory;
    ASSERT_EQ(mkfifo((directory / "LOTTOSYS").c_str(), 0600), 0);
    try {
        (void)ReadFolderFile(directory.Path(), GameTableFile());
        FAIL() << "was read";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(std::string(refusal.what()),
                  (directory / "LOTTOSYS") + " cannot be read: it is a device or a pipe and no file.");
    }
}

TEST(FolderFilesTest, TheTailOfAFileIsWhatStandsBehindItsLastRecord) {
    const support::TemporaryDirectory directory;
    EXPECT_EQ(TailLength(directory.Path(), GameTableFile()), 0);
    for (const auto& [length, tail] : {std::pair{0, 0}, {1343, 0}, {1344, 0}, {1345, 1}, {2000, 656}}) {
        directory.Write("LOTTOSYS", std::string(static_cast<std::size_t>(length), 'x'));
        EXPECT_EQ(TailLength(directory.Path(), GameTableFile()), tail) << length;
    }
}

}  // namespace
}  // namespace ballhaven::data
