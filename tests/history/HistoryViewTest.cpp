#include "history/HistoryView.h"

#include "forms/MainForm.h"
#include "history/HistoryRefresh.h"
#include "state/AppState.h"
#include "support/FreshStart.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace ballhaven {
namespace {

using Rows = std::vector<int>;

/// The date serial of the draw in a row; serial 1000 is 27 September 1986.
int DateOfRow(int row) {
    return 1000 + row;
}

/// An empty program with a history of `draws` draws of two picks, whose first pick names their row.
void SetUpHistory(int draws) {
    support::LayOutAfresh();
    appState.totalPicks = 2;
    appState.historySetSize = 10;
    appState.HistoryTable = Table(3, historyRows);
    appState.historyLast = static_cast<std::int16_t>(draws - 1);
    for (int row = 0; row < draws; ++row) {
        appState.HistoryTable(0, row) = static_cast<std::int16_t>(DateOfRow(row));
        appState.HistoryTable(1, row) = static_cast<std::int16_t>(row);
        appState.HistoryTable(2, row) = static_cast<std::int16_t>(-1);
    }
}

/// Gives the rows of the history other dates, from row 0 on.
void SetDates(const std::vector<int>& dates) {
    for (int row = 0; const int date : dates) {
        appState.HistoryTable(0, row++) = static_cast<std::int16_t>(date);
    }
}

/// The first picks of a table's rows up to `last`: the rows in which the draws stood at first.
Rows OriginalRows(const Table& table, int last) {
    Rows rows;
    for (int row = 0; row <= last; ++row) {
        rows.push_back(table(1, row));
    }
    return rows;
}

Rows ShownRows() {
    return OriginalRows(appState.historyView, appState.historyViewLast);
}

Rows HistoryRows() {
    return OriginalRows(appState.HistoryTable, appState.historyLast);
}

TEST(BuildHistoryView, TheNewestFirstRunsFromTheLastRowDownToTheSizeOfTheSet) {
    SetUpHistory(25);
    appState.historySortOrder = 0;

    BuildHistoryView();

    EXPECT_EQ(ShownRows(), (Rows{24, 23, 22, 21, 20, 19, 18, 17, 16, 15}));
}

TEST(BuildHistoryView, TheOldestFirstRunsUpToTheLastRow) {
    SetUpHistory(25);
    appState.historySortOrder = 1;

    BuildHistoryView();

    EXPECT_EQ(ShownRows(), (Rows{15, 16, 17, 18, 19, 20, 21, 22, 23, 24}));
}

TEST(BuildHistoryView, ASetLargerThanTheHistoryShowsAllOfIt) {
    SetUpHistory(30);
    appState.historySetSize = 1000;
    appState.historySortOrder = 1;

    BuildHistoryView();

    EXPECT_EQ(appState.historyViewLast, 29);
    EXPECT_EQ(appState.historyView.Rows(), 1000);
    EXPECT_EQ(ShownRows().front(), 0);
    EXPECT_EQ(ShownRows().back(), 29);
}

TEST(BuildHistoryView, AnEmptyHistoryGivesAnEmptyView) {
    SetUpHistory(3);
    BuildHistoryView();
    SetUpHistory(0);
    frmMainForm.logRowCount = 3;
    frmMainForm.grdHist.SetRowCount(3);

    BuildHistoryView();

    EXPECT_EQ(appState.historyViewLast, -1);
    EXPECT_EQ(frmMainForm.logRowCount, 0);
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 0);
}

TEST(BuildHistoryView, ASetOfNoGamesGivesAnEmptyViewInEitherOrder) {
    for (const std::int16_t order : {std::int16_t{0}, std::int16_t{1}}) {
        SetUpHistory(5);
        appState.historySetSize = 0;
        appState.historySortOrder = order;

        BuildHistoryView();

        EXPECT_EQ(appState.historyViewLast, -1);
        EXPECT_EQ(frmMainForm.logRowCount, 0);
    }
}

TEST(BuildHistoryView, TheViewStopsAtARowWithoutADate) {
    SetUpHistory(6);
    SetDates({1000, 1001, 0, 1003, 1004, 1005});

    appState.historySortOrder = 1;
    BuildHistoryView();
    EXPECT_EQ(ShownRows(), (Rows{0, 1}));

    appState.historySortOrder = 0;
    BuildHistoryView();
    EXPECT_EQ(ShownRows(), (Rows{5, 4, 3}));
}

TEST(BuildHistoryView, AllColumnsOfADrawAreCopied) {
    SetUpHistory(1);
    appState.HistoryTable(2, 0) = 42;

    BuildHistoryView();

    EXPECT_EQ(appState.historyView(0, 0), 1000);
    EXPECT_EQ(appState.historyView(1, 0), 0);
    EXPECT_EQ(appState.historyView(2, 0), 42);
}

TEST(BuildHistoryView, TheViewIsACopyOfTheDraws) {
    SetUpHistory(1);
    BuildHistoryView();

    appState.historyView(1, 0) = 77;

    EXPECT_EQ(appState.HistoryTable(1, 0), 0);
}

TEST(BuildHistoryView, TheLogIsToldItsRows) {
    SetUpHistory(7);

    BuildHistoryView();

    EXPECT_EQ(frmMainForm.logRowCount, 7);
    EXPECT_EQ(frmMainForm.grdHist.RowCount(), 7);
}

