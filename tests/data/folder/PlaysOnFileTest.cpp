#include "data/folder/PlaysOnFile.h"

#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

std::string RecordWithFirstPick(const std::string& pick) {
    std::string record(64, ' ');
    record.replace(5, pick.size(), pick);
    return record;
}

TEST(PlaysOnFileTest, RecordsArePlaysAndWhatIsMissingIsEmpty) {
    const PlayPicks plays = PlaysOf(RecordWithFirstPick("12") + RecordWithFirstPick("7 ").substr(0, 8));
    EXPECT_EQ(plays(mainPicks, 1, 1), 12);
    EXPECT_EQ(plays(mainPicks, 1, 2), -1);
    EXPECT_EQ(plays(mainPicks, 2, 1), 7);
    EXPECT_EQ(plays(mainPicks, 3, 1), -1);
    EXPECT_EQ(plays(bonusPicks, playCount, 10), -1);
}

TEST(PlaysOnFileTest, ASlotWithoutAFileHasNoPlays) {
    const support::TemporaryDirectory directory;
    EXPECT_EQ(ReadPlays(directory.Path(), 3)(mainPicks, 1, 1), -1);
    directory.Write("PLAYS03.CDB", RecordWithFirstPick("48"));
    EXPECT_EQ(ReadPlays(directory.Path(), 3)(mainPicks, 1, 1), 48);
    EXPECT_EQ(directory.Files().size(), 1U);
}

}  // namespace
}  // namespace ballhaven::data
