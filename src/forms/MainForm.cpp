#include "forms/MainForm.h"

#include "platform/controls/LayoutTable.h"

#include <string>

namespace ballhaven {

MainForm frmMainForm;

namespace {

using platform::Control;
using platform::ControlText;
using platform::PlacedControl;
using platform::PlacedMenu;
using platform::PlacedMenuItem;

constexpr int outerWidth = 12135;
constexpr int outerHeight = 8880;

Control* const toolbar = &frmMainForm.picToolbar[1];
Control* const leftColumn = &frmMainForm.picToolbar[0];

// Containers come before what stands on them, and what may cover another control comes after it.
const PlacedControl places[] = {
    // clang-format off
    {frmMainForm.picToolbar[1],  "picToolbar",   1, nullptr,    {0, 0, 12015, 540},        "Toolbar"},
    {frmMainForm.picToolbar[0],  "picToolbar",   0, nullptr,    {0, 540, 2295, 7530},      "Selectors and play"},
    {frmMainForm.lblLabel[0],    "lblLabel",     0, leftColumn, {360, 80, 1455, 255},      ""},
    {frmMainForm.cboList[0],     "cboList",      0, leftColumn, {120, 280, 2055, 315},     ""},
    {frmMainForm.lblLabel[1],    "lblLabel",     1, leftColumn, {240, 740, 1695, 375},     ""},
    {frmMainForm.cboList[1],     "cboList",      1, leftColumn, {120, 950, 2055, 315},     ""},
    {frmMainForm.lblLabel[2],    "lblLabel",     2, leftColumn, {360, 1420, 1455, 255},    ""},
    {frmMainForm.cboList[2],     "cboList",      2, leftColumn, {120, 1620, 2055, 315},    ""},
    {frmMainForm.optHot[2],      "optHot",       2, leftColumn, {120, 2040, 555, 195},     ""},
    {frmMainForm.optHot[0],      "optHot",       0, leftColumn, {1080, 2040, 795, 195},    ""},
    {frmMainForm.optHot[1],      "optHot",       1, leftColumn, {120, 2280, 1875, 195},    ""},
    {frmMainForm.Line1,          "Line1",       -1, leftColumn, {0, 2620, 2220, 0},        ""},
    {frmMainForm.lblLabel[3],    "lblLabel",     3, leftColumn, {600, 2640, 495, 255},     ""},
    {frmMainForm.lblPlay,        "lblPlay",     -1, leftColumn, {1080, 2640, 375, 255},    ""},
    {frmMainForm.cmdPlayBttn[2], "cmdPlayBttn",  2, leftColumn, {60, 2685, 300, 300},      ""},
    {frmMainForm.cmdPlayBttn[0], "cmdPlayBttn",  0, leftColumn, {1560, 2685, 300, 300},    ""},
    {frmMainForm.cmdPlayBttn[1], "cmdPlayBttn",  1, leftColumn, {1840, 2685, 300, 300},    ""},
    {frmMainForm.Label1,         "Label1",      -1, leftColumn, {600, 2805, 855, 255},     ""},
    {frmMainForm.grdPlay,        "grdPlay",     -1, leftColumn, {75, 3000, 2085, 4395},    "Play"},
    {frmMainForm.Picture1,       "Picture1",    -1, nullptr,    {2520, 720, 3375, 2175},   "A harbour"},
    {frmMainForm.grdHot,         "grdHot",      -1, nullptr,    {2520, 3110, 3375, 4830},  "Hot Table"},
    {frmMainForm.grdHist,        "grdHist",     -1, nullptr,    {6075, 720, 5715, 7220},   "Historical Log"},
    {frmMainForm.cmdColorHist,   "cmdColorHist",-1, nullptr,    {6120, 1800, 280, 240},    ""},
    {frmMainForm.picCards[0],    "picCards",     0, nullptr,    {7920, 1200, 1290, 3030},  "Cards for the Historical Log"},
    {frmMainForm.picCards[1],    "picCards",     1, nullptr,    {7680, 600, 3690, 1320},   "Cards for the hi-lites"},
    {frmMainForm.Label2,         "Label2",      -1, toolbar,    {6360, 40, 735, 375},      ""},
    {frmMainForm.Label3,         "Label3",      -1, toolbar,    {6120, 240, 495, 15},      ""},
    {frmMainForm.cmdColor[0],    "cmdColor",     0, toolbar,    {7035, 0, 495, 495},       ""},
    {frmMainForm.cmdColor[1],    "cmdColor",     1, toolbar,    {11460, 0, 495, 495},      ""},
    {frmMainForm.cmdButton[1],   "cmdButton",   1, toolbar,    {0, 0, 495, 495},        ""},
    {frmMainForm.cmdButton[10],  "cmdButton",  10, toolbar,    {480, 0, 495, 495},      ""},
    {frmMainForm.cmdButton[11],  "cmdButton",  11, toolbar,    {960, 0, 495, 495},      ""},
    {frmMainForm.cmdButton[0],   "cmdButton",   0, toolbar,    {1440, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[2],   "cmdButton",   2, toolbar,    {1920, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[3],   "cmdButton",   3, toolbar,    {2400, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[4],   "cmdButton",   4, toolbar,    {2880, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[5],   "cmdButton",   5, toolbar,    {3360, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[14],  "cmdButton",  14, toolbar,    {3840, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[8],   "cmdButton",   8, toolbar,    {4320, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[12],  "cmdButton",  12, toolbar,    {4800, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[13],  "cmdButton",  13, toolbar,    {5280, 0, 495, 495},     ""},
    {frmMainForm.cmdButton[7],   "cmdButton",   7, toolbar,    {5760, 0, 495, 495},     ""},
    // clang-format on
};

const ControlText texts[] = {
    // clang-format off
    {frmMainForm.lblLabel[0].text,       "Select Game"},
    {frmMainForm.lblLabel[1].text,       "Select History Set"},
    {frmMainForm.lblLabel[2].text,       "Select Hot Table"},
    {frmMainForm.lblLabel[3].text,       "Play"},
    {frmMainForm.Label1.text,            "Click on/off"},
    {frmMainForm.Label2.text,            "Enter --> Numbers"},
    {frmMainForm.optHot[0].caption,      "Main"},
    {frmMainForm.optHot[1].caption,      "Bonus, mega, plus.."},
    {frmMainForm.optHot[2].caption,      "All"},
    {frmMainForm.cmdPlayBttn[0].caption, "<"},
    {frmMainForm.cmdPlayBttn[0].toolTip, "Previous play"},
    {frmMainForm.cmdPlayBttn[1].caption, ">"},
    {frmMainForm.cmdPlayBttn[1].toolTip, "Next play"},
    {frmMainForm.cmdPlayBttn[2].picture, "erase-play"},
    {frmMainForm.cmdPlayBttn[2].toolTip, "Erase this play"},
    {frmMainForm.cmdColorHist.picture,   "hilite-drawing"},
    {frmMainForm.cmdColorHist.toolTip,   "Hi-lite this drawing"},
    {frmMainForm.Picture1.picture,       "haven-picture"},
    {frmMainForm.picCards[0].picture,    "cards-log"},
    {frmMainForm.picCards[1].picture,    "cards-hilite"},
    {frmMainForm.cmdColor[0].picture,    "hilite-numbers"},
    {frmMainForm.cmdColor[0].toolTip,    "Hi-Lite Numbers"},
    {frmMainForm.cmdColor[1].picture,    "clear-hilites"},
    {frmMainForm.cmdColor[1].toolTip,    "Clear Hi-Lites"},
    {frmMainForm.cmdButton[1].picture,   "print"},
    {frmMainForm.cmdButton[1].toolTip,   "Print Data"},
    {frmMainForm.cmdButton[10].picture,  "add-game"},
    {frmMainForm.cmdButton[10].toolTip,  "Add New Game"},
    {frmMainForm.cmdButton[11].picture,  "delete-game"},
    {frmMainForm.cmdButton[11].toolTip,  "Delete This Game"},
    {frmMainForm.cmdButton[0].picture,   "alter-game"},
    {frmMainForm.cmdButton[0].toolTip,   "Alter Game Configuration"},
    {frmMainForm.cmdButton[2].picture,   "add-record"},
    {frmMainForm.cmdButton[2].toolTip,   "Add Record to Historical Log"},
    {frmMainForm.cmdButton[3].picture,   "delete-record"},
    {frmMainForm.cmdButton[3].toolTip,   "Delete Record from Historical Log"},
    {frmMainForm.cmdButton[4].picture,   "date-ascending"},
    {frmMainForm.cmdButton[4].toolTip,   "View Date Ascending"},
    {frmMainForm.cmdButton[5].picture,   "date-descending"},
    {frmMainForm.cmdButton[5].toolTip,   "View Date Descending"},
    {frmMainForm.cmdButton[14].picture,  "play-slips"},
    {frmMainForm.cmdButton[14].toolTip,  "Play Slips"},
    {frmMainForm.cmdButton[8].picture,   "erase-play-slips"},
    {frmMainForm.cmdButton[8].toolTip,   "Erase all Play Slips for this Game"},
    {frmMainForm.cmdButton[12].picture,  "hilite-winners"},
    {frmMainForm.cmdButton[12].toolTip,  "Hi-Lite Winners on Play Slip(s)"},
    {frmMainForm.cmdButton[13].picture,  "erase-winner-hilites"},
    {frmMainForm.cmdButton[13].toolTip,  "Erase Winner Hi-Lites on Play Slip(s)"},
    {frmMainForm.cmdButton[7].picture,   "wheel-shuffle"},
    {frmMainForm.cmdButton[7].toolTip,   "Wheel or Shuffle"},
    {frmMainForm.grdHot.caption,         "Hot Numbers"},
    // clang-format on
};

const PlacedMenu menus[] = {
    // clang-format off
    {frmMainForm.mnuFile,  "mnuFile",  "&File"},
    {frmMainForm.mnuEdit,  "mnuEdit",  "&Edit"},
    {frmMainForm.mnuView,  "mnuView",  "&View"},
    {frmMainForm.mnuTools, "mnuTools", "&Tools"},
    {frmMainForm.mnuHelp,  "mnuHelp",  "&Help"},
    // clang-format on
};

// QUIRK VIEW-MENU-1: "Decending" is spelled so in the menu, and right on the toolbar beside it. Habits rest on it.
const PlacedMenuItem menuItems[] = {
    // clang-format off
    {frmMainForm.mnuFile,  frmMainForm.mnuFileArray[0], "mnuFileArray", 0, "&Print Data"},
    {frmMainForm.mnuFile,  frmMainForm.mnuFileArray[1], "mnuFileArray", 1, "-"},
    {frmMainForm.mnuFile,  frmMainForm.mnuFileArray[2], "mnuFileArray", 2, "E&xit"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[0], "mnuEditArray", 0, "Add &New Game"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[1], "mnuEditArray", 1, "Delete &This Game"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[2], "mnuEditArray", 2, "Alter &Game Configuration"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[3], "mnuEditArray", 3, "-"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[4], "mnuEditArray", 4, "&Add Record to Historical Log"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[5], "mnuEditArray", 5, "&Delete Record from Historical Log"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[6], "mnuEditArray", 6, "-"},
    {frmMainForm.mnuEdit,  frmMainForm.mnuEditArray[7], "mnuEditArray", 7, "&Erase all Play Slips for this Game"},
    {frmMainForm.mnuView,  frmMainForm.mnuViewArray[0], "mnuViewArray", 0, "Date &Ascending"},
    {frmMainForm.mnuView,  frmMainForm.mnuViewArray[1], "mnuViewArray", 1, "Date &Decending"},
    {frmMainForm.mnuView,  frmMainForm.mnuViewArray[2], "mnuViewArray", 2, "-"},
    {frmMainForm.mnuView,  frmMainForm.mnuViewArray[3], "mnuViewArray", 3, "Play &Slips"},
    {frmMainForm.mnuTools, frmMainForm.mnuToolArray[0], "mnuToolArray", 0, "&Wheel or Shuffle"},
    {frmMainForm.mnuTools, frmMainForm.mnuToolArray[1], "mnuToolArray", 1, "-"},
    {frmMainForm.mnuTools, frmMainForm.mnuToolArray[2], "mnuToolArray", 2, "&Hi-Lite Winners on Play Slip(s)"},
    {frmMainForm.mnuTools, frmMainForm.mnuToolArray[3], "mnuToolArray", 3, "&Erase Winner Hi-Lites on Play Slip(s)"},
    {frmMainForm.mnuHelp,  frmMainForm.mnuHelpArray[0], "mnuHelpArray", 0, "&Instructions for Ballhaven"},
    {frmMainForm.mnuHelp,  frmMainForm.mnuHelpArray[1], "mnuHelpArray", 1, "-"},
    {frmMainForm.mnuHelp,  frmMainForm.mnuHelpArray[2], "mnuHelpArray", 2, "&About Ballhaven"},
    // clang-format on
};

// The Color by Number boxes: a swatch with a box under it.
constexpr int hiLiteLeft = 7560;
constexpr int hiLiteStep = 390;
constexpr int hiLiteWidth = 375;
constexpr int swatchTop = 60;
constexpr int swatchHeight = 135;
constexpr int boxTop = 195;
constexpr int boxHeight = 285;

constexpr int hotColumnWidths[] = {870, 540, 450, 1170};
constexpr int dateColumnWidth = 1500;
constexpr int playRowHeight = 180;
constexpr int playColumns = 9;
constexpr int timerInterval = 400;

void PutHiLiteBoxes() {
    for (int i = 0; i < hiLiteBoxes; ++i) {
        const int left = hiLiteLeft + hiLiteStep * i;
        platform::Label& swatch = frmMainForm.lblColor[static_cast<std::size_t>(i)];
        platform::TextBox& box = frmMainForm.txtHiLite[static_cast<std::size_t>(i)];
        const PlacedControl pair[] = {
            {swatch, "lblColor", i, toolbar, {left, swatchTop, hiLiteWidth, swatchHeight}},
            {box, "txtHiLite", i, toolbar, {left, boxTop, hiLiteWidth, boxHeight}},
        };
        platform::PlaceControls(frmMainForm.window, pair);
        swatch.bordered = true;
        swatch.background = hiLiteColors[static_cast<std::size_t>(i)].background;
        swatch.accessibleName = hiLiteColors[static_cast<std::size_t>(i)].name;
        box.maxLength = 2;
        box.accessibleName = "Pick to hi-lite " + std::to_string(i + 1);
    }
}

void SetUpLooks() {
    frmMainForm.picToolbar[1].alignment = platform::Panel::Alignment::Top;
    frmMainForm.picToolbar[0].alignment = platform::Panel::Alignment::Left;
    for (std::size_t list = 0; list < frmMainForm.cboList.size(); ++list) {
        frmMainForm.lblLabel[list].bold = true;
        frmMainForm.lblLabel[list].alignment = platform::TextAlignment::Centre;
        frmMainForm.cboList[list].label = &frmMainForm.lblLabel[list];
    }
    for (platform::OptionButton& button : frmMainForm.optHot) {
        button.group = frmMainForm.optHot;
    }
    frmMainForm.cmdColorHist.visible = false;
    for (platform::Picture& cards : frmMainForm.picCards) {
        cards.visible = false;
    }
}

void SetUpGrids() {
    frmMainForm.grdPlay.SetColumns(playColumns);
    frmMainForm.grdPlay.AddPane(0, playColumns - 1);
    frmMainForm.grdPlay.Pane(0).locked = true;
    frmMainForm.grdPlay.showsHeadings = false;
    frmMainForm.grdPlay.rowHeight = playRowHeight;

    frmMainForm.grdHot.SetColumns(frmMainForm.hotColumnCount);
    frmMainForm.grdHot.AddPane(0, frmMainForm.hotColumnCount - 1);
    frmMainForm.grdHot.Pane(0).locked = true;
    for (int column = 0; column < frmMainForm.hotColumnCount; ++column) {
        frmMainForm.grdHot.Column(column).width = hotColumnWidths[column];
    }
    frmMainForm.grdHot.Column(0).heading = "Number";
    frmMainForm.grdHot.Column(1).heading = "Hits";
    frmMainForm.grdHot.Column(3).heading = "Game Interval";

    frmMainForm.grdHist.SetColumns(1 + logPickColumns);
    frmMainForm.grdHist.AddPane(0, 0);
    frmMainForm.grdHist.AddPane(1, logPickColumns);
    frmMainForm.grdHist.showsRowMargin = true;
    frmMainForm.grdHist.Pane(datePane).locked = true;
    frmMainForm.grdHist.rowNameColumn = 0;
    frmMainForm.grdHist.Column(0).heading = "Historical Log";
    frmMainForm.grdHist.Column(0).accessibleHeading = "Date";
    frmMainForm.grdHist.Column(0).width = dateColumnWidth;
    frmMainForm.grdHist.Column(0).hasButton = true;
}

}  // namespace

void LayOutMainForm() {
    frmMainForm.window.name = "frmMainForm";
    frmMainForm.window.title = "Ballhaven";
    platform::PlaceControls(frmMainForm.window, places);
    PutHiLiteBoxes();
    platform::SetTexts(texts);
    platform::PlaceMenus(frmMainForm.window, menus, menuItems);
    SetUpLooks();
    SetUpGrids();
    frmMainForm.tmrMessage.name = "tmrMessage";
    frmMainForm.tmrMessage.interval = timerInterval;
    frmMainForm.window.timers.push_back(&frmMainForm.tmrMessage);
    frmMainForm.window.Resize(outerWidth, outerHeight);
}

}  // namespace ballhaven
