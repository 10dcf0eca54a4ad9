#include "statistics/HotFigures.h"

#include "state/RuntimeFailure.h"
#include "support/Games.h"

#include <gtest/gtest.h>

#include <optional>

namespace ballhaven {
namespace {

template <typename Figure>
std::optional<RuntimeFailure::Kind> FailureOf(Figure figure) {
    try {
        static_cast<void>(figure());
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
    return std::nullopt;
}

TEST(HotPercentage, CutsItsFractionOff) {
    EXPECT_EQ(HotPercentage(3, 2, FigureRange::Narrow), 66);
    EXPECT_EQ(HotPercentage(1000, 9, FigureRange::Narrow), 0);
    EXPECT_EQ(HotPercentage(1000, 10, FigureRange::Narrow), 1);
    EXPECT_EQ(HotPercentage(7, 7, FigureRange::Narrow), 100);
}

// Not a bug: HOT-OVERFLOW-1 in docs/not-bugs.md.
TEST(QuirkHotOverflow1, ThePercentageOf327HitsIsTheLastThatFits) {
    EXPECT_EQ(HotPercentage(999, 327, FigureRange::Narrow), 32);
    EXPECT_EQ(FailureOf([] { return HotPercentage(999, 328, FigureRange::Narrow); }), RuntimeFailure::Kind::Overflow);
}

TEST(QuirkHotOverflow1, WholeFiguresAreAsLargeAsTheyAre) {
    EXPECT_EQ(HotPercentage(999, 328, FigureRange::Whole), 32);
    EXPECT_EQ(HotPercentage(1000, 10000, FigureRange::Whole), 1000);
    EXPECT_EQ(HotPercentage(2, 800, FigureRange::Whole), 40000);
    EXPECT_EQ(HotPercentage(3, 2, FigureRange::Whole), 66);
}

TEST(HotPercentage, OfNoGamesIsNoFailureWhereFiguresAreWhole) {
    EXPECT_EQ(HotPercentage(0, 0, FigureRange::Whole), 0);
}

TEST(QuirkHotOverflow1, FiguresAreWholeInAMendedFolderAndNarrowInAnother) {
    EXPECT_EQ(FiguresOfFolder(), FigureRange::Narrow);
    support::MendFolder();
    EXPECT_EQ(FiguresOfFolder(), FigureRange::Whole);
}

// Not a bug: HOT-PERCENT-1 in docs/not-bugs.md.
TEST(QuirkHotPercent1, MoreHitsThanGamesPassAHundred) {
    EXPECT_EQ(HotPercentage(2, 4, FigureRange::Narrow), 200);
}

TEST(IntervalText, ShowsOneDecimalPlace) {
    EXPECT_EQ(IntervalText(100, 7, FigureRange::Narrow), "14.3");
    EXPECT_EQ(IntervalText(10, 10, FigureRange::Narrow), "1.0");
    EXPECT_EQ(IntervalText(1000, 3, FigureRange::Narrow), "333.3");
    EXPECT_EQ(IntervalText(1000, 1, FigureRange::Narrow), "1000.0");
}

TEST(IntervalText, ShowsNoDigitBeforeThePointOfAValueBelowOne) {
    EXPECT_EQ(IntervalText(10, 20, FigureRange::Narrow), ".5");
    EXPECT_EQ(IntervalText(1, 30, FigureRange::Narrow), ".0");
    EXPECT_EQ(IntervalText(96, 100, FigureRange::Narrow), "1.0");
    EXPECT_EQ(IntervalText(94, 100, FigureRange::Narrow), ".9");
}

TEST(IntervalText, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(IntervalText(1, 4, FigureRange::Narrow), ".3");
    EXPECT_EQ(IntervalText(5, 4, FigureRange::Narrow), "1.3");
    EXPECT_EQ(IntervalText(11, 4, FigureRange::Narrow), "2.8");
}

TEST(IntervalText, RoundsTheExactValueOfTheSinglePrecisionNumber) {
    // 2.35 is a little less in single precision, 2.45 a little more.
    EXPECT_EQ(IntervalText(47, 20, FigureRange::Narrow), "2.3");
    EXPECT_EQ(IntervalText(49, 20, FigureRange::Narrow), "2.5");
}

TEST(IntervalText, OfNoHitsIsADivisionByZero) {
    EXPECT_EQ(FailureOf([] { return IntervalText(10, 0, FigureRange::Narrow); }), RuntimeFailure::Kind::DivisionByZero);
}

TEST(IntervalText, OfNoHitsIsEmptyWhereFiguresAreWhole) {
    EXPECT_EQ(IntervalText(10, 0, FigureRange::Whole), "");
    EXPECT_EQ(IntervalText(100, 7, FigureRange::Whole), "14.3");
}

}  // namespace
}  // namespace ballhaven
