#include "screen/CardPicker.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/qt/RunningProgram.h"

#include <QLineEdit>
#include <QTest>

namespace ballhaven {
namespace {

using support::Draw;
using Texts = std::vector<std::string>;

const platform::Grid& log = frmMainForm.grdHist;

/// Two cards: the ace of hearts (1), the two of clubs (15), the three of diamonds (29) and the four of spades (43). The
/// program opens with the cursor on the first pick of the newest draw.
class CardPicker : public support::RunningProgram {
  protected:
    void SetUp() override {
        Store({.gameType = 3, .mainPicks = 2, .high = 52, .draws = draws});
        Start();
    }

    [[nodiscard]] bool LogCardsShown() const { return Find("picCards(0)").isVisible(); }
    [[nodiscard]] bool HiLiteCardsShown() const { return Find("picCards(1)").isVisible(); }

    void ExpectCursor(int pane, int row, int column) const {
        EXPECT_EQ(log.CurrentPane(), pane);
        EXPECT_EQ(log.CurrentRow(), row);
        EXPECT_EQ(log.CurrentColumn(), column);
    }

    /// Opens the cards on a pick of the log and clicks a pixel of them.
    void PickAt(int row, int column, QPoint pixel) const {
        ClickCell("grdHist", row, column);
        ASSERT_TRUE(LogCardsShown());
        ClickAt("picCards(0)", pixel);
    }

    /// Opens the cards of a box and clicks a pixel of them.
    void FillBoxAt(const char* box, QPoint pixel) const {
        Click(box);
        ASSERT_TRUE(HiLiteCardsShown());
        ClickAt("picCards(1)", pixel);
    }

    void ExpectFile(const std::vector<Draw>& expected) const {
        EXPECT_TRUE(support::historyFileFormat.Same(support::HistoryFileOf(expected), directory.Read("GAME01.CDB")));
    }

    [[nodiscard]] static std::string Focus() {
        return QApplication::focusWidget() == nullptr ? "" : QApplication::focusWidget()->objectName().toStdString();
    }

    std::vector<Draw> draws = {{"01/01/1990", {1, 15}}, {"01/02/1990", {29, 43}}};
};

TEST_F(CardPicker, BothPicturesAreHiddenAtFirst) {
    EXPECT_FALSE(LogCardsShown());
    EXPECT_FALSE(HiLiteCardsShown());
    EXPECT_EQ(Find("picCards(0)").geometry(), QRect(528, 80 + Find("picToolbar(1)").y(), 86, 202));
    EXPECT_EQ(Find("picCards(1)").size(), QSize(246, 88));
}

TEST_F(CardPicker, AClickOnAPickOpensTheCardsAndASecondOneClosesThem) {
    ClickCell("grdHist", 0, 2);
    EXPECT_TRUE(LogCardsShown());
    ExpectCursor(pickPane, 0, 2);
    ClickCell("grdHist", 1, 2);
    EXPECT_FALSE(LogCardsShown());
    ExpectCursor(datePane, 1, 0);
    ClickCell("grdHist", 1, 2);
    EXPECT_TRUE(LogCardsShown());
}

TEST_F(CardPicker, AClickOnADateClosesTheCards) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    ClickCell("grdHist", 1, 0);
    EXPECT_FALSE(LogCardsShown());
    ExpectCursor(datePane, 1, 0);
}

TEST_F(CardPicker, TheKeysMoveWithoutOpeningOrClosingTheCards) {
    Press(Qt::Key_Up);
    EXPECT_FALSE(LogCardsShown());
    ClickCell("grdHist", 0, 2);
    Press(Qt::Key_Down);
    EXPECT_TRUE(LogCardsShown());
    ExpectCursor(pickPane, 1, 2);
}

TEST_F(CardPicker, EscapeClosesTheCardsOfTheLog) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(LogCardsShown());
    ExpectCursor(datePane, 0, 0);
    Press(Qt::Key_Escape);
    ExpectCursor(datePane, 0, 0);
}

TEST_F(CardPicker, EscapeClosesTheCardsOfTheHiLites) {
    Click("txtHiLite(1)");
    ASSERT_TRUE(HiLiteCardsShown());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(HiLiteCardsShown());
    EXPECT_EQ(QApplication::focusWidget(), &Find("txtHiLite(1)"));
}

