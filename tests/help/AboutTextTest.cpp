#include "help/AboutText.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ballhaven {
namespace {

TEST(AboutText, BeginsWithTheNameAndTheVersion) {
    ASSERT_GT(AboutLines().size(), 2U);
    EXPECT_EQ(AboutLines()[0], " Ballhaven");
    EXPECT_EQ(AboutLines()[1], "  Version 1.5.6  12/02/02");
    EXPECT_EQ(AboutLines()[2], "");
}

TEST(AboutText, ItsLinesBeginWithABlankAndItsBlocksEndInAnEmptyLine) {
    std::string_view before;
    for (const std::string_view line : AboutLines()) {
        EXPECT_TRUE(line.empty() || line.front() == ' ') << line;
        EXPECT_FALSE(line.empty() && before.empty()) << "two empty lines";
        before = line;
    }
    EXPECT_EQ(before, "");
}

}  // namespace
}  // namespace ballhaven
