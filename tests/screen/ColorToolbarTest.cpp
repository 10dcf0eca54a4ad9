#include "screen/ColorToolbar.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"
#include "support/qt/TestWindow.h"

#include <QLineEdit>
#include <QTest>

#include <functional>

namespace ballhaven {
namespace {

using support::Draw;
using Texts = std::vector<std::string>;

const QColor magenta(255, 0, 255);
const QColor yellow(255, 255, 0);
const QColor white(255, 255, 255);

/// Three numbers of 1 to 49; the last draw has a blank pick.
class ColorToolbar : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.mainPicks = 3,
               .draws = {{"01/01/1990", {7, 8, 9}}, {"01/02/1990", {7, 12, 30}}, {"01/03/1990", {-1, 12, 7}}}});
        Start();
    }

    void TypeInBox(const char* box, const char* text) const {
        Click(box);
        Type(text);
    }

    [[nodiscard]] static Texts Boxes() {
        return {frmMainForm.txtHiLite[0].text, frmMainForm.txtHiLite[1].text, frmMainForm.txtHiLite[2].text};
    }

    [[nodiscard]] static Texts Codes() {
        return {frmMainForm.hiLiteCode[0], frmMainForm.hiLiteCode[1], frmMainForm.hiLiteCode[2]};
    }

    [[nodiscard]] static std::string Focus() {
        return QApplication::focusWidget() == nullptr ? "" : QApplication::focusWidget()->objectName().toStdString();
    }

    /// Makes a row the log's current one and clicks the button that floats on it.
    void HiLiteRow(int row) const {
        ClickCell("grdHist", row, 1);
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return Find("cmdColorHist").isVisible() &&
                   Find("cmdColorHist").y() == Find("grdHist").y() + 15 + row * 15 + 2;
        }));
        Click("cmdColorHist");
    }
};

TEST_F(ColorToolbar, TheButtonAppliesTheColoursToBothGrids) {
    TypeInBox("txtHiLite(0)", "7");
    EXPECT_EQ(CellColor("grdHist", 0, 1), white) << "not before the button";
    Click("cmdColor(0)");
    EXPECT_EQ(appState.colorMode, ColorMode::Boxes);
    EXPECT_EQ(CellColor("grdHist", 0, 1), magenta);
    EXPECT_EQ(CellColor("grdHist", 2, 3), magenta);
    EXPECT_EQ(CellColor("grdHist", 0, 2), white);
    EXPECT_EQ(CellColor("grdHist", 2, 1), white) << "a blank pick";
    EXPECT_EQ(CellText("grdHot", 0, 0), "7");
    EXPECT_EQ(CellColor("grdHot", 0, 0), magenta);
}

/// Counts how often the cells of both grids are asked for their colours.
class ColorToolbarAndItsGrids : public ColorToolbar {
  protected:
    void SetUp() override {
        ColorToolbar::SetUp();
        Count(frmMainForm.grdHist, logCells);
        Count(frmMainForm.grdHot, hotCells);
    }

    void ExpectBothGridsDrawn(const std::function<void()>& act) {
        support::Settle();
        logCells = hotCells = 0;
        act();
        EXPECT_TRUE(QTest::qWaitFor([this] { return logCells > 0 && hotCells > 0; }))
            << logCells << " cells of the log, " << hotCells << " of the Hot table";
    }

  private:
    static void Count(platform::Grid& grid, int& cells) {
        grid.cellStyle = [&cells, colour = grid.cellStyle](const platform::GridCell& cell, platform::CellStyle& style) {
            ++cells;
            colour(cell, style);
        };
    }

    int logCells = 0;
    int hotCells = 0;
};

TEST_F(ColorToolbarAndItsGrids, BothAreDrawnAgainWhenTheColoursAreAppliedOrCleared) {
    ExpectBothGridsDrawn([] { frmMainForm.cmdColor[0].click(); });
    ExpectBothGridsDrawn([] { frmMainForm.cmdColor[1].click(); });
    ExpectBothGridsDrawn([] { frmMainForm.cmdColorHist.click(); });
}

TEST_F(ColorToolbar, TheOtherButtonClearsTheBoxesAndTheColours) {
    HiLiteRow(0);
    Click("cmdColor(1)");
    EXPECT_EQ(appState.colorMode, ColorMode::None);
    EXPECT_EQ(Boxes(), (Texts{"", "", ""}));
    EXPECT_EQ(Codes(), (Texts{"", "", ""}));
    EXPECT_EQ(Find<QLineEdit>("txtHiLite(0)").text(), QString());
    EXPECT_EQ(CellColor("grdHist", 0, 1), white);
    EXPECT_EQ(CellColor("grdHot", 0, 0), white);
}

