#include "platform/qt/grid/JoinedTable.h"

#include "support/qt/GridOnScreen.h"

#include <QAccessible>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

using support::BoardsOnScreen;
using support::LogOnScreen;

std::string Name(QAccessibleInterface* told) {
    return told == nullptr ? "nothing" : told->text(QAccessible::Name).toStdString();
}

/// A log with a pane for the date and one for the picks, as assistive tools are told of it.
class JoinedTable : public LogOnScreen, public testing::Test {
  protected:
    JoinedTable() {
        grid.accessibleName = "Historical Log";
        grid.Column(0).accessibleHeading = "Date";
        grid.Column(3).accessibleHeading = "Pick 3";
        grid.rowNameColumn = 0;
        Show();
    }

    [[nodiscard]] QAccessibleInterface& Told() const { return *QAccessible::queryAccessibleInterface(widget); }
    [[nodiscard]] QAccessibleTableInterface& Table() const { return *Told().tableInterface(); }
};

TEST_F(JoinedTable, IsOneTableOfAllColumnsThatAreShown) {
    EXPECT_EQ(Told().role(), QAccessible::Table);
    EXPECT_EQ(Name(&Told()), "Historical Log");
    EXPECT_EQ(Table().rowCount(), 40);
    EXPECT_EQ(Table().columnCount(), 11);
    QAccessibleInterface* const cell = Table().cellAt(1, 1);
    grid.Column(10).visible = false;
    EXPECT_EQ(Table().columnCount(), 10);
    EXPECT_EQ(Told().childCount(), 400);
    EXPECT_EQ(Table().cellAt(1, 1), cell);
    EXPECT_EQ(Name(Told().child(12)), cells[1][2]);
}

TEST_F(JoinedTable, ItsColumnsBearTheirHeadingsAndItsRowsTheirNames) {
    EXPECT_EQ(Table().columnDescription(0), QStringLiteral("Date"));
    EXPECT_EQ(Table().columnDescription(3), QStringLiteral("Pick 3"));
    EXPECT_EQ(Table().rowDescription(2).toStdString(), cells[2][0]);
}

TEST_F(JoinedTable, ACellSaysItsTextAndItsPlace) {
    QAccessibleInterface* const cell = Table().cellAt(2, 3);
    EXPECT_EQ(Name(cell), cells[2][3]);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->parent(), &Told());
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 2);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 3);
    EXPECT_EQ(Told().child(Told().indexOfChild(cell)), cell);
    const QPoint middle = widget->mapToGlobal(MiddleOf(2, 3));
    EXPECT_TRUE(cell->rect().contains(middle));
    EXPECT_EQ(Told().childAt(middle.x(), middle.y()), cell);
}

TEST_F(JoinedTable, AssistiveToolsMeetEachCellOnce) {
    std::vector<std::string> met;
    for (int column = 0; column < Table().columnCount(); ++column) {
        met.push_back(Name(Told().child(2 * Table().columnCount() + column)));
    }
    EXPECT_EQ(met, cells[2]);
}

TEST_F(JoinedTable, ThereIsNothingBeyondItsEdges) {
    EXPECT_EQ(Table().cellAt(-1, 0), nullptr);
    EXPECT_EQ(Table().cellAt(40, 0), nullptr);
    EXPECT_EQ(Table().cellAt(0, 11), nullptr);
    EXPECT_EQ(Told().child(440), nullptr);
    EXPECT_EQ(Told().childAt(-5, -5), nullptr);
}

TEST_F(JoinedTable, ACellOfARowThatHasGoneIsNotValidAnyMore) {
    QAccessibleInterface* const cell = Table().cellAt(39, 1);
    EXPECT_TRUE(cell->isValid());
    grid.SetRowCount(10);
    grid.ReadAgain();
    EXPECT_FALSE(cell->isValid());
    EXPECT_TRUE(cell->state().invalid);
    EXPECT_EQ(Name(cell), "");
    EXPECT_TRUE(cell->rect().isEmpty());
}

TEST_F(JoinedTable, OneCellIsSelectedAndHasTheKeyboard) {
    ClickCell(2, 3);
    EXPECT_TRUE(Table().cellAt(2, 3)->state().focused);
    EXPECT_TRUE(Table().cellAt(2, 3)->state().selected);
    EXPECT_FALSE(Table().cellAt(2, 4)->state().selected);
    EXPECT_EQ(Told().focusChild(), Table().cellAt(2, 3));
    ASSERT_EQ(Table().selectedCellCount(), 1);
    EXPECT_EQ(Table().selectedCells().front(), Table().cellAt(2, 3));
    ClickOn(*before);
    before->setFocus();
    EXPECT_FALSE(Table().cellAt(2, 3)->state().focused);
    EXPECT_EQ(Told().focusChild(), nullptr);
}

TEST_F(JoinedTable, AToolMovesTheCurrentCellAndTypesIntoOne) {
    Table().cellAt(4, 2)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(Current(), (GridCell{1, 4, 2}));
    Table().cellAt(5, 2)->setText(QAccessible::Value, QStringLiteral("17"));
    EXPECT_EQ(cells[5][2], "17");
    Table().cellAt(5, 2)->setText(QAccessible::Value, QStringLiteral("50"));
    EXPECT_EQ(cells[5][2], "17") << "refused";
    EXPECT_EQ(boxes, 1);
}

TEST_F(JoinedTable, ItsPanesSayNothing) {
    for (int pane = 0; pane < 2; ++pane) {
        QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(PaneView(pane));
        EXPECT_EQ(told.tableInterface(), nullptr);
        EXPECT_EQ(told.childCount(), 0);
        EXPECT_TRUE(told.state().invisible);
    }
}

class BoardTables : public BoardsOnScreen, public testing::Test {
  protected:
    BoardTables() { Show(); }
};

TEST_F(BoardTables, EachBoardStaysATable) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->tableInterface(), nullptr);
    QAccessibleTableInterface* const board = QAccessible::queryAccessibleInterface(PaneView(2))->tableInterface();
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->rowCount(), 24);
    EXPECT_EQ(board->columnCount(), 9);
}

}  // namespace
}  // namespace ballhaven::platform
