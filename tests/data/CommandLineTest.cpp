#include "data/CommandLine.h"

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <sys/stat.h>

namespace ballhaven::data {
namespace {

class CommandLineTest : public testing::Test {
  protected:
    ExitCode Run(const std::vector<std::string>& arguments) { return RunCommandLine(arguments, "/nowhere", console); }

    std::ostringstream out;
    std::ostringstream notes;
    Console console{out, notes};
};

TEST_F(CommandLineTest, ALineWithoutACommandIsWrongUsage) {
    EXPECT_EQ(Run({}), wrongUsage);
    EXPECT_NE(notes.str().find("A subcommand is required"), std::string::npos) << notes.str();
}

TEST_F(CommandLineTest, AnUnknownCommandIsWrongUsage) {
    EXPECT_EQ(Run({"foretell"}), wrongUsage);
    EXPECT_EQ(out.str(), "");
}

TEST_F(CommandLineTest, AnOptionThatNamesNothingIsWrongUsage) {
    for (const std::vector<std::string>& line : {std::vector<std::string>{"--folder", "", "games"},
                                                 {"export", "1", "--output", ""},
                                                 {"import", "1", ""},
                                                 {"backup", ""},
                                                 {"restore", ""},
                                                 {"guarantee", "1", "--numbers", ""},
                                                 {"guarantee", "1", "-m", "2", "-t", "2", "--proof", ""}}) {
        notes.str("");
        EXPECT_EQ(Run(line), wrongUsage);
        EXPECT_NE(notes.str().find("it names nothing"), std::string::npos) << notes.str();
    }
}

TEST_F(CommandLineTest, HelpIsDoneAndGoesToTheOutput) {
    EXPECT_EQ(Run({"--help"}), done);
    EXPECT_NE(out.str().find("--folder"), std::string::npos);
    EXPECT_EQ(notes.str(), "");
}

/// What the manual page tells of a command, as it is written: from its heading up to the next one.
std::string ManualOf(const std::string& command) {
    std::ifstream file(MANUAL_PAGE);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    const std::size_t begin = page.find("\n.SS " + command);
    return begin == std::string::npos ? "" : page.substr(begin, page.find("\n.S", begin + 1) - begin);
}

/// All that a pattern's first group finds in a text.
std::vector<std::string> Matches(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern, std::regex::multiline);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
        found.push_back((*match)[1]);
    }
    return found;
}

TEST_F(CommandLineTest, TheManualTellsEveryCommandWithItsOptionsAndAnExample) {
    EXPECT_EQ(Run({"--help"}), done);
    const std::string help = out.str();
    const std::vector<std::string> commands = Matches(help.substr(help.find("Subcommands:")), "^  ([a-z]+) ");
    EXPECT_GE(commands.size(), 10U);
    int options = 0;
    for (const std::string& command : commands) {
        const std::string manual = ManualOf(command);
        EXPECT_NE(manual, "") << command;
        EXPECT_NE(manual.find("\nballhaven\\-data " + command), std::string::npos) << command << " has no example";
        out.str("");
        EXPECT_EQ(Run({command, "--help"}), done);
        EXPECT_NE(out.str().find("\nExample: ballhaven-data " + command), std::string::npos);
        for (const std::string& option : Matches(out.str(), "^ .*--([a-z-]+)")) {
            const std::string written = "\\-\\-" + std::regex_replace(option, std::regex("-"), "\\-");
            EXPECT_TRUE(option == "help" || manual.find(written) != std::string::npos) << command << " --" << option;
            ++options;
        }
    }
    EXPECT_GT(options, 25);
}

TEST_F(CommandLineTest, ACountHasToBeOneOrMore) {
    for (const char* count : {"0", "000", "-1", "1.5", "many", ""}) {
        EXPECT_EQ(Run({"winners", "1", "--top", count}), wrongUsage) << count;
        EXPECT_NE(notes.str().find("is not 1 or more"), std::string::npos) << notes.str();
        notes.str("");
    }
    EXPECT_EQ(Run({"winners", "1", "--top", "1"}), refused);
}

TEST_F(CommandLineTest, WhateverTheSystemRefusesIsAMessageAndNoCrash) {
    const support::TemporaryDirectory directory;
    ASSERT_EQ(chmod(directory.Path().c_str(), 0700), 0);
    const auto run = [&] {
        support::BecomeOrdinaryUser();
        const ExitCode code = RunCommandLine({"--folder", directory.Path(), "check", "--mend"}, "/nowhere", console);
        return std::to_string(code) + " " + notes.str();
    };
    const std::string words = support::RunInChild(run).words;
    EXPECT_TRUE(words.starts_with("1 ballhaven-data: ")) << words;
}

}  // namespace
}  // namespace ballhaven::data
