#include "platform/controls/Grid.h"

#include "support/IdleGridView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

using Texts = std::vector<std::string>;

/// A log: a date column in a locked pane, and three pick columns of which the last is locked.
class GridValue : public testing::Test {
  protected:
    GridValue() {
        grid.SetColumns(4);
        grid.AddPane(0, 0);
        grid.AddPane(1, 3);
        grid.Pane(0).locked = true;
        grid.Column(3).locked = true;
        grid.cellText = [this](const GridCell& cell) -> std::optional<std::string> {
            if (cell.row >= rowsKnown) {
                return std::nullopt;
            }
            return std::to_string(cell.row) + "/" + std::to_string(cell.column);
        };
        grid.currentCellChanged = [this] { notices.emplace_back("change"); };
        grid.SetRowCount(5);
    }

    Grid grid;
    int rowsKnown = 5;
    Texts notices;
};

TEST_F(GridValue, AGridWithoutRowsHasNoCurrentRow) {
    Grid empty;
    empty.SetColumns(1);
    empty.AddPane(0, 0);

    EXPECT_EQ(empty.CurrentRow(), -1);
    empty.GoToRow(3);
    EXPECT_EQ(empty.CurrentRow(), -1);
}

TEST_F(GridValue, ItsFirstRowsMakeRowZeroTheCurrentOneWithoutANotice) {
    EXPECT_EQ(grid.CurrentCell(), (GridCell{0, 0, 0}));
    EXPECT_EQ(notices, Texts{});
}

TEST_F(GridValue, FewerRowsHoldTheCurrentRowAtTheLastOne) {
    grid.GoToRow(4);

    grid.SetRowCount(2);

    EXPECT_EQ(grid.CurrentRow(), 1);
}

TEST_F(GridValue, WithoutRowsLeftThereIsNoCurrentRow) {
    grid.SetRowCount(0);

    EXPECT_EQ(grid.CurrentRow(), -1);
}

TEST_F(GridValue, AMoveByTheProgramReportsAChange) {
    grid.GoToRow(2);

    EXPECT_EQ(notices, Texts{"change"});
}

TEST_F(GridValue, AMoveToTheCurrentCellReportsNothing) {
    grid.GoTo(0, 0);

    EXPECT_EQ(notices, Texts{});
}

TEST_F(GridValue, ARowOutsideTheGridIsHeldAtItsEnds) {
    grid.GoToRow(99);
    EXPECT_EQ(grid.CurrentRow(), 4);
    grid.GoToRow(-7);
    EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST_F(GridValue, AColumnOutsideTheGridIsHeldAtItsEnds) {
    grid.GoToColumn(99);
    EXPECT_EQ(grid.CurrentColumn(), 3);
    grid.GoToColumn(-7);
    EXPECT_EQ(grid.CurrentColumn(), 0);
}

TEST_F(GridValue, AMoveToAColumnTakesThePaneThatShowsIt) {
    grid.GoToColumn(2);
    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 0, 2}));
    grid.GoToColumn(0);
    EXPECT_EQ(grid.CurrentCell(), (GridCell{0, 0, 0}));
}

TEST_F(GridValue, AMoveToAnotherPaneTakesItsFirstColumn) {
    grid.GoToPane(1);

    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 0, 1}));
}

TEST_F(GridValue, AMoveToThePaneOfTheCurrentColumnStaysThere) {
    grid.GoToColumn(2);

    grid.GoToPane(1);

    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 0, 2}));
}

TEST_F(GridValue, RowsAreReadUpToTheFirstNull) {
    rowsKnown = 3;

    EXPECT_EQ(grid.RowsRead(), 3);
}

TEST_F(GridValue, NoMoreRowsAreReadThanTheOwnerHasTold) {
    rowsKnown = 100;

    EXPECT_EQ(grid.RowsRead(), 5);
}

TEST_F(GridValue, ItsTextIsThatOfTheCurrentRow) {
    grid.GoToRow(3);

    EXPECT_EQ(grid.Text(2), "3/2");
}

TEST_F(GridValue, WithoutACurrentRowItsTextIsEmpty) {
    grid.SetRowCount(0);

    EXPECT_EQ(grid.Text(1), "");
}

TEST_F(GridValue, TheCheckAndTheNoticeBehindItGetColumnAndText) {
    Texts seen;
    grid.acceptEdit = [&](int column, const std::string& text) {
        seen.push_back("check " + std::to_string(column) + " " + text);
        return true;
    };
    grid.edited = [&](int column, const std::string& text) {
        seen.push_back("edited " + std::to_string(column) + " " + text);
    };
    grid.GoTo(2, 1);

    EXPECT_TRUE(grid.Edit(1, "17"));

    EXPECT_EQ(seen, (Texts{"check 1 17", "edited 1 17"}));
    EXPECT_EQ(grid.Text(1), "2/1");
}

