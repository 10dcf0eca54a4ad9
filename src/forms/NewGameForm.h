#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Window.h"

#include <array>

namespace ballhaven {

/// The lists of the game dialog by their index in `cboCombo`. 7 and 8 are not used.
enum GameList : int {
    gameTypeList = 0,
    mainCountList = 1,
    bonusCountList = 2,
    orderList = 3,
    duplicatesList = 4,
    mainLowList = 5,
    mainHighList = 6,
    bonusLowList = 9,
    bonusHighList = 10,
};

inline constexpr int gameNameLength = 20;

/// The game dialog. Created once.
struct NewGameForm {
    platform::Window window;

    bool filling = false;  ///< the lists do not answer their own filling
    bool loading = false;  ///< the fill at the form's load is on its way
    bool saved = false;    ///< it closes by "Save"

    std::array<platform::TextBox, 1> txtNewGame;
    std::array<platform::DropDownList, 11> cboCombo;
    std::array<platform::Label, 12> lblNewGame;  ///< 5 and 6 are not used
    std::array<platform::Button, 2> cmdNewGame;  ///< 0 Cancel, 1 Save
};

extern NewGameForm frmNewGame;

/// The list, and the label that stands beside it.
[[nodiscard]] platform::DropDownList& ListOf(GameList list);
[[nodiscard]] platform::Label& LabelOf(GameList list);

/// Gives the dialog its size, its controls their places and texts. The name box starts empty.
void LayOutNewGameForm();

}  // namespace ballhaven
