#include "platform/qt/grid/GridNavigation.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

QKeyEvent Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
    return {QEvent::KeyPress, key, modifiers, text};
}

/// Two panes of three columns side by side, the middle column of the first one out of reach.
class GridSteps : public testing::Test {
  protected:
    GridSteps() {
        grid.SetColumns(6);
        grid.AddPane(0, 2);
        grid.AddPane(3, 5);
        grid.Column(1).focusable = false;
        grid.SetRowCount(10);
    }

    [[nodiscard]] std::optional<GridCell> Step(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        return CellByKey(grid, Key(key, modifiers), 10, 4);
    }

    Grid grid;
};

TEST_F(GridSteps, ColumnsOutOfReachAreStepped) {
    EXPECT_EQ(Step(Qt::Key_Right), (GridCell{0, 0, 2}));
    grid.GoToColumn(2);
    EXPECT_EQ(Step(Qt::Key_Left), (GridCell{0, 0, 0}));
}

TEST_F(GridSteps, HiddenColumnsAreStepped) {
    grid.Column(2).visible = false;

    EXPECT_EQ(Step(Qt::Key_Right), (GridCell{1, 0, 3}));
}

TEST_F(GridSteps, AStepFromAColumnOutOfReachFindsItsNeighbours) {
    grid.GoToColumn(1);

    EXPECT_EQ(Step(Qt::Key_Left), (GridCell{0, 0, 0}));
    EXPECT_EQ(Step(Qt::Key_Right), (GridCell{0, 0, 2}));
}

TEST_F(GridSteps, ArrowsCrossPanesAndTabDoesNot) {
    grid.GoToColumn(2);

    EXPECT_EQ(Step(Qt::Key_Right), (GridCell{1, 0, 3}));
    EXPECT_EQ(Step(Qt::Key_Tab), std::nullopt);
}

TEST_F(GridSteps, TheEndsOfTheGridEndTheSteps) {
    EXPECT_EQ(Step(Qt::Key_Left), std::nullopt);
    grid.GoToColumn(5);
    EXPECT_EQ(Step(Qt::Key_Right), std::nullopt);
}

TEST_F(GridSteps, PagesStopAtTheFirstAndTheLastRow) {
    EXPECT_EQ(Step(Qt::Key_PageUp), (GridCell{0, 0, 0}));
    EXPECT_EQ(Step(Qt::Key_PageDown), (GridCell{0, 4, 0}));
    grid.GoToRow(8);
    EXPECT_EQ(Step(Qt::Key_PageDown), (GridCell{0, 9, 0}));
}

TEST_F(GridSteps, OnlyRowsThatAreShownAreReached) {
    EXPECT_EQ(CellByKey(grid, Key(Qt::Key_End, Qt::ControlModifier), 6, 4), (GridCell{0, 5, 2}));
}

TEST_F(GridSteps, WithAltNothingMoves) {
    EXPECT_EQ(Step(Qt::Key_Down, Qt::AltModifier), std::nullopt);
}

/// Two boards of three columns, the last of which is hidden.
class BoardSteps : public testing::Test {
  protected:
    BoardSteps() {
        grid.SetColumns(3);
        grid.AddBoards(2);
        grid.Column(2).visible = false;
        grid.SetRowCount(10);
    }

    [[nodiscard]] std::optional<GridCell> Step(Qt::Key key) const { return CellByKey(grid, Key(key), 10, 4); }

    Grid grid;
};

TEST_F(BoardSteps, ArrowsGoOnAtTheNextBoardInTheSameRow) {
    grid.GoTo({0, 4, 1});
    EXPECT_EQ(Step(Qt::Key_Right), (GridCell{1, 4, 0}));

    grid.GoTo({1, 4, 0});
    EXPECT_EQ(Step(Qt::Key_Left), (GridCell{0, 4, 1}));
}

TEST_F(BoardSteps, RowsAndPagesStayOnTheirBoard) {
    grid.GoTo({1, 4, 1});

    EXPECT_EQ(Step(Qt::Key_Down), (GridCell{1, 5, 1}));
    EXPECT_EQ(Step(Qt::Key_PageUp), (GridCell{1, 0, 1}));
    EXPECT_EQ(Step(Qt::Key_Home), (GridCell{1, 4, 0}));
}

TEST_F(BoardSteps, TheEndsOfTheRowEndTheSteps) {
    EXPECT_EQ(Step(Qt::Key_Left), std::nullopt);
    grid.GoTo({1, 0, 1});
    EXPECT_EQ(Step(Qt::Key_Right), std::nullopt);
}

TEST(GridKeyWords, TypingIsWhatLeavesACharacter) {
    EXPECT_TRUE(IsTyping(Key(Qt::Key_7, Qt::NoModifier, QStringLiteral("7"))));
    EXPECT_TRUE(IsTyping(Key(Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"))));
    EXPECT_FALSE(IsTyping(Key(Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03"))));
    EXPECT_FALSE(IsTyping(Key(Qt::Key_F, Qt::AltModifier, QStringLiteral("f"))));
    EXPECT_FALSE(IsTyping(Key(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"))));
    EXPECT_FALSE(IsTyping(Key(Qt::Key_Home)));
}

TEST(GridKeyWords, AltAndF4ClosesAWindowAndOpensNoList) {
    EXPECT_TRUE(IsDropDownKey(Key(Qt::Key_F4)));
    EXPECT_TRUE(IsDropDownKey(Key(Qt::Key_Down, Qt::AltModifier)));
    EXPECT_FALSE(IsDropDownKey(Key(Qt::Key_F4, Qt::AltModifier)));
    EXPECT_FALSE(IsDropDownKey(Key(Qt::Key_Down)));
}

TEST(GridKeyWords, TheOwnerIsToldFourKeysByName) {
    EXPECT_EQ(KeyOf(Key(Qt::Key_Insert)), GridKey::Insert);
    EXPECT_EQ(KeyOf(Key(Qt::Key_Left)), GridKey::Left);
    EXPECT_EQ(KeyOf(Key(Qt::Key_Right)), GridKey::Right);
    EXPECT_EQ(KeyOf(Key(Qt::Key_Tab)), GridKey::Tab);
    EXPECT_EQ(KeyOf(Key(Qt::Key_Backtab)), GridKey::Other);
    EXPECT_EQ(KeyOf(Key(Qt::Key_5)), GridKey::Other);
}

}  // namespace
}  // namespace ballhaven::platform