TEST_F(CardPicker, APickedCardIsStoredCountedAndSaved) {
    PickAt(0, 2, {65, 191});
    EXPECT_FALSE(LogCardsShown());
    ExpectCursor(datePane, 0, 0);
    EXPECT_EQ(CellText("grdHist", 0, 2), "Ks");
    EXPECT_EQ(appState.HistoryTable(2, 0), 52);
    EXPECT_EQ(appState.historyView(2, 0), 52);
    EXPECT_TRUE(appState.historyDirty);
    EXPECT_EQ(CellText("grdHot", RowsShown("grdHot") - 1, 0), "Ks") << "drawn once";
    Close();
    draws[0].picks[1] = 52;
    ExpectFile(draws);
}

TEST_F(CardPicker, ACardAloneMarksTheHistoryAsChanged) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    appState.historyDirty = false;  // the press of the mouse on the log has set it
    ClickAt("picCards(0)", {65, 191});
    EXPECT_TRUE(appState.historyDirty);
}

// The picture's columns and rows by their outermost pixels: 26 is 390 twips, 27 is 405.
TEST_F(CardPicker, TheCardsOfTheLogBeginAndEndAtTheirPixels) {
    const std::vector<std::pair<QPoint, const char*>> cards = {
        {{11, 36}, "Ah"},   {{26, 47}, "Ah"},  {{27, 47}, "Ac"},  {{42, 48}, "2c"},  {{43, 48}, "2d"},
        {{58, 59}, "2d"},   {{59, 60}, "3s"},  {{73, 36}, "As"},  {{11, 191}, "Kh"}, {{73, 191}, "Ks"},
        {{43, 144}, "10d"}, {{43, 156}, "Jd"}, {{43, 168}, "Qd"}, {{43, 180}, "Kd"}, {{43, 179}, "Qd"}};
    for (const auto& [pixel, card] : cards) {
        PickAt(0, 2, pixel);
        EXPECT_EQ(CellText("grdHist", 0, 2), card) << pixel.x() << ", " << pixel.y();
        EXPECT_FALSE(LogCardsShown());
    }
}

TEST_F(CardPicker, AClickBesideTheCardsChangesNothingAndLeavesThePictureOpen) {
    ClickCell("grdHist", 0, 2);
    for (const QPoint& pixel : {QPoint(10, 36), QPoint(74, 36), QPoint(11, 35), QPoint(11, 192), QPoint(0, 0),
                                QPoint(85, 201), QPoint(69, 3), QPoint(82, 3), QPoint(70, 2), QPoint(70, 15)}) {
        ClickAt("picCards(0)", pixel);
        EXPECT_TRUE(LogCardsShown()) << pixel.x() << ", " << pixel.y();
        ExpectCursor(pickPane, 0, 2);
    }
    EXPECT_EQ(CellText("grdHist", 0, 2), "2c");
}

TEST_F(CardPicker, TheCloseBoxOfTheLogsCardsClosesThemAndGoesToTheDate) {
    for (const QPoint& pixel : {QPoint(70, 3), QPoint(81, 3), QPoint(70, 14), QPoint(81, 14)}) {
        ClickCell("grdHist", 0, 2);
        ASSERT_TRUE(LogCardsShown());
        ClickAt("picCards(0)", pixel);
        EXPECT_FALSE(LogCardsShown()) << pixel.x() << ", " << pixel.y();
        ExpectCursor(datePane, 0, 0);
    }
    EXPECT_EQ(CellText("grdHist", 0, 2), "2c");
}

TEST_F(CardPicker, WithTheCursorOnTheDateThePickIsDropped) {
    ClickCell("grdHist", 0, 1);
    Press(Qt::Key_Left);
    ExpectCursor(datePane, 0, 0);
    ASSERT_TRUE(LogCardsShown());
    ClickAt("picCards(0)", {11, 36});
    EXPECT_FALSE(LogCardsShown());
    Close();
    ExpectFile(draws);
}

TEST_F(CardPicker, AGreyCellTakesNoCard) {
    ClickCell("grdHist", 0, 3);
    ExpectCursor(pickPane, 1, 1);
    EXPECT_FALSE(LogCardsShown());
}

TEST_F(CardPicker, MovingToAPickEndsTheWinnersDisplayToo) {
    appState.hiLiteWinners = true;
    ClickCell("grdHist", 0, 2);
    EXPECT_TRUE(LogCardsShown());
    EXPECT_FALSE(appState.hiLiteWinners);
}

using QuirkCardClick1 = CardPicker;

