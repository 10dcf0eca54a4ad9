#include "data/checks/HistoryRows.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::data {
namespace {

class HistoryRowsTest : public testing::Test {
  protected:
    /// Rows of these dates from record 2 on; 0 for a blank one, a negative date for text that is no draw.
    void Check(const std::vector<int>& dates, DateDigits digits = DateDigits::Four, bool folderIsMended = false) {
        FoundFile found{{"GAME01.CDB", 64, 1001}, std::string(64'064, ' '), 64'064};
        std::vector<HistoryRow> rows;
        int record = 2;
        for (const int date : dates) {
            const std::string text = date == 0 ? "" : std::to_string(date) + "x" + std::to_string(record);
            rows.push_back({record, std::max(date, 0), text});
            found.bytes.replace(static_cast<std::size_t>(record - 1) * 64, text.size(), text);
            ++record;
        }
        Examination examination(found);
        CheckRowOrder(examination, rows, digits, folderIsMended);
        CheckedFile checked = std::move(examination).Result();
        lines.clear();
        remedies.clear();
        for (const Finding& finding : checked.findings) {
            lines.push_back(LineOf(finding));
            remedies.push_back(finding.remedy);
        }
        changed = checked.mended != found.bytes;
        order.clear();
        for (std::size_t place = 64; place < checked.mended.size(); place += 64) {
            const std::string row = checked.mended.substr(place, 64);
            if (!IsBlank(row)) {
                order.push_back(row.substr(0, row.find(' ')));
            }
        }
    }

    std::vector<std::string> lines;
    std::vector<Remedy> remedies;
    std::vector<std::string> order;  ///< date and first record of each row after mending
    bool changed = false;
};

TEST_F(HistoryRowsTest, AscendingDrawsFromTheFirstRowOnHaveNoFinding) {
    for (const std::vector<int>& dates : {std::vector<int>{}, {5}, {5, 6, 100, 9999}, {0, 0}}) {
        Check(dates);
        EXPECT_TRUE(lines.empty());
        EXPECT_FALSE(changed);
    }
}

TEST_F(HistoryRowsTest, HolesCloseUp) {
    Check({5, 0, 0, 6, 0, 7});
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "GAME01.CDB: no draw stands in records 3 to 4, before others. As many of the newest draws are "
                         "hidden, and the next ones take their places.",
                         "GAME01.CDB: no draw stands in record 6, before others. As many of the newest draws are "
                         "hidden, and the next ones take their places."}));
    EXPECT_EQ(remedies, (std::vector<Remedy>{Remedy::Mend, Remedy::Mend}));
    EXPECT_EQ(order, (std::vector<std::string>{"5x2", "6x5", "7x7"}));
}

// Not a bug: HISTORY-GAPS-1 in docs/not-bugs.md.
TEST_F(HistoryRowsTest, HolesHideNothingInAMendedFolder) {
    Check({5, 0, 6}, DateDigits::Four, true);
    EXPECT_EQ(lines, std::vector<std::string>{"GAME01.CDB: no draw stands in record 3, before others. Ballhaven passes "
                                              "over such rows in a mended folder."});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::Mend});
    EXPECT_EQ(order, (std::vector<std::string>{"5x2", "6x4"}));
}

TEST_F(HistoryRowsTest, TheFirstRowCanBeAHole) {
    Check({0, 5});
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(order, std::vector<std::string>{"5x3"});
}

TEST_F(HistoryRowsTest, WhatIsNoDrawGoesBehindTheDrawsAndIsKept) {
    Check({5, -3, 6});
    EXPECT_EQ(order, (std::vector<std::string>{"5x2", "6x4", "-3x3"}));
    Check({5, 6, -3});
    EXPECT_TRUE(lines.empty());
    EXPECT_FALSE(changed);
}

TEST_F(HistoryRowsTest, DrawsAreSortedByDate) {
    Check({7, 5, 6});
    EXPECT_EQ(lines,
              std::vector<std::string>{"GAME01.CDB, record 3 (draw of 1984-01-06): stands behind the draw of "
                                       "1984-01-08. The last draws are counted by their rows, so that wrong ones "
                                       "may be."});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::Mend});
    EXPECT_EQ(order, (std::vector<std::string>{"5x3", "6x4", "7x2"}));
}