TEST_F(GridValue, ARefusedTextChangesNothing) {
    bool edited = false;
    grid.acceptEdit = [](int, const std::string&) { return false; };
    grid.edited = [&](int, const std::string&) { edited = true; };
    grid.GoTo(2, 1);

    EXPECT_FALSE(grid.Edit(1, "99"));

    EXPECT_FALSE(edited);
    EXPECT_EQ(grid.Text(1), "2/1");
}

TEST_F(GridValue, WithoutACheckEveryTextPasses) {
    grid.GoToColumn(1);

    EXPECT_TRUE(grid.Edit(1, "x"));
}

TEST_F(GridValue, NothingCanBeTypedInALockedColumn) {
    grid.GoToColumn(3);

    EXPECT_FALSE(grid.CanType(3));
    EXPECT_FALSE(grid.Edit(3, "1"));
}

TEST_F(GridValue, NothingCanBeTypedInALockedPane) {
    EXPECT_FALSE(grid.CanType(0));
    EXPECT_FALSE(grid.Edit(0, "1"));
}

TEST_F(GridValue, NothingCanBeTypedWithoutARow) {
    grid.GoToColumn(1);
    grid.SetRowCount(0);

    EXPECT_FALSE(grid.CanType(1));
}

TEST_F(GridValue, WhileOffItMovesWithoutANotice) {
    const GridPause pause(grid);

    grid.GoTo(3, 2);

    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 3, 2}));
    EXPECT_EQ(notices, Texts{});
}

TEST_F(GridValue, WhileOffItTakesNoEdit) {
    int checks = 0;
    grid.acceptEdit = [&](int, const std::string&) { return ++checks > 0; };
    grid.GoToColumn(1);
    const GridPause pause(grid);

    EXPECT_FALSE(grid.Edit(1, "5"));
    EXPECT_EQ(checks, 0);
}

TEST_F(GridValue, TheCallsThatSwitchItOffNest) {
    grid.SwitchOff();
    grid.SwitchOff();
    grid.SwitchOn();
    EXPECT_FALSE(grid.IsOn());

    grid.SwitchOn();
    EXPECT_TRUE(grid.IsOn());
}

TEST_F(GridValue, WithoutAWindowAllRowsAreInView) {
    EXPECT_EQ(grid.FirstVisibleRow(), 0);
    EXPECT_EQ(grid.VisibleRows(), 5);
    EXPECT_EQ(grid.RowTop(0), std::nullopt);
    EXPECT_FALSE(grid.HasSelectedText());
    EXPECT_TRUE(grid.EndEdit());
}

/// A widget that keeps its editor open until it is told otherwise.
class StubbornView : public support::IdleGridView {
  public:
    void ReadAgain() override { ++readings; }
    void Repaint() override { ++repaints; }
    void ShowCurrentCell() override { ++shown; }
    bool EndEdit() override {
        ++ends;
        return !refuses;
    }

    bool refuses = false;
    int readings = 0;
    int repaints = 0;
    int shown = 0;
    int ends = 0;
};

class ShownGridValue : public GridValue {
  protected:
    ShownGridValue() { grid.view = &view; }
    ~ShownGridValue() override { grid.view = nullptr; }

    StubbornView view;
};

TEST_F(ShownGridValue, AnOpenEditorIsEndedBeforeAMoveByTheProgram) {
    grid.GoToRow(2);

    EXPECT_EQ(view.ends, 1);
    EXPECT_EQ(view.shown, 1);
}

TEST_F(ShownGridValue, AMoveByTheUserEndsNoEditor) {
    grid.MoveByUser({0, 2, 0});

    EXPECT_EQ(view.ends, 0);
    EXPECT_EQ(grid.CurrentRow(), 2);
}

TEST_F(ShownGridValue, ARefusedValueStopsEveryMove) {
    view.refuses = true;

    grid.GoToRow(2);
    grid.GoToColumn(2);
    grid.GoToPane(1);
    grid.GoTo(2, 2);

    EXPECT_EQ(grid.CurrentCell(), (GridCell{0, 0, 0}));
    EXPECT_EQ(notices, Texts{});
}

TEST_F(ShownGridValue, AMoveToTheCurrentCellBringsItIntoView) {
    grid.GoTo(0, 0);

    EXPECT_EQ(view.shown, 1);
    EXPECT_EQ(notices, Texts{});
}

