#pragma once

#include "platform/controls/CheckBox.h"
#include "platform/controls/Controls.h"
#include "platform/controls/Window.h"

#include <array>

namespace ballhaven {

/// Sections of the data report, each with a box that is kept in `systemRecord`.
inline constexpr int reportSections = 6;

/// The box of the Play Slips report, which is not kept.
inline constexpr int playsBox = 6;

/// The dialog from which everything is printed. Created once.
struct PrintForm {
    platform::Window window;

    bool frmPrintLoading = false;  ///< from the beginning of the opening until the window has the keyboard

    std::array<platform::CheckBox, reportSections + 1> chkPrint;
    std::array<platform::Button, 2> cmdPrint;  ///< 0 Cancel, 1 Print
};

extern PrintForm frmPrint;

/// Gives the dialog its controls and texts.
void LayOutPrintForm();

}  // namespace ballhaven
