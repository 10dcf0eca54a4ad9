#include "data/checks/LeftOvers.h"

#include "platform/files/FolderChange.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ballhaven::data {
namespace {

using Names = std::vector<std::string>;

TEST(LeftOversTest, OnlyFilesOfTheProgramsOwnAreLeftOvers) {
    const support::TemporaryDirectory directory;
    for (const char* name : {"LOTTOSYS", "LOTTOSYS.new", "GAME01.CDB.next", "GAME21.CDB.new", "letter.new",
                             "CHANGE.new", "PLAYS20.CDB.new", "SHUFFLE.CDB.old", ".new", "ballhaven.new"}) {
        directory.Write(name, "");
    }
    std::filesystem::create_directory(directory / "copies");
    for (const char* name :
         {"2026-11-22 09.30.05 import.zip", "2026-11-22 09.30.05 import.zip.new", "ideas.new", "b.zip.new",
          "2026-11-22 09.30.05 import.new", "2026-11-22 09.30.05 .zip.new", "2026-11-22 09.30.0x set.zip.new",
          "2026-11-22 09.30.05 my own.zip.new", "2026-11-22 09:30:05 set.zip.new"}) {
        directory.Write("copies/" + std::string(name), "");
    }
    EXPECT_EQ(FindLeftOvers(directory.Path()), (Names{"CHANGE.new", "GAME01.CDB.next", "LOTTOSYS.new",
                                                      "PLAYS20.CDB.new", "copies/2026-11-22 09.30.05 import.zip.new"}));
    EXPECT_FALSE(platform::HasDecidedChange(directory.Path()));
}

TEST(LeftOversTest, WhatADecidedChangeNeedsIsNone) {
    const support::TemporaryDirectory directory;
    for (const char* name : {"CHANGE", "GAME01.CDB.next", "GAME01.CDB.new"}) {
        directory.Write(name, "remove GAME02.CDB\n");
    }
    EXPECT_TRUE(platform::HasDecidedChange(directory.Path()));
    EXPECT_EQ(FindLeftOvers(directory.Path()), Names{"GAME01.CDB.new"});
}

TEST(LeftOversTest, AFolderWithoutCopiesHasNone) {
    const support::TemporaryDirectory directory;
    EXPECT_EQ(FindLeftOvers(directory.Path()), Names());
}

}  // namespace
}  // namespace ballhaven::data
