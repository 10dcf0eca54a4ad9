#include "forms/PlaysForm.h"

#include <gtest/gtest.h>

namespace ballhaven {
namespace {

class ThePlaysForm : public testing::Test {
  protected:
    void SetUp() override { LayOutPlaysForm(); }
};

TEST_F(ThePlaysForm, HasTheSizesOfTheKindOfGame) {
    struct Sizes {
        int gameType;
        int gridHeight;
        int windowHeight;
        int columnWidth;
    };
    for (const Sizes& each :
         {Sizes{0, 2500, 4380, 220}, Sizes{2, 4660, 6360, 220}, Sizes{3, 2500, 4380, 330}, Sizes{5, 4660, 6360, 330}}) {
        ArrangePlaysForm(each.gameType, false);
        const platform::Grid& boards = frmPlays.grdPlays[0];
        EXPECT_EQ(boards.bounds->height, each.gridHeight) << each.gameType;
        EXPECT_EQ(boards.bounds->width, 9900 + 160) << each.gameType;
        EXPECT_EQ(*boards.Column(0).width, each.columnWidth) << each.gameType;
        EXPECT_EQ(*boards.Column(5).visible, true) << each.gameType;
        EXPECT_EQ(*boards.Column(6).visible, each.gameType < 3) << each.gameType;
        EXPECT_EQ(frmPlays.window.Height(), each.windowHeight) << each.gameType;
        EXPECT_EQ(frmPlays.window.Width(), 6 * boards.bounds->left + boards.bounds->width) << each.gameType;
    }
}

TEST_F(ThePlaysForm, ShowsTheLegendWhereTheOrderMattersOnly) {
    ArrangePlaysForm(0, true);
    EXPECT_TRUE(*frmPlays.imgOrder.visible);
    EXPECT_TRUE(*frmPlays.lblPickOrder.visible);
    ArrangePlaysForm(0, false);
    EXPECT_FALSE(*frmPlays.imgOrder.visible);
    EXPECT_FALSE(*frmPlays.lblPickOrder.visible);
}

TEST_F(ThePlaysForm, TellsTheSlipByItsNumberWithItsBlanks) {
    ShowSlipNumber(12);
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, " 12 Play Slip  ");
}

TEST_F(ThePlaysForm, HasItsTextsAndToolTips) {
    EXPECT_EQ(*frmPlays.window.title, "Play Slips");
    EXPECT_EQ(*frmPlays.Picture1.toolTip, "Exit Play Slips");
    EXPECT_EQ(*frmPlays.cmdToolbar[1].toolTip, "Print Play Slips");
    EXPECT_EQ(*frmPlays.cmdToolbar[2].toolTip, "Erase ALL play slips");
    EXPECT_EQ(*frmPlays.cmdToolbar[3].toolTip, "Wheel or Shuffle");
    EXPECT_EQ(*frmPlays.cmdToolbar[4].toolTip, "Highlight Winners");
    EXPECT_EQ(*frmPlays.cmdToolbar[5].toolTip, "Clear Highlighted Winners");
    EXPECT_EQ(*frmPlays.cmdErasePlay[0].toolTip, "Erase this play slip");
    for (std::size_t line = 1; line <= 5; ++line) {
        EXPECT_EQ(*frmPlays.cmdErasePlay[line].toolTip, "Erase this play") << line;
    }
    EXPECT_EQ(*frmPlays.lblPickOrder.text, "Pick Order");
}

}  // namespace
}  // namespace ballhaven
