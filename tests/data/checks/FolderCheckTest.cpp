#include "data/checks/FolderCheck.h"

#include "data/folder/DrawsOnFile.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/PlaysOnFile.h"
#include "data/folder/Refusal.h"
#include "data/folder/TableOnFile.h"
#include "history/HistoryFile.h"
#include "plays/PlayFile.h"
#include "printing/PlaySort.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"
#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "tools/SampleGames.h"
#include "wheels/ChosenRecord.h"
#include "wheels/ShuffleFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>
#include <sys/stat.h>

namespace ballhaven::data {
namespace {

class FolderCheckTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(tools::FillSampleFolder(directory.Path()), ""); }

    [[nodiscard]] std::vector<std::string> Lines(bool faultsOnly = false) const {
        std::vector<std::string> lines;
        for (const Finding& finding : CheckFolder(directory.Path()).findings) {
            if (IsFault(finding) || !faultsOnly) {
                lines.push_back(LineOf(finding));
            }
        }
        return lines;
    }

    /// Opens a game as the program does.
    static void Open(int slot) {
        OpenGameTable();
        appState.currentGame = static_cast<std::int16_t>(slot);
        LoadGameRecord(slot);
        LoadPlayFile();
        LoadHistory();
        LoadShuffleFile();
    }

    support::TemporaryDirectory directory;
};

using Texts = std::vector<std::string>;

TEST_F(FolderCheckTest, TheSampleGamesHaveNoFinding) {
    EXPECT_EQ(Lines(), Texts());
    EXPECT_EQ(CheckFolder(directory.Path()).fileCount, 22);
}

TEST_F(FolderCheckTest, WhatTheProgramSavesHasNone) {
    for (int slot = 1; slot <= gameSlots; ++slot) {
        Open(slot);
        SaveHistory(1);
        SavePlayFile();
        SaveShuffleFile();
        SaveSystemRecord();
        SaveGameRecord(slot);
    }
    EXPECT_EQ(Lines(), Texts());
    EXPECT_EQ(CheckFolder(directory.Path()).fileCount, 42);
}

// Not a bug: PLAY-SORT-1 in docs/not-bugs.md.
TEST_F(FolderCheckTest, PlaysThatAReportHasSortedHaveNone) {
    for (int slot = 1; slot <= 10; ++slot) {
        Open(slot);
        sortPlaysForReport(50);
        SavePlayFile();
    }
    EXPECT_EQ(Lines(), Texts());
}

// Not a bug: LOAD-STORES-UNDER-CURRENT-1 in docs/not-bugs.md.
TEST_F(FolderCheckTest, AGivenUpSlotKeepsItsDrawsAndPlays) {
    Open(1);
    LoadGameRecord(15);
    EXPECT_EQ(Lines(true), Texts());
    EXPECT_EQ(Lines(), Texts{"GAME01.CDB: holds 600 draws, and no game has been set up in slot 1. They belong to the "
                             "next game that is."});
}

TEST_F(FolderCheckTest, ANewFolderHasNone) {
    const support::TemporaryDirectory fresh;
    appState.programDirectory = fresh.Path();
    appState.currentGame = 1;
    Open(1);
    EXPECT_TRUE(CheckFolder(fresh.Path()).findings.empty());
}

TEST_F(FolderCheckTest, AMissingTableIsLeft) {
    std::filesystem::remove(directory / "LOTTOSYS");
    EXPECT_EQ(Lines(true),
              Texts{"LOTTOSYS: is missing. Ballhaven begins a new table of unused slots; draws and plays are "
                    "in files of their own."});
}

TEST_F(FolderCheckTest, WhatIsInTheWayOfAListOfAChangeIsLeft) {
    const Texts lines{
        "CHANGE: bears the name of Ballhaven's list of a change, and is none. No change of several files "
        "can be made beside it. Move it to another place."};
    directory.Write("CHANGE", "my list of changes");
    EXPECT_EQ(Lines(true), lines);
    std::filesystem::remove(directory / "CHANGE");
    std::filesystem::create_directory(directory / "CHANGE");
    EXPECT_EQ(Lines(true), lines);
    EXPECT_TRUE(CheckFolder(directory.Path()).mended.empty());
    EXPECT_TRUE(CheckFolder(directory.Path()).leftOvers.empty());
}