TEST_F(HistoryRowsTest, DrawsOfOneDateAreLeftAndKeepTheirOrder) {
    Check({5, 6, 6});
    EXPECT_EQ(lines,
              std::vector<std::string>{"GAME01.CDB, record 4 (draw of 1984-01-07): has the date of record 3. Give "
                                       "one of them its right date in Ballhaven, or delete it."});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::User});
    EXPECT_FALSE(changed);
    Check({6, 5, 6});
    EXPECT_EQ(remedies, (std::vector<Remedy>{Remedy::Mend, Remedy::User}));
    EXPECT_EQ(order, (std::vector<std::string>{"5x3", "6x2", "6x4"}));
}

// Not a bug: HISTORY-DATE-FOUR-DIGITS-1 in docs/not-bugs.md.
constexpr const char* why =
    "This file keeps no date after 2011-05-18: later ones lose their last digit. If they are draws of later years, "
    "delete "
    "them, mark the folder with \"ballhaven-data mend\", and import them again; else delete them and enter them with "
    "their right dates.";

TEST_F(HistoryRowsTest, DatesThatMayHaveLostTheirLastDigitAreToldAndNotSorted) {
    Check({9990, 9999, 1000, 1000, 1001});
    EXPECT_EQ(lines, std::vector<std::string>{
                         "GAME01.CDB: 3 draws, the first in record 4, are dated from 1986-09-27 on, behind "
                         "newer ones. " +
                         std::string(why)});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::User});
    EXPECT_FALSE(changed);

    Check({9999, 9990, 0, 1000});
    EXPECT_EQ(order, (std::vector<std::string>{"9990x3", "9999x2", "1000x5"}));
}

// Not a bug: HISTORY-DATE-FOUR-DIGITS-1 in docs/not-bugs.md.
TEST_F(HistoryRowsTest, OfOneOldDrawBetweenNewOnesOnlyThatOneIsTold) {
    Check({9500, 9501, 2002, 9502, 9503});
    EXPECT_EQ(lines,
              std::vector<std::string>{"GAME01.CDB: the draw in record 4 is dated 1989-06-25, behind newer ones. " +
                                       std::string(why)});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::User});
    EXPECT_FALSE(changed);
}

TEST_F(HistoryRowsTest, DrawsOfTodayThatShareADateInAnOrdinaryFolderAreToldWhy) {
    for (const int date : {1000, 1566, 3276}) {
        Check({date, date});
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_NE(lines[0].find("has the date of record 2. " + std::string(why)), std::string::npos) << lines[0];
    }
    for (const int date : {999, 3277}) {
        Check({date, date});
        EXPECT_EQ(lines[0].find(why), std::string::npos) << lines[0];
    }
    Check({1566, 1566}, DateDigits::Five);
    EXPECT_EQ(lines[0].find(why), std::string::npos) << lines[0];
}

TEST_F(HistoryRowsTest, AnOldDrawBehindAnOldOneHasLostNothing) {
    Check({8999, 1000});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::Mend});
    Check({9999, 3277});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::Mend});
    Check({10'000, 9000}, DateDigits::Five);
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::Mend});
}

// Not a bug: HISTORY-DATE-FOUR-DIGITS-1 in docs/not-bugs.md.
TEST_F(HistoryRowsTest, DatesThatWereCutBeforeTheFolderWasMendedAreNotSorted) {
    Check({9990, 10'001, 1000, 1001}, DateDigits::Five);
    EXPECT_EQ(lines,
              std::vector<std::string>{
                  "GAME01.CDB: 2 draws, the first in record 4, are dated from 1986-09-27 on, behind newer "
                  "ones. A date after 2011-05-18 that was entered before the folder was mended has lost its last "
                  "digit. If they are draws of later years, delete them, and import them again or enter them "
                  "with their right dates; else they are put in order when you next add a draw."});
    EXPECT_EQ(remedies, std::vector<Remedy>{Remedy::User});
    EXPECT_FALSE(changed);
}

}  // namespace
}  // namespace ballhaven::data
