#include "forms/MainForm.h"

#include <span>

namespace ballhaven {

MainForm frmMainForm;

namespace {

using platform::Bounds;
using platform::Control;

constexpr int outerWidth = 12135;
constexpr int outerHeight = 8880;

struct Place {
    Control& control;
    const char* name;
    int index;  ///< in the array of its kind, -1 for a control of its own
    Control* container;
    Bounds bounds;
    const char* accessibleName;
};

struct LabelText {
    platform::Label& label;
    const char* text;
    bool bold;
};

struct ToolButton {
    int index;
    int left;
    const char* picture;
    const char* toolTip;
};

Control* const toolbar = &frmMainForm.picToolbar[1];
Control* const leftColumn = &frmMainForm.picToolbar[0];

// Containers come before what stands on them, and what may cover another control comes after it.
const Place places[] = {
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
    // clang-format on
};

const LabelText labelTexts[] = {
    {frmMainForm.lblLabel[0], "Select Game", true},      {frmMainForm.lblLabel[1], "Select History Set", true},
    {frmMainForm.lblLabel[2], "Select Hot Table", true}, {frmMainForm.lblLabel[3], "Play", false},
    {frmMainForm.Label1, "Click on/off", false},         {frmMainForm.Label2, "Enter --> Numbers", false},
};

constexpr ToolButton toolButtons[] = {
    // clang-format off
    { 1,    0, "print",                  "Print Data"},
    {10,  480, "add-game",               "Add New Game"},
    {11,  960, "delete-game",            "Delete This Game"},
    { 0, 1440, "alter-game",             "Alter Game Configuration"},
    { 2, 1920, "add-record",             "Add Record to Historical Log"},
    { 3, 2400, "delete-record",          "Delete Record from Historical Log"},
    { 4, 2880, "date-ascending",         "View Date Ascending"},
    { 5, 3360, "date-descending",        "View Date Descending"},
    {14, 3840, "play-slips",             "Play Slips"},
    { 8, 4320, "erase-play-slips",       "Erase all Play Slips for this Game"},
    {12, 4800, "hilite-winners",         "Hi-Lite Winners on Play Slip(s)"},
    {13, 5280, "erase-winner-hilites",   "Erase Winner Hi-Lites on Play Slip(s)"},
    { 7, 5760, "wheel-shuffle",          "Wheel or Shuffle"},
    // clang-format on
};
constexpr int toolButtonSize = 495;

constexpr const char* fileCaptions[] = {"&Print Data", "-", "E&xit"};
constexpr const char* editCaptions[] = {
    "Add &New Game",
    "Delete &This Game",
    "Alter &Game Configuration",
    "-",
    "&Add Record to Historical Log",
    "&Delete Record from Historical Log",
    "-",
    "&Erase all Play Slips for this Game",
};
// QUIRK VIEW-MENU-1: "Decending" is spelled so in the menu, and right on the toolbar beside it. Habits rest on it.
constexpr const char* viewCaptions[] = {"Date &Ascending", "Date &Decending", "-", "Play &Slips"};
constexpr const char* toolCaptions[] = {
    "&Wheel or Shuffle",
    "-",
    "&Hi-Lite Winners on Play Slip(s)",
    "&Erase Winner Hi-Lites on Play Slip(s)",
};
constexpr const char* helpCaptions[] = {"&Instructions for Ballhaven", "-", "&About Ballhaven"};

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

std::string Indexed(const char* name, int index) {
    return index < 0 ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")";
}

void Put(Control& control, const std::string& name, Control* container, const Bounds& bounds) {
    control.name = name;
    control.container = container;
    control.bounds = bounds;
    frmMainForm.window.controls.push_back(&control);
}

void PutPlaces() {
    for (const Place& place : places) {
        Put(place.control, Indexed(place.name, place.index), place.container, place.bounds);
        place.control.accessibleName = place.accessibleName;
    }
    frmMainForm.picToolbar[1].alignment = platform::Panel::Alignment::Top;
    frmMainForm.picToolbar[0].alignment = platform::Panel::Alignment::Left;
    for (const LabelText& each : labelTexts) {
        each.label.text = each.text;
        each.label.bold = each.bold;
        each.label.centred = each.bold;
    }
}

void NameLists() {
    for (std::size_t i = 0; i < frmMainForm.cboList.size(); ++i) {
        frmMainForm.cboList[i].label = &frmMainForm.lblLabel[i];
    }
}

void PutToolbar() {
    for (const ToolButton& each : toolButtons) {
        platform::Button& button = frmMainForm.cmdButton[static_cast<std::size_t>(each.index)];
        Put(button, Indexed("cmdButton", each.index), toolbar, {each.left, 0, toolButtonSize, toolButtonSize});
        button.picture = each.picture;
        button.toolTip = each.toolTip;
    }
    frmMainForm.cmdColor[0].picture = "hilite-numbers";
    frmMainForm.cmdColor[0].toolTip = "Hi-Lite Numbers";
    frmMainForm.cmdColor[1].picture = "clear-hilites";
    frmMainForm.cmdColor[1].toolTip = "Clear Hi-Lites";
}

void PutHiLiteBoxes() {
    for (int i = 0; i < hiLiteBoxes; ++i) {
        const int left = hiLiteLeft + hiLiteStep * i;
        platform::Label& swatch = frmMainForm.lblColor[static_cast<std::size_t>(i)];
        platform::TextBox& box = frmMainForm.txtHiLite[static_cast<std::size_t>(i)];
        Put(swatch, Indexed("lblColor", i), toolbar, {left, swatchTop, hiLiteWidth, swatchHeight});
        Put(box, Indexed("txtHiLite", i), toolbar, {left, boxTop, hiLiteWidth, boxHeight});
        swatch.bordered = true;
        swatch.background = hiLiteColors[static_cast<std::size_t>(i)].background;
        swatch.accessibleName = hiLiteColors[static_cast<std::size_t>(i)].name;
        box.maxLength = 2;
        box.accessibleName = "Pick to hi-lite " + std::to_string(i + 1);
    }
}

void SetUpButtonsAndPictures() {
    frmMainForm.optHot[0].caption = "Main";
    frmMainForm.optHot[1].caption = "Bonus, mega, plus..";
    frmMainForm.optHot[2].caption = "All";
    for (platform::OptionButton& button : frmMainForm.optHot) {
        button.group = frmMainForm.optHot;
    }
    frmMainForm.cmdPlayBttn[0].caption = "<";
    frmMainForm.cmdPlayBttn[0].toolTip = "Previous play";
    frmMainForm.cmdPlayBttn[1].caption = ">";
    frmMainForm.cmdPlayBttn[1].toolTip = "Next play";
    frmMainForm.cmdPlayBttn[2].picture = "erase-play";
    frmMainForm.cmdPlayBttn[2].toolTip = "Erase this play";
    frmMainForm.cmdColorHist.picture = "hilite-drawing";
    frmMainForm.cmdColorHist.toolTip = "Hi-lite this drawing";
    frmMainForm.cmdColorHist.visible = false;
    frmMainForm.Picture1.picture = "haven-picture";
    frmMainForm.picCards[0].picture = "cards-log";
    frmMainForm.picCards[1].picture = "cards-hilite";
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
    frmMainForm.grdHot.caption = "Hot Numbers";
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

void SetUpMenu(platform::Menu& menu, const char* name, const char* caption, const char* itemName,
               std::span<platform::MenuItem> items, std::span<const char* const> captions) {
    menu.name = name;
    menu.caption = caption;
    menu.items = items;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        items[i].name = Indexed(itemName, static_cast<int>(i));
        items[i].caption = captions[i];
    }
    frmMainForm.window.menus.push_back(&menu);
}

void SetUpMenuBar() {
    SetUpMenu(frmMainForm.mnuFile, "mnuFile", "&File", "mnuFileArray", frmMainForm.mnuFileArray, fileCaptions);
    SetUpMenu(frmMainForm.mnuEdit, "mnuEdit", "&Edit", "mnuEditArray", frmMainForm.mnuEditArray, editCaptions);
    SetUpMenu(frmMainForm.mnuView, "mnuView", "&View", "mnuViewArray", frmMainForm.mnuViewArray, viewCaptions);
    SetUpMenu(frmMainForm.mnuTools, "mnuTools", "&Tools", "mnuToolArray", frmMainForm.mnuToolArray, toolCaptions);
    SetUpMenu(frmMainForm.mnuHelp, "mnuHelp", "&Help", "mnuHelpArray", frmMainForm.mnuHelpArray, helpCaptions);
}

}  // namespace

void LayOutMainForm() {
    frmMainForm.window.name = "frmMainForm";
    frmMainForm.window.title = "Ballhaven";
    PutPlaces();
    NameLists();
    PutToolbar();
    PutHiLiteBoxes();
    SetUpButtonsAndPictures();
    SetUpGrids();
    SetUpMenuBar();
    frmMainForm.tmrMessage.name = "tmrMessage";
    frmMainForm.tmrMessage.interval = timerInterval;
    frmMainForm.window.timers.push_back(&frmMainForm.tmrMessage);
    frmMainForm.window.Resize(outerWidth, outerHeight);
}

}  // namespace ballhaven
