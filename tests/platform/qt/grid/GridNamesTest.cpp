#include "platform/qt/grid/GridNames.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

/// Two panes of a log whose rows are named by their first column, and whose pick has no shown heading.
class GridNames : public testing::Test {
  protected:
    GridNames() {
        grid.SetColumns(2);
        grid.AddPane(0, 0);
        grid.AddPane(1, 1);
        grid.SetRowCount(3);
        grid.accessibleName = "Log";
        grid.rowNameColumn = 0;
        grid.Column(0).heading = "Historical Log";
        grid.Column(1).accessibleHeading = "Pick 1";
        grid.cellText = [this](const GridCell& cell) {
            ++asked;
            return "row " + std::to_string(cell.row);
        };
    }

    Grid grid;
    int asked = 0;
};

TEST_F(GridNames, AColumnIsCalledByItsAccessibleHeadingBeforeItsOwn) {
    EXPECT_EQ(NameOfColumn(grid, 0), QStringLiteral("Historical Log"));
    EXPECT_EQ(NameOfColumn(grid, 1), QStringLiteral("Pick 1"));

    grid.Column(0).accessibleHeading = "Date";
    EXPECT_EQ(NameOfColumn(grid, 0), QStringLiteral("Date"));
}

TEST_F(GridNames, ARowIsCalledByTheColumnThatNamesIt) {
    EXPECT_EQ(NameOfRow(grid, 2), QStringLiteral("row 2"));

    grid.rowNameColumn = -1;
    EXPECT_EQ(NameOfRow(grid, 2), QString());
}

TEST_F(GridNames, WhileTheGridIsOffNoRowIsAskedFor) {
    const GridPause pause(grid);
    asked = 0;

    EXPECT_EQ(NameOfRow(grid, 2), QString());
    EXPECT_EQ(asked, 0);
}

TEST_F(GridNames, AnEditorIsCalledByWhatIsKnownOfItsCell) {
    EXPECT_EQ(NameOfEditor(grid, {1, 2, 1}), QStringLiteral("Pick 1, row 2"));

    grid.rowNameColumn = -1;
    EXPECT_EQ(NameOfEditor(grid, {1, 2, 1}), QStringLiteral("Pick 1"));
}

TEST_F(GridNames, AGridIsCalledByItsCaptionWhereItHasOne) {
    EXPECT_EQ(NameOfGrid(grid), QStringLiteral("Log"));

    grid.caption = "Hot Numbers, Last 10 Games";
    EXPECT_EQ(NameOfGrid(grid), QStringLiteral("Hot Numbers, Last 10 Games"));
}

TEST_F(GridNames, ABoardIsCalledByItsOwnNameAndOtherPanesByTheirNumber) {
    grid.Pane(1).accessibleName = "Line B";

    EXPECT_EQ(NameOfPane(grid, 0), QStringLiteral("Log 1"));
    EXPECT_EQ(NameOfPane(grid, 1), QStringLiteral("Line B"));
}

TEST(GridOfOnePane, IsCalledAsTheGrid) {
    Grid hot;
    hot.SetColumns(1);
    hot.AddPane(0, 0);
    hot.caption = "Hot Pairs";

    EXPECT_EQ(NameOfPane(hot, 0), QStringLiteral("Hot Pairs"));
}

}  // namespace
}  // namespace ballhaven::platform