TEST_F(FolderCheckTest, AFileThatCannotBeReadIsLeftAndTheOthersAreLookedAt) {
    std::filesystem::remove(directory / "GAME02.CDB");
    std::filesystem::create_directory(directory / "GAME02.CDB");
    directory.Write("GAME03.CDB", "x");
    const CheckedFolder checked = CheckFolder(directory.Path());
    ASSERT_GE(checked.findings.size(), 2U);
    EXPECT_EQ(checked.findings[0].file, "GAME02.CDB");
    EXPECT_EQ(checked.findings[0].remedy, Remedy::User);
    EXPECT_EQ(checked.findings[0].what, "cannot be read: it is a folder and no file");
    EXPECT_TRUE(checked.findings[0].meaning.ends_with("\"ballhaven-data set --shown\" chooses another game."));
    EXPECT_EQ(checked.findings[1].file, "GAME03.CDB");
    EXPECT_FALSE(checked.mended.contains("GAME02.CDB"));
}

TEST_F(FolderCheckTest, OfAFileOfAllGamesNoOtherGameIsAWayOut) {
    for (const char* name : {"LOTTOSYS", "SHUFFLE.CDB"}) {
        std::filesystem::remove(directory / name);
        std::filesystem::create_directory(directory / name);
    }
    directory.Write("GAME01.CDB", directory.Read("GAME01.CDB").replace(63, 1, "M"));
    EXPECT_EQ(Lines(),
              (Texts{"LOTTOSYS: cannot be read: it is a folder and no file. Ballhaven ends with a message when it "
                     "starts. Make it a file that can be read, or restore a copy.",
                     "SHUFFLE.CDB: cannot be read: it is a folder and no file. Ballhaven ends with a message when it "
                     "starts. Make it a file that can be read, or restore a copy."}));
}

TEST_F(FolderCheckTest, ATableWithoutTheMarkThatItsDrawsHaveIsARemark) {
    for (const char* name : {"GAME01.CDB", "GAME02.CDB"}) {
        directory.Write(name, directory.Read(name).replace(63, 1, "M"));
    }
    EXPECT_EQ(Lines(),
              Texts{"LOTTOSYS: has no mark of a mended folder, though 2 files of draws keep dates of five digits. "
                    "If the folder was a mended one, mark it again with \"ballhaven-data mend\"."});
    EXPECT_EQ(Lines(true), Texts());
    directory.Write("LOTTOSYS", directory.Read("LOTTOSYS").replace(63, 1, "L"));
    EXPECT_EQ(Lines(true).size(), 1U);
    EXPECT_TRUE(CheckFolder(directory.Path()).mended.empty());
    directory.Write("LOTTOSYS", directory.Read("LOTTOSYS").replace(63, 1, "M"));
    EXPECT_EQ(Lines(), Texts());
}

TEST_F(FolderCheckTest, AgainstTheRulesOfASlotThatHasLostThemNothingIsHeld) {
    directory.Write("LOTTOSYS", directory.Read("LOTTOSYS").replace(64, 64, std::string(64, '\0')));
    EXPECT_EQ(Lines(true).size(), 1U);
}

