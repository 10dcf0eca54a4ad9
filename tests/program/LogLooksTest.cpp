#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QScrollBar>
#include <QTest>

namespace ballhaven {
namespace {

using support::Draw;

/// A day of January or February 1990.
std::string Date(int month, int day) {
    return '0' + std::to_string(month) + (day < 10 ? "/0" : "/") + std::to_string(day) + "/1990";
}

std::string January(int day) {
    return Date(1, day);
}

/// Draws of six numbers, the first one 1 to 6, the second one 2 to 7, and so on, from 1 January 1990 on.
std::vector<Draw> Days(int count) {
    std::vector<Draw> draws;
    for (int day = 1; day <= count; ++day) {
        draws.push_back({January(day), {day, day + 1, day + 2, day + 3, day + 4, day + 5}});
    }
    return draws;
}

/// The Historical Log with five draws of six numbers.
class LooksOfTheLog : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.draws = Days(5)});
        Start();
    }
};

TEST_F(LooksOfTheLog, FollowsTheHeightOfTheWindow) {
    EXPECT_EQ(Usable("grdHist").height(), 484);
    DragToHeight(8895);
    EXPECT_EQ(frmMainForm.grdHist.bounds->height, 8895 - 720 - 1060);
    EXPECT_EQ(Usable("grdHist").height(), 474);
    DragToHeight(10380);
    EXPECT_EQ(frmMainForm.grdHist.bounds->height, 8600);
    DragToHeight(8865);
    EXPECT_EQ(frmMainForm.grdHist.bounds->height, 8600) << "a shorter window leaves it";
    DragToHeight(8880);
    EXPECT_EQ(frmMainForm.grdHist.bounds->height, 7260);
    EXPECT_EQ(Usable("grdHist").width(), 381);
}

TEST_F(LooksOfTheLog, ColoursOnlyThePicksOfTheBoxesAndOnlyWhileTheHiLiteIsOn) {
    const QColor magenta(255, 0, 255);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Return);
    Usable("txtHiLite(0)").setFocus();
    Type("6");
    EXPECT_EQ(CellColor("grdHist", 0, 6), QColor(Qt::white));
    appState.colorMode = ColorMode::Boxes;
    frmMainForm.grdHist.Repaint();
    EXPECT_EQ(CellColor("grdHist", 0, 6), magenta);
    EXPECT_EQ(CellColor("grdHist", 1, 5), magenta);
    EXPECT_EQ(CellColor("grdHist", 1, 6), QColor(Qt::white));
    EXPECT_EQ(CellColor("grdHist", 4, 1), QColor(Qt::white)) << "a blank pick";
    EXPECT_EQ(CellColor("grdHist", 0, 0), QApplication::palette().color(QPalette::Base)) << "a date";
    EXPECT_EQ(CellColor("grdHist", 0, 7), QApplication::palette().color(QPalette::Window)) << "no column of the game";
    appState.colorMode = ColorMode::None;
    frmMainForm.grdHist.Repaint();
    EXPECT_EQ(CellColor("grdHist", 0, 6), QColor(Qt::white));
}

/// Two cards: the ace of hearts (1), the two of clubs (15), the three of diamonds (29) and the four of spades (43).
class LooksOfALogOfCards : public LooksOfTheLog {
  protected:
    void SetUp() override {
        Store({.gameType = 3, .mainPicks = 2, .high = 52, .draws = {{January(1), {1, 15}}, {January(2), {29, 43}}}});
        Start();
    }
};

TEST_F(LooksOfALogOfCards, HeartsAndDiamondsAreRedAndTheOthersBlack) {
    const std::vector<std::pair<QPoint, bool>> cells = {
        {{1, 0}, true}, {{2, 0}, false}, {{1, 1}, true}, {{2, 1}, false}};
    for (const auto& [cell, isRed] : cells) {
        EXPECT_EQ(CellHasColor("grdHist", cell.y(), cell.x(), Qt::red), isRed);
        EXPECT_EQ(CellHasColor("grdHist", cell.y(), cell.x(), Qt::black), !isRed);
    }
}

TEST_F(LooksOfALogOfCards, ARedCardOnYellowIsBlack) {
    frmMainForm.txtHiLite[1].text = "Ah";
    appState.colorMode = ColorMode::Boxes;
    frmMainForm.grdHist.Repaint();
    EXPECT_EQ(CellColor("grdHist", 0, 1), QColor(Qt::yellow));
    EXPECT_TRUE(CellHasColor("grdHist", 0, 1, Qt::black));
    EXPECT_FALSE(CellHasColor("grdHist", 0, 1, Qt::red));
    EXPECT_TRUE(CellHasColor("grdHist", 1, 1, Qt::red)) << "in no box";
}

/// More draws than the log has room for.
class LooksOfALongLog : public LooksOfTheLog {
  protected:
    void SetUp() override {
        std::vector<Draw> many = Days(31);
        for (int day = 1; day <= 19; ++day) {
            many.push_back({Date(2, day), {1, 2, 3, 4, 5, 6}});
        }
        Store({.draws = many});
        Start();
    }

    /// Waits for the button to stand at a line of the log, counted from 0 in the rows in view; -1 for nowhere.
    [[nodiscard]] bool ButtonComesToLine(int line) const {
        const QWidget& button = Find("cmdColorHist");
        const QWidget& grid = Find("grdHist");
        return QTest::qWaitFor([&] {
            const int top = 15 + line * 15 + 2;
            return line < 0 ? !button.isVisible() : button.isVisible() && button.pos() - grid.pos() == QPoint(2, top);
        });
    }
};

TEST_F(LooksOfALongLog, TheHiLiteButtonStandsAtTheCurrentRow) {
    auto& rows = Usable<QScrollBar>("grdHist.rows");
    rows.setValue(10);
    ClickCell("grdHist", 12, 1);
    EXPECT_TRUE(ButtonComesToLine(2));
    Press(Qt::Key_Down);
    EXPECT_TRUE(ButtonComesToLine(3));
    rows.setValue(9);
    EXPECT_TRUE(ButtonComesToLine(4));
}

TEST_F(LooksOfALongLog, TheHiLiteButtonHidesWhileTheCurrentRowIsScrolledOutOfView) {
    auto& rows = Usable<QScrollBar>("grdHist.rows");
    ASSERT_TRUE(ButtonComesToLine(49 - rows.maximum()));
    rows.setValue(0);
    EXPECT_TRUE(ButtonComesToLine(-1));
    rows.setValue(rows.maximum());
    EXPECT_TRUE(ButtonComesToLine(49 - rows.maximum()));
}

TEST_F(LooksOfALongLog, TheHiLiteButtonIsBeforeTheLog) {
    const QWidget& button = Usable("cmdColorHist");
    const QPoint middle = button.mapTo(&MainWindow(), button.rect().center());
    EXPECT_EQ(MainWindow().childAt(middle), &button);
}

TEST_F(LooksOfALongLog, TheMarginSelectsAmongTheRowsInView) {
    Press(Qt::Key_Left);
    Usable<QScrollBar>("grdHist.rows").setValue(7);
    ClickAt("grdHist", {1, 15 + 2 * 15});
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 9);
}

}  // namespace
}  // namespace ballhaven
