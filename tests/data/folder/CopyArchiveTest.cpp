#include "data/folder/CopyArchive.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

const FileContents files{{"LOTTOSYS", std::string(1344, 'x')},
                         {"GAME01.CDB", std::string("\0binary\xFF too", 12)},
                         {"GAME02.CDB", std::nullopt},
                         {"PLAYS20.CDB", std::string()}};

TEST(CopyArchiveTest, FilesComeBackAsTheyWereAbsentOnesToo) {
    EXPECT_EQ(FilesOf(ArchiveOf(files), "copy.zip"), files);
}

TEST(CopyArchiveTest, ACopyOfNothingIsWhole) {
    EXPECT_TRUE(FilesOf(ArchiveOf({}), "copy.zip").empty());
}

TEST(CopyArchiveTest, WhatIsNoZipIsRefusedByItsName) {
    for (const std::string bytes : {"", "PK", "no zip at all"}) {
        try {
            (void)FilesOf(bytes, "copy.zip");
            ADD_FAILURE() << bytes << " was taken";
        } catch (const Refusal& refusal) {
            EXPECT_TRUE(std::string(refusal.what()).starts_with("copy.zip is no whole copy of a Ballhaven folder: "))
                << refusal.what();
        }
    }
}

TEST(CopyArchiveTest, NoByteOfACopyCanChangeAFileUnnoticed) {
    const std::string archive = ArchiveOf(files);
    int refusals = 0;
    for (std::size_t place = 0; place < archive.size(); ++place) {
        std::string damaged = archive;
        damaged[place] = static_cast<char>(damaged[place] ^ 1);
        try {
            EXPECT_EQ(FilesOf(damaged, "copy.zip"), files) << place;
        } catch (const Refusal&) {
            ++refusals;
        }
    }
    EXPECT_GT(refusals, 100);
}

}  // namespace
}  // namespace ballhaven::data
