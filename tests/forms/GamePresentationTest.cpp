#include "forms/GamePresentation.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "support/FreshStart.h"
#include "support/IdleGridView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

class GamePresentation : public testing::Test {
  protected:
    void SetUp() override { LayOutMainForm(); }

    static void Play(int gameType, int mainPickCount, int bonusPickCount) {
        appState.gameType = static_cast<std::int16_t>(gameType);
        appState.mainPickCount = static_cast<std::int16_t>(mainPickCount);
        appState.bonusPickCount = static_cast<std::int16_t>(bonusPickCount);
        appState.totalPicks = static_cast<std::int16_t>(mainPickCount + bonusPickCount);
    }

    [[nodiscard]] static std::vector<int> VisibleBoxes() {
        std::vector<int> boxes;
        for (int i = 0; i < hiLiteBoxes; ++i) {
            const auto index = static_cast<std::size_t>(i);
            EXPECT_EQ(*frmMainForm.txtHiLite[index].visible, *frmMainForm.lblColor[index].visible) << i;
            if (frmMainForm.txtHiLite[index].visible) {
                boxes.push_back(i);
            }
        }
        return boxes;
    }

    [[nodiscard]] static std::vector<std::string> PickHeadings() {
        std::vector<std::string> headings;
        for (int column = 1; column <= logPickColumns; ++column) {
            headings.push_back(frmMainForm.grdHist.Column(column).heading);
        }
        return headings;
    }
};

using QuirkHiLiteBox1 = GamePresentation;

TEST_F(GamePresentation, ABoardOfANumberGameHasNineColumnsOf220) {
    Play(1, 5, 1);
    SizePlayGrid();
    EXPECT_EQ(appState.slipColumns, 9);
    for (int column = 0; column < 9; ++column) {
        EXPECT_TRUE(frmMainForm.grdPlay.Column(column).visible) << column;
        EXPECT_EQ(frmMainForm.grdPlay.Column(column).width, 220) << column;
    }
    EXPECT_EQ(frmMainForm.grdPlay.bounds->width, 2040);
    EXPECT_EQ(frmMainForm.grdPlay.bounds->height, 4395);
    EXPECT_EQ(frmMainForm.grdPlay.RowCount(), 24);
    EXPECT_EQ(*frmMainForm.grdHot.Column(0).heading, "Number");
}

TEST_F(GamePresentation, ABoardOfACardGameHasSixColumnsOf330AndHidesTheOthers) {
    Play(3, 5, 0);
    SizePlayGrid();
    EXPECT_EQ(appState.slipColumns, 6);
    for (int column = 0; column < 9; ++column) {
        EXPECT_EQ(*frmMainForm.grdPlay.Column(column).visible, column < 6) << column;
    }
    EXPECT_EQ(frmMainForm.grdPlay.Column(5).width, 330);
    EXPECT_EQ(frmMainForm.grdPlay.bounds->width, 2040);
    EXPECT_EQ(frmMainForm.grdPlay.bounds->height, 2235);
    EXPECT_EQ(frmMainForm.grdPlay.RowCount(), 12);
    EXPECT_EQ(*frmMainForm.grdHot.Column(0).heading, "Card");
}

TEST_F(GamePresentation, ANumberGameAfterACardGameShowsAllNineColumnsAgain) {
    Play(3, 5, 0);
    SizePlayGrid();
    Play(0, 5, 0);
    SizePlayGrid();
    EXPECT_TRUE(frmMainForm.grdPlay.Column(8).visible);
    EXPECT_EQ(frmMainForm.grdPlay.Column(0).width, 220);
}

TEST_F(GamePresentation, TheViewMenuTicksTheOrderOfTheLog) {
    appState.historySortOrder = 1;
    ShowViewChecks();
    EXPECT_TRUE(frmMainForm.mnuViewArray[0].checked);
    EXPECT_FALSE(frmMainForm.mnuViewArray[1].checked);
    appState.historySortOrder = 0;
    ShowViewChecks();
    EXPECT_FALSE(frmMainForm.mnuViewArray[0].checked);
    EXPECT_TRUE(frmMainForm.mnuViewArray[1].checked);
}