TEST_F(ColorToolbar, OfSevenAndZeroSevenOnlyTheFirstMatchesASeven) {
    TypeInBox("txtHiLite(0)", "07");
    TypeInBox("txtHiLite(1)", "7");
    Click("cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 1), yellow);
    TypeInBox("txtHiLite(1)", "\b");
    Click("cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 1), white);
}

TEST_F(ColorToolbar, OneValueInTwoBoxesTakesTheColourOfTheFirst) {
    TypeInBox("txtHiLite(2)", "7");
    TypeInBox("txtHiLite(1)", "7");
    Click("cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 1), yellow);
}

TEST_F(ColorToolbar, ATextThatIsNoPickMatchesNothingWithoutAMessage) {
    TypeInBox("txtHiLite(0)", "x ");
    Click("cmdColor(0)");
    EXPECT_EQ(Boxes()[0], "x ");
    for (int column = 1; column <= 3; ++column) {
        EXPECT_EQ(CellColor("grdHist", 0, column), white);
    }
    EXPECT_EQ(boxes.Answered(), 0U);
}

TEST_F(ColorToolbar, DigitsGoIntoTheBoxAndItsCode) {
    TypeInBox("txtHiLite(1)", "12");
    EXPECT_EQ(Boxes(), (Texts{"", "12", ""}));
    EXPECT_EQ(Codes(), (Texts{"", "12", ""}));
}

TEST_F(ColorToolbar, ACodeIsTrimmedAndTheTextIsNot) {
    TypeInBox("txtHiLite(1)", " 7");
    EXPECT_EQ(Boxes()[1], " 7");
    EXPECT_EQ(Codes()[1], "7");
}

TEST_F(ColorToolbar, OtherKeysGoIntoTheBoxAndNotIntoItsCode) {
    TypeInBox("txtHiLite(1)", "7x");
    EXPECT_EQ(Boxes()[1], "7x");
    EXPECT_EQ(Codes()[1], "7");
}

TEST_F(ColorToolbar, EnterGoesToTheNextBoxAndAppliesTheColoursAtOnce) {
    TypeInBox("txtHiLite(0)", "7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "txtHiLite(1)");
    EXPECT_EQ(appState.colorMode, ColorMode::Boxes);
    EXPECT_EQ(Boxes()[0], "7");
    EXPECT_EQ(CellColor("grdHist", 0, 1), magenta);
    Type("8");
    Press(Qt::Key_Enter);
    EXPECT_EQ(Focus(), "txtHiLite(2)");
    EXPECT_EQ(CellColor("grdHist", 0, 2), yellow);
}

TEST_F(ColorToolbar, EnterInTheLastBoxGoesToTheButton) {
    TypeInBox("txtHiLite(2)", "9");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "cmdColor(0)");
    EXPECT_EQ(appState.colorMode, ColorMode::Boxes);
    EXPECT_EQ(Boxes()[2], "9");
}

TEST_F(ColorToolbar, AClickOnABoxOfANumberGameOpensNothing) {
    Click("txtHiLite(0)");
    EXPECT_FALSE(Find("picCards(0)").isVisible() || Find("picCards(1)").isVisible());
    EXPECT_EQ(Focus(), "txtHiLite(0)");
}

TEST_F(ColorToolbar, TheButtonOnTheRowHiLitesTheDrawingAndASecondClickClearsIt) {
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, ColorMode::Drawing);
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "9"}));
    EXPECT_EQ(CellColor("grdHist", 0, 1), magenta);
    EXPECT_EQ(CellColor("grdHist", 1, 1), magenta);
    EXPECT_EQ(CellColor("grdHist", 0, 2), yellow);
    Click("cmdColorHist");
    EXPECT_EQ(appState.colorMode, ColorMode::None);
    EXPECT_EQ(Boxes(), (Texts{"", "", ""}));
    EXPECT_EQ(CellColor("grdHist", 0, 1), white);
}

TEST_F(ColorToolbar, TheButtonOnAnotherRowReplacesTheDrawing) {
    HiLiteRow(0);
    HiLiteRow(1);
    EXPECT_EQ(appState.colorMode, ColorMode::Drawing);
    EXPECT_EQ(Boxes(), (Texts{"7", "12", "30"}));
}

TEST_F(ColorToolbar, TheButtonOnARowWithABlankPickLeavesThatBoxEmpty) {
    HiLiteRow(2);
    EXPECT_EQ(Boxes(), (Texts{"", "12", "7"}));
    EXPECT_EQ(Codes(), (Texts{"", "12", "7"}));
}

TEST_F(ColorToolbar, OfTwoRowsWithOneDateTheButtonHiLitesTheFirst) {
    appState.historyView(0, 1) = appState.historyView(0, 0);
    frmMainForm.grdHist.ReadAgain();
    HiLiteRow(1);
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "9"}));
}

TEST_F(ColorToolbar, WithoutADrawInTheRowTheBoxesBecomeEmptyAndTheModeStays) {
    TypeInBox("txtHiLite(0)", "7\r");
    appState.historyViewLast = -1;
    frmMainForm.cmdColorHist.click();
    EXPECT_EQ(Boxes(), (Texts{"", "", ""}));
    EXPECT_EQ(Codes(), (Texts{"", "", ""}));
    EXPECT_EQ(appState.colorMode, ColorMode::Boxes);
}

