#include "platform/qt/grid/GridPaneModel.h"

#include "support/qt/GridOnScreen.h"

#include <QAccessible>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

class GridAsAModel : public testing::Test, protected support::LogOnScreen {
  protected:
    GridAsAModel() { Show(); }

    /// A cell as the pane's view, and through it an assistive tool, sees it.
    [[nodiscard]] QAbstractItemModel& Pane(int pane) const { return *PaneView(pane)->model(); }

    void EditFromOutside(int pane, const QModelIndex& cell) const {
        QTableView* view = PaneView(pane);
        view->edit(cell);
    }
};

TEST_F(GridAsAModel, EachPaneHasItsOwnColumnsOnly) {
    EXPECT_EQ(Pane(0).columnCount(), 1);
    EXPECT_EQ(Pane(1).columnCount(), 10);
    EXPECT_EQ(Pane(1).data(Pane(1).index(2, 2)).toString(), QStringLiteral("30"));
}

TEST_F(GridAsAModel, AHiddenColumnIsInNoPane) {
    grid.Column(4).visible = false;

    EXPECT_EQ(Pane(1).columnCount(), 9);
    EXPECT_EQ(Pane(1).data(Pane(1).index(0, 3)).toString().toStdString(), cells[0][5]);
}

TEST_F(GridAsAModel, RowsEndAtTheFirstNull) {
    cells.resize(12);

    grid.ReadAgain();

    EXPECT_EQ(Pane(0).rowCount(), 12);
    EXPECT_EQ(Pane(1).rowCount(), 12);
}

TEST_F(GridAsAModel, NoCopyOfATextIsKept) {
    cells[2][3] = "11";

    EXPECT_EQ(Pane(1).data(Pane(1).index(2, 2)).toString(), QStringLiteral("11"));
}

TEST_F(GridAsAModel, WhileOffNoTextIsAskedFor) {
    const GridPause pause(grid);
    cellsRead = 0;

    EXPECT_EQ(Pane(1).data(Pane(1).index(2, 2)).toString(), QString());
    EXPECT_EQ(cellsRead, 0);
}

TEST_F(GridAsAModel, AnEditFromOutsideIsChecked) {
    EXPECT_TRUE(Pane(1).setData(Pane(1).index(2, 2), QStringLiteral("42")));

    EXPECT_EQ(TakeNotices(), (Notices{"change 2,3", "check 3 42", "edited 3"}));
    EXPECT_EQ(cells[2][3], "42");
}

TEST_F(GridAsAModel, AnEditFromOutsideCanBeRefused) {
    EXPECT_FALSE(Pane(1).setData(Pane(1).index(2, 2), QStringLiteral("99")));

    EXPECT_EQ(cells[2][3], "30");
    EXPECT_EQ(boxes, 1);
}

TEST_F(GridAsAModel, ALockedCellTakesNoEditFromOutside) {
    EXPECT_FALSE(Pane(0).setData(Pane(0).index(2, 0), QStringLiteral("x")));
    EXPECT_FALSE(Pane(1).setData(Pane(1).index(2, 8), QStringLiteral("5")));
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(GridAsAModel, WhileOffItTakesNoEditFromOutside) {
    const GridPause pause(grid);

    EXPECT_FALSE(Pane(1).setData(Pane(1).index(2, 2), QStringLiteral("5")));
    EXPECT_EQ(TakeNotices(), Notices{});
}

TEST_F(GridAsAModel, AnEditFromOutsideWaitsForTheOpenEditor) {
    grid.TakeFocus();
    grid.GoTo(2, 3);
    Type("99");

    EXPECT_FALSE(Pane(1).setData(Pane(1).index(5, 0), QStringLiteral("5")));

    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridAsAModel, OnlyCellsThatCanBeTypedInAreEditable) {
    EXPECT_FALSE(Pane(0).index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_TRUE(Pane(1).index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(Pane(1).index(0, 9).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(GridAsAModel, AnEditorAskedForFromOutsideIsTheGridsOwn) {
    EditFromOutside(1, Pane(1).index(2, 2));

    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->text(), QStringLiteral("30"));
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
}

TEST_F(GridAsAModel, NoEditorOpensOnALockedCell) {
    EditFromOutside(0, Pane(0).index(2, 0));
    EditFromOutside(1, Pane(1).index(2, 9));

    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridAsAModel, HeadingsForAssistiveToolsStandBesideThoseThatAreShown) {
    grid.Column(3).accessibleHeading = "Pick 3";

    EXPECT_EQ(Pane(1).headerData(2, Qt::Horizontal).toString(), QString());
    EXPECT_EQ(Pane(1).headerData(2, Qt::Horizontal, Qt::AccessibleTextRole).toString(), QStringLiteral("Pick 3"));
    EXPECT_EQ(Pane(0).headerData(0, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
              QStringLiteral("Historical Log"));
}

TEST(BoardsAsModels, AssistiveToolsAreToldMoreOfACellThanItShows) {
    support::BoardsOnScreen boards;
    boards.grid.cellDescription = [&boards](const GridCell& cell) {
        return cell == boards.chosen ? boards.grid.cellText(cell).value() + ", chosen" : "";
    };
    boards.chosen = {1, 0, 2};
    boards.Show();

    QAccessibleTableInterface* second = QAccessible::queryAccessibleInterface(boards.PaneView(1))->tableInterface();
    EXPECT_EQ(second->cellAt(0, 2)->text(QAccessible::Name), QStringLiteral("B2, chosen"));
    EXPECT_EQ(second->cellAt(0, 3)->text(QAccessible::Name), QStringLiteral("B3"));
}

TEST(BoardsAsModels, EachHasAllVisibleColumnsWithItsOwnTexts) {
    support::BoardsOnScreen boards;
    boards.grid.Column(8).visible = false;
    boards.Show();

    const QAbstractItemModel& third = *boards.PaneView(2)->model();
    EXPECT_EQ(third.columnCount(), 8);
    EXPECT_EQ(third.rowCount(), 24);
    EXPECT_EQ(third.data(third.index(1, 0)).toString(), QStringLiteral("C9"));
    EXPECT_EQ(third.data(third.index(1, 7)).toString(), QStringLiteral("C16"));
}

}  // namespace
}  // namespace ballhaven::platform