TEST_F(GamePresentation, BonusColumnsOfTheLogAreHeadedWithAPlus) {
    Play(2, 5, 2);
    ArrangeLogColumns();
    EXPECT_EQ(PickHeadings(), (std::vector<std::string>{"", "", "", "", "", "+", "+", "", "", ""}));
}

TEST_F(GamePresentation, AGameWithoutBonusHasNoHeadingsOverItsPicks) {
    Play(2, 5, 2);
    ArrangeLogColumns();
    Play(0, 6, 0);
    ArrangeLogColumns();
    EXPECT_EQ(PickHeadings(), std::vector<std::string>(10, ""));
}

TEST_F(GamePresentation, AssistiveToolsAreToldThePicksOfTheLogByNumber) {
    Play(1, 3, 2);
    ArrangeLogColumns();
    std::vector<std::string> names;
    for (int column = 1; column <= 6; ++column) {
        names.push_back(frmMainForm.grdHist.Column(column).accessibleHeading);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Pick 1", "Pick 2", "Pick 3", "Bonus 1", "Bonus 2", ""}));
}

/// A grid's widget that counts how often it would lay its parts out.
class LayoutCounter : public support::IdleGridView {
  public:
    explicit LayoutCounter(platform::Grid& watchedGrid) : grid(watchedGrid) { grid.view = this; }
    ~LayoutCounter() override { grid.view = nullptr; }

    void Refresh() override { layouts += grid.IsOn() ? 1 : 0; }

    int layouts = 0;

  private:
    platform::Grid& grid;
};

TEST_F(GamePresentation, GridsAreLaidOutOnceForAllTheirColumns) {
    Play(1, 5, 1);
    SizePlayGrid();
    ArrangeLogColumns();
    LayoutCounter play(frmMainForm.grdPlay);
    LayoutCounter log(frmMainForm.grdHist);

    Play(3, 6, 0);
    SizePlayGrid();
    ArrangeLogColumns();

    EXPECT_EQ(play.layouts, 1);
    EXPECT_EQ(log.layouts, 1);
}

TEST_F(GamePresentation, AGameOfTenPicksFitsTheLogAndColumnsBehindThePicksAreGreyAndClosed) {
    Play(0, 10, 0);
    ArrangeLogColumns();
    EXPECT_FALSE(frmMainForm.grdHist.Column(10).locked);
    EXPECT_TRUE(frmMainForm.grdHist.Column(10).focusable);
    EXPECT_EQ(*frmMainForm.grdHist.Column(10).background, platform::windowColor);
    Play(1, 5, 1);
    ArrangeLogColumns();
    for (int column = 1; column <= 10; ++column) {
        const platform::GridColumn& pick = frmMainForm.grdHist.Column(column);
        EXPECT_TRUE(pick.visible) << column;
        EXPECT_EQ(*pick.locked, column > 6) << column;
        EXPECT_EQ(*pick.focusable, column <= 6) << column;
        EXPECT_EQ(*pick.background, column <= 6 ? platform::windowColor : platform::buttonFaceColor) << column;
    }
}

TEST_F(GamePresentation, PickColumnsHaveRoomForANumberOrACardAndAreAllShown) {
    frmMainForm.grdHist.Column(7).visible = false;
    Play(0, 6, 0);
    ArrangeLogColumns();
    EXPECT_TRUE(frmMainForm.grdHist.Column(7).visible);
    EXPECT_EQ(frmMainForm.grdHist.Column(1).width, 600);
    Play(3, 5, 0);
    ArrangeLogColumns();
    EXPECT_EQ(frmMainForm.grdHist.Column(1).width, 720);
}

TEST_F(GamePresentation, ThePicksOfACardGameAreLockedFiveColumnsWideAndUnmarked) {
    Play(4, 5, 1);
    ArrangeLogColumns();
    EXPECT_TRUE(frmMainForm.grdHist.Pane(pickPane).locked);
    EXPECT_EQ(frmMainForm.grdHist.Pane(pickPane).columnsWide, 5);
    EXPECT_FALSE(frmMainForm.grdHist.Pane(pickPane).marksCurrentCell);
}

TEST_F(GamePresentation, ThePicksOfANumberGameAreOpenSixColumnsWideAndMarked) {
    Play(4, 5, 1);
    ArrangeLogColumns();
    Play(1, 5, 1);
    ArrangeLogColumns();
    EXPECT_FALSE(frmMainForm.grdHist.Pane(pickPane).locked);
    EXPECT_EQ(frmMainForm.grdHist.Pane(pickPane).columnsWide, 6);
    EXPECT_TRUE(frmMainForm.grdHist.Pane(pickPane).marksCurrentCell);
}

TEST_F(GamePresentation, TheOptionsOfTheHotTableShowInAGameWithBonusWithAllChosen) {
    for (const int gameType : {1, 2, 4, 5}) {
        support::LayOutAfresh();
        Play(gameType, 5, 1);
        frmMainForm.optHot[0].Choose();
        ArrangeHotOptions();
        EXPECT_TRUE(frmMainForm.optHot[0].visible && frmMainForm.optHot[1].visible && frmMainForm.optHot[2].visible);
        EXPECT_TRUE(frmMainForm.optHot[2].IsChosen());
        EXPECT_FALSE(frmMainForm.optHot[0].IsChosen());
    }
}

TEST_F(GamePresentation, TheOptionsOfTheHotTableAreHiddenInAGameWithoutBonus) {
    for (const int gameType : {0, 3}) {
        support::LayOutAfresh();
        Play(gameType, 5, 0);
        ArrangeHotOptions();
        EXPECT_FALSE(frmMainForm.optHot[0].visible || frmMainForm.optHot[1].visible || frmMainForm.optHot[2].visible);
    }
}

TEST_F(GamePresentation, TenPicksShowAllBoxesAndEightHideTheLastTwo) {
    Play(0, 10, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    Play(0, 8, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}));
}

