#include "plays/SinglePlay.h"

#include "forms/MainForm.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "support/Plays.h"
#include "support/qt/RunningProgram.h"

#include <QLabel>

namespace ballhaven {
namespace {

class SinglePlay : public support::RunningProgram {
  protected:
    void StartWith(const support::StoredGame& game) {
        Store(game);
        Start();
    }

    /// The texts of a row of the board, a blank between two.
    [[nodiscard]] std::string Row(int row) const {
        std::string texts;
        for (int column = 0; column < appState.slipColumns; ++column) {
            texts += (column == 0 ? "" : " ") + CellText("grdPlay", row, column);
        }
        return texts;
    }
};

TEST_F(SinglePlay, TheBoardOfAGameWithoutBonusHasTheNumbersOfTheGameInNineColumns) {
    StartWith({.high = 49});
    EXPECT_EQ(Usable("grdPlay").height(), 149);
    EXPECT_EQ(RowsShown("grdPlay"), 12);
    EXPECT_EQ(Row(0), "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(Row(5), "46 47 48 49     ");
    EXPECT_EQ(Row(6), "        ");
    EXPECT_EQ(Row(11), "        ");
    EXPECT_EQ(*frmMainForm.lblPlay.text, "1.A");
}

TEST_F(SinglePlay, TheBoardBeginsWithTheLowestNumber) {
    StartWith({.low = 0, .high = 9});
    EXPECT_EQ(Row(0), "0 1 2 3 4 5 6 7 8");
    EXPECT_EQ(Row(1), "9        ");
}

TEST_F(SinglePlay, ABonusHasItsOwnBlockUnderItsWord) {
    StartWith({.gameType = 2, .mainPicks = 5, .bonusPicks = 1, .high = 49, .bonusLow = 1, .bonusHigh = 10});
    EXPECT_EQ(Usable("grdPlay").height(), 293);
    EXPECT_EQ(RowsShown("grdPlay"), 24);
    EXPECT_EQ(Row(11), "  B O N U S  ");
    EXPECT_EQ(Row(12), "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(Row(13), "10        ");
}

TEST_F(SinglePlay, TheBoardOfACardGameHasSixColumnsOfCards) {
    StartWith({.gameType = 4, .mainPicks = 5, .bonusPicks = 1, .high = 52, .bonusHigh = 52});
    EXPECT_EQ(Usable("grdPlay").width(), 136);
    EXPECT_EQ(Row(0), "Ah 2h 3h 4h 5h 6h");
    EXPECT_EQ(Row(8), "10s Js Qs Ks  ");
    EXPECT_EQ(Row(11), "B O N U S ");
    EXPECT_EQ(Row(12), "Ah 2h 3h 4h 5h 6h");
}

TEST_F(SinglePlay, AnotherGameHasItsOwnBoard) {
    Store({.slot = 2, .name = "Cards", .gameType = 3, .mainPicks = 5, .high = 52});
    StartWith({.slot = 1, .high = 49});
    ChooseEntry("cboList(0)", 1);
    EXPECT_EQ(Row(0), "Ah 2h 3h 4h 5h 6h");
    ChooseEntry("cboList(0)", 0);
    EXPECT_EQ(Row(0), "1 2 3 4 5 6 7 8 9");
}

TEST_F(SinglePlay, ClicksTurnPicksOnAndOff) {
    StartWith({.mainPicks = 3, .high = 49});
    ClickCell("grdPlay", 0, 6);
    ClickCell("grdPlay", 5, 3);
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "6 48");
    EXPECT_EQ(CellColor("grdPlay", 0, 6), QColor(Qt::black));
    ClickCell("grdPlay", 0, 6);
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "- 48");
    EXPECT_EQ(CellColor("grdPlay", 0, 6), QColor(Qt::white));
}

TEST_F(SinglePlay, AClickBesideTheCellsTurnsNothingOnOrOff) {
    StartWith({.mainPicks = 3, .high = 49});
    const QPoint below(40, Find("grdPlay").height() - 1);
    ClickAt("grdPlay", below);
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "");
    ClickCell("grdPlay", 0, 6);
    ClickAt("grdPlay", below);
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "6");
}

TEST_F(SinglePlay, AMoveByTheKeyboardTurnsNothingOn) {
    StartWith({.mainPicks = 3, .high = 49});
    ClickCell("grdPlay", 0, 6);
    Press(Qt::Key_Right);
    Press(Qt::Key_Down);
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "6");
}

TEST_F(SinglePlay, TheButtonsStepThroughThePlays) {
    StartWith({.mainPicks = 3, .high = 49});
    ClickCell("grdPlay", 0, 6);
    Click("cmdPlayBttn(1)");
    EXPECT_EQ(*frmMainForm.lblPlay.text, "1.B");
    EXPECT_EQ(CellColor("grdPlay", 0, 6), QColor(Qt::white));
    Click("cmdPlayBttn(0)");
    EXPECT_EQ(*frmMainForm.lblPlay.text, "1.A");
    EXPECT_EQ(CellColor("grdPlay", 0, 6), QColor(Qt::black));
}

// Not a bug: MAIN-PLAYS-1 in docs/not-bugs.md.
TEST_F(SinglePlay, QuirkMainPlays1TheFirstAndTheThousandthPlayOnlyBeep) {
    StartWith({.high = 49});
    int beeps = 0;
    platform::services.beep = [&beeps] { ++beeps; };
    Click("cmdPlayBttn(0)");
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(appState.currentPlay, 1);
    appState.currentPlay = 999;
    Click("cmdPlayBttn(1)");
    EXPECT_EQ(*frmMainForm.lblPlay.text, "200.E");
    EXPECT_EQ(beeps, 1);
    Click("cmdPlayBttn(1)");
    EXPECT_EQ(beeps, 2);
    EXPECT_EQ(appState.currentPlay, 1000);
}

TEST_F(SinglePlay, TheEraseButtonEmptiesThePlayWithoutAQuestion) {
    StartWith({.mainPicks = 3, .high = 49});
    ClickCell("grdPlay", 0, 6);
    appState.playsDirty = false;
    Click("cmdPlayBttn(2)");
    EXPECT_EQ(support::PicksText(appState.PlayTable, mainPicks, 1, 1), "");
    EXPECT_EQ(CellColor("grdPlay", 0, 6), QColor(Qt::white));
    EXPECT_TRUE(appState.playsDirty);
}

}  // namespace
}  // namespace ballhaven
