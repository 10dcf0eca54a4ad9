#include "forms/ShuffleForm.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ballhaven {
namespace {

class TheShuffleForm : public testing::Test {
  protected:
    void SetUp() override { LayOutShuffleForm(); }
};

TEST_F(TheShuffleForm, HasTheBoardOfTheKindOfGame) {
    struct Board {
        int gameType;
        int rows;
        int height;
        int columnWidth;
    };
    for (const Board& each :
         {Board{0, 12, 2235, 220}, Board{2, 24, 4395, 220}, Board{3, 12, 2235, 330}, Board{5, 24, 4395, 330}}) {
        ArrangeShuffleForm(each.gameType);
        const platform::Grid& board = frmShuffle.grdShuffle;
        EXPECT_EQ(board.RowCount(), each.rows) << each.gameType;
        EXPECT_EQ(board.bounds->height, each.height) << each.gameType;
        EXPECT_EQ(board.bounds->width, 2040) << each.gameType;
        EXPECT_EQ(*board.Column(0).width, each.columnWidth) << each.gameType;
        EXPECT_TRUE(*board.Column(5).visible) << each.gameType;
        EXPECT_EQ(*board.Column(8).visible, each.gameType < 3) << each.gameType;
    }
}

TEST_F(TheShuffleForm, StandsInItsPlaceWithRoomForAllOfIt) {
    for (const int gameType : {0, 2, 3, 5}) {
        ArrangeShuffleForm(gameType);
        EXPECT_EQ(frmShuffle.window.Left(), 1920);
        EXPECT_EQ(frmShuffle.window.Top(), 1150);
        for (const platform::Control* control : frmShuffle.window.controls) {
            const int width = control->container == nullptr ? frmShuffle.window.Width() - platform::Window::frameWidth
                                                            : control->container->bounds->width;
            const int height = control->container == nullptr ? frmShuffle.window.Height() - frmShuffle.window.frame
                                                             : control->container->bounds->height;
            EXPECT_LE(control->bounds->left + control->bounds->width, width) << control->name << gameType;
            EXPECT_LE(control->bounds->top + control->bounds->height, height) << control->name << gameType;
        }
    }
}

TEST_F(TheShuffleForm, HasItsTexts) {
    EXPECT_EQ(*frmShuffle.window.title, "Wheel and Shuffle");
    EXPECT_EQ(*frmShuffle.fraShuffle[0].caption, "Input");
    EXPECT_EQ(*frmShuffle.fraShuffle[1].caption, "Configuration");
    EXPECT_EQ(*frmShuffle.fraShuffle[2].caption, "Output: Plays");
    EXPECT_EQ(*frmShuffle.optShuffle[0].caption, "Shuffle................Total Plays (required)");
    EXPECT_EQ(*frmShuffle.optShuffle[1].caption, "Partial Wheel .....Total Plays (required)");
    EXPECT_EQ(*frmShuffle.optShuffle[2].caption, "Full Wheel  ");
    EXPECT_EQ(*frmShuffle.cmdErasePlay[5].toolTip, "Erase this play");
    EXPECT_EQ(*frmShuffle.cmdButton.caption, "Play Slips");
    EXPECT_EQ(*frmShuffle.cmdStart.caption, "Start");
    EXPECT_EQ(*frmShuffle.cmdClose.caption, "Close");
    const char* const labels[] = {"",
                                  "",
                                  "",
                                  "Shuffle",
                                  "Select numbers or cards in any order.",
                                  "Full Wheel, or Partial Wheel",
                                  "Select numbers or cards in the order of favorite to least favorite.",
                                  "Click # or Card ON/OFF",
                                  "From",
                                  "To",
                                  "Total",
                                  "(if a full wheel is completed before total plays is reached, the wheel will stop)",
                                  "(wheel will not exceed 5000 plays)"};
    for (std::size_t label = 0; label < frmShuffle.lblShuffle.size(); ++label) {
        EXPECT_EQ(*frmShuffle.lblShuffle[label].text, labels[label]) << label;
    }
    EXPECT_TRUE(*frmShuffle.lblShuffle[3].bold);
    EXPECT_TRUE(*frmShuffle.lblShuffle[5].bold);
}

TEST_F(TheShuffleForm, TheKeyboardComesToTheBoardFirstAndNotToTheEraser) {
    const auto& controls = frmShuffle.window.controls;
    EXPECT_LT(std::ranges::find(controls, &frmShuffle.grdShuffle),
              std::ranges::find(controls, &frmShuffle.cmdErasePlay[5]));
}

TEST_F(TheShuffleForm, BeginsWithEmptyBoxesAndWithoutAResultAgain) {
    frmShuffle.txtShuffle[1].text = "28";
    frmShuffle.lblShuffle[0].text = "1.A";
    frmShuffle.lblShuffle[2].text = "28";
    frmShuffle.window.controls.clear();
    LayOutShuffleForm();
    EXPECT_EQ(*frmShuffle.txtShuffle[1].text, "");
    EXPECT_EQ(*frmShuffle.lblShuffle[0].text, "");
    EXPECT_EQ(*frmShuffle.lblShuffle[2].text, "");
}

}  // namespace
}  // namespace ballhaven