TEST_F(FolderCheckTest, OnlyFilesWithSomethingToRepairAreMended) {
    directory.Write("GAME11.CDB", "10-26-2002" + std::string(54, ' '));
    directory.Write("GAME12.CDB", "");
    const CheckedFolder checked = CheckFolder(directory.Path());
    ASSERT_EQ(checked.mended.size(), 1U);
    EXPECT_EQ(checked.mended.begin()->first, "GAME11.CDB");
    EXPECT_EQ(*checked.mended.begin()->second, "10-26-2002" + std::string(64'054, ' '));
}

TEST_F(FolderCheckTest, AFolderWithoutDataIsRefused) {
    const support::TemporaryDirectory empty;
    EXPECT_THROW((void)CheckFolder(empty.Path()), Refusal);
}

TEST_F(FolderCheckTest, AFolderOrItsCopiesThatMayNotBeReadAreRefusedByName) {
    std::filesystem::create_directory(directory / "copies");
    for (const std::string& path : {directory / "copies", directory.Path()}) {
        ASSERT_EQ(chmod(directory.Path().c_str(), 0755), 0);
        ASSERT_EQ(chmod(path.c_str(), 0311), 0);
        const auto check = [&] {
            support::BecomeOrdinaryUser();
            try {
                (void)CheckFolder(directory.Path());
            } catch (const Refusal& refusal) {
                return std::string(refusal.what());
            }
            return std::string("checked");
        };
        EXPECT_EQ(support::RunInChild(check).words, path + " cannot be read: Permission denied.");
        ASSERT_EQ(chmod(path.c_str(), 0755), 0);
    }
}

/// The draws of a file by date, in the order of their rows where dates are the same.
std::vector<DrawOnFile> SortedDraws(const std::string& content) {
    std::vector<DrawOnFile> draws = DrawsOf(content, 10).draws;
    std::ranges::stable_sort(draws, {}, &DrawOnFile::date);
    return draws;
}

/// Files of every kind, with the draws of one of them in dates of five digits where the folder is mended.
std::map<std::string, std::string> FewFiles(const support::TemporaryDirectory& directory, bool folderIsMended) {
    std::map<std::string, std::string> files;
    for (const char* name : {"LOTTOSYS", "GAME01.CDB", "GAME03.CDB", "PLAYS03.CDB", "SHUFFLE.CDB"}) {
        files[name] = directory.Read(name);
    }
    if (folderIsMended) {
        files["LOTTOSYS"][63] = 'M';
        files["GAME01.CDB"][63] = 'M';
        for (std::size_t row = 64; row + 64 <= files["GAME01.CDB"].size(); row += 64) {
            if (files["GAME01.CDB"][row] != ' ') {
                files["GAME01.CDB"].replace(row, 5, std::to_string(12'000 + row / 64));
            }
        }
    }
    return files;
}

/// What the program reads of a table: the mark, and each slot's name, rules and history set.
std::vector<std::string> ReadOf(const std::string& table) {
    std::vector<std::string> texts{IsTableOfMendedFolder(table) ? "mended" : "ordinary"};
    for (const GameOnFile& game : GamesOf(WholeTable(table))) {
        const GameRules& rules = game.rules;
        std::string text = game.name;
        for (const int number :
             {int{game.historySet}, rules.gameType, rules.mainPickCount, rules.bonusPickCount, rules.mainLow,
              rules.mainHigh, rules.bonusLow, rules.bonusHigh, int{rules.duplicatesAllowed}, int{rules.orderMatters}}) {
            text += " " + std::to_string(number);
        }
        texts.push_back(text);
    }
    return texts;
}

/// The chosen picks that the program reads in each record.
std::vector<std::vector<std::int16_t>> ChosenIn(const std::string& content) {
    std::vector<std::vector<std::int16_t>> lists;
    for (std::size_t record = 0; record < 40; ++record) {
        std::vector<std::int16_t> slots(100, -1);
        const std::string text = record * 320 < content.size() ? content.substr(record * 320, 320) : "";
        DecodeChosenPicks(modUTILS::FixedWidth(text, 320), slots);
        lists.push_back(slots);
    }
    return lists;
}

void ExpectReadAlike(const std::string& name, const std::string& before, const std::string& mended,
                     const std::string& sample) {
    if (name == "LOTTOSYS") {
        EXPECT_EQ(ReadOf(mended), ReadOf(before));
    } else if (name == "SHUFFLE.CDB") {
        EXPECT_EQ(ChosenIn(mended), ChosenIn(before));
    } else if (name.starts_with("PLAYS")) {
        EXPECT_EQ(PlaysOf(mended), PlaysOf(before)) << name;
    } else if (DateDigitsOf(mended) == DateDigitsOf(before)) {
        EXPECT_EQ(SortedDraws(mended), SortedDraws(before)) << name;
    } else {  // the mark that the file had lost
        EXPECT_EQ(DateDigitsOf(mended), DateDigitsOf(sample)) << name;
    }
}

// Whatever the damage, mending changes nothing that the program reads, and what it leaves is left again.
TEST_F(FolderCheckTest, MendingChangesNothingThatIsRead) {
    std::mt19937 chance(2002);
    const auto upTo = [&chance](std::size_t count) { return static_cast<std::size_t>(chance() % count); };
    int mendings = 0;
    for (int round = 0; round < 24; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const auto sample = FewFiles(directory, round % 2 == 1);
        const support::TemporaryDirectory damaged;
        for (const auto& [name, content] : sample) {
            std::string bytes = content;
            for (int damage = 0; damage < 6; ++damage) {
                static constexpr std::string_view letters("\0 0123456789/x-M", 16);
                bytes[upTo(std::min<std::size_t>(bytes.size(), damage == 0 ? 68 : 20'000))] =
                    letters[upTo(letters.size())];
            }
            if (name.starts_with("GAME")) {
                bytes[64 * (1 + upTo(300)) + 4] = '3';  // behind four digits of a date
            }
            if (round % 4 == 0) {
                bytes.resize(upTo(bytes.size()));
            }
            damaged.Write(name, bytes);
        }
        const CheckedFolder checked = CheckFolder(damaged.Path());
        for (const auto& [name, content] : checked.mended) {
            ++mendings;
            ExpectReadAlike(name, damaged.Read(name), *content, sample.at(name));
            damaged.Write(name, *content);
        }
        const CheckedFolder again = CheckFolder(damaged.Path());
        EXPECT_TRUE(again.mended.empty()) << again.mended.begin()->first;
        EXPECT_EQ(std::ranges::count(again.findings, Remedy::Mend, &Finding::remedy), 0);
    }
    EXPECT_GT(mendings, 40);
}

}  // namespace
}  // namespace ballhaven::data
