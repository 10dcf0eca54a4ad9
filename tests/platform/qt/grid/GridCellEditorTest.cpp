#include "platform/qt/grid/GridCellEditor.h"

#include "support/qt/GridOnScreen.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

using Notices = std::vector<std::string>;

/// The current cell is the third pick of the third row, which is 30.
class GridEditing : public testing::Test, protected support::LogOnScreen {
  protected:
    GridEditing() {
        Show();
        grid.TakeFocus();
        grid.GoTo(2, 3);
        grid.keyDown = nullptr;
        (void)TakeNotices();
    }

    [[nodiscard]] std::string EditorText() const {
        return Editor() == nullptr ? "no editor" : Editor()->text().toStdString();
    }

    /// The editor is open with its text and has the keyboard; the cell is the current one and has its old value; a box
    /// has been shown once.
    void ExpectRefused(const std::string& text) const {
        EXPECT_EQ(EditorText(), text);
        EXPECT_EQ(QApplication::focusWidget(), Editor());
        EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
        EXPECT_EQ(cells[2][3], "30");
        EXPECT_EQ(boxes, 1);
    }
};

TEST_F(GridEditing, ADigitOpensTheEditorInThePlaceOfTheText) {
    Type("4");

    EXPECT_EQ(EditorText(), "4");
    EXPECT_EQ(cells[2][3], "30");
}

TEST_F(GridEditing, ALetterOpensTheEditorToo) {
    Type("x");

    EXPECT_EQ(EditorText(), "x");
}

TEST_F(GridEditing, BackspaceOpensAnEmptyEditor) {
    Key(Qt::Key_Backspace);

    EXPECT_EQ(EditorText(), "");
}

TEST_F(GridEditing, TheEditKeyOpensTheEditorOnTheText) {
    Key(Qt::Key_F2);

    EXPECT_EQ(EditorText(), "30");
    EXPECT_FALSE(grid.HasSelectedText());
}

TEST_F(GridEditing, TheOwnerMayOpenItWithTheWholeTextSelected) {
    grid.SelectCellText();

    EXPECT_EQ(EditorText(), "30");
    EXPECT_EQ(Editor()->selectedText(), "30");
    EXPECT_TRUE(grid.HasSelectedText());
}

TEST_F(GridEditing, ALockedPaneOrColumnOpensNone) {
    grid.GoTo(2, 0);
    Type("4");
    EXPECT_EQ(EditorText(), "no editor");

    grid.GoTo(2, 7);
    Type("4");
    EXPECT_EQ(EditorText(), "no editor");
}

TEST_F(GridEditing, TheEditorStandsOverItsCell) {
    Type("4");

    EXPECT_EQ(widget->childAt(MiddleOf(2, 3)), Editor());
    EXPECT_NE(widget->childAt(MiddleOf(1, 3)), Editor());
    EXPECT_NE(widget->childAt(MiddleOf(2, 4)), Editor());
}

TEST_F(GridEditing, EnterTakesTheValueAndStaysInTheCell) {
    Type("42");
    Key(Qt::Key_Return);

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "edited 3"}));
    EXPECT_EQ(cells[2][3], "42");
    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(Current(), (GridCell{1, 2, 3}));
    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridEditing, EscapeKeepsTheOldValueUnchecked) {
    Type("42");
    Key(Qt::Key_Escape);

    EXPECT_EQ(TakeNotices(), Notices{});
    EXPECT_EQ(cells[2][3], "30");
    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(QApplication::focusWidget(), PaneView(1));
}

TEST_F(GridEditing, AnUnchangedTextIsNoEdit) {
    Key(Qt::Key_F2);
    Key(Qt::Key_Return);

    EXPECT_EQ(TakeNotices(), Notices{});
    EXPECT_EQ(EditorText(), "no editor");
}

TEST_F(GridEditing, AnEmptiedCellIsAnEdit) {
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Return);

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 ", "edited 3"}));
}

TEST_F(GridEditing, TheArrowsBetweenRowsTakeTheValueAndMove) {
    Type("42");
    Key(Qt::Key_Down);
    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "edited 3", "change 3,3"}));

    Type("7");
    Key(Qt::Key_Up);
    EXPECT_EQ(TakeNotices(), (Notices{"check 3 7", "edited 3", "change 2,3"}));
    EXPECT_EQ(cells[3][3], "7");
}

