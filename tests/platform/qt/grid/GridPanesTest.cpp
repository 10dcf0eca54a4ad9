#include "platform/qt/grid/GridPanes.h"

#include "support/qt/GridOnScreen.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::platform {
namespace {

/// The panes of a log: 0 with the dates, 1 with ten picks of which six are in view.
class PanesOfALog : public testing::Test, protected support::LogOnScreen {
  protected:
    PanesOfALog() { Show(); }

    [[nodiscard]] QScrollBar& Bar(const char* name) const {
        return *widget->findChild<QScrollBar*>(QLatin1String(name));
    }
    [[nodiscard]] int RowScroll(int pane) const { return PaneView(pane)->verticalScrollBar()->value(); }
};

TEST_F(PanesOfALog, TheBarOfTheRowsMovesAllPanes) {
    Bar("grid.rows").setValue(7);

    EXPECT_EQ(RowScroll(0), 7);
    EXPECT_EQ(RowScroll(1), 7);
}

TEST_F(PanesOfALog, APaneThatScrollsTakesTheOthersWithIt) {
    PaneView(1)->verticalScrollBar()->setValue(3);

    EXPECT_EQ(Bar("grid.rows").value(), 3);
    EXPECT_EQ(RowScroll(0), 3);
}

TEST_F(PanesOfALog, ABarOfColumnsMovesItsOwnPaneOnly) {
    ASSERT_GE(Bar("grid.columns(1)").maximum(), 1);
    Bar("grid.columns(1)").setValue(1);

    EXPECT_EQ(PaneView(1)->horizontalScrollBar()->value(), 1);
    EXPECT_EQ(PaneView(0)->horizontalScrollBar()->value(), 0);
}

TEST_F(PanesOfALog, OnlyThePaneOfTheCurrentCellIsAStopOfTheTabKey) {
    grid.GoToColumn(2);
    EXPECT_EQ(PaneView(0)->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(PaneView(1)->focusPolicy(), Qt::TabFocus);

    grid.GoToColumn(0);
    EXPECT_EQ(PaneView(0)->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(PaneView(1)->focusPolicy(), Qt::NoFocus);
}

/// A grid of one row in a widget of its own.
class GridPanesTest : public testing::Test {
  protected:
    GridPanesTest() {
        grid.name = "grid";
        grid.SetColumns(3);
    }

    /// The numbers of the panes that are made now.
    std::vector<int> AddMissing() {
        std::vector<int> added;
        panes.AddMissing([&](const GridPaneView& pane) {
            for (int number = 0; number < grid.PaneCount(); ++number) {
                if (&panes.Pane(number) == &pane) {
                    added.push_back(number);
                    break;
                }
            }
        });
        return added;
    }

    Grid grid;
    QWidget parent;
    GridPanes panes{grid, parent};
};

TEST_F(GridPanesTest, WithoutAPaneThereAreNoRowsNoCellAndNothingThatHasTheKeyboard) {
    EXPECT_TRUE(panes.Empty());
    EXPECT_EQ(panes.Current(), nullptr);
    EXPECT_EQ(panes.FirstVisibleRow(), 0);
    EXPECT_EQ(panes.VisibleRows(), 0);
    EXPECT_EQ(panes.CellAt({5, 5}), std::nullopt);
    EXPECT_FALSE(panes.HaveKeyboard());
}

TEST_F(GridPanesTest, APaneIsMadeAndToldOfOnce) {
    grid.AddPane(0, 0);
    EXPECT_EQ(AddMissing(), (std::vector<int>{0}));
    EXPECT_FALSE(panes.Empty());

    grid.AddPane(1, 2);
    EXPECT_EQ(AddMissing(), (std::vector<int>{1}));
    EXPECT_EQ(AddMissing(), std::vector<int>{});
}

TEST_F(GridPanesTest, KeepsTheNumberOfRowsThatItWasGiven) {
    panes.TakeRows(12);
    EXPECT_EQ(panes.Rows(), 12);
}

}  // namespace
}  // namespace ballhaven::platform
