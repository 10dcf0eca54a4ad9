#include "data/ImportCommand.h"

#include "data/CommandTest.h"
#include "platform/Services.h"
#include "support/TemporaryDirectory.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sstream>

namespace ballhaven::data {
namespace {

using Files = std::map<std::string, std::string>;

/// Record 1 of the table of games.
std::string SystemRecord(bool mended) {
    std::string record = "01/1/1/000000";
    record.resize(63, ' ');
    return record + (mended ? "M" : " ");
}

/// A game of two of 1 to 49 and one bonus pick of 1 to 9 in slot 1, and one of two cards in slot 2.
std::string Table(bool mended) {
    return SystemRecord(mended) + "1 /Two and One           /010/2/1/49/ / /N/N/02/1/N /  /1/09/   " +
           "2 /Two Cards             /010/3/1/52/ / /N/N/02/0/N /  /1/52/   ";
}

/// A record of a file of draws.
std::string Row(const std::string& text) {
    std::string record = text;
    record.resize(64, ' ');
    return record;
}

/// A whole file of draws with these rows first.
std::string FileOf(const std::string& rows, bool fiveDigits = false) {
    std::string file = Row("10-26-2002");
    file.back() = fiveDigits ? 'M' : ' ';
    file += rows;
    file.resize(64'064, ' ');
    return file;
}

class ImportCommandTest : public testing::Test {
  protected:
    ImportCommandTest() {
        using namespace std::chrono_literals;
        platform::services.now = [] {
            return std::chrono::local_days{std::chrono::year{2026} / 11 / 22} + 9h + 5min + 7s;
        };
        directory.Write("LOTTOSYS", Table(false));
    }

    void Mend() { directory.Write("LOTTOSYS", Table(true)); }

    /// Imports a file of these bytes, named "draws.csv", into the game in slot 1.
    ExitCode Import(const std::string& bytes, std::vector<std::string> options = {}, const std::string& game = "1") {
        files.Write("draws.csv", bytes);
        return Run(game, files / "draws.csv", std::move(options));
    }

    ExitCode Run(const std::string& game, const std::string& file, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"--folder", directory.Path(), "import", game, file});
        out.str("");
        notes.str("");
        return RunCommandLine(std::move(options), "/nowhere", {out, notes});
    }

    /// What was told, with the file's path as its name alone.
    [[nodiscard]] std::string Told(const std::ostringstream& stream) const {
        std::string text = stream.str();
        for (std::size_t place = text.find(files.Path()); place != std::string::npos; place = text.find(files.Path())) {
            text.erase(place, files.Path().size());
        }
        return text;
    }

    [[nodiscard]] std::string Draws() const { return directory.Read("GAME01.CDB"); }