TEST_F(GridEditing, TabTakesTheValueAndMoves) {
    Type("42");
    Key(Qt::Key_Tab);

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "edited 3", "change 2,4"}));
}

TEST_F(GridEditing, AnArrowAtTheEndOfTheTextTakesTheValueAndMoves) {
    Type("42");
    Key(Qt::Key_Left);
    EXPECT_EQ(Editor()->cursorPosition(), 1);
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "edited 3", "change 2,2"}));
}

TEST_F(GridEditing, AClickOnAnotherCellTakesTheValueFirst) {
    Type("42");
    ClickCell(5, 2);

    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()),
              (Notices{"check 3 42", "edited 3", "click", "change 5,2", "settled"}));
    EXPECT_EQ(EditorText(), "no editor");
}

TEST_F(GridEditing, AClickInTheOpenEditorLeavesItOpen) {
    Type("42");
    ClickCell(2, 3);

    EXPECT_EQ(EditorText(), "42");
    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"click", "settled"}));
}

TEST_F(GridEditing, TheValueIsTakenWhenTheKeyboardGoesElsewhere) {
    Type("42");
    ClickOn(*after);

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "edited 3"}));
    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(QApplication::focusWidget(), after);
}

TEST_F(GridEditing, TheProgramMayEndTheEdit) {
    Type("42");

    EXPECT_TRUE(grid.EndEdit());

    EXPECT_EQ(cells[2][3], "42");
    EXPECT_EQ(EditorText(), "no editor");
}

TEST_F(GridEditing, AMoveByTheProgramEndsTheEditInItsOwnRow) {
    Type("42");

    grid.GoToRow(9);

    EXPECT_EQ(cells[2][3], "42");
    EXPECT_EQ(Current(), (GridCell{1, 9, 3}));
}

TEST_F(GridEditing, WhatFollowsTheValueMayMoveTheCurrentCell) {
    grid.GoTo(2, 6);
    grid.edited = [this](int, const std::string&) {
        grid.ReadAgain();
        grid.GoToPane(0);
        grid.GoToColumn(0);
    };
    Type("42");

    Key(Qt::Key_Tab);

    EXPECT_EQ(Current(), (GridCell{0, 2, 0}));
    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(QApplication::focusWidget(), PaneView(0));
}

TEST_F(GridEditing, KeysInTheEditorAreToldFirst) {
    grid.keyDown = [this](GridKey key) {
        notices.emplace_back(grid.HasSelectedText() ? "key with selection" : "key");
        return key == GridKey::Left;
    };
    grid.SelectCellText();

    Key(Qt::Key_Left);
    EXPECT_EQ(Editor()->selectedText(), "30");
    Key(Qt::Key_7);

    EXPECT_EQ(EditorText(), "7");
    EXPECT_EQ(TakeNotices(), (Notices{"key with selection", "key with selection"}));
}

TEST_F(GridEditing, TextArrivesInTheProgramsOwnBytes) {
    grid.SelectCellText();
    Editor()->insert(QString::fromUtf8("\u20ac\u4e2d"));
    Key(Qt::Key_Return);

    EXPECT_EQ(cells[2][3], "\x80?");
}

TEST_F(GridEditing, TheEditorScrollsWithItsCell) {
    Type("4");

    PaneView(0)->verticalScrollBar()->setValue(1);

    EXPECT_EQ(widget->childAt(MiddleOf(2, 3)), Editor());
    EXPECT_NE(widget->childAt(MiddleOf(1, 3)), Editor());
    EXPECT_NE(widget->childAt(MiddleOf(2, 4)), Editor());
}

TEST_F(GridEditing, AClickGoesToTheCellUnderItWhenTheAcceptedValueScrollsTheRows) {
    grid.edited = [this](int, const std::string&) { grid.GoToColumn(0); };
    Type("42");
    PaneView(0)->verticalScrollBar()->setValue(10);

    ClickCell(12, 4);

    EXPECT_EQ(Current(), (GridCell{1, 12, 4}));
}

TEST_F(GridEditing, GoingOffTakesTheValueFirst) {
    Type("42");

    const GridPause pause(grid);

    EXPECT_EQ(cells[2][3], "42");
}