TEST(BuildHistoryView, TheNewestDrawIsTheFirstOrTheLastRowByTheOrder) {
    SetUpHistory(4);

    appState.historySortOrder = 0;
    BuildHistoryView();
    EXPECT_EQ(frmMainForm.newestDrawText, "09/30/1986");

    frmMainForm.newestDrawText.clear();
    appState.historySortOrder = 1;
    BuildHistoryView();
    EXPECT_EQ(frmMainForm.newestDrawText, "09/30/1986");
}

TEST(BuildHistoryView, TheNewestDrawStaysWhereTheViewBecomesEmpty) {
    SetUpHistory(0);
    frmMainForm.newestDrawText = "01/02/1990";

    BuildHistoryView();

    EXPECT_EQ(frmMainForm.newestDrawText, "01/02/1990");
}

TEST(BuildHistoryView, PicksThatTheHistoryHasNoColumnsForAreBlank) {
    SetUpHistory(2);
    appState.totalPicks = 4;
    appState.historySortOrder = 1;

    BuildHistoryView();

    EXPECT_EQ(appState.historyView.Columns(), 5);
    EXPECT_EQ(appState.historyView(1, 1), 1);
    EXPECT_EQ(appState.historyView(3, 1), -1);
    EXPECT_EQ(appState.historyView(4, 1), -1);
}

TEST(SortHistory, OneRowStaysAsItIs) {
    SetUpHistory(1);
    const Table before = appState.HistoryTable;

    SortHistory();

    EXPECT_EQ(appState.HistoryTable, before);
    EXPECT_EQ(appState.historyLast, 0);
}

TEST(SortHistory, RowsComeInAscendingOrderOfDateWithTheirPicks) {
    SetUpHistory(4);
    SetDates({1300, 1100, 1400, 1200});

    SortHistory();

    EXPECT_EQ(HistoryRows(), (Rows{1, 3, 0, 2}));
    EXPECT_EQ(appState.HistoryTable(0, 0), 1100);
    EXPECT_EQ(appState.HistoryTable(0, 3), 1400);
}

TEST(SortHistory, RowsOfOneDateKeepTheirOrder) {
    SetUpHistory(4);
    SetDates({1200, 1100, 1200, 1100});

    SortHistory();

    EXPECT_EQ(HistoryRows(), (Rows{1, 3, 0, 2}));
}

TEST(SortHistory, RowsBehindTheLastStayAsTheyAre) {
    SetUpHistory(4);
    SetDates({1300, 1100, 1050, 1000});
    appState.historyLast = 1;

    SortHistory();

    EXPECT_EQ(HistoryRows(), (Rows{1, 0}));
    EXPECT_EQ(appState.HistoryTable(1, 2), 2);
    EXPECT_EQ(appState.HistoryTable(1, 3), 3);
}

TEST(SortHistory, ARowWithoutADateComesFirst) {
    SetUpHistory(3);
    SetDates({1300, 0, 1100});

    SortHistory();

    EXPECT_EQ(HistoryRows(), (Rows{1, 2, 0}));
}

/// The plain reckoning: day by day from the lowest date to the highest, and for each all rows that bear it.
Rows RowsDayByDay(const std::vector<int>& dates) {
    const auto [lowest, highest] = std::ranges::minmax(dates);
    Rows rows;
    for (int date = lowest; date <= highest; ++date) {
        for (int row = 0; row < static_cast<int>(dates.size()); ++row) {
            if (dates[static_cast<std::size_t>(row)] == date) {
                rows.push_back(row);
            }
        }
    }
    return rows;
}

RC_GTEST_PROP(SortHistory, GivesWhatAWalkDayByDayGives, ()) {
    const auto dates = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(-3, 40)));
    SetUpHistory(static_cast<int>(dates.size()));
    SetDates(dates);

    SortHistory();

    RC_ASSERT(HistoryRows() == RowsDayByDay(dates));
}

TEST(CompactHistory, TheRowsThatStayKeepTheirOrder) {
    SetUpHistory(5);
    SetDates({1400, 0, 1200, 0, 1300});

    CompactHistory();

    EXPECT_EQ(HistoryRows(), (Rows{0, 2, 4}));
}

TEST(CompactHistory, RowsBehindTheDrawsBecomeEmpty) {
    SetUpHistory(3);
    SetDates({1000, 0, 1002});

    CompactHistory();

    EXPECT_EQ(appState.historyLast, 1);
    EXPECT_EQ(appState.HistoryTable.Rows(), historyRows);
    EXPECT_EQ(appState.HistoryTable(0, 2), 0);
    EXPECT_EQ(appState.HistoryTable(1, 2), 0);
}

TEST(CompactHistory, DrawsBehindTheCountedRowsAreFoundToo) {
    SetUpHistory(3);
    appState.historyLast = 0;

    CompactHistory();

    EXPECT_EQ(HistoryRows(), (Rows{0, 1, 2}));
}

TEST(CompactHistory, AHistoryWithoutDatesBecomesEmpty) {
    SetUpHistory(2);
    SetDates({0, -4});

    CompactHistory();

    EXPECT_EQ(appState.historyLast, -1);
}

TEST(CompactHistory, AFullHistoryStaysWhole) {
    SetUpHistory(historyRows);

    CompactHistory();

    EXPECT_EQ(appState.historyLast, historyRows - 1);
    EXPECT_EQ(appState.HistoryTable(1, historyRows - 1), historyRows - 1);
}

}  // namespace
}  // namespace ballhaven
