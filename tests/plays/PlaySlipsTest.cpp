#include "plays/PlaySlips.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace ballhaven {
namespace {

TEST(PlaySlips, FivePlaysStandOnEachSlip) {
    const std::map<int, int> slips = {{1, 1},  {5, 1},      {6, 2},       {10, 2},
                                      {11, 3}, {4995, 999}, {4996, 1000}, {5000, 1000}};
    for (const auto& [play, slip] : slips) {
        EXPECT_EQ(SlipOfPlay(play), slip) << play;
    }
}

TEST(PlaySlips, TheLinesOfASlipRunFromOneToFive) {
    const std::map<int, int> lines = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 1}, {4999, 4}, {5000, 5}};
    for (const auto& [play, line] : lines) {
        EXPECT_EQ(LineOfPlay(play), line) << play;
    }
}

TEST(PlaySlips, APlayIsNamedByItsSlipWithAPointAndItsLetter) {
    const std::map<int, std::string> names = {{1, "1.A"}, {7, "2.B"}, {58, "12.C"}, {4, "1.D"}, {5000, "1000.E"}};
    for (const auto& [play, name] : names) {
        std::string slipText = "old";
        std::string lineLetter = "old";
        PlaySlipLabel(play, slipText, lineLetter);
        EXPECT_EQ(slipText + lineLetter, name);
        EXPECT_EQ(slipText.back(), '.');
        EXPECT_EQ(NameOfPlay(play), name);
    }
}

}  // namespace
}  // namespace ballhaven
