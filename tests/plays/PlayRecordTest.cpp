#include "plays/PlayRecord.h"

#include "plays/PlayMethodCode.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::Padded;

constexpr int play = 5000;

std::vector<int> Slots(const PlayPicks& plays, int pickColumn) {
    const auto slots = plays.Slots(pickColumn, play);
    return {slots.begin(), slots.end()};
}

const std::string record = "PW    7 22  3 44  5 66  7 88  9 10  1 12 23 34 45 56 67 78 89 90";

TEST(PlayRecord, MethodMainPicksAndBonusPicksStandInTheirColumns) {
    PlayPicks plays;
    DecodePlay(record, plays, play);
    EXPECT_EQ(plays(mainPicks, play, 0), byPartialWheel);
    EXPECT_EQ(Slots(plays, mainPicks), (std::vector<int>{7, 22, 3, 44, 5, 66, 7, 88, 9, 10}));
    EXPECT_EQ(Slots(plays, bonusPicks), (std::vector<int>{1, 12, 23, 34, 45, 56, 67, 78, 89, 90}));
    EXPECT_EQ(EncodePlay(plays, play), record);
}

TEST(PlayRecord, ABlankRecordIsAnEmptyPlayByHand) {
    PlayPicks plays;
    DecodePlay(record, plays, play);
    DecodePlay(std::string(64, ' '), plays, play);
    EXPECT_EQ(plays(mainPicks, play, 0), byHand);
    EXPECT_EQ(Slots(plays, mainPicks), std::vector<int>(10, -1));
    EXPECT_EQ(Slots(plays, bonusPicks), std::vector<int>(10, -1));
    EXPECT_EQ(EncodePlay(plays, play), std::string(64, ' '));
}

TEST(PlayRecord, OtherPlaysStayAsTheyAre) {
    PlayPicks plays;
    DecodePlay(record, plays, play);
    DecodePlay(std::string(64, ' '), plays, play - 1);
    EXPECT_EQ(EncodePlay(plays, play), record);
}

TEST(PlayRecord, AnUnknownMethodIsByHandAndLettersAreZero) {
    PlayPicks plays;
    DecodePlay(Padded("xx   ab", 64), plays, play);
    EXPECT_EQ(EncodePlay(plays, play), Padded("      0", 64));
}

}  // namespace
}  // namespace ballhaven
