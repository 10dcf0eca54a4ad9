#include "data/folder/CountText.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

TEST(CountText, OneAloneIsSingular) {
    EXPECT_EQ(CountText(0, "draw"), "0 draws");
    EXPECT_EQ(CountText(1, "draw"), "1 draw");
    EXPECT_EQ(CountText(5'000'000'000, "line"), "5000000000 lines");
}

}  // namespace
}  // namespace ballhaven::data