// Not a bug: CARD-CLICK-1 in docs/not-bugs.md.
TEST_F(QuirkCardClick1, AClickOnTheCurrentCellOpensNothingAndStandsUntilTheNextMove) {
    ExpectCursor(pickPane, 1, 1);
    ClickCell("grdHist", 1, 1);
    EXPECT_FALSE(LogCardsShown());
    EXPECT_TRUE(frmMainForm.cardClicked);
    Press(Qt::Key_Up);
    ExpectCursor(pickPane, 0, 1);
    EXPECT_TRUE(LogCardsShown());
    EXPECT_FALSE(frmMainForm.cardClicked);
}

TEST_F(CardPicker, AClickOnABoxOpensItsCardsInPlaceOfTheLogs) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    Click("txtHiLite(1)");
    EXPECT_TRUE(HiLiteCardsShown());
    EXPECT_FALSE(LogCardsShown());
    EXPECT_EQ(frmMainForm.hiLiteTarget, 1);
}

TEST_F(CardPicker, AKeyInABoxOpensItsCardsAndTypesNothing) {
    for (const Qt::Key key : {Qt::Key_7, Qt::Key_A, Qt::Key_Return, Qt::Key_Backspace}) {
        frmMainForm.picCards[1].visible = false;
        Usable("txtHiLite(0)").setFocus();
        Press(key);
        EXPECT_TRUE(HiLiteCardsShown()) << key;
        EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "") << key;
    }
    EXPECT_EQ(frmMainForm.hiLiteTarget, 0);
    EXPECT_EQ(appState.colorMode, ColorMode::None);
}

TEST_F(CardPicker, APickedCardFillsTheBoxAndTheColoursWaitForTheButton) {
    FillBoxAt("txtHiLite(1)", {28 + 16, 40});
    EXPECT_EQ(*frmMainForm.txtHiLite[1].text, "2c");
    EXPECT_EQ(frmMainForm.hiLiteCode[1], "15");
    EXPECT_EQ(Find<QLineEdit>("txtHiLite(1)").text(), QStringLiteral("2c"));
    EXPECT_FALSE(HiLiteCardsShown());
    EXPECT_TRUE(Find("grdHist").isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(CellColor("grdHist", 0, 2), QColor(Qt::white));
    Click("cmdColor(0)");
    EXPECT_EQ(CellColor("grdHist", 0, 2), QColor(Qt::yellow));
    EXPECT_FALSE(appState.historyDirty);
}

TEST_F(CardPicker, TheCardsOfTheBoxesBeginAndEndAtTheirPixels) {
    const std::vector<std::pair<QPoint, const char*>> cards = {
        {{28, 22}, "Ah"},   {{43, 35}, "Ah"},  {{44, 36}, "2c"},  {{44, 48}, "2c"},  {{44, 49}, "2d"},
        {{44, 63}, "2d"},   {{59, 64}, "2s"},  {{60, 76}, "3s"},  {{220, 22}, "Kh"}, {{234, 76}, "Ks"},
        {{172, 22}, "10h"}, {{188, 22}, "Jh"}, {{204, 22}, "Qh"}, {{219, 22}, "Qh"}};
    for (const auto& [pixel, card] : cards) {
        FillBoxAt("txtHiLite(0)", pixel);
        EXPECT_EQ(*frmMainForm.txtHiLite[0].text, card) << pixel.x() << ", " << pixel.y();
    }
}

TEST_F(CardPicker, AClickBesideTheCardsOfTheBoxesChangesNothingAndLeavesThePictureOpen) {
    Click("txtHiLite(0)");
    for (const QPoint& pixel : {QPoint(27, 22), QPoint(235, 22), QPoint(28, 21), QPoint(28, 77), QPoint(0, 0),
                                QPoint(245, 87), QPoint(229, 5), QPoint(241, 5), QPoint(230, 4), QPoint(230, 16)}) {
        ClickAt("picCards(1)", pixel);
        EXPECT_TRUE(HiLiteCardsShown()) << pixel.x() << ", " << pixel.y();
    }
    EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "");
}

TEST_F(CardPicker, TheCloseBoxOfTheBoxesCardsReturnsToTheBox) {
    for (const QPoint& pixel : {QPoint(230, 5), QPoint(240, 5), QPoint(230, 15), QPoint(240, 15)}) {
        Click("txtHiLite(1)");
        Usable("cmdColor(0)").setFocus();
        ClickAt("picCards(1)", pixel);
        EXPECT_FALSE(HiLiteCardsShown()) << pixel.x() << ", " << pixel.y();
        EXPECT_EQ(Focus(), "txtHiLite(1)");
    }
    EXPECT_EQ(*frmMainForm.txtHiLite[1].text, "");
}