TEST_F(ColorToolbar, TypedNumbersOfADrawingAreThatDrawing) {
    TypeInBox("txtHiLite(0)", "7\r8\r9\r");
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, ColorMode::None);
    EXPECT_EQ(Boxes(), (Texts{"", "", ""}));
}

using QuirkHiLiteCode1 = ColorToolbar;

// Not a bug: HILITE-CODE-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteCode1, BackspaceCorrectsTheTextAndTheCodeFallsBehind) {
    TypeInBox("txtHiLite(0)", "7\b");
    EXPECT_EQ(Boxes()[0], "");
    EXPECT_EQ(Codes()[0], "7");
    Type("8");
    EXPECT_EQ(Boxes()[0], "8");
    EXPECT_EQ(Codes()[0], "8") << "a digit is put behind what the box holds";
}

// Not a bug: HILITE-CODE-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteCode1, ADigitThatAFullBoxDropsStandsInTheCode) {
    TypeInBox("txtHiLite(0)", "123");
    EXPECT_EQ(Boxes()[0], "12");
    EXPECT_EQ(Codes()[0], "123");
}

// Not a bug: HILITE-CODE-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteCode1, ABoxThatWasCorrectedToTheDrawingDoesNotCountAsThatDrawing) {
    TypeInBox("txtHiLite(0)", "71\b\r8\r9\r");
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "9"}));
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, ColorMode::Drawing) << "filled again, not cleared";
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "9"}));
}

/// Ten numbers in a draw: all boxes are shown.
class ColorToolbarOfTenPicks : public ColorToolbar {
  protected:
    void SetUp() override {
        Store({.mainPicks = 10, .draws = {{"01/01/1990", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}}});
        Start();
    }
};

TEST_F(ColorToolbarOfTenPicks, ShowsAllBoxesAndTheClearingButtonBehindThem) {
    for (int box = 0; box < 10; ++box) {
        EXPECT_TRUE(Find(("txtHiLite(" + std::to_string(box) + ")").c_str()).isVisible());
        EXPECT_TRUE(Find(("lblColor(" + std::to_string(box) + ")").c_str()).isVisible());
    }
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 11495);
}

TEST_F(ColorToolbarOfTenPicks, EnterInTheTenthBoxGoesToTheButton) {
    TypeInBox("txtHiLite(9)", "10");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 10), QColor(Qt::black));
}

/// More draws than the log has room for; the first ones are out of view.
class ColorToolbarOfALongLog : public ColorToolbar {
  protected:
    void SetUp() override {
        std::vector<Draw> draws;
        for (const char* month : {"01/", "02/"}) {
            for (int day = 1; day <= 28; ++day) {
                draws.push_back({month + std::string(day < 10 ? "0" : "") + std::to_string(day) + "/1990", {7, 8, 9}});
            }
        }
        Store({.mainPicks = 3, .draws = draws});
        Start();
    }
};

TEST_F(ColorToolbarOfALongLog, ApplyingTheColoursReadsNoRowAgain) {
    int readsOfFirstRow = 0;
    frmMainForm.grdHist.cellText = [&, read = frmMainForm.grdHist.cellText](const platform::GridCell& cell) {
        readsOfFirstRow += cell.row == 0 ? 1 : 0;
        return read(cell);
    };
    TypeInBox("txtHiLite(0)", "7\r");
    EXPECT_EQ(CellColor("grdHist", 55, 1), magenta);
    EXPECT_EQ(readsOfFirstRow, 0);
    frmMainForm.grdHist.ReadAgain();
    support::Settle();
    EXPECT_GT(readsOfFirstRow, 0) << "a reading begins there";
}

/// Two numbers and a bonus of its own pool: the third box is the bonus picks'.
class ColorToolbarOfABonusGame : public ColorToolbar {
  protected:
    void SetUp() override {
        Store({.gameType = 2, .mainPicks = 2, .bonusPicks = 1, .draws = {{"01/01/1990", {7, 8, 7}}}});
        Start();
    }
};

TEST_F(ColorToolbarOfABonusGame, TheBoxOfTheBonusColoursTheBonusOnly) {
    TypeInBox("txtHiLite(2)", "7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 3), QColor(255, 0, 0));
    EXPECT_EQ(CellColor("grdHist", 0, 1), white);
}

/// A second game, to be switched to.
class ColorToolbarOfTwoGames : public ColorToolbar {
  protected:
    void SetUp() override {
        Store({.slot = 2, .name = "Second", .mainPicks = 3, .draws = {{"01/01/1990", {7, 8, 9}}}});
        ColorToolbar::SetUp();
    }
};

TEST_F(ColorToolbarOfTwoGames, AGameLoadEmptiesTheBoxesAndSwitchesTheHiLiteOff) {
    HiLiteRow(0);
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(appState.colorMode, ColorMode::None);
    EXPECT_EQ(Boxes(), (Texts{"", "", ""}));
    EXPECT_EQ(Codes(), (Texts{"", "", ""}));
    EXPECT_EQ(CellColor("grdHist", 0, 1), white);
}

}  // namespace
}  // namespace ballhaven
