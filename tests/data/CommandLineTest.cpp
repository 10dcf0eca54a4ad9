#include "data/CommandLine.h"

#include <gtest/gtest.h>

#include <sstream>

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

TEST_F(CommandLineTest, HelpIsDoneAndGoesToTheOutput) {
    EXPECT_EQ(Run({"--help"}), done);
    EXPECT_NE(out.str().find("--folder"), std::string::npos);
    EXPECT_EQ(notes.str(), "");
}

}  // namespace
}  // namespace ballhaven::data
