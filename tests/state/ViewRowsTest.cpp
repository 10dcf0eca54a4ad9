#include "state/ViewRows.h"

#include "state/AppState.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using Picks = std::vector<int>;

/// A view of three picks a draw with these dates, as serials.
void ShowDates(const std::vector<int>& dates) {
    support::StartWith(support::NumberGame().Picks(3));
    appState.historyView = Table(4, static_cast<int>(dates.size()));
    appState.historyViewLast = -1;
    for (const int date : dates) {
        appState.historyView(0, ++appState.historyViewLast) = static_cast<std::int16_t>(date);
    }
}

Picks PicksOf(int row) {
    const auto picks = PicksOfDraw(row);
    return {picks.begin(), picks.end()};
}

Picks PicksOf(const DrawRows& draws, int row) {
    const auto picks = draws.Picks(row);
    return {picks.begin(), picks.end()};
}

TEST(DrawRows, GiveSomeColumnsOfAView) {
    Table view(4, 2);
    for (const int row : {0, 1}) {
        for (const int column : {0, 1, 2, 3}) {
            view(column, row) = static_cast<std::int16_t>(10 * row + column);
        }
    }

    EXPECT_EQ(PicksOf(DrawRows(view, 2, {1, 3}), 0), (Picks{1, 2, 3}));
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {2, 3}), 1), (Picks{12, 13}));
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {2, 2}), 1), (Picks{12}));
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {2, 1}), 1), Picks());
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {3, 1}), 1), Picks());
}

TEST(DrawRows, LookAtNoColumnOrRowThatTheViewDoesNotHave) {
    const Table view(3, 2, 7);

    EXPECT_EQ(PicksOf(DrawRows(view, 2, {0, 9}), 0), (Picks{7, 7}));
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {3, 9}), 0), Picks());
    EXPECT_EQ(PicksOf(DrawRows(view, 9, {1, 2}), 2), Picks());
    EXPECT_EQ(PicksOf(DrawRows(view, 2, {1, 2}), -1), Picks());
    EXPECT_EQ(DrawRows(view, 9, {1, 2}).Games(), 9);
}

TEST(ViewedDraws, AreTheGamesOfTheViewWithAllTheirPicks) {
    support::StartWith(support::NumberGame().Picks(3).OldestFirst());
    support::ShowDraws({{1, 2, 3}, {4, -1, 6}});

    EXPECT_EQ(ViewedDraws().Games(), 2);
    EXPECT_EQ(PicksOf(ViewedDraws(), 1), (Picks{4, -1, 6}));
}

TEST(RowOfDate, IsTheFirstRowOfTheViewWithTheDate) {
    ShowDates({1000, 1007, 1007, 1010});

    EXPECT_EQ(RowOfDate(1000), 0);
    EXPECT_EQ(RowOfDate(1007), 1);
    EXPECT_EQ(RowOfDate(1010), 3);
    EXPECT_EQ(RowOfDate(1008), -1);
}

TEST(RowOfDate, LooksAtNoRowThatTheViewDoesNotHave) {
    ShowDates({1000, 1001});
    appState.historyViewLast = 9;

    EXPECT_EQ(RowOfDate(2000), -1);
}

TEST(RowOfDate, LooksInAnyTableOfDrawsUpToItsLastRow) {
    Table draws(1, 4);
    draws(0, 0) = 1000;
    draws(0, 1) = 1007;
    draws(0, 2) = 1007;
    draws(0, 3) = 1010;
    EXPECT_EQ(RowOfDate(draws, 2, 1000), 0);
    EXPECT_EQ(RowOfDate(draws, 2, 1007), 1);
    EXPECT_EQ(RowOfDate(draws, 2, 1010), -1);
    EXPECT_EQ(RowOfDate(draws, 9, 1010), 3);
    EXPECT_EQ(RowOfDate(draws, 9, 1011), -1);
    EXPECT_EQ(RowOfDate(draws, -1, 1000), -1);
}

TEST(PicksOfDraw, AreTheColumnsOfARowBehindItsDate) {
    support::StartWith(support::NumberGame().Picks(3).OldestFirst());
    support::ShowDraws({{1, 2, 3}, {4, -1, 6}});

    EXPECT_EQ(PicksOf(0), (Picks{1, 2, 3}));
    EXPECT_EQ(PicksOf(1), (Picks{4, -1, 6}));
}

TEST(PicksOfDraw, EndWhereTheGameOrTheViewEnds) {
    support::StartWith(support::NumberGame().Picks(3).OldestFirst());
    support::ShowDraws({{1, 2, 3}});

    appState.totalPicks = 2;
    EXPECT_EQ(PicksOf(0), (Picks{1, 2}));
    appState.totalPicks = 9;
    EXPECT_EQ(PicksOf(0), (Picks{1, 2, 3}));
    EXPECT_EQ(PicksOf(-1), Picks());
    EXPECT_EQ(PicksOf(1000), Picks());
}

}  // namespace
}  // namespace ballhaven
