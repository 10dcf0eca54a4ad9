#include "data/folder/ChosenPicksOnFile.h"

#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::data {
namespace {

using support::RecordFormat;
using support::TemporaryDirectory;

const RecordFormat format{320, 40, {}};

std::vector<int> FirstThree(const ChosenPicks& chosen, int list) {
    return {chosen(list, 1), chosen(list, 2), chosen(list, 3)};
}

TEST(ChosenPicksOnFile, EachListHasItsRecord) {
    const std::string content = format.File({{3, "7  12"}, {4, "9"}, {23, "0"}});

    EXPECT_EQ(FirstThree(ChosenPicksOf(content, 3), mainPicks), (std::vector{7, 12, -1}));
    EXPECT_EQ(FirstThree(ChosenPicksOf(content, 3), bonusPicks), (std::vector{0, -1, -1}));
    EXPECT_EQ(FirstThree(ChosenPicksOf(content, 20), mainPicks), (std::vector{-1, -1, -1}));
}

TEST(ChosenPicksOnFile, AFileWithoutBonusListsHasNoneOfThem) {
    const std::string content = format.File({{3, "7  12"}}).substr(0, 6400);

    EXPECT_EQ(FirstThree(ChosenPicksOf(content, 3), mainPicks), (std::vector{7, 12, -1}));
    EXPECT_EQ(FirstThree(ChosenPicksOf(content, 3), bonusPicks), (std::vector{-1, -1, -1}));
    EXPECT_EQ(FirstThree(ChosenPicksOf(content.substr(0, 642), 3), mainPicks), (std::vector{7, -1, -1}));
}

TEST(ChosenPicksOnFile, AFolderWithoutTheFileHasNoneAndGetsNone) {
    const TemporaryDirectory directory;

    EXPECT_EQ(FirstThree(ReadChosenPicks(directory.Path(), 3), mainPicks), (std::vector{-1, -1, -1}));
    EXPECT_TRUE(directory.Files().empty());
}

TEST(ChosenPicksOnFile, TheyAreReadFromTheFolder) {
    const TemporaryDirectory directory;
    directory.Write("SHUFFLE.CDB", format.File({{20, "48"}, {40, "5"}}));

    EXPECT_EQ(FirstThree(ReadChosenPicks(directory.Path(), 20), mainPicks), (std::vector{48, -1, -1}));
    EXPECT_EQ(FirstThree(ReadChosenPicks(directory.Path(), 20), bonusPicks), (std::vector{5, -1, -1}));
}

}  // namespace
}  // namespace ballhaven::data
