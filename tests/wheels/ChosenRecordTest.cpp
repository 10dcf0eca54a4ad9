#include "wheels/ChosenRecord.h"

#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using support::Padded;

using Picks = std::vector<std::int16_t>;

Picks Decoded(std::string_view record) {
    Picks slots(100, -1);
    DecodeChosenPicks(record, slots);
    slots.resize(4);
    return slots;
}

TEST(ChosenRecord, TheListsOfBonusPicksFollowThoseOfAllGamesMainPicks) {
    EXPECT_EQ(ChosenRecordOf(1, mainPicks), 1);
    EXPECT_EQ(ChosenRecordOf(20, mainPicks), 20);
    EXPECT_EQ(ChosenRecordOf(1, bonusPicks), 21);
    EXPECT_EQ(ChosenRecordOf(20, bonusPicks), 40);
}

TEST(ChosenRecord, PicksCloseUpWhenTheyAreRead) {
    EXPECT_EQ(Decoded(Padded("7     0  48 ", 320)), (Picks{7, 0, 48, -1}));
}

TEST(ChosenRecord, TheHundredthPickStandsBeforeTheOption) {
    std::string record(320, ' ');
    record.replace(297, 5, "33 SH");
    EXPECT_EQ(Decoded(record), (Picks{33, -1, -1, -1}));
}

TEST(ChosenRecord, PicksCloseUpWhenTheyAreWrittenAndStandAtTheLeft) {
    EXPECT_EQ(EncodeChosenPicks(Picks{7, -1, 0, 48}), Padded("7  0  48", 320));
}

TEST(ChosenRecord, LettersAreZero) {
    EXPECT_EQ(Decoded(Padded("ab 5", 320)), (Picks{0, 5, -1, -1}));
}

}  // namespace
}  // namespace ballhaven
