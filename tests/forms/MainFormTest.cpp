#include "forms/MainForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace ballhaven::platform {

void PrintTo(const Bounds& bounds, std::ostream* out) {
    *out << bounds.left << ' ' << bounds.top << ' ' << bounds.width << ' ' << bounds.height;
}

}  // namespace ballhaven::platform

namespace ballhaven {
namespace {

using platform::Bounds;

class TheMainForm : public testing::Test {
  protected:
    void SetUp() override { LayOutMainForm(); }

    [[nodiscard]] static const platform::Control* Find(const std::string& name) {
        const auto& controls = frmMainForm.window.controls;
        const auto found = std::ranges::find_if(controls, [&](const auto* each) { return each->name == name; });
        return found == controls.end() ? nullptr : *found;
    }

    static void ExpectPlace(const std::string& name, const std::string& container, const Bounds& bounds) {
        const platform::Control* control = Find(name);
        ASSERT_NE(control, nullptr) << name;
        EXPECT_EQ(*control->bounds, bounds) << name;
        EXPECT_EQ(control->container == nullptr ? "" : control->container->name, container) << name;
    }
};

using QuirkViewMenu1 = TheMainForm;

struct ExpectedPlace {
    const char* name;
    const char* container;
    Bounds bounds;
};

TEST_F(TheMainForm, HasEveryControlAtItsPlace) {
    const ExpectedPlace places[] = {
        {"picToolbar(1)", "", {0, 0, 12015, 540}},
        {"picToolbar(0)", "", {0, 540, 2295, 7530}},
        {"lblLabel(0)", "picToolbar(0)", {360, 80, 1455, 255}},
        {"cboList(0)", "picToolbar(0)", {120, 280, 2055, 315}},
        {"lblLabel(1)", "picToolbar(0)", {240, 740, 1695, 375}},
        {"cboList(1)", "picToolbar(0)", {120, 950, 2055, 315}},
        {"lblLabel(2)", "picToolbar(0)", {360, 1420, 1455, 255}},
        {"cboList(2)", "picToolbar(0)", {120, 1620, 2055, 315}},
        {"optHot(2)", "picToolbar(0)", {120, 2040, 555, 195}},
        {"optHot(0)", "picToolbar(0)", {1080, 2040, 795, 195}},
        {"optHot(1)", "picToolbar(0)", {120, 2280, 1875, 195}},
        {"Line1", "picToolbar(0)", {0, 2620, 2220, 0}},
        {"lblLabel(3)", "picToolbar(0)", {600, 2640, 495, 255}},
        {"lblPlay", "picToolbar(0)", {1080, 2640, 375, 255}},
        {"cmdPlayBttn(2)", "picToolbar(0)", {60, 2685, 300, 300}},
        {"cmdPlayBttn(0)", "picToolbar(0)", {1560, 2685, 300, 300}},
        {"cmdPlayBttn(1)", "picToolbar(0)", {1840, 2685, 300, 300}},
        {"Label1", "picToolbar(0)", {600, 2805, 855, 255}},
        {"grdPlay", "picToolbar(0)", {75, 3000, 2085, 4395}},
        {"Picture1", "", {2520, 720, 3375, 2175}},
        {"grdHot", "", {2520, 3110, 3375, 4830}},
        {"grdHist", "", {6075, 720, 5715, 7220}},
        {"cmdColorHist", "", {6120, 1800, 280, 240}},
        {"picCards(0)", "", {7920, 1200, 1290, 3030}},
        {"picCards(1)", "", {7680, 600, 3690, 1320}},
        {"Label2", "picToolbar(1)", {6360, 40, 735, 375}},
        {"Label3", "picToolbar(1)", {6120, 240, 495, 15}},
        {"cmdColor(0)", "picToolbar(1)", {7035, 0, 495, 495}},
        {"cmdColor(1)", "picToolbar(1)", {11460, 0, 495, 495}},
        {"lblColor(0)", "picToolbar(1)", {7560, 60, 375, 135}},
        {"lblColor(9)", "picToolbar(1)", {11070, 60, 375, 135}},
        {"txtHiLite(0)", "picToolbar(1)", {7560, 195, 375, 285}},
        {"txtHiLite(1)", "picToolbar(1)", {7950, 195, 375, 285}},
        {"txtHiLite(9)", "picToolbar(1)", {11070, 195, 375, 285}},
    };
    for (const ExpectedPlace& place : places) {
        ExpectPlace(place.name, place.container, place.bounds);
    }
}

TEST_F(TheMainForm, HasAClientAreaOf12015By8070InsideItsFrame) {
    EXPECT_EQ(frmMainForm.window.Width(), 12135);
    EXPECT_EQ(frmMainForm.window.Height(), 8880);
    EXPECT_EQ(frmMainForm.window.Width() - platform::Window::frameWidth, 12015);
    EXPECT_EQ(frmMainForm.window.Height() - platform::Window::frameHeight, 8070);
    EXPECT_EQ(*frmMainForm.window.title, "Ballhaven");
}

TEST_F(TheMainForm, HasThirteenToolButtonsInTheirOrderWithTheirToolTips) {
    struct Expected {
        int left;
        std::size_t index;
        const char* toolTip;
    };
    const Expected buttons[] = {
        {0, 1, "Print Data"},
        {480, 10, "Add New Game"},
        {960, 11, "Delete This Game"},
        {1440, 0, "Alter Game Configuration"},
        {1920, 2, "Add Record to Historical Log"},
        {2400, 3, "Delete Record from Historical Log"},
        {2880, 4, "View Date Ascending"},
        {3360, 5, "View Date Descending"},
        {3840, 14, "Play Slips"},
        {4320, 8, "Erase all Play Slips for this Game"},
        {4800, 12, "Hi-Lite Winners on Play Slip(s)"},
        {5280, 13, "Erase Winner Hi-Lites on Play Slip(s)"},
        {5760, 7, "Wheel or Shuffle"},
    };
    for (const Expected& expected : buttons) {
        const platform::Button& button = frmMainForm.cmdButton[expected.index];
        EXPECT_EQ(button.name, "cmdButton(" + std::to_string(expected.index) + ")");
        EXPECT_EQ(*button.bounds, (Bounds{expected.left, 0, 495, 495})) << button.name;
        EXPECT_EQ(*button.toolTip, expected.toolTip);
        EXPECT_EQ(*button.caption, "") << button.name;
        EXPECT_NE(*button.picture, "") << button.name;
    }
    EXPECT_EQ(Find("cmdButton(6)"), nullptr);
    EXPECT_EQ(Find("cmdButton(9)"), nullptr);
}

TEST_F(TheMainForm, HasItsTextsAndToolTips) {
    EXPECT_EQ(*frmMainForm.lblLabel[0].text, "Select Game");
    EXPECT_EQ(*frmMainForm.lblLabel[1].text, "Select History Set");
    EXPECT_EQ(*frmMainForm.lblLabel[2].text, "Select Hot Table");
    EXPECT_EQ(*frmMainForm.lblLabel[3].text, "Play");
    EXPECT_TRUE(frmMainForm.lblLabel[0].bold && frmMainForm.lblLabel[1].bold && frmMainForm.lblLabel[2].bold);
    EXPECT_EQ(*frmMainForm.Label1.text, "Click on/off");
    EXPECT_EQ(*frmMainForm.Label2.text, "Enter --> Numbers");
    EXPECT_EQ(*frmMainForm.optHot[0].caption, "Main");
    EXPECT_EQ(*frmMainForm.optHot[1].caption, "Bonus, mega, plus..");
    EXPECT_EQ(*frmMainForm.optHot[2].caption, "All");
    EXPECT_EQ(*frmMainForm.cmdPlayBttn[0].caption, "<");
    EXPECT_EQ(*frmMainForm.cmdPlayBttn[0].toolTip, "Previous play");
    EXPECT_EQ(*frmMainForm.cmdPlayBttn[1].caption, ">");
    EXPECT_EQ(*frmMainForm.cmdPlayBttn[1].toolTip, "Next play");
    EXPECT_EQ(*frmMainForm.cmdPlayBttn[2].toolTip, "Erase this play");
    EXPECT_EQ(*frmMainForm.cmdColorHist.toolTip, "Hi-lite this drawing");
    EXPECT_EQ(*frmMainForm.cmdColor[0].toolTip, "Hi-Lite Numbers");
    EXPECT_EQ(*frmMainForm.cmdColor[1].toolTip, "Clear Hi-Lites");
}

TEST_F(TheMainForm, CentresTheThreeCaptionsOverTheirLists) {
    for (std::size_t list = 0; list < 3; ++list) {
        EXPECT_EQ(*frmMainForm.lblLabel[list].alignment, platform::TextAlignment::Centre) << list;
    }
}

TEST_F(TheMainForm, HidesTheCardPickersAtFirst) {
    EXPECT_FALSE(frmMainForm.picCards[0].visible);
    EXPECT_FALSE(frmMainForm.picCards[1].visible);
}

TEST_F(TheMainForm, HasATimerOf400Milliseconds) {
    EXPECT_EQ(frmMainForm.tmrMessage.interval, 400);
    EXPECT_EQ(frmMainForm.window.timers, (std::vector<platform::Timer*>{&frmMainForm.tmrMessage}));
}

std::vector<std::string> Captions(const platform::Menu& menu) {
    std::vector<std::string> captions{menu.caption};
    for (const platform::MenuItem* item : menu.items) {
        captions.push_back(item->name + " " + item->caption);
    }
    return captions;
}

using Texts = std::vector<std::string>;

TEST_F(TheMainForm, HasTheFileMenu) {
    EXPECT_EQ(Captions(frmMainForm.mnuFile),
              (Texts{"&File", "mnuFileArray(0) &Print Data", "mnuFileArray(1) -", "mnuFileArray(2) E&xit"}));
}

TEST_F(TheMainForm, HasTheEditMenu) {
    EXPECT_EQ(
        Captions(frmMainForm.mnuEdit),
        (Texts{"&Edit", "mnuEditArray(0) Add &New Game", "mnuEditArray(1) Delete &This Game",
               "mnuEditArray(2) Alter &Game Configuration", "mnuEditArray(3) -",
               "mnuEditArray(4) &Add Record to Historical Log", "mnuEditArray(5) &Delete Record from Historical Log",
               "mnuEditArray(6) -", "mnuEditArray(7) &Erase all Play Slips for this Game"}));
}

// Not a bug: VIEW-MENU-1 in docs/not-bugs.md.
TEST_F(QuirkViewMenu1, SpellsDecendingInTheViewMenuAndDescendingOnTheToolbar) {
    EXPECT_EQ(Captions(frmMainForm.mnuView),
              (Texts{"&View", "mnuViewArray(0) Date &Ascending", "mnuViewArray(1) Date &Decending", "mnuViewArray(2) -",
                     "mnuViewArray(3) Play &Slips"}));
    EXPECT_EQ(*frmMainForm.cmdButton[5].toolTip, "View Date Descending");
}

TEST_F(TheMainForm, HasTheToolsAndHelpMenus) {
    EXPECT_EQ(Captions(frmMainForm.mnuTools), (Texts{"&Tools", "mnuToolArray(0) &Wheel or Shuffle", "mnuToolArray(1) -",
                                                     "mnuToolArray(2) &Hi-Lite Winners on Play Slip(s)",
                                                     "mnuToolArray(3) &Erase Winner Hi-Lites on Play Slip(s)"}));
    EXPECT_EQ(Captions(frmMainForm.mnuHelp), (Texts{"&Help", "mnuHelpArray(0) &Instructions for Ballhaven",
                                                    "mnuHelpArray(1) -", "mnuHelpArray(2) &About Ballhaven"}));
}

TEST_F(TheMainForm, LetsNothingBeTypedInThePlayBoardTheHotTableAndTheDates) {
    for (platform::Grid* grid : {&frmMainForm.grdPlay, &frmMainForm.grdHot, &frmMainForm.grdHist}) {
        grid->SetRowCount(1);
        grid->GoTo(0, 0);
        EXPECT_FALSE(grid->CanType(0)) << grid->name;
    }
}

TEST_F(TheMainForm, ShowsTheLogInADatePaneAndAPickPane) {
    const platform::Grid& log = frmMainForm.grdHist;
    EXPECT_EQ(log.ColumnCount(), 11);
    ASSERT_EQ(log.PaneCount(), 2);
    EXPECT_EQ(log.Pane(0).firstColumn, 0);
    EXPECT_EQ(log.Pane(0).lastColumn, 0);
    EXPECT_EQ(log.Pane(1).firstColumn, 1);
    EXPECT_EQ(log.Pane(1).lastColumn, 10);
    EXPECT_EQ(*log.Column(0).heading, "Historical Log");
    EXPECT_TRUE(log.Column(0).hasButton);
}

TEST_F(TheMainForm, NamesTheRowsOfTheLogByTheirDate) {
    EXPECT_EQ(frmMainForm.grdHist.rowNameColumn, 0);
    EXPECT_EQ(*frmMainForm.grdHist.Column(0).accessibleHeading, "Date");
}

}  // namespace
}  // namespace ballhaven
