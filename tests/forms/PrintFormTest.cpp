#include "forms/PrintForm.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using platform::Bounds;

class ThePrintForm : public testing::Test {
  protected:
    void SetUp() override { LayOutPrintForm(); }
};

TEST_F(ThePrintForm, HasItsBoxesFromTopToBottom) {
    const Bounds places[] = {{240, 120, 2055, 375},  {240, 480, 2055, 375},  {240, 840, 1935, 375},
                             {240, 1200, 2175, 375}, {240, 1560, 1575, 375}, {240, 1920, 1575, 375},
                             {240, 2520, 3495, 375}};
    const char* const captions[] = {"Print Historical Log",
                                    "Print Hot Numbers",
                                    "Print Hot Pairs",
                                    "Print Paired Only Once",
                                    "Print Repeaters",
                                    "Print No Hitters",
                                    "Print All Plays  (on standard paper)"};
    for (std::size_t index = 0; index < 7; ++index) {
        EXPECT_EQ(*frmPrint.chkPrint[index].bounds, places[index]) << index;
        EXPECT_EQ(*frmPrint.chkPrint[index].caption, captions[index]);
        EXPECT_EQ(frmPrint.chkPrint[index].name, "chkPrint(" + std::to_string(index) + ")");
    }
}

TEST_F(ThePrintForm, HasItsButtons) {
    EXPECT_EQ(*frmPrint.cmdPrint[0].bounds, (Bounds{2880, 120, 855, 495}));
    EXPECT_EQ(*frmPrint.cmdPrint[0].caption, "Cancel");
    EXPECT_EQ(frmPrint.cmdPrint[0].name, "cmdPrint(0)");
    EXPECT_EQ(*frmPrint.cmdPrint[1].bounds, (Bounds{2880, 840, 855, 495}));
    EXPECT_EQ(*frmPrint.cmdPrint[1].caption, "Print");
    EXPECT_EQ(frmPrint.cmdPrint[1].name, "cmdPrint(1)");
    EXPECT_EQ(*frmPrint.window.title, "Print data");
}

TEST_F(ThePrintForm, TheKeyboardGoesThroughTheBoxesToCancelAndPrint) {
    std::string names;
    for (const platform::Control* control : frmPrint.window.controls) {
        names += control->name + " ";
    }
    EXPECT_EQ(names,
              "chkPrint(0) chkPrint(1) chkPrint(2) chkPrint(3) chkPrint(4) chkPrint(5) chkPrint(6) cmdPrint(0) "
              "cmdPrint(1) ");
}

TEST_F(ThePrintForm, HasNoMenusForWhichItsFrameWouldNeedRoom) {
    EXPECT_EQ(frmPrint.window.frame, 405);
    EXPECT_TRUE(frmPrint.window.menus.empty());
}

}  // namespace
}  // namespace ballhaven
