#include "data/folder/CopyArchive.h"

#include "data/folder/Refusal.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ballhaven::data {
namespace {

const FileContents files{{"LOTTOSYS", std::string(1344, 'x')},
                         {"GAME01.CDB", std::string("\0binary\xFF too", 12)},
                         {"GAME02.CDB", std::nullopt},
                         {"PLAYS20.CDB", std::string()}};

TEST(CopyArchiveTest, FilesComeBackAsTheyWereAbsentOnesToo) {
    EXPECT_EQ(FilesOf(ArchiveOf(files), "copy.zip"), files);
}

TEST(CopyArchiveTest, ACopyThatTellsOfNoFileIsRefused) {
    try {
        (void)FilesOf(ArchiveOf({}), "copy.zip");
        ADD_FAILURE() << "it was taken";
    } catch (const Refusal& refusal) {
        EXPECT_STREQ(
            refusal.what(),
            "copy.zip is no whole copy of a Ballhaven folder: it tells of no file. Nothing was taken from it.");
    }
    EXPECT_EQ(FilesOf(ArchiveOf({{"LOTTOSYS", std::nullopt}}), "copy.zip").size(), 1U);
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

// Zips of any making, written here byte by byte.

struct ZipEntry {
    std::string name;
    std::string bytes;
    unsigned mode = 0100644;       ///< of a plain file
    std::uint16_t flags = 0;       ///< bit 0: encrypted
    std::uint32_t saidSize = ~0U;  ///< else that of the bytes
};

std::uint32_t PlainCrc(std::string_view bytes) {
    std::uint32_t crc = ~0U;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

/// A number of so many bytes, the lowest first.
std::string Low(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

std::string Zip(const std::vector<ZipEntry>& entries) {
    std::string zip;
    std::string directory;
    for (const ZipEntry& entry : entries) {
        const std::uint32_t said =
            entry.saidSize == ~0U ? static_cast<std::uint32_t>(entry.bytes.size()) : entry.saidSize;
        const std::string common = Low(20, 2) + Low(entry.flags, 2) + Low(0, 2) + Low(0, 4) +
                                   Low(PlainCrc(entry.bytes), 4) + Low(said, 4) + Low(said, 4) +
                                   Low(entry.name.size(), 2) + Low(0, 2);
        directory += "PK\1\2" + Low(0x0314, 2) + common + Low(0, 2) + Low(0, 2) + Low(0, 2) +
                     Low(std::uint64_t{entry.mode} << 16U, 4) + Low(zip.size(), 4) + entry.name;
        zip += "PK\3\4" + common + entry.name + entry.bytes;
    }
    return zip + directory + "PK\5\6" + Low(0, 4) + Low(entries.size(), 2) + Low(entries.size(), 2) +
           Low(directory.size(), 4) + Low(zip.size(), 4) + Low(0, 2);
}

/// A list of contents of files that are all there.
ZipEntry ListOf(const std::vector<ZipEntry>& entries) {
    std::string list = "Ballhaven copy 1\n";
    for (const ZipEntry& entry : entries) {
        char crc[9];
        std::snprintf(crc, sizeof crc, "%x", PlainCrc(entry.bytes));
        list += entry.name + " " + std::to_string(entry.bytes.size()) + " " + crc + "\n";
    }
    return {"CONTENTS", list};
}

std::string RefusalOf(const std::string& zip) {
    try {
        (void)FilesOf(zip, "copy.zip");
        return "taken";
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

void ExpectRefused(const std::vector<ZipEntry>& entries, const std::string& reason) {
    EXPECT_EQ(RefusalOf(Zip(entries)),
              "copy.zip is no whole copy of a Ballhaven folder: " + reason + ". Nothing was taken from it.");
}

const ZipEntry draws{"GAME01.CDB", "draws"};

TEST(CopyArchiveTest, AZipOfAnotherMakingIsTaken) {
    EXPECT_EQ(FilesOf(Zip({ListOf({draws}), draws}), "copy.zip"), (FileContents{{"GAME01.CDB", "draws"}}));
    EXPECT_EQ(FilesOf(Zip({draws, ListOf({draws})}), "copy.zip"), (FileContents{{"GAME01.CDB", "draws"}}));
}

TEST(CopyArchiveTest, NoNameLeadsOutOfTheFolder) {
    for (const char* name : {"../GAME01.CDB", "/GAME01.CDB", "copies/../GAME01.CDB", "./GAME01.CDB", "GAME01.CDB.next",
                             "CHANGE", "GAME21.CDB", "game01.cdb", "LOTTOSYS "}) {
        const ZipEntry entry{name, "draws"};
        ExpectRefused({ListOf({entry}), entry},
                      "it holds \"" + std::string(name) + "\", which is no file of such a folder");
    }
}

TEST(CopyArchiveTest, NorDoesOneInTheFormOfAnotherSystem) {
    for (const char* name : {"..\\GAME01.CDB", "C:\\GAME01.CDB", "\\GAME01.CDB"}) {
        const ZipEntry entry{name, "draws"};
        EXPECT_NE(RefusalOf(Zip({ListOf({entry}), entry})).find("which is no file of such a folder"),
                  std::string::npos);
    }
}

TEST(CopyArchiveTest, ANameOfAnyBytesStaysInOneLine) {
    const ZipEntry entry{"a\nb\x1B[2J" + std::string(100, 'c'), ""};
    ExpectRefused({ListOf({entry}), entry},
                  "it holds \"a?b?[2J" + std::string(53, 'c') + "...\", which is no file of such a folder");
}

TEST(CopyArchiveTest, OnlyPlainFilesAreTaken) {
    const ZipEntry link{"GAME01.CDB", "/etc/passwd", 0120777};
    ExpectRefused({ListOf({link}), link}, "it holds \"GAME01.CDB\", which is no plain file");
    const ZipEntry folder{"GAME01.CDB/", "", 0040755};
    ExpectRefused({ListOf({folder}), folder}, "it holds \"GAME01.CDB/\", which is no plain file");
    ZipEntry encrypted = draws;
    encrypted.flags = 1;
    ExpectRefused({ListOf({draws}), encrypted}, "\"GAME01.CDB\" in it is encrypted");
}

TEST(CopyArchiveTest, NothingStandsTwice) {
    ExpectRefused({ListOf({draws}), draws, draws}, "it holds GAME01.CDB twice");
    ExpectRefused({ListOf({draws}), draws, ListOf({draws})}, "it holds CONTENTS twice");
}

TEST(CopyArchiveTest, TheListOfContentsHasToAgree) {
    const std::string lie = "its list of contents does not agree with what is in it: files are missing or changed";
    ExpectRefused({draws}, "it has no list of contents");
    ExpectRefused({ListOf({}), draws}, lie);
    ExpectRefused({ListOf({draws})}, lie);
    ExpectRefused({ListOf({{"GAME01.CDB", "drawn"}}), draws}, lie);
    ExpectRefused({ListOf({{"GAME02.CDB", "draws"}}), draws}, lie);
    ExpectRefused({{"CONTENTS", ""}, draws}, lie);
    ExpectRefused({{"CONTENTS", "Ballhaven copy 2\nGAME01.CDB 5 " + ListOf({draws}).bytes.substr(30)}, draws}, lie);
    ExpectRefused({{"CONTENTS", ListOf({draws}).bytes + "GAME01.CDB absent\n"}, draws}, lie);
    ExpectRefused({{"CONTENTS", ListOf({draws}).bytes + "../GAME02.CDB absent\n"}, draws},
                  "it holds \"../GAME02.CDB\", which is no file of such a folder");
    ExpectRefused({{"CONTENTS", std::string(65'537, 'x')}, draws}, "a file in it is longer than any of its kind");
}

TEST(CopyArchiveTest, AFileLongerThanItsFormIsNotTaken) {
    const ZipEntry whole{"LOTTOSYS", std::string(1344, 'x')};
    EXPECT_EQ(RefusalOf(Zip({ListOf({whole}), whole})), "taken");
    const ZipEntry longer{"LOTTOSYS", std::string(1345, 'x')};
    ExpectRefused({ListOf({longer}), longer}, "a file in it is longer than any of its kind");
    std::string zeros;
    zeros.resize(50'000'000);
    const std::string bomb = ArchiveOf({{"LOTTOSYS", zeros}});
    EXPECT_LT(bomb.size(), 100'000U);
    EXPECT_NE(RefusalOf(bomb).find("a file in it is longer than any of its kind"), std::string::npos);
}

TEST(CopyArchiveTest, ASizeThatIsSaidAndNotThereIsRefused) {
    for (const std::uint32_t size : {6U, 1000U, 0x7FFFFFFFU, 0xFFFFFFFEU}) {
        ZipEntry entry = draws;
        entry.saidSize = size;
        EXPECT_NE(RefusalOf(Zip({ListOf({draws}), entry})), "taken") << size;
    }
}

TEST(CopyArchiveTest, ACopyThatWasCutAtAnyLengthIsRefused) {
    const std::string whole = ArchiveOf(files);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_NE(RefusalOf(whole.substr(0, length)), "taken") << length << " of " << whole.size();
    }
}

TEST(CopyArchiveTest, BytesThatWereExchangedOrDoubledAreNeverTakenForOthers) {
    const std::string whole = ArchiveOf(files);
    for (std::size_t place = 0; place + 8 < whole.size(); ++place) {
        std::string doubled = whole;
        doubled.insert(place, whole, place, 8);
        std::string dropped = whole;
        dropped.erase(place, 8);
        for (const std::string& damaged : {doubled, dropped}) {
            try {
                EXPECT_EQ(FilesOf(damaged, "copy.zip"), files) << place;
            } catch (const Refusal&) {
            }
        }
    }
}

}  // namespace
}  // namespace ballhaven::data
