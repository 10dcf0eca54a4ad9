#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Menu.h"
#include "platform/controls/Window.h"
#include "state/HiLiteBoxes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ballhaven {

/// The panes of `grdHist`, and its columns of picks.
inline constexpr int datePane = 0;
inline constexpr int pickPane = 1;
inline constexpr int logPickColumns = 10;

// What the arrays of the main window hold, by the index.

namespace fileEntry {
inline constexpr std::size_t printData = 0;
inline constexpr std::size_t exitProgram = 2;
}  // namespace fileEntry

namespace editEntry {
inline constexpr std::size_t addGame = 0;
inline constexpr std::size_t deleteGame = 1;
inline constexpr std::size_t alterGame = 2;
inline constexpr std::size_t addDraw = 4;
inline constexpr std::size_t deleteDraw = 5;
inline constexpr std::size_t erasePlaySlips = 7;
}  // namespace editEntry

namespace viewEntry {
inline constexpr std::size_t ascending = 0;
inline constexpr std::size_t descending = 1;
inline constexpr std::size_t playSlips = 3;
}  // namespace viewEntry

/// Those of the Play Slips window too.
namespace toolEntry {
inline constexpr std::size_t wheelOrShuffle = 0;
inline constexpr std::size_t hiLiteWinners = 2;
inline constexpr std::size_t eraseWinners = 3;
}  // namespace toolEntry

/// The lists of `cboList`.
namespace selector {
inline constexpr std::size_t game = 0;
inline constexpr std::size_t historySet = 1;
inline constexpr std::size_t hotTable = 2;
}  // namespace selector

/// The pictures of `picCards`.
namespace cardPicture {
inline constexpr std::size_t log = 0;
inline constexpr std::size_t hiLite = 1;
}  // namespace cardPicture

/// The main window. Created once; its members bear the names that the whole program knows them by.
struct MainForm {
    platform::Window window;

    // Fields that several of the window's events share
    bool windowStarting = false;  ///< from the load until the end of the first activation
    bool gameLoading = false;     ///< while a game is being switched in
    bool bringingInDraw = false;  ///< while a draw that has waited for the timer is brought into view
    bool askingAtStart = false;   ///< during the first activation, which asks about an un-defined game
    std::int32_t logRowCount = 0;
    std::int16_t logLastColumn = 0;  ///< highest column of `grdHist` that holds data
    std::int16_t hotRowCount = 0;
    std::int16_t hotColumnCount = 4;
    static constexpr int hotMarkColumn = 2;  ///< of the percentages; a table shown anew has its mark there
    bool cardClicked = false;
    bool playClicked = false;  ///< a click on the board waits for the current cell to settle
    std::int16_t hiLiteTarget = 0;
    std::string newestDrawText;  ///< date text of the newest draw of the view

    // The toolbar
    std::array<platform::Panel, 2> picToolbar;
    std::array<platform::Button, 15> cmdButton;  ///< 6 and 9 are not used
    platform::Label Label2;
    platform::Line Label3;
    std::array<platform::Button, 2> cmdColor;
    std::array<platform::Label, hiLiteBoxes> lblColor;
    std::array<platform::TextBox, hiLiteBoxes> txtHiLite;
    BoxTexts hiLiteCode;  ///< the picks of the boxes as stored codes

    // The left column
    std::array<platform::Label, 4> lblLabel;
    std::array<platform::DropDownList, 3> cboList;
    std::array<platform::OptionButton, 3> optHot;
    platform::Line Line1;
    platform::Label lblPlay;
    std::array<platform::Button, 3> cmdPlayBttn;
    platform::Label Label1;
    platform::Grid grdPlay;

    // The picture and the tables
    platform::Picture Picture1;
    platform::Grid grdHot;
    platform::Grid grdHist;
    platform::Button cmdColorHist;
    std::array<platform::Picture, 2> picCards;
    platform::Timer tmrMessage;

    // The menu bar
    platform::Menu mnuFile;
    platform::Menu mnuEdit;
    platform::Menu mnuView;
    platform::Menu mnuTools;
    platform::Menu mnuHelp;
    std::array<platform::MenuItem, 3> mnuFileArray;
    std::array<platform::MenuItem, 8> mnuEditArray;
    std::array<platform::MenuItem, 4> mnuViewArray;
    std::array<platform::MenuItem, 4> mnuToolArray;
    std::array<platform::MenuItem, 3> mnuHelpArray;
};

extern MainForm frmMainForm;

/// Gives the window its size, its controls their places and texts, and the menu bar its entries.
void LayOutMainForm();

}  // namespace ballhaven
