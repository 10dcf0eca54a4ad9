#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using Kind = RuntimeFailure::Kind;

TEST(RuntimeFailure, SaysWhatHappenedInTheWordsOfItsKind) {
    EXPECT_STREQ(RuntimeFailure(Kind::Overflow).what(), "Overflow: a number does not fit into 16 bits.");
    EXPECT_STREQ(RuntimeFailure(Kind::SubscriptOutOfRange).what(),
                 "Subscript out of range: a table has no room for another row.");
    EXPECT_STREQ(RuntimeFailure(Kind::DivisionByZero).what(), "Division by zero.");
}

TEST(RuntimeFailure, KeepsItsKind) {
    for (const Kind kind : {Kind::Overflow, Kind::SubscriptOutOfRange, Kind::DivisionByZero}) {
        EXPECT_EQ(RuntimeFailure(kind).GetKind(), kind);
    }
}

TEST(RuntimeFailure, OfAFileNamesTheFileAndTheReasonOfTheSystemOnALineOfItsOwn) {
    const RuntimeFailure failure("/home/games/LOTTOSYS", "No space left on device");
    EXPECT_EQ(failure.GetKind(), Kind::FileError);
    EXPECT_STREQ(failure.what(), "File error: /home/games/LOTTOSYS\nNo space left on device");
}

TEST(RuntimeFailure, CanBeCaughtAsAnyFailureOfTheProgram) {
    std::string words;
    try {
        throw RuntimeFailure(Kind::DivisionByZero);
    } catch (const std::exception& failure) {
        words = failure.what();
    }
    EXPECT_EQ(words, "Division by zero.");
}

}  // namespace
}  // namespace ballhaven