// Not a bug: HILITE-BOX-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteBox1, TheTenthBoxStaysWhenNinePicksFollowTen) {
    Play(0, 10, 0);
    ArrangeHiLiteBoxes();
    Play(0, 9, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

// Not a bug: HILITE-BOX-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteBox1, TheTenthBoxStaysHiddenWhenNinePicksFollowEight) {
    Play(0, 8, 0);
    ArrangeHiLiteBoxes();
    Play(0, 9, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

// Not a bug: HILITE-BOX-1 in docs/not-bugs.md.
TEST_F(QuirkHiLiteBox1, TheClearingButtonStandsBesideTheTenthBoxWhereItStays) {
    Play(0, 10, 0);
    ArrangeHiLiteBoxes();
    Play(0, 9, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 7560 + 390 * 9 + 375 + 50);
    Play(0, 8, 0);
    ArrangeHiLiteBoxes();
    Play(0, 9, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 7560 + 390 * 8 + 375 + 50);
}

TEST_F(QuirkHiLiteBox1, AGameOfNinePicksThatIsTheFirstOneShownHasTheTenthBox) {
    Play(0, 9, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(VisibleBoxes().size(), 10U);
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 7560 + 390 * 9 + 375 + 50);
}

TEST_F(GamePresentation, TheClearingButtonStandsBesideTheBoxOfTheLastPick) {
    Play(0, 10, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 11495);
    Play(0, 6, 0);
    ArrangeHiLiteBoxes();
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 7560 + 390 * 5 + 375 + 50);
}

TEST_F(GamePresentation, ARecordOfMoreThanTenPicksShowsTheTenBoxesThatThereAre) {
    Play(1, 99, 9);
    ArrangeHiLiteBoxes();
    ArrangeLogColumns();
    EXPECT_EQ(VisibleBoxes().size(), 10U);
    EXPECT_EQ(frmMainForm.cmdColor[1].bounds->left, 11495);
    EXPECT_FALSE(frmMainForm.grdHist.Column(10).locked);
}

TEST_F(GamePresentation, BoxesAreTypedIntoInANumberGameAndFilledFromThePickerInACardGame) {
    Play(5, 5, 1);
    ArrangeHiLiteBoxes();
    for (const platform::TextBox& box : frmMainForm.txtHiLite) {
        EXPECT_TRUE(box.locked);
        EXPECT_EQ(box.maxLength, 3);
        EXPECT_EQ(*box.pointer, platform::PointerShape::IBeam);
    }
    Play(2, 5, 1);
    ArrangeHiLiteBoxes();
    for (const platform::TextBox& box : frmMainForm.txtHiLite) {
        EXPECT_FALSE(box.locked);
        EXPECT_EQ(box.maxLength, 2);
        EXPECT_EQ(*box.pointer, platform::PointerShape::Cross);
    }
}

TEST_F(GamePresentation, ClearingTheBoxesEmptiesBothOfTheirTexts) {
    frmMainForm.txtHiLite[3].text = "7";
    frmMainForm.hiLiteCode[3] = "7";
    ClearHiLiteBoxes();
    EXPECT_EQ(*frmMainForm.txtHiLite[3].text, "");
    EXPECT_EQ(frmMainForm.hiLiteCode[3], "");
}

TEST_F(GamePresentation, CellsAreComparedWithTheTextsOfTheBoxesWhileTheHiLiteIsOn) {
    frmMainForm.txtHiLite[0].text = "7";
    frmMainForm.txtHiLite[9].text = " Kh";
    frmMainForm.hiLiteCode[1] = "8";
    EXPECT_FALSE(ShownHiLites().on);
    for (const ColorMode mode : {ColorMode::Boxes, ColorMode::Drawing}) {
        appState.colorMode = mode;
        EXPECT_TRUE(ShownHiLites().on) << static_cast<int>(mode);
    }
    const std::array<std::string_view, 10> expected = {"7", "", "", "", "", "", "", "", "", " Kh"};
    EXPECT_EQ(ShownHiLites().texts, expected);
}

TEST_F(GamePresentation, TheLogShowsItsRowsAndTheColumnsWithData) {
    frmMainForm.logRowCount = 25;
    frmMainForm.logLastColumn = 6;
    EXPECT_TRUE(ShownLog().Has(0, 0));
    EXPECT_TRUE(ShownLog().Has(24, 6));
    EXPECT_FALSE(ShownLog().Has(25, 0));
    EXPECT_FALSE(ShownLog().Has(0, 7));
    EXPECT_FALSE(ShownLog().Has(-1, 0));
    EXPECT_FALSE(ShownLog().Has(0, -1));
}

TEST_F(GamePresentation, TheHotTableShowsItsRowsInFourColumns) {
    frmMainForm.hotRowCount = 49;
    EXPECT_TRUE(ShownHotCells().Has(48, 3));
    EXPECT_FALSE(ShownHotCells().Has(49, 3));
    EXPECT_FALSE(ShownHotCells().Has(48, 4));
}

TEST_F(GamePresentation, HidingTheCardsForgetsAClickThatWouldOpenThem) {
    frmMainForm.cardClicked = true;
    for (platform::Picture& cards : frmMainForm.picCards) {
        cards.visible = true;
    }
    HideCards();
    EXPECT_FALSE(*frmMainForm.picCards[0].visible || *frmMainForm.picCards[1].visible || frmMainForm.cardClicked);
}

TEST_F(GamePresentation, WithoutACurrentRowTheHiLiteButtonOfTheLogIsHidden) {
    frmMainForm.cmdColorHist.visible = true;
    PlaceHiLiteDrawingButton();
    EXPECT_FALSE(frmMainForm.cmdColorHist.visible);
}

}  // namespace
}  // namespace ballhaven