TEST_F(GridEditing, ARefusedValueIsDroppedByAMoveWhileOff) {
    Type("99");
    const GridPause pause(grid);
    EXPECT_EQ(boxes, 1);

    grid.GoToRow(5);

    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(grid.CurrentRow(), 5);
    EXPECT_EQ(cells[2][3], "30");
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorAtEnter) {
    Type("99");
    Key(Qt::Key_Return);

    ExpectRefused("99");
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorAtAClickInTheSamePane) {
    Type("99");
    ClickCell(5, 2);

    ExpectRefused("99");
    const Notices told = TakeNotices();
    EXPECT_EQ(Notices(told.begin() + 1, told.end()), (Notices{"check 3 99"}));
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorAtAClickInTheOtherPane) {
    Type("99");
    ClickCell(5, 0);

    ExpectRefused("99");
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorAtAClickOnTheHeadings) {
    Type("99");
    Click({200, 7});

    ExpectRefused("99");
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorAtAClickOnAnotherWidget) {
    Type("99");
    ClickOn(*after);

    ExpectRefused("99");
}

TEST_F(GridEditing, AButtonDoesNotServeTheClickThatARefusedValueStops) {
    int served = 0;
    QPushButton button(&window);
    button.setGeometry(120, 2, 60, 16);
    button.show();
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++served; });
    Type("99");

    ClickOn(button);
    ExpectRefused("99");
    EXPECT_EQ(served, 0);

    Key(Qt::Key_Escape);
    ClickOn(button);
    EXPECT_EQ(served, 1);
}

TEST_F(GridEditing, ARefusedValueKeepsTheCursorWhenTheKeyboardIsGivenElsewhere) {
    Type("99");
    after->setFocus();

    ExpectRefused("99");
}

TEST_F(GridEditing, ARefusedValueStopsTheKeysThatLeave) {
    Type("99");
    Key(Qt::Key_Down);

    ExpectRefused("99");
}

TEST_F(GridEditing, ARefusedValueStopsTheProgramsMove) {
    Type("99");
    grid.GoToRow(7);

    ExpectRefused("99");
}

TEST_F(GridEditing, EveryTryChecksARefusedValueOnce) {
    Type("99");
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);

    EXPECT_EQ(boxes, 2);
}

TEST_F(GridEditing, ARefusedValueCanBeMended) {
    Type("99");
    Key(Qt::Key_Return);
    Type("9");
    Key(Qt::Key_Return);

    EXPECT_EQ(cells[2][3], "9");
    EXPECT_EQ(boxes, 1);
}

TEST_F(GridEditing, ARefusedValueIsSelectedWhole) {
    Type("99");
    Key(Qt::Key_Return);

    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->selectedText(), QStringLiteral("99"));
}

TEST_F(GridEditing, TheCellOfARefusedValueComesBackIntoView) {
    Type("99");
    PaneView(0)->verticalScrollBar()->setValue(20);
    ASSERT_EQ(grid.RowTop(2), std::nullopt);

    Key(Qt::Key_Return);

    EXPECT_TRUE(grid.RowTop(2).has_value());
    EXPECT_EQ(widget->childAt(MiddleOf(2, 3)), Editor());
}

TEST_F(GridEditing, TheEditorIsCalledByItsColumnAndItsRow) {
    grid.Column(3).accessibleHeading = "Pick 3";

    Type("4");

    EXPECT_EQ(Editor()->accessibleName(), QStringLiteral("Pick 3, 01/03/1999"));
}

TEST_F(GridEditing, ARefusedValueCanBeGivenUp) {
    Type("99");
    Key(Qt::Key_Return);
    Key(Qt::Key_Escape);

    EXPECT_EQ(EditorText(), "no editor");
    EXPECT_EQ(cells[2][3], "30");
    EXPECT_EQ(boxes, 1);
}

TEST_F(GridEditing, TheGridMayGoWhileItsEditIsTold) {
    grid.edited = [this](int, const std::string&) {
        grid.view = nullptr;
        widget->deleteLater();
        QApplication::sendPostedEvents(widget, QEvent::DeferredDelete);
        notices.emplace_back("gone");
    };
    Type("42");

    Key(Qt::Key_Return);
    QApplication::processEvents();

    EXPECT_EQ(TakeNotices(), (Notices{"check 3 42", "gone"}));
}

}  // namespace
}  // namespace ballhaven::platform
