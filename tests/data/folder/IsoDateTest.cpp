#include "data/folder/IsoDate.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

TEST(IsoDateTest, SerialsAreDaysSinceTheFirstOf1984) {
    EXPECT_EQ(IsoDate(1), "1984-01-02");
    EXPECT_EQ(IsoDate(59), "1984-02-29");
    EXPECT_EQ(IsoDate(9999), "2011-05-18");
    EXPECT_EQ(IsoDate(10000), "2011-05-19");
    EXPECT_EQ(IsoDate(15666), "2026-11-22");
    EXPECT_EQ(IsoDate(32767), "2073-09-17");
}

}  // namespace
}  // namespace ballhaven::data
