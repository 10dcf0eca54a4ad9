#include "forms/NewGameForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace ballhaven {
namespace {

class TheNewGameForm : public testing::Test {
  protected:
    void SetUp() override {
        frmNewGame.window.controls.clear();
        LayOutNewGameForm();
    }
    void TearDown() override { frmNewGame.window.controls.clear(); }

    /// What stands in the dialog from the first control of the keyboard to the last.
    static std::string Names() {
        std::string names;
        for (const platform::Control* control : frmNewGame.window.controls) {
            names += control->name + " ";
        }
        return names;
    }
};

TEST_F(TheNewGameForm, AsksItsQuestionsInTheOrderInWhichTheyStand) {
    EXPECT_EQ(Names(),
              "lblNewGame(0) txtNewGame(0) lblNewGame(1) cboCombo(0) lblNewGame(4) cboCombo(3) lblNewGame(9) "
              "cboCombo(4) lblNewGame(2) cboCombo(1) lblNewGame(3) cboCombo(2) lblNewGame(10) cboCombo(5) "
              "lblNewGame(7) cboCombo(9) lblNewGame(11) cboCombo(6) lblNewGame(8) cboCombo(10) cmdNewGame(1) "
              "cmdNewGame(0) ");
}

TEST_F(TheNewGameForm, EveryListIsCalledByTheLabelOnItsLeft) {
    for (const GameList list : {gameTypeList, mainCountList, bonusCountList, orderList, duplicatesList, mainLowList,
                                mainHighList, bonusLowList, bonusHighList}) {
        const platform::Bounds label = LabelOf(list).bounds;
        const platform::Bounds box = ListOf(list).bounds;
        EXPECT_EQ(ListOf(list).label, &LabelOf(list)) << list;
        EXPECT_EQ(label.top, box.top + 75) << list;
        EXPECT_LE(label.left + label.width, box.left) << list;
        EXPECT_GT(label.left + label.width, box.left - 500) << list;
    }
}

TEST_F(TheNewGameForm, KeepsItsSize) {
    EXPECT_TRUE(frmNewGame.window.fixedSize);
}

TEST_F(TheNewGameForm, HasItsTexts) {
    EXPECT_EQ(*frmNewGame.lblNewGame[0].text, "Enter a name for this game:");
    EXPECT_EQ(*LabelOf(gameTypeList).text, "Select type of game:");
    EXPECT_EQ(*LabelOf(orderList).text,
              "Does it matter which order the numbers or cards are drawn?         (disregarding bonus...bonus  is "
              "always drawn last)");
    EXPECT_EQ(*LabelOf(duplicatesList).text,
              "Can a number be duplicated in the same drawing?             Example:  pair of 3's in Main set...or pair "
              "of 3's in Bonus set.");
    EXPECT_EQ(*LabelOf(mainCountList).text, "How many Main numbers or cards are drawn each game?");
    EXPECT_EQ(*LabelOf(bonusCountList).text, "How many Bonus numbers or cards are drawn each game?");
    EXPECT_EQ(*LabelOf(mainLowList).text, "What is lowest Main number that can be drawn.");
    EXPECT_EQ(*LabelOf(mainHighList).text, "What is the highest Main number that can be drawn.");
    EXPECT_EQ(*LabelOf(bonusLowList).text, "What is the lowest Bonus number that can be drawn.");
    EXPECT_EQ(*LabelOf(bonusHighList).text, "What is the highest Bonus number that can be drawn.");
    EXPECT_EQ(*frmNewGame.cmdNewGame[0].caption, "Cancel");
    EXPECT_EQ(*frmNewGame.cmdNewGame[1].caption, "Save");
}

TEST_F(TheNewGameForm, TakesANameOf20CharactersAndOpensWithNone) {
    frmNewGame.txtNewGame[0].text = "Super Lotto";
    frmNewGame.window.controls.clear();
    LayOutNewGameForm();

    EXPECT_EQ(*frmNewGame.txtNewGame[0].text, "");
    EXPECT_EQ(*frmNewGame.txtNewGame[0].maxLength, 20);
}

TEST_F(TheNewGameForm, ItsListsOpenEmpty) {
    ListOf(gameTypeList).Fill({"left from the last opening"});
    frmNewGame.window.controls.clear();
    LayOutNewGameForm();

    EXPECT_TRUE(ListOf(gameTypeList).Entries().empty());
}

TEST_F(TheNewGameForm, NothingOverlapsOrLeavesTheWindow) {
    const auto& controls = frmNewGame.window.controls;
    const int right = frmNewGame.window.Width() - platform::Window::frameWidth;
    const int bottom = frmNewGame.window.Height() - platform::Window::frameHeight;
    for (auto each = controls.begin(); each != controls.end(); ++each) {
        const platform::Bounds place = (*each)->bounds;
        EXPECT_LE(place.left + place.width, right) << (*each)->name;
        EXPECT_LE(place.top + place.height, bottom) << (*each)->name;
        EXPECT_TRUE(std::all_of(each + 1, controls.end(), [&place](const platform::Control* other) {
            const platform::Bounds beside = other->bounds;
            return place.left + place.width <= beside.left || beside.left + beside.width <= place.left ||
                   place.top + place.height <= beside.top || beside.top + beside.height <= place.top;
        })) << (*each)->name;
    }
}

}  // namespace
}  // namespace ballhaven
