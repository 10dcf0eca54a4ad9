#include "tools/FolderTool.h"

#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>

namespace ballhaven::tools {
namespace {

/// What a tool says and how it ends.
struct Ending {
    int exitCode;
    std::string output;
    std::string errors;

    bool operator==(const Ending&) const = default;
};

Ending EndOf(const std::function<std::string()>& work) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int exitCode = RunFolderTool(work, "It is done.");
    return {exitCode, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST(FolderTool, TellsThatItIsDone) {
    EXPECT_EQ(EndOf([] { return std::string(); }), (Ending{0, "It is done.\n", ""}));
}

TEST(FolderTool, TellsTheReasonAgainstIt) {
    EXPECT_EQ(EndOf([] { return std::string("There are games."); }), (Ending{1, "", "There are games.\n"}));
}

TEST(FolderTool, TellsAFailure) {
    const auto fail = []() -> std::string { throw RuntimeFailure("LOTTOSYS", "No space left"); };
    EXPECT_EQ(EndOf(fail), (Ending{1, "", "File error: LOTTOSYS\nNo space left\n"}));
}

}  // namespace
}  // namespace ballhaven::tools
