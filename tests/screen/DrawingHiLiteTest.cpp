#include "screen/DrawingHiLite.h"

#include "forms/MainForm.h"
#include "screen/LogCells.h"
#include "state/AppState.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using Texts = std::vector<std::string>;

class DrawingHiLite : public testing::Test {
  protected:
    static void Show(const support::Game& game, const std::vector<DrawPicks>& draws) {
        support::StartWith(game);
        frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
        support::ShowDraws(draws);
    }

    static void HiLiteRow(int row) {
        frmMainForm.grdHist.GoToRow(row);
        HiLiteDrawing();
    }

    /// The boxes up to the last one that is not empty.
    static Texts Boxes() {
        Texts texts;
        for (const platform::TextBox& box : frmMainForm.txtHiLite) {
            texts.push_back(box.text);
        }
        return UpToLast(texts);
    }

    static Texts Codes() { return UpToLast({frmMainForm.hiLiteCode.begin(), frmMainForm.hiLiteCode.end()}); }

  private:
    static Texts UpToLast(Texts texts) {
        while (!texts.empty() && texts.back().empty()) {
            texts.pop_back();
        }
        return texts;
    }
};

TEST_F(DrawingHiLite, TheFirstClickFillsTheBoxesAndSwitchesTheHiLiteOn) {
    Show(NumberGame().Picks(3), {{7, 8, 49}, {1, 2, 3}});
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "49"}));
    EXPECT_EQ(Codes(), (Texts{"7", "8", "49"}));
    EXPECT_EQ(appState.colorMode, 2);
}

TEST_F(DrawingHiLite, ASecondClickOnTheSameRowEmptiesTheBoxesAndSwitchesTheHiLiteOff) {
    Show(NumberGame().Picks(3), {{7, 8, 49}, {1, 2, 3}});
    HiLiteRow(0);
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), Texts());
    EXPECT_EQ(Codes(), Texts());
    EXPECT_EQ(appState.colorMode, 0);
}

TEST_F(DrawingHiLite, AClickOnAnotherRowReplacesTheBoxes) {
    Show(NumberGame().Picks(3), {{7, 8, 49}, {7, 8, 48}});
    HiLiteRow(0);
    HiLiteRow(1);
    EXPECT_EQ(Boxes(), (Texts{"7", "8", "48"}));
    EXPECT_EQ(appState.colorMode, 2);
}

TEST_F(DrawingHiLite, ARowWithABlankPickLeavesThatBoxEmpty) {
    Show(NumberGame().Picks(3), {{7, -1, 49}});
    support::FillBox(1, "30");
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), (Texts{"7", "", "49"}));
    EXPECT_EQ(Codes(), (Texts{"7", "", "49"}));
}

TEST_F(DrawingHiLite, CardsStandInTheBoxesByTheirTextAndInTheCodesByTheirValue) {
    Show(CardGame().Picks(2), {{1, 36}});
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), (Texts{"Ah", "10d"}));
    EXPECT_EQ(Codes(), (Texts{"1", "36"}));
}

TEST_F(DrawingHiLite, TenPicksFillAllBoxes) {
    Show(NumberGame().Picks(10), {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), (Texts{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), Texts());
}

TEST_F(DrawingHiLite, ZeroIsAPick) {
    Show(NumberGame().Picks(2).From(0).To(9), {{0, 5}});
    HiLiteRow(0);
    EXPECT_EQ(Boxes(), (Texts{"0", "5"}));
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, 0);
}

TEST_F(DrawingHiLite, OfTwoRowsWithOneDateTheFirstIsTaken) {
    Show(NumberGame().Picks(2), {{7, 8}, {21, 22}});
    appState.historyView(0, 1) = appState.historyView(0, 0);
    HiLiteRow(1);
    EXPECT_EQ(Boxes(), (Texts{"7", "8"}));
}

TEST_F(DrawingHiLite, WithoutADrawTheBoxesBecomeEmptyAndTheModeStays) {
    Show(NumberGame().Picks(2), {});
    support::FillBox(0, "7");
    appState.colorMode = 1;
    HiLiteDrawing();
    EXPECT_EQ(Boxes(), Texts());
    EXPECT_EQ(appState.colorMode, 1);
}

TEST_F(DrawingHiLite, OnlyTheCodesOfTheGamesPicksAreCompared) {
    Show(NumberGame().Picks(2), {{7, 8}});
    frmMainForm.hiLiteCode = {"7", "8", "9"};
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, 0);
}

// Not a bug: HILITE-CODE-1 in docs/not-bugs.md.
TEST_F(DrawingHiLite, TheTextsOfTheBoxesAreNotCompared) {
    Show(NumberGame().Picks(2), {{7, 8}});
    support::FillBox(0, "7");
    support::FillBox(1, "8");
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, 2);
    support::FillBox(0, "40");
    HiLiteRow(0);
    EXPECT_EQ(appState.colorMode, 0);
}

// Not a bug: HILITE-BLANK-1 in docs/not-bugs.md.
TEST(QuirkHiLiteBlank1, ADrawWithABlankPickIsHiLitedAgainByEachClick) {
    support::StartWith(NumberGame().Picks(2));
    frmMainForm.grdHist.cellText = platform::ByRowAndColumn(LogCellValue);
    support::ShowDraws({{7, -1}});
    for (int click = 0; click < 3; ++click) {
        HiLiteDrawing();
        EXPECT_EQ(appState.colorMode, 2);
        EXPECT_EQ(*frmMainForm.txtHiLite[0].text, "7");
        EXPECT_EQ(*frmMainForm.txtHiLite[1].text, "");
    }
}

}  // namespace
}  // namespace ballhaven
