#include "platform/Pointer.h"

#include "support/PointerKeeper.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using support::PointerKeeper;

TEST(WaitPointer, IsTheHourglassUntilTheLastOneGoes) {
    const PointerKeeper pointer;
    {
        const WaitPointer outer;
        EXPECT_TRUE(pointer.hourglass);
        {
            const WaitPointer inner;
            EXPECT_TRUE(pointer.hourglass);
        }
        EXPECT_TRUE(pointer.hourglass);
    }
    EXPECT_FALSE(pointer.hourglass);
}

TEST(WaitPointerLifted, TakesTheHourglassOffAndPutsItBack) {
    const PointerKeeper pointer;
    const WaitPointer waiting;
    {
        const WaitPointerLifted lifted;
        EXPECT_FALSE(pointer.hourglass);
        {
            const WaitPointer workMeanwhile;
            EXPECT_TRUE(pointer.hourglass);
        }
        EXPECT_FALSE(pointer.hourglass);
    }
    EXPECT_TRUE(pointer.hourglass);
}

TEST(WaitPointerLifted, LeavesTheArrowWhereThereIsNoHourglass) {
    const PointerKeeper pointer;
    { const WaitPointerLifted lifted; }
    EXPECT_FALSE(pointer.hourglass);
}

TEST(WaitPointer, NeedsNoToolkit) {
    ASSERT_EQ(toolkit, nullptr);
    { const WaitPointer waiting; }
    const PointerKeeper pointer;
    const WaitPointer waiting;
    EXPECT_TRUE(pointer.hourglass);
}

}  // namespace
}  // namespace ballhaven::platform
