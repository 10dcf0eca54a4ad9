#include "data/checks/Finding.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

TEST(FindingTest, ALineNamesFileRecordAndField) {
    EXPECT_EQ(
        LineOf({"GAME01.CDB", 12, "draw of 2004-05-06", "columns 6-7 (pick 1)", "is wrong", "Do this.", Remedy::User}),
        "GAME01.CDB, record 12 (draw of 2004-05-06), columns 6-7 (pick 1): is wrong. Do this.");
}

TEST(FindingTest, WhatIsAboutAWholeFileNamesNothingElse) {
    EXPECT_EQ(LineOf({"LOTTOSYS", 0, "", "", "is missing", "", Remedy::User}), "LOTTOSYS: is missing.");
}

TEST(FindingTest, ARemarkIsNoFault) {
    Finding finding{"LOTTOSYS", 0, "", "", "is long", "", Remedy::None};
    EXPECT_FALSE(IsFault(finding));
    finding.remedy = Remedy::Mend;
    EXPECT_TRUE(IsFault(finding));
    finding.remedy = Remedy::User;
    EXPECT_TRUE(IsFault(finding));
}

}  // namespace
}  // namespace ballhaven::data
