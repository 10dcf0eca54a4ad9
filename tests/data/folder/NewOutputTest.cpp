#include "data/folder/NewOutput.h"

#include "data/folder/Refusal.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace ballhaven::data {
namespace {

using Files = std::map<std::string, std::string>;

std::string RefusalOf(const std::string& path) {
    try {
        SaveNewOutput("/nowhere", path, "bytes");
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "none";
}

TEST(SaveNewOutput, MakesTheFileWhole) {
    const support::TemporaryDirectory directory;
    SaveNewOutput("/nowhere", directory / "draws.csv", "bytes");
    EXPECT_EQ(directory.Files(), (Files{{"draws.csv", "bytes"}}));
}

TEST(SaveNewOutput, APathWithoutAFolderIsOneOfTheCurrentFolder) {
    const support::TemporaryDirectory directory;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(directory.Path());
    SaveNewOutput("/nowhere", "draws.csv", "bytes");
    std::filesystem::current_path(before);
    EXPECT_EQ(directory.Files(), (Files{{"draws.csv", "bytes"}}));
}

TEST(SaveNewOutput, OverwritesNothing) {
    const support::TemporaryDirectory directory;
    directory.Write("draws.csv", "the user's");
    EXPECT_EQ(RefusalOf(directory / "draws.csv"),
              directory / "draws.csv is there already, and is not overwritten. Name another file.");
    EXPECT_EQ(directory.Files(), (Files{{"draws.csv", "the user's"}}));
}

TEST(SaveNewOutput, OnAFullDiskThereIsNoFile) {
    const support::TemporaryDirectory directory;
    for (std::size_t room = 0; room < 5; ++room) {
        support::WatchedFiles watched;
        watched.room = room;
        EXPECT_EQ(RefusalOf(directory / "draws.csv"),
                  directory / "draws.csv could not be made: No space left on device.");
        EXPECT_EQ(directory.Files(), Files{});
    }
}

TEST(SaveNewOutput, AFolderThatIsNotThereIsNotMade) {
    const support::TemporaryDirectory directory;
    EXPECT_EQ(RefusalOf(directory / "missing/draws.csv"),
              directory / "missing/draws.csv could not be made: No such file or directory.");
    EXPECT_EQ(directory.Files(), Files{});
}

TEST(NewOutput, ANameOfTheDatasOwnIsRefusedInTheirFolderAlone) {
    const support::TemporaryDirectory data;
    const support::TemporaryDirectory elsewhere;
    for (const char* name : {"GAME20.CDB", "PLAYS01.CDB", "LOTTOSYS", "SHUFFLE.CDB", "CHANGE", "copies",
                             "GAME20.CDB.new", "LOTTOSYS.next", "CHANGE.new"}) {
        std::string words = "none";
        try {
            SaveNewOutput(data.Path(), data / name, "bytes");
        } catch (const Refusal& refusal) {
            words = refusal.what();
        }
        EXPECT_EQ(words, data / name + " has a name that Ballhaven keeps for itself in its folder. Name another file.");
        SaveNewOutput(data.Path(), elsewhere / name, "bytes");
        EXPECT_EQ(elsewhere.Read(name), "bytes");
    }
    EXPECT_EQ(data.Files(), Files{});
    SaveNewOutput(data.Path(), data / "GAME21.CDB", "bytes");
    EXPECT_EQ(data.Files(), (Files{{"GAME21.CDB", "bytes"}}));
}

TEST(NewOutput, HasItsNameWhenItIsSavedAndItsTextInOrder) {
    const support::TemporaryDirectory directory;
    NewOutput output("/nowhere", directory / "proof.csv");
    std::string all;
    for (int piece = 0; piece < 30; ++piece) {
        const std::string text(100'000, static_cast<char>('a' + piece % 26));
        output.Add(text);
        all += text;
    }
    EXPECT_FALSE(directory.Has("proof.csv"));

    output.Save();
    EXPECT_EQ(directory.Files(), (Files{{"proof.csv", all}}));
}

TEST(NewOutput, WithoutASaveThereIsNoFile) {
    const support::TemporaryDirectory directory;
    {
        NewOutput output("/nowhere", directory / "proof.csv");
        EXPECT_EQ(directory.Files(), Files{}) << "as long as nothing is written";
        output.Add(std::string(3 << 20, 'x'));
        EXPECT_TRUE(directory.Has("proof.csv.new"));
    }
    EXPECT_EQ(directory.Files(), Files{});
}

TEST(NewOutput, ANameThatIsTakenMeanwhileIsRefusedToo) {
    const support::TemporaryDirectory directory;
    NewOutput output("/nowhere", directory / "proof.csv");
    directory.Write("proof.csv", "the user's");

    EXPECT_THROW(output.Save(), Refusal);
    EXPECT_EQ(directory.Read("proof.csv"), "the user's");
}

TEST(NewOutput, AFullDiskIsToldWhereverItIsMet) {
    const support::TemporaryDirectory directory;
    NewOutput output("/nowhere", directory / "proof.csv");
    support::WatchedFiles watched;
    watched.room = 1000;
    EXPECT_THROW(output.Add(std::string(3 << 20, 'x')), Refusal);
}

}  // namespace
}  // namespace ballhaven::data
