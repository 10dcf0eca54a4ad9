#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Window.h"

#include <array>

namespace ballhaven {

/// The Wheel and Shuffle window, in which favourite picks are chosen and made into plays. Created once.
struct ShuffleForm {
    platform::Window window;

    bool boardClicked = false;  ///< a click on the board waits for the current cell to settle
    bool loading = false;       ///< from the load until the window is first activated
    bool running = false;       ///< while plays are made of the chosen picks

    std::array<platform::Frame, 3> fraShuffle;     ///< 0 Input, 1 Configuration, 2 Output
    std::array<platform::Label, 13> lblShuffle;    ///< 0 the first play of the last run, 1 its last, 2 their number
    std::array<platform::Button, 6> cmdErasePlay;  ///< 5 alone is used
    platform::Grid grdShuffle;

    /// Shuffle, Partial Wheel and Full Wheel, and the boxes for the total plays of the first two.
    std::array<platform::OptionButton, 3> optShuffle;
    std::array<platform::TextBox, 2> txtShuffle;

    platform::Button cmdButton;  ///< Play Slips
    platform::Button cmdStart;
    platform::Button cmdClose;
};

extern ShuffleForm frmShuffle;

/// Gives the window its controls and texts; the boxes and what is told of the last run are empty. Its size and that of
/// its board are those of a kind of game, by `ArrangeShuffleForm`.
void LayOutShuffleForm();

/// Sizes the board and the window for a kind of game (0 to 5), and puts the window to its place.
void ArrangeShuffleForm(int gameType);

}  // namespace ballhaven