TEST_F(ShownGridValue, AnOpenEditorIsEndedBeforeTheGridGoesOff) {
    grid.SwitchOff();
    grid.SwitchOff();
    EXPECT_EQ(view.ends, 1);

    grid.SwitchOn();
    grid.SwitchOn();
}

TEST_F(ShownGridValue, WhileOffItIsNeitherReadNorRepainted) {
    const GridPause pause(grid);

    grid.ReadAgain();
    grid.Repaint();

    EXPECT_EQ(view.readings, 0);
    EXPECT_EQ(view.repaints, 0);
}

TEST_F(ShownGridValue, OnItIsReadAndRepaintedOnDemand) {
    grid.ReadAgain();
    grid.Repaint();

    EXPECT_EQ(view.readings, 1);
    EXPECT_EQ(view.repaints, 1);
}

/// Three boards of four columns, the last of them hidden.
class GridBoards : public testing::Test {
  protected:
    GridBoards() {
        grid.SetColumns(4);
        grid.AddBoards(3);
        for (int column = 0; column < 4; ++column) {
            grid.Column(column).width = 220;
        }
        grid.Column(3).visible = false;
        grid.cellText = [this](const GridCell& cell) {
            asked.push_back(cell);
            return std::to_string(cell.pane) + "/" + std::to_string(cell.row) + "/" + std::to_string(cell.column);
        };
        grid.currentCellChanged = [this] { moves.push_back(grid.CurrentCell()); };
        grid.SetRowCount(5);
    }

    using Cells = std::vector<GridCell>;

    Grid grid;
    Cells asked;
    Cells moves;
};

TEST_F(GridBoards, EachIsAPaneWithAllColumns) {
    ASSERT_EQ(grid.PaneCount(), 3);
    for (int board = 0; board < 3; ++board) {
        EXPECT_EQ(grid.Pane(board).firstColumn, 0);
        EXPECT_EQ(grid.Pane(board).lastColumn, 3);
    }
}

TEST_F(GridBoards, TheCellsOfEachCountTheirColumnsFromZero) {
    grid.GoTo({2, 4, 1});

    EXPECT_EQ(grid.CurrentPane(), 2);
    EXPECT_EQ(grid.CurrentRow(), 4);
    EXPECT_EQ(grid.CurrentColumn(), 1);
    EXPECT_EQ(grid.Text(0), "2/4/0");
}

TEST_F(GridBoards, AMoveToAColumnOrRowStaysOnItsBoard) {
    grid.GoToPane(1);

    grid.GoToColumn(2);
    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 0, 2}));
    grid.GoTo(3, 0);
    EXPECT_EQ(grid.CurrentCell(), (GridCell{1, 3, 0}));
}

TEST_F(GridBoards, AMoveToAnotherBoardKeepsRowAndColumnAndIsAChange) {
    grid.GoTo(3, 2);
    moves.clear();

    grid.GoToPane(2);

    EXPECT_EQ(moves, (Cells{{2, 3, 2}}));
}

TEST_F(GridBoards, ACellOutsideIsHeldAtTheEnds) {
    grid.GoTo({7, 99, 99});
    EXPECT_EQ(grid.CurrentCell(), (GridCell{2, 4, 3}));
    grid.GoTo({-1, -1, -1});
    EXPECT_EQ(grid.CurrentCell(), (GridCell{0, 0, 0}));
}

TEST_F(GridBoards, TheFirstOneTellsHowManyRowsThereAre) {
    EXPECT_EQ(grid.RowsRead(), 5);

    EXPECT_EQ(asked, (Cells{{0, 0, 0}, {0, 1, 0}, {0, 2, 0}, {0, 3, 0}, {0, 4, 0}}));
}

TEST_F(GridBoards, WithoutAWindowTheyStandSideBySideAsWideAsTheirVisibleColumns) {
    EXPECT_EQ(grid.PaneLeft(0), 0);
    EXPECT_EQ(grid.PaneLeft(1), 660);
    EXPECT_EQ(grid.PaneLeft(2), 1320);
}

TEST(RoutineOfRowAndColumn, ServesTheCellsOfAnyPane) {
    const auto text = ByRowAndColumn([](int row, int column) { return row * 10 + column; });
    const auto style = ByRowAndColumn([](int row, int, CellStyle& cell) { cell.background = Color(row, 0, 0); });

    EXPECT_EQ(text(GridCell{3, 4, 2}), 42);
    CellStyle styled;
    style(GridCell{3, 4, 2}, styled);
    EXPECT_EQ(styled.background, Color(4, 0, 0));
}

}  // namespace
}  // namespace ballhaven::platform