TEST_F(CardPicker, ADrawingIsHiLitedByItsCards) {
    ClickCell("grdHist", 0, 0);
    Click("cmdColorHist");
    EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "Ah");
    EXPECT_EQ(frmMainForm.hiLiteCode[1], "15");
    EXPECT_EQ(CellColor("grdHist", 0, 1), QColor(255, 0, 255));
    Click("cmdColorHist");
    EXPECT_EQ(appState.colorMode, ColorMode::None);
}

TEST_F(CardPicker, CardsPickedForADrawingAreThatDrawing) {
    FillBoxAt("txtHiLite(0)", {28, 22});
    FillBoxAt("txtHiLite(1)", {44, 40});
    ClickCell("grdHist", 0, 0);
    Click("cmdColorHist");
    EXPECT_EQ(appState.colorMode, ColorMode::None) << "hi-lited already";
    EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "");
}

/// Two draws of one date.
class CardPickerOfTwins : public CardPicker {
  protected:
    void SetUp() override {
        draws[1].date = draws[0].date;
        CardPicker::SetUp();
    }
};

TEST_F(CardPickerOfTwins, ACardGoesToBothRowsOfTheDate) {
    PickAt(0, 2, {11, 36});
    EXPECT_EQ(CellText("grdHist", 0, 2), "Ah");
    EXPECT_EQ(CellText("grdHist", 1, 2), "Ah");
    Close();
    draws[0].picks[1] = draws[1].picks[1] = 1;
    ExpectFile(draws);
}

/// Draws below the cards of the boxes, which cover the first ones.
class CardPickerOfEightDraws : public CardPicker {
  protected:
    void SetUp() override {
        for (int day = 3; day <= 8; ++day) {
            draws.push_back({"01/0" + std::to_string(day) + "/1990", {1, 15}});
        }
        CardPicker::SetUp();
    }
};

TEST_F(CardPickerOfEightDraws, AClickOnAPickOpensItsCardsInPlaceOfTheBoxes) {
    Click("txtHiLite(1)");
    ASSERT_TRUE(HiLiteCardsShown());
    ClickCell("grdHist", 6, 2);
    EXPECT_TRUE(LogCardsShown());
    EXPECT_FALSE(HiLiteCardsShown());
}

/// A number game beside the card game.
class CardPickerOfTwoGames : public CardPicker {
  protected:
    void SetUp() override {
        Store({.slot = 2, .mainPicks = 2, .draws = {{"01/01/1990", {7, 8}}, {"01/02/1990", {9, 10}}}});
        CardPicker::SetUp();
    }
};

TEST_F(CardPickerOfTwoGames, ANumberGameOpensNoCards) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    ChooseEntry("cboList(0)", 1);
    EXPECT_FALSE(LogCardsShown());
    ClickCell("grdHist", 0, 2);
    EXPECT_FALSE(LogCardsShown());
    EXPECT_FALSE(frmMainForm.cardClicked);
}

TEST_F(CardPickerOfTwoGames, AClickThatWaitsForAMoveOpensNothingInAnotherGame) {
    ClickCell("grdHist", 1, 1);
    ASSERT_TRUE(frmMainForm.cardClicked);
    ChooseEntry("cboList(0)", 1);
    Press(Qt::Key_Up);
    EXPECT_FALSE(LogCardsShown());
}

/// Another card game beside the card game.
class CardPickerOfTwoCardGames : public CardPicker {
  protected:
    void SetUp() override {
        Store({.slot = 2, .gameType = 3, .mainPicks = 2, .high = 52, .draws = {{"01/01/1990", {7, 8}}}});
        CardPicker::SetUp();
    }
};

TEST_F(CardPickerOfTwoCardGames, AnotherCardGameBeginsWithoutTheCardsOfTheLog) {
    ClickCell("grdHist", 0, 2);
    ASSERT_TRUE(LogCardsShown());
    ChooseEntry("cboList(0)", 1);
    EXPECT_FALSE(LogCardsShown());
}

TEST_F(CardPickerOfTwoCardGames, AnotherCardGameBeginsWithoutTheCardsOfTheBoxes) {
    Click("txtHiLite(1)");
    ASSERT_TRUE(HiLiteCardsShown());
    ChooseEntry("cboList(0)", 1);
    EXPECT_FALSE(HiLiteCardsShown());
}

}  // namespace
}  // namespace ballhaven
