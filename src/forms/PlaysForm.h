#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Menu.h"
#include "platform/controls/Window.h"

#include <array>

namespace ballhaven {

/// The Play Slips window, which shows one slip. Created once.
struct PlaysForm {
    platform::Window window;

    bool boardClicked = false;  ///< a click on the boards waits for the current cell to settle
    int fixedWidth = 0;         ///< the window's outer size for the kind of game, in twips
    int fixedHeight = 0;

    platform::Panel Picture1;
    std::array<platform::Button, 6> cmdToolbar;  ///< 0 is not used
    std::array<platform::Button, 2> cmdScrollPlaySlips;
    platform::Label lblPlaySlip;
    std::array<platform::Button, 6> cmdErasePlay;  ///< 0 the slip, 1 to 5 its lines
    platform::Label lblPickOrder;
    platform::Picture imgOrder;
    std::array<platform::Grid, 1> grdPlays;  ///< a board for each line

    platform::Menu mnuFile;
    platform::Menu mnuEdit;
    platform::Menu mnuTools;
    platform::Menu mnuHelp;
    platform::MenuItem mnuPrint;
    platform::MenuItem mnuBar;
    platform::MenuItem mnuClose;
    platform::MenuItem mnuClear;
    std::array<platform::MenuItem, 4> mnuToolArray;
    std::array<platform::MenuItem, 3> mnuHelpArray;
};

extern PlaysForm frmPlays;

/// Gives the window its controls, texts and menus. Its size and its boards are those of a kind of game, by
/// `ArrangePlaysForm`.
void LayOutPlaysForm();

/// Sizes the boards and the window for a kind of game (0 to 5), puts the erase buttons above the boards, and shows the
/// legend of the pick order, or hides it.
void ArrangePlaysForm(int gameType, bool orderMatters);

/// Shows the number of a slip (0 to 1000).
void ShowSlipNumber(int slip);

}  // namespace ballhaven
