#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/TextArea.h"
#include "platform/controls/Window.h"

namespace ballhaven {

/// The help window, with the instructions or what is said about the program. Created once.
struct HelpBoxForm {
    platform::Window window;

    platform::Label lblLabel;  ///< the heading
    platform::TextArea txtText;
    platform::Button cmdHelp;  ///< prints the text
};

extern HelpBoxForm frmHelpBox;

/// Gives the window its controls, its size and its place.
void LayOutHelpBoxForm();

}  // namespace ballhaven