    support::TemporaryDirectory directory;
    support::TemporaryDirectory files;
    std::ostringstream out;
    std::ostringstream notes;
};

TEST_F(ImportCommandTest, WithoutApplyItOnlyShowsWhatWouldHappen) {
    const Files before = directory.Files();
    EXPECT_EQ(Import("date;a;b;x\n27.09.1986;7;3;1\n18.05.2011;49;1;9\n28.09.1986;1;2;\n"), done);
    EXPECT_EQ(Told(out),
              "draws.csv (semicolon, header, dates d.m.y): 3 draws, 1986-09-27 to 2011-05-18\n"
              "  1 draw without all picks\n"
              "Slot 1, Two and One: 0 draws before\n"
              "  new: 3\n"
              "  then: 3 draws, 1986-09-27 to 2011-05-18\n"
              "Nothing was changed: this is what would happen. Add --apply to do it.\n");
    EXPECT_EQ(notes.str(), "");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(ImportCommandTest, AppliedItWritesTheDrawsInAscendingOrderOfDate) {
    EXPECT_EQ(Import("2011-05-18,49,1,9\n1986-09-27,7,3,1\n1986-09-28,1,2,\n", {"--apply"}), done);
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1") + Row("1001  1  2") + Row("9999 49  1  9")));
    EXPECT_NE(out.str().find("Done. What the game held before is kept in " + directory.Path() +
                             "copies/2026-11-22 09.05.07 import.zip.\n"),
              std::string::npos)
        << out.str();
    EXPECT_TRUE(directory.Has("copies/2026-11-22 09.05.07 import.zip"));
}

TEST_F(ImportCommandTest, DrawsThatAreInAreNoRefusalBecauseTheWordsAboutThemAreLost) {
    files.Write("draws.csv", "1986-09-27,7,3,1\n");
    const std::vector<std::string> line{"--folder", directory.Path(), "import", "1", files / "draws.csv"};
    std::vector<std::string> applied = line;
    applied.emplace_back("--apply");
    FullDisk disk;
    std::ostream full(&disk);
    EXPECT_EQ(RunCommandLine(line, "/nowhere", {full, notes}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: The output could not be written to its end.\n");
    notes.str("");
    EXPECT_EQ(RunCommandLine(applied, "/nowhere", {full, notes}), done);
    EXPECT_EQ(
        notes.str(),
        "ballhaven-data: The output could not be written to its end, but the command is done: Done. What the game held "
        "before is kept in " +
            directory.Path() + "copies/2026-11-22 09.05.07 import.zip.\n");
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1")));
}

TEST_F(ImportCommandTest, AFirstLineWithoutADateIsAFaultAndNoHeader) {
    EXPECT_EQ(Import(",1,2,3\n2010-01-30,1,2,3\n"), refused);
    EXPECT_NE(Told(notes).find("draws.csv, line 1: \"\" is no date"), std::string::npos) << notes.str();
    const std::string numbered = "date,1,2,3\n2010-01-30,1,2,3\n";
    EXPECT_EQ(Import(numbered), refused);
    EXPECT_NE(notes.str().find(" and try again. If line 1 is a header, add --header.\n"), std::string::npos);
    EXPECT_EQ(Import(numbered, {"--header"}), done);
    EXPECT_EQ(Import("date,a,b,c\n2010-02-30,1,2,3\n"), refused);
    EXPECT_EQ(notes.str().find("--header"), std::string::npos) << notes.str();
}

TEST_F(ImportCommandTest, TheExportOfAnEmptyGameChangesNothing) {
    EXPECT_EQ(RunCommandLine({"export", "1"}, directory.Path(), {out, notes}), done);
    EXPECT_EQ(Import(out.str(), {"--apply"}), done) << notes.str();
    EXPECT_NE(out.str().find("There is nothing to change.\n"), std::string::npos);
    EXPECT_FALSE(directory.Has("GAME01.CDB"));
}

TEST_F(ImportCommandTest, AnExportOfPlaysIsRefusedByItsName) {
    EXPECT_EQ(RunCommandLine({"export", "1", "--plays"}, directory.Path(), {out, notes}), done);
    EXPECT_EQ(Import(out.str()), refused);
    EXPECT_NE(notes.str().find("it holds plays, as \"export --plays\" writes them"), std::string::npos) << notes.str();
}

TEST_F(ImportCommandTest, AGameIsFoundByItsNameToo) {
    EXPECT_EQ(Import("1986-09-27,Ah,10c\n", {"--apply"}, "two cards"), done);
    EXPECT_EQ(directory.Read("GAME02.CDB"), FileOf(Row("1000  1 23")));
}

TEST_F(ImportCommandTest, DatesThatTheGameHasAreNamedAndLeftAlone) {
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1") + Row("1001  1  2  3")));
    EXPECT_EQ(Import("1986-09-27,8,9,1\n1986-09-28,1,2,3\n1986-09-29,4,5,6\n", {"--apply"}), done);
    EXPECT_NE(Told(out).find("Slot 1, Two and One: 2 draws before\n"
                             "  new: 1\n"
                             "  there already with the same picks: 1 (1986-09-28)\n"
                             "  there already with other picks, left alone (--replace takes those of the file): 1 "
                             "(1986-09-27)\n"
                             "  then: 3 draws, 1986-09-27 to 1986-09-29\n"),
              std::string::npos)
        << out.str();
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1") + Row("1001  1  2  3") + Row("1002  4  5  6")));
}

TEST_F(ImportCommandTest, WhatTheGamesFileHoldsBesideItsDrawsIsToldBeforeItIsDropped) {
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1") + Row("x001  1  2  3") + Row("1002  7  3  1  9")));
    for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--apply"}}) {
        EXPECT_EQ(Import("1986-09-30,4,5,6\n", options), done);
        EXPECT_NE(out.str().find("  dropped, since no date can be read in it: 1 record; ballhaven-data check tells "
                                 "which\n"
                                 "  with more picks than the game draws, which are dropped: 1 draw\n"),
                  std::string::npos)
            << out.str();
    }
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1") + Row("1002  7  3  1") + Row("1003  4  5  6")));
    EXPECT_EQ(Import("1986-10-01,4,5,6\n"), done);
    EXPECT_EQ(out.str().find("dropped"), std::string::npos);
}

TEST_F(ImportCommandTest, DatesThatTheGameHasTakeTheNewPicksWhereThatIsWanted) {
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1")));
    EXPECT_EQ(Import("1986-09-27,8,9,1\n", {"--replace", "--apply"}), done);
    EXPECT_NE(out.str().find("  there already with other picks, replaced: 1 (1986-09-27)\n"), std::string::npos);
    EXPECT_EQ(Draws(), FileOf(Row("1000  8  9  1")));
}

TEST_F(ImportCommandTest, WhereNothingIsNewNothingIsWritten) {
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1")));
    const Files before = directory.Files();
    EXPECT_EQ(Import("1986-09-27,7,3,1\n", {"--apply"}), done);
    EXPECT_NE(out.str().find("There is nothing to change.\n"), std::string::npos) << out.str();
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(ImportCommandTest, OfMoreThanAThousandDrawsTheNewestAreKeptAndItSaysSo) {
    std::string rows;
    for (int serial = 1; serial <= 1000; ++serial) {
        rows += Row(std::to_string(serial));
    }
    directory.Write("GAME01.CDB", FileOf(rows));
    EXPECT_EQ(Import("1986-09-28,1,2,3\n1986-09-29,4,5,6\n", {"--apply"}), done) << notes.str();
    EXPECT_NE(Told(out).find("  new: 2\n"
                             "  left out, since a game keeps the newest 1000: 2, up to 1984-01-03, 2 of them from the "
                             "game\n"
                             "  then: 1000 draws, 1984-01-04 to 1986-09-29\n"),
              std::string::npos)
        << out.str();
    EXPECT_EQ(Draws(), FileOf(rows.substr(128) + Row("1001  1  2  3") + Row("1002  4  5  6")));
}

TEST_F(ImportCommandTest, FaultsAreNamedWithTheirLinesAndNothingIsApplied) {
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1")));
    const Files before = directory.Files();
    EXPECT_EQ(
        Import("date,a,b,x\n1986-09-28,1,2,3\n1986-02-31,1,2,3\n1986-10-01,1,50,3\n1986-10-02,1,1,3\n", {"--apply"}),
        refused);
    EXPECT_EQ(Told(notes),
              "draws.csv, line 3: \"1986-02-31\" is no day of the calendar\n"
              "draws.csv, line 4: 50 is no main pick of 1 to 49\n"
              "draws.csv, line 5: 1 stands twice in the draw\n"
              "ballhaven-data: draws.csv has 3 lines that cannot be taken. Nothing was changed: correct or "
              "remove them, and try again.\n");
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(directory.Files(), before);
}

TEST_F(ImportCommandTest, OfManyFaultsTwentyAreNamedAndTheRestCounted) {
    std::string bytes = "1986-09-28,1,2,3\n";
    for (int line = 0; line < 21; ++line) {
        bytes += "1986-09-28,1,2,3\n";
    }
    EXPECT_EQ(Import(bytes), refused);
    EXPECT_NE(
        Told(notes).find("draws.csv, line 21: 1986-09-28 is the date of line 1 too\ndraws.csv: and 1 line more\n"),
        std::string::npos)
        << notes.str();
    EXPECT_NE(notes.str().find(" has 21 lines that cannot be taken."), std::string::npos);
}

TEST_F(ImportCommandTest, AnOrdinaryFolderTakesNoDateAfterThe18thOfMay2011) {
    EXPECT_EQ(Import("2011-05-18,1,2,3\n2011-05-19,1,2,3\n", {"--apply"}), refused);
    EXPECT_NE(Told(notes).find("draws.csv, line 2: \"2011-05-19\" is after 2011-05-18, the last date that this folder "
                               "keeps; mend the folder first (ballhaven-data mend)\n"),
              std::string::npos)
        << notes.str();
    EXPECT_FALSE(directory.Has("GAME01.CDB"));
}

TEST_F(ImportCommandTest, AMendedFolderTakesLaterDatesAndMarksItsFile) {
    Mend();
    directory.Write("GAME01.CDB", FileOf(Row("1000  7  3  1")));
    EXPECT_EQ(Import("2026-11-21,1,2,3\n", {"--apply"}), done) << notes.str();
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1") + Row("15665 1  2  3"), true));
}

TEST_F(ImportCommandTest, AMarkedFileKeepsLateDatesInAnOrdinaryFolderToo) {
    directory.Write("GAME01.CDB", FileOf(Row("15665 1  2  3"), true));
    EXPECT_EQ(Import("2026-11-22,4,5,6\n", {"--apply"}), done) << notes.str();
    EXPECT_EQ(Draws(), FileOf(Row("15665 1  2  3") + Row("15666 4  5  6"), true));
}

TEST_F(ImportCommandTest, TheFormCanBeGiven) {
    EXPECT_EQ(Import("no|day|x|a|b\n1|05/06/2010|3|1|2\n",
                     {"--delimiter", "|", "--dates", "d/m/y", "--columns", "day,A,b,x", "--apply"}),
              done)
        << notes.str();
    EXPECT_EQ(Draws(), FileOf(Row("9652  1  2  3")));
    EXPECT_EQ(Import("1986-09-29,1,2,3\n1986-09-28,4,5,6\n", {"--header", "--apply"}), done);
    EXPECT_EQ(Draws(), FileOf(Row("1001  4  5  6") + Row("9652  1  2  3")));
    EXPECT_EQ(Import("date,a,b,x\n1986-09-29,1,2,3\n", {"--no-header"}), refused);
    EXPECT_NE(notes.str().find("line 1: \"date\" is no date of the form y-m-d, with four digits of the year\n"),
              std::string::npos)
        << notes.str();
}

TEST_F(ImportCommandTest, BlanksCanDivideTheFields) {
    EXPECT_EQ(Import("1986-09-28  1  2  3\n1986-09-29 10 20  3\n", {"--delimiter", " ", "--apply"}), done)
        << notes.str();
    EXPECT_EQ(Told(out).substr(0, 34), "draws.csv (blank, dates y-m-d): 2 ");
    EXPECT_EQ(Draws(), FileOf(Row("1001  1  2  3") + Row("1002 10 20  3")));
}

TEST_F(ImportCommandTest, AFileOfAnyEncodingComesIn) {
    const std::string text =
        "d\xE9"
        "but;a;b;x\r\n27.09.1986;7;3;1\r\n";
    const std::string expected = FileOf(Row("1000  7  3  1"));
    std::string utf16 = "\xFF\xFE";
    for (const char each : text) {
        utf16 += {each, '\0'};
    }
    const std::string header =
        "d\xC3\xA9"
        "but,a,b,x";
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--apply"}, {"--columns", header, "--apply"}}) {
        for (const std::string& bytes : {text, utf16,
                                         "\xEF\xBB\xBF"
                                         "d\xC3\xA9" +
                                             text.substr(2),
                                         "d\xC3\xA9" + text.substr(2)}) {
            directory.Write("GAME01.CDB", "");
            EXPECT_EQ(Import(bytes, options), done) << notes.str();
            EXPECT_EQ(Draws(), expected);
        }
    }
}

TEST_F(ImportCommandTest, WhatNoOptionTakesIsWrongUsage) {
    EXPECT_EQ(Import("", {"--delimiter", "||"}), wrongUsage);
    EXPECT_EQ(notes.str().substr(0, notes.str().find('\n')),
              "--delimiter: \"||\" is none that it takes. What divides the fields: comma, semicolon, tab, blank or the "
              "character itself");
    EXPECT_EQ(Import("", {"--dates", "y-d-m"}), wrongUsage);
    EXPECT_EQ(Import("", {"--header", "--no-header"}), wrongUsage);
    EXPECT_EQ(RunCommandLine({"import", "1"}, directory.Path(), {out, notes}), wrongUsage);
}

TEST_F(ImportCommandTest, DatesThatCanBeReadInTwoWaysAreAskedFor) {
    EXPECT_EQ(Import("05/06/2010,1,2,3\n"), refused);
    EXPECT_EQ(Told(notes),
              "ballhaven-data: draws.csv: the date \"05/06/2010\" in line 1, as all others, can be read "
              "with the day or the month first; say with --dates d.m.y or --dates m/d/y which it is.\n");
}

TEST_F(ImportCommandTest, FilesThatAreNoneAreRefused) {
    EXPECT_EQ(Run("1", files / "missing.csv"), refused);
    EXPECT_EQ(Told(notes), "ballhaven-data: missing.csv cannot be opened: No such file or directory.\n");
    EXPECT_EQ(Run("1", files.Path()), refused);
    EXPECT_EQ(Told(notes),
              "ballhaven-data:  is no file that can be read twice. Save the draws in one, and name that.\n");
    EXPECT_EQ(Run("1", "/dev/zero"), refused);
    EXPECT_EQ(Run("1", "/proc/self/mem"), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: /proc/self/mem: it cannot be read to its end.\n");
    EXPECT_EQ(Import(""), refused);
    EXPECT_EQ(Told(notes), "ballhaven-data: draws.csv: it is empty.\n");
    for (const std::string& zeros : {std::string("PK\3\4\0\0", 6), std::string("1\0,\0", 4)}) {
        EXPECT_EQ(Import(zeros), refused);
        EXPECT_EQ(Told(notes), "ballhaven-data: draws.csv: it holds zeros, so it is no text; save the draws as CSV.\n");
    }
    EXPECT_EQ(Import("1986-09-28,1,2,3\n1986-09-29,\"4,5,6\n"), refused);
    EXPECT_EQ(Told(notes), "ballhaven-data: draws.csv: the quote that opens in line 2 never closes.\n");
    EXPECT_EQ(directory.Files(), (Files{{"LOTTOSYS", Table(false)}}));
}

TEST_F(ImportCommandTest, ASlotWithoutAGameIsRefused) {
    EXPECT_EQ(Import("1986-09-28,1,2,3\n", {"--apply"}, "3"), refused);
    EXPECT_EQ(directory.Files(), (Files{{"LOTTOSYS", Table(false)}}));
}

TEST_F(ImportCommandTest, AGameOfMorePicksThanItsFileHoldsIsRefused) {
    std::string table = Table(false);
    table.replace(64 + 45, 2, "57");
    directory.Write("LOTTOSYS", table);
    EXPECT_EQ(Import("1986-09-28,1,2,3\n", {"--apply"}), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: Two and One has more than 10 picks in a draw, so its record is damaged. Look "
              "at it with ballhaven-data check.\n");
    EXPECT_FALSE(directory.Has("GAME01.CDB"));
}

TEST_F(ImportCommandTest, AGameOfADamagedRecordTakesNoDraws) {
    std::string table = Table(false);
    const std::size_t kind = table.find("/3/1/52/") + 1;
    table[kind] = '9';
    directory.Write("LOTTOSYS", table);
    EXPECT_EQ(Import("1986-09-28,1,2\n", {"--apply"}, "2"), refused);
    EXPECT_EQ(notes.str(),
              "ballhaven-data: Two Cards has no known kind, so its record is damaged. Look at it with "
              "ballhaven-data check.\n");
    table = Table(false);
    table.replace(table.find("/02/1/N") + 1, 2, "00");
    directory.Write("LOTTOSYS", table);
    EXPECT_EQ(Import("1986-09-28,1\n", {"--apply"}), refused);
    EXPECT_NE(notes.str().find("Two and One has no main pick in a draw, so"), std::string::npos) << notes.str();
    EXPECT_EQ(directory.Files(), (Files{{"LOTTOSYS", table}}));
}

TEST_F(ImportCommandTest, AFolderThatIsInUseIsLeftAlone) {
    const WorkFolder inUse(directory.Path());
    EXPECT_EQ(Import("1986-09-28,1,2,3\n", {"--apply"}), refused);
    EXPECT_NE(notes.str().find(" is in use by Ballhaven or by another run of this program."), std::string::npos);
    EXPECT_FALSE(directory.Has("GAME01.CDB"));
}

TEST_F(ImportCommandTest, AFileOfTheOlderFormGetsItsFullSizeAndKeepsItsDraws) {
    directory.Write("GAME01.CDB", Row("10-26-2002") + Row("1000  7  3  1"));
    EXPECT_EQ(Import("1986-09-28,1,2,3\n", {"--apply"}), done) << notes.str();
    EXPECT_EQ(Draws(), FileOf(Row("1000  7  3  1") + Row("1001  1  2  3")));
}

TEST_F(ImportCommandTest, AnEmptyFileOfDrawsGetsTheStampOfItsFormat) {
    directory.Write("GAME01.CDB", "");
    EXPECT_EQ(Import("1986-09-28,1,2,3\n", {"--apply"}), done) << notes.str();
    EXPECT_EQ(Draws(), FileOf(Row("1001  1  2  3")));
}

TEST_F(ImportCommandTest, HoweverFewBytesTheDiskTakesTheDrawsAreTheOldOnesOrTheNewOnes) {
    const std::string old = FileOf(Row("1000  7  3  1"));
    directory.Write("GAME01.CDB", old);
    files.Write("draws.csv", "1986-09-28,1,2,3\n");
    const std::string fresh = FileOf(Row("1000  7  3  1") + Row("1001  1  2  3"));
    std::size_t room = 0;
    for (ExitCode result = refused; result != done; room += 97) {
        ASSERT_LT(room, 200'000U);
        {
            support::WatchedFiles watched;
            watched.room = room;
            result = Run("1", files / "draws.csv", {"--apply"});
        }
        std::filesystem::remove_all(directory / "copies");
        EXPECT_TRUE(Draws() == (result == done ? fresh : old)) << room;
        if (result != done) {
            EXPECT_EQ(notes.str().substr(0, 35), "ballhaven-data: Nothing was changed") << room;
            EXPECT_NE(notes.str().find("No space left on device.\n"), std::string::npos) << room;
            EXPECT_FALSE(directory.Has("GAME01.CDB.next")) << room;
        }
    }
    EXPECT_GT(room, 64'064U);
}

TEST_F(ImportCommandTest, WhicheverCallOfTheSystemFailsTheDrawsAreTheOldOnesOrTheNewOnes) {
    const std::string old = FileOf(Row("1000  7  3  1"));
    const std::string fresh = FileOf(Row("1000  7  3  1") + Row("1001  1  2  3"));
    files.Write("draws.csv", "1986-09-28,1,2,3\n");
    bool hasFailed = true;
    for (std::size_t failing = 0; hasFailed; ++failing) {
        ASSERT_LT(failing, 100U);
        directory.Write("GAME01.CDB", old);
        std::filesystem::remove_all(directory / "copies");
        support::WatchedFiles watched;
        watched.before = [failing](std::size_t call) { return call == failing ? EIO : 0; };
        const ExitCode result = Run("1", files / "draws.csv", {"--apply"});
        hasFailed = failing < watched.calls.size();
        const std::string call = hasFailed ? watched.calls[failing].name : "none";
        const std::string told = notes.str();
        EXPECT_TRUE(Draws() == fresh || (result == refused && Draws() == old)) << call;
        EXPECT_EQ(std::ranges::count(told, '\n'), result == refused ? 1 : 0) << call << told;
        EXPECT_EQ(told.empty(), result == done) << call;
    }
    EXPECT_EQ(Draws(), fresh);
}

TEST_F(ImportCommandTest, AFolderThatCannotBeWrittenIsLeftAsItIs) {
    const std::string old = FileOf(Row("1000  7  3  1"));
    directory.Write("GAME01.CDB", old);
    files.Write("draws.csv", "1986-09-28,1,2,3\n");
    support::WatchedFiles watched;
    watched.before = [&](std::size_t call) { return watched.calls[call].name == "open CreateNew" ? EACCES : 0; };
    EXPECT_EQ(Run("1", files / "draws.csv", {"--apply"}), refused);
    EXPECT_EQ(notes.str(), "ballhaven-data: Nothing was changed, since no copy could be kept in " + directory.Path() +
                               "copies: Permission denied.\n");
    EXPECT_EQ(Draws(), old);
}

}  // namespace
}  // namespace ballhaven::data
