#include "forms/ShuffleForm.h"

#include "platform/controls/LayoutTable.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"

namespace ballhaven {

ShuffleForm frmShuffle;

namespace {

constexpr int mostColumns = 9;
constexpr int boardRowHeight = 180;
constexpr int boardEdges = 60;
constexpr int numberColumnWidth = 220;
constexpr int cardColumnWidth = 330;
constexpr int boardHeight = 2235;
constexpr int boardHeightWithBonus = 4395;

constexpr int windowLeft = 1920;
constexpr int windowTop = 1150;
constexpr int clientWidth = 9960;
constexpr int edge = 120;

// The frame of the board, at whose foot the buttons stand, is as high as its own content or as what stands beside it.
constexpr int inputHeight = 3420;
constexpr int inputHeightWithBonus = 5100;
constexpr int buttonHeight = 375;

constexpr int ButtonTop(int heightOfInput) {
    return edge + heightOfInput - buttonHeight;
}

constexpr int BoardWidth(int columns, int columnWidth) {
    return columns * columnWidth + boardEdges;
}

constexpr platform::Bounds boardPlace{120, 585, BoardWidth(mostColumns, numberColumnWidth), boardHeight};

platform::Control* const input = &frmShuffle.fraShuffle[0];
platform::Control* const configuration = &frmShuffle.fraShuffle[1];
platform::Control* const output = &frmShuffle.fraShuffle[2];

const platform::PlacedControl places[] = {
    // clang-format off
    {frmShuffle.fraShuffle[0],   "fraShuffle",   0, nullptr,       { edge,  edge, 4860, inputHeight}},
    {frmShuffle.lblShuffle[7],   "lblShuffle",   7, input,         { 120,  330, 1920,  210}},
    {frmShuffle.grdShuffle,      "grdShuffle",  -1, input,         boardPlace, "Chosen picks"},
    {frmShuffle.cmdErasePlay[5], "cmdErasePlay", 5, input,         {2040,  285,  300,  300}},
    {frmShuffle.lblShuffle[3],   "lblShuffle",   3, input,         {2400,  615, 2340,  210}},
    {frmShuffle.lblShuffle[4],   "lblShuffle",   4, input,         {2400,  840, 2340,  420}},
    {frmShuffle.lblShuffle[5],   "lblShuffle",   5, input,         {2400, 1440, 2340,  210}},
    {frmShuffle.lblShuffle[6],   "lblShuffle",   6, input,         {2400, 1665, 2340,  630}},
    {frmShuffle.fraShuffle[1],   "fraShuffle",   1, nullptr,       {5100,  120, 4740, 1860}},
    {frmShuffle.optShuffle[0],   "optShuffle",   0, configuration, { 120,  330, 3540,  285}},
    {frmShuffle.txtShuffle[0],   "txtShuffle",   0, configuration, {3840,  330,  780,  285}, "Total plays of a shuffle"},
    {frmShuffle.optShuffle[1],   "optShuffle",   1, configuration, { 120,  720, 3540,  285}},
    {frmShuffle.txtShuffle[1],   "txtShuffle",   1, configuration, {3840,  720,  780,  285}, "Total plays of a partial wheel"},
    {frmShuffle.lblShuffle[11],  "lblShuffle",  11, configuration, { 375, 1005, 4260,  360}},
    {frmShuffle.optShuffle[2],   "optShuffle",   2, configuration, { 120, 1455, 1140,  285}},
    {frmShuffle.lblShuffle[12],  "lblShuffle",  12, configuration, {1320, 1500, 3240,  210}},
    {frmShuffle.fraShuffle[2],   "fraShuffle",   2, nullptr,       {5100, 2100, 4740,  900}},
    {frmShuffle.lblShuffle[8],   "lblShuffle",   8, output,        { 120,  450,  420,  210}},
    {frmShuffle.lblShuffle[0],   "lblShuffle",   0, output,        { 555,  450,  720,  210}},
    {frmShuffle.lblShuffle[9],   "lblShuffle",   9, output,        {1335,  450,  240,  210}},
    {frmShuffle.lblShuffle[1],   "lblShuffle",   1, output,        {1590,  450,  720,  210}},
    {frmShuffle.lblShuffle[10],  "lblShuffle",  10, output,        {2370,  450,  420,  210}},
    {frmShuffle.lblShuffle[2],   "lblShuffle",   2, output,        {2805,  450,  540,  210}},
    {frmShuffle.cmdButton,       "cmdButton",   -1, output,        {3480,  360, 1140, buttonHeight}},
    {frmShuffle.cmdStart,        "cmdStart",    -1, nullptr,       {7380, ButtonTop(inputHeight), 1140, buttonHeight}},
    {frmShuffle.cmdClose,        "cmdClose",    -1, nullptr,       {8700, ButtonTop(inputHeight), 1140, buttonHeight}},
    // clang-format on
};

const platform::ControlText texts[] = {
    {frmShuffle.window.title, "Wheel and Shuffle"},
    {frmShuffle.fraShuffle[0].caption, "Input"},
    {frmShuffle.fraShuffle[1].caption, "Configuration"},
    {frmShuffle.fraShuffle[2].caption, "Output: Plays"},
    {frmShuffle.lblShuffle[7].text, "Click # or Card ON/OFF"},
    {frmShuffle.cmdErasePlay[5].picture, "erase-play"},
    {frmShuffle.cmdErasePlay[5].toolTip, "Erase this play"},
    {frmShuffle.lblShuffle[3].text, "Shuffle"},
    {frmShuffle.lblShuffle[4].text, "Select numbers or cards in any order."},
    {frmShuffle.lblShuffle[5].text, "Full Wheel, or Partial Wheel"},
    {frmShuffle.lblShuffle[6].text, "Select numbers or cards in the order of favorite to least favorite."},
    {frmShuffle.optShuffle[0].caption, "Shuffle................Total Plays (required)"},
    {frmShuffle.optShuffle[1].caption, "Partial Wheel .....Total Plays (required)"},
    {frmShuffle.optShuffle[2].caption, "Full Wheel  "},
    {frmShuffle.lblShuffle[11].text,
     "(if a full wheel is completed before total plays is reached, the wheel will stop)"},
    {frmShuffle.lblShuffle[12].text, "(wheel will not exceed 5000 plays)"},
    {frmShuffle.txtShuffle[0].text, ""},
    {frmShuffle.txtShuffle[1].text, ""},
    {frmShuffle.lblShuffle[8].text, "From"},
    {frmShuffle.lblShuffle[0].text, ""},
    {frmShuffle.lblShuffle[9].text, "To"},
    {frmShuffle.lblShuffle[1].text, ""},
    {frmShuffle.lblShuffle[10].text, "Total"},
    {frmShuffle.lblShuffle[2].text, ""},
    {frmShuffle.cmdButton.caption, "Play Slips"},
    {frmShuffle.cmdStart.caption, "Start"},
    {frmShuffle.cmdClose.caption, "Close"},
};

void SetUpBoard() {
    platform::Grid& board = frmShuffle.grdShuffle;
    board.SetColumns(mostColumns);
    board.AddPane(0, mostColumns - 1);
    board.Pane(0).locked = true;
    board.showsHeadings = false;
    board.rowHeight = boardRowHeight;
    for (int column = 0; column < mostColumns; ++column) {
        board.Column(column).styled = true;
    }
}

}  // namespace

void LayOutShuffleForm() {
    frmShuffle.window.name = "frmShuffle";
    platform::PlaceControls(frmShuffle.window, places);
    platform::SetTexts(texts);
    for (const std::size_t bold : {0U, 1U, 2U, 3U, 5U}) {
        frmShuffle.lblShuffle[bold].bold = true;
    }
    for (platform::OptionButton& option : frmShuffle.optShuffle) {
        option.group = frmShuffle.optShuffle;
    }
    SetUpBoard();
    frmShuffle.window.fixedSize = true;
    frmShuffle.window.frame = platform::Window::frameHeightWithoutMenu;
}

void ArrangeShuffleForm(int gameType) {
    platform::Grid& board = frmShuffle.grdShuffle;
    const platform::GridPause pause(board);  // so that it is laid out once
    const int columns = BoardOf(gameType).columns;
    const int columnWidth = IsCardGame(gameType) ? cardColumnWidth : numberColumnWidth;
    for (int column = 0; column < mostColumns; ++column) {
        board.Column(column).visible = column < columns;
        board.Column(column).width = columnWidth;
    }
    board.SetRowCount(BoardOf(gameType).rows);
    board.SetWidth(BoardWidth(columns, columnWidth));
    board.SetHeight(HasBonus(gameType) ? boardHeightWithBonus : boardHeight);

    const int height = HasBonus(gameType) ? inputHeightWithBonus : inputHeight;
    frmShuffle.fraShuffle[0].SetHeight(height);
    frmShuffle.cmdStart.SetTop(ButtonTop(height));
    frmShuffle.cmdClose.SetTop(ButtonTop(height));
    frmShuffle.window.Resize(clientWidth + platform::Window::frameWidth,
                             edge + height + edge + frmShuffle.window.frame);
    frmShuffle.window.MoveTo(windowLeft, windowTop);
}

}  // namespace ballhaven
