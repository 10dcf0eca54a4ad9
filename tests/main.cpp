#include "support/FreshStart.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    ballhaven::support::StartEveryTestAfresh();
    return RUN_ALL_TESTS();
}
