#include "data/guarantee/ProofText.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven::data {
namespace {

constexpr GameRules numberGame{.gameType = 0, .mainPickCount = 2, .mainLow = 1, .mainHigh = 49};
constexpr GameRules cardGame{.gameType = 3, .mainPickCount = 2, .mainLow = 1, .mainHigh = 52};

/// Plays 4 and 7 of 2 of 4 numbers.
const Wheel wheel{.numbers = {3, 14, 15, 36}, .plays = {4, 7}, .holds = {{0, 1}, {2, 3}}};

std::string ProofOfWheel(const GameRules& rules, int drawn, int hits, ProofOf kind) {
    std::string text;
    TellProof(rules, wheel, drawn, hits, kind, [&text](std::string_view line) { text += line; });
    return text;
}

TEST(ProofText, MissedSetsStandOneALine) {
    EXPECT_EQ(ProofOfWheel(numberGame, 2, 2, ProofOf::MissedSets), "pick1,pick2\n3,15\n3,36\n14,15\n14,36\n");
}

TEST(ProofText, HitSetsHaveThePlayBehindThem) {
    EXPECT_EQ(ProofOfWheel(numberGame, 3, 2, ProofOf::HitSets),
              "pick1,pick2,pick3,play\n3,14,15,1.D\n3,14,36,1.D\n3,15,36,2.B\n14,15,36,2.B\n");
}

TEST(ProofText, WhatIsNotAskedForIsNotThere) {
    EXPECT_EQ(ProofOfWheel(numberGame, 2, 2, ProofOf::HitSets), "pick1,pick2,play\n3,14,1.D\n15,36,2.B\n");
    EXPECT_EQ(ProofOfWheel(numberGame, 3, 2, ProofOf::MissedSets), "pick1,pick2,pick3\n");
}

TEST(ProofText, CardsAreWrittenAsCards) {
    EXPECT_EQ(ProofOfWheel(cardGame, 2, 2, ProofOf::HitSets), "pick1,pick2,play\n3h,Ac,1.D\n2c,10d,2.B\n");
}

}  // namespace
}  // namespace ballhaven::data
