#include "forms/PlaysForm.h"

#include "platform/controls/LayoutTable.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"

#include <string>

namespace ballhaven {

PlaysForm frmPlays;

namespace {

constexpr int linesOfSlip = 5;
constexpr int mostColumns = 9;
constexpr int boardRowHeight = 180;
constexpr int gridEdges = 160;
constexpr int eraseButtonGap = 40;

// The sizes of the boards and the window without bonus picks, and with them.
constexpr int gridHeight = 2500;
constexpr int gridHeightWithBonus = 4660;
constexpr int windowHeight = 4380;
constexpr int windowHeightWithBonus = 6360;
constexpr int numberColumnWidth = 220;
constexpr int cardColumnWidth = 330;

constexpr int windowLeft = -30;
constexpr int windowTop = 0;

platform::Control* const toolbar = &frmPlays.Picture1;

const platform::PlacedControl places[] = {
    // clang-format off
    {frmPlays.Picture1,              "Picture1",          -1, nullptr, {   0,   0, 10120,  540}, "Toolbar"},
    {frmPlays.cmdToolbar[1],         "cmdToolbar",         1, toolbar, {   0,   0,   495,  495}},
    {frmPlays.cmdToolbar[2],         "cmdToolbar",         2, toolbar, { 480,   0,   495,  495}},
    {frmPlays.cmdToolbar[3],         "cmdToolbar",         3, toolbar, { 960,   0,   495,  495}},
    {frmPlays.cmdToolbar[4],         "cmdToolbar",         4, toolbar, {1440,   0,   495,  495}},
    {frmPlays.cmdToolbar[5],         "cmdToolbar",         5, toolbar, {1920,   0,   495,  495}},
    {frmPlays.cmdScrollPlaySlips[0], "cmdScrollPlaySlips", 0, toolbar, {2880,  105,   300,  300}},
    {frmPlays.lblPlaySlip,           "lblPlaySlip",       -1, toolbar, {3240,  165,  1440,  210}},
    {frmPlays.cmdScrollPlaySlips[1], "cmdScrollPlaySlips", 1, toolbar, {4740,  105,   300,  300}},
    {frmPlays.cmdErasePlay[0],       "cmdErasePlay",       0, toolbar, {5160,  105,   300,  300}},
    {frmPlays.lblPickOrder,          "lblPickOrder",      -1, toolbar, {6480,  165,   900,  210}},
    {frmPlays.imgOrder,              "imgOrder",          -1, toolbar, {7440,  165,  2115,  210}, "Colours of the pick order"},
    {frmPlays.cmdErasePlay[1],       "cmdErasePlay",       1, nullptr, {  30,  555,   300,  300}},
    {frmPlays.cmdErasePlay[2],       "cmdErasePlay",       2, nullptr, {  30,  555,   300,  300}},
    {frmPlays.cmdErasePlay[3],       "cmdErasePlay",       3, nullptr, {  30,  555,   300,  300}},
    {frmPlays.cmdErasePlay[4],       "cmdErasePlay",       4, nullptr, {  30,  555,   300,  300}},
    {frmPlays.cmdErasePlay[5],       "cmdErasePlay",       5, nullptr, {  30,  555,   300,  300}},
    {frmPlays.grdPlays[0],           "grdPlays",           0, nullptr, {  30,  870, 10060, 2500}, "Play slip"},
    // clang-format on
};

const platform::ControlText texts[] = {
    {frmPlays.Picture1.toolTip, "Exit Play Slips"},
    {frmPlays.cmdToolbar[1].picture, "print"},
    {frmPlays.cmdToolbar[1].toolTip, "Print Play Slips"},
    {frmPlays.cmdToolbar[2].picture, "erase-play-slips"},
    {frmPlays.cmdToolbar[2].toolTip, "Erase ALL play slips"},
    {frmPlays.cmdToolbar[3].picture, "wheel-shuffle"},
    {frmPlays.cmdToolbar[3].toolTip, "Wheel or Shuffle"},
    {frmPlays.cmdToolbar[4].picture, "hilite-winners"},
    {frmPlays.cmdToolbar[4].toolTip, "Highlight Winners"},
    {frmPlays.cmdToolbar[5].picture, "erase-winner-hilites"},
    {frmPlays.cmdToolbar[5].toolTip, "Clear Highlighted Winners"},
    {frmPlays.cmdScrollPlaySlips[0].picture, "previous"},
    {frmPlays.cmdScrollPlaySlips[0].accessibleName, "Previous slip"},
    {frmPlays.cmdScrollPlaySlips[1].picture, "next"},
    {frmPlays.cmdScrollPlaySlips[1].accessibleName, "Next slip"},
    {frmPlays.cmdErasePlay[0].picture, "erase-slip"},
    {frmPlays.cmdErasePlay[0].toolTip, "Erase this play slip"},
    {frmPlays.lblPickOrder.text, "Pick Order"},
    {frmPlays.imgOrder.picture, "pick-order"},
};

const platform::PlacedMenu menus[] = {
    {frmPlays.mnuFile, "mnuFile", "&File"},
    {frmPlays.mnuEdit, "mnuEdit", "&Edit"},
    {frmPlays.mnuTools, "mnuTools", "&Tools"},
    {frmPlays.mnuHelp, "mnuHelp", "&Help"},
};

const platform::PlacedMenuItem menuItems[] = {
    // clang-format off
    {frmPlays.mnuFile,  frmPlays.mnuPrint,        "mnuPrint",    -1, "&Print"},
    {frmPlays.mnuFile,  frmPlays.mnuBar,          "mnuBar",      -1, "-"},
    {frmPlays.mnuFile,  frmPlays.mnuClose,        "mnuClose",    -1, "&Close"},
    {frmPlays.mnuEdit,  frmPlays.mnuClear,        "mnuClear",    -1, "&Clear ALL Play Slips"},
    {frmPlays.mnuTools, frmPlays.mnuToolArray[0], "mnuToolArray", 0, "&Wheel or Shuffle"},
    {frmPlays.mnuTools, frmPlays.mnuToolArray[1], "mnuToolArray", 1, "-"},
    {frmPlays.mnuTools, frmPlays.mnuToolArray[2], "mnuToolArray", 2, "&Hi-Lite Winners on Play Slip(s)"},
    {frmPlays.mnuTools, frmPlays.mnuToolArray[3], "mnuToolArray", 3, "&Erase Winner Hi-Lites on Play Slip(s)"},
    {frmPlays.mnuHelp,  frmPlays.mnuHelpArray[0], "mnuHelpArray", 0, "&Instructions for Ballhaven"},
    {frmPlays.mnuHelp,  frmPlays.mnuHelpArray[1], "mnuHelpArray", 1, "-"},
    {frmPlays.mnuHelp,  frmPlays.mnuHelpArray[2], "mnuHelpArray", 2, "&About Ballhaven"},
    // clang-format on
};

void SetUpBoards() {
    platform::Grid& boards = frmPlays.grdPlays[0];
    boards.SetColumns(mostColumns);
    boards.AddBoards(linesOfSlip);
    boards.rowHeight = boardRowHeight;
    for (int line = 0; line < linesOfSlip; ++line) {
        const std::string letter(1, static_cast<char>('A' + line));
        boards.Pane(line).locked = true;
        boards.Pane(line).caption = letter;
        boards.Pane(line).accessibleName = "Line " + letter;
    }
    for (int column = 0; column < mostColumns; ++column) {
        boards.Column(column).styled = true;
    }
}

}  // namespace

void LayOutPlaysForm() {
    frmPlays.window.name = "frmPlays";
    frmPlays.window.title = "Play Slips";
    platform::PlaceControls(frmPlays.window, places);
    platform::SetTexts(texts);
    platform::PlaceMenus(frmPlays.window, menus, menuItems);
    frmPlays.Picture1.alignment = platform::Panel::Alignment::Top;
    frmPlays.lblPlaySlip.alignment = platform::TextAlignment::Centre;
    frmPlays.lblPickOrder.alignment = platform::TextAlignment::Right;
    for (std::size_t line = 1; line < frmPlays.cmdErasePlay.size(); ++line) {
        frmPlays.cmdErasePlay[line].picture = "erase-play";
        frmPlays.cmdErasePlay[line].toolTip = "Erase this play";
        frmPlays.cmdErasePlay[line].accessibleName = std::string("Erase line ") + static_cast<char>('A' + line - 1);
    }
    SetUpBoards();
}

void ArrangePlaysForm(int gameType, bool orderMatters) {
    platform::Grid& boards = frmPlays.grdPlays[0];
    const int columns = BoardOf(gameType).columns;
    const int columnWidth = IsCardGame(gameType) ? cardColumnWidth : numberColumnWidth;
    for (int column = 0; column < mostColumns; ++column) {
        boards.Column(column).visible = column < columns;
        boards.Column(column).width = columnWidth;
    }
    boards.SetRowCount(BoardOf(gameType).rows);
    boards.SetWidth(columnWidth * columns * linesOfSlip + gridEdges);
    boards.SetHeight(HasBonus(gameType) ? gridHeightWithBonus : gridHeight);
    frmPlays.fixedWidth = 6 * boards.bounds->left + boards.bounds->width;
    frmPlays.fixedHeight = HasBonus(gameType) ? windowHeightWithBonus : windowHeight;
    frmPlays.window.Resize(frmPlays.fixedWidth, frmPlays.fixedHeight);
    frmPlays.window.MoveTo(windowLeft, windowTop);
    for (int line = 0; line < linesOfSlip; ++line) {
        frmPlays.cmdErasePlay[static_cast<std::size_t>(line + 1)].SetLeft(boards.bounds->left + boards.PaneLeft(line) +
                                                                          eraseButtonGap);
    }
    frmPlays.imgOrder.visible = orderMatters;
    frmPlays.lblPickOrder.visible = orderMatters;
}

void ShowSlipNumber(int slip) {
    frmPlays.lblPlaySlip.text = std::string(" ").append(std::to_string(slip)).append(" Play Slip  ");
}

}  // namespace ballhaven
