#include "screen/HotGrid.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

namespace ballhaven {
namespace {

using support::Draw;
using Texts = std::vector<std::string>;

const std::vector<Draw> threeDraws = {
    {"01/01/1990", {7, 8, 9}}, {"01/02/1990", {7, 8, 10}}, {"01/03/1990", {7, 11, 12}}};

/// Three numbers of 1 to 49 in three draws: 7 in all of them, 8 in two, the others in one.
class HotGrid : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.mainPicks = 3, .draws = threeDraws});
        Start();
    }

    [[nodiscard]] Texts Row(int row) const {
        Texts cells;
        for (int column = 0; column < 4; ++column) {
            cells.push_back(CellText("grdHot", row, column));
        }
        return cells;
    }
};

TEST_F(HotGrid, ShowsHitsPercentAndIntervalOfEachNumber) {
    ASSERT_EQ(RowsShown("grdHot"), 6);
    EXPECT_EQ(Row(0), (Texts{"7", "3", "100", "1.0"}));
    EXPECT_EQ(Row(1), (Texts{"8", "2", "66", "1.5"}));
    EXPECT_EQ(Row(2), (Texts{"9", "1", "33", "3.0"}));
    EXPECT_EQ(Row(5), (Texts{"12", "1", "33", "3.0"}));
}

TEST_F(HotGrid, StandsAtItsTopWithItsCaption) {
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Numbers in last 3 games");
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 2);
}

TEST_F(HotGrid, FollowsATypedPick) {
    Type("8");
    Press(Qt::Key_Return);
    EXPECT_EQ(Row(0), (Texts{"8", "3", "100", "1.0"}));
    EXPECT_EQ(Row(1), (Texts{"7", "2", "66", "1.5"}));
}

TEST_F(HotGrid, AClickMovesItsCurrentCellAndNothingElse) {
    const int playsDirty = appState.playsDirty;
    ClickCell("grdHot", 4, 0);
    EXPECT_EQ(frmMainForm.grdHot.CurrentRow(), 4);
    EXPECT_EQ(frmMainForm.grdHot.CurrentColumn(), 0);
    EXPECT_EQ(appState.playsDirty, playsDirty);
    EXPECT_FALSE(appState.historyDirty);
    EXPECT_EQ(frmMainForm.grdHist.CurrentRow(), 2);
}

TEST_F(HotGrid, NothingCanBeTypedInIt) {
    for (int column = 0; column < 4; ++column) {
        ClickCell("grdHot", 1, column);
        for (const Qt::Key key : {Qt::Key_9, Qt::Key_Delete, Qt::Key_F2}) {
            Press(key);
            EXPECT_EQ(EditorText("grdHot"), std::nullopt) << column;
        }
    }
    EXPECT_EQ(Row(1), (Texts{"8", "2", "66", "1.5"}));
}

TEST_F(HotGrid, ColoursTheNumbersOfTheBoxesInItsFirstColumnOnly) {
    frmMainForm.txtHiLite[1].text = "8";
    appState.colorMode = ColorMode::Boxes;
    frmMainForm.grdHot.Repaint();
    EXPECT_EQ(CellColor("grdHot", 1, 0), QColor(Qt::yellow));
    EXPECT_EQ(CellColor("grdHot", 0, 0), QColor(Qt::white));
    EXPECT_EQ(CellColor("grdHot", 1, 1), QColor(Qt::white));
    appState.colorMode = ColorMode::None;
    frmMainForm.grdHot.Repaint();
    EXPECT_EQ(CellColor("grdHot", 1, 0), QColor(Qt::white));
}

TEST_F(HotGrid, FollowsTheHeightOfTheWindow) {
    EXPECT_EQ(frmMainForm.grdHot.bounds->height, 4860);
    EXPECT_EQ(Usable("grdHot").height(), 324);
    DragToHeight(8895);
    EXPECT_EQ(frmMainForm.grdHot.bounds->height, 8895 - 3110 - 1060);
    DragToHeight(8865);
    EXPECT_EQ(frmMainForm.grdHot.bounds->height, 4725);
    DragToHeight(8880);
    EXPECT_EQ(frmMainForm.grdHot.bounds->height, 4860);
    EXPECT_EQ(Usable("grdHot").width(), 225);
}

/// Cards: the ace of hearts (1) in both draws, the two of clubs (15) and the three of diamonds (29) in one each.
class HotGridOfCards : public HotGrid {
  protected:
    void SetUp() override {
        Store({.gameType = 3, .mainPicks = 2, .high = 52, .draws = {{"01/01/1990", {1, 15}}, {"01/02/1990", {1, 29}}}});
        Start();
    }
};

TEST_F(HotGridOfCards, ShowsRedCardsRedAndTheOthersBlack) {
    ASSERT_EQ(RowsShown("grdHot"), 3);
    EXPECT_EQ(Row(0), (Texts{"Ah", "2", "100", "1.0"}));
    EXPECT_EQ(Row(1), (Texts{"2c", "1", "50", "2.0"}));
    EXPECT_EQ(Row(2), (Texts{"3d", "1", "50", "2.0"}));
    for (const int row : {0, 1, 2}) {
        EXPECT_EQ(CellHasColor("grdHot", row, 0, Qt::red), row != 1) << row;
        EXPECT_EQ(CellHasColor("grdHot", row, 0, Qt::black), row == 1) << row;
        EXPECT_FALSE(CellHasColor("grdHot", row, 1, Qt::red)) << row;
    }
}

/// A game without draws.
class HotGridWithoutDraws : public HotGrid {
  protected:
    void SetUp() override {
        Store({});
        Start();
    }
};

TEST_F(HotGridWithoutDraws, OnlyItsCaptionSpeaks) {
    EXPECT_EQ(*frmMainForm.grdHot.caption, "Hot Numbers (none found)");
    EXPECT_EQ(RowsShown("grdHot"), 0);
    EXPECT_EQ(RowsShown("grdHist"), 0);
    EXPECT_FALSE(Find("cmdColorHist").isVisible());
}

}  // namespace
}  // namespace ballhaven
