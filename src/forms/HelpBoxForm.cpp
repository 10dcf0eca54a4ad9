#include "forms/HelpBoxForm.h"

#include "platform/controls/LayoutTable.h"

namespace ballhaven {

HelpBoxForm frmHelpBox;

namespace {

// The text box lies over the lower edge of the button, so that its frame is whole.
const platform::PlacedControl places[] = {
    // clang-format off
    {frmHelpBox.lblLabel, "lblLabel", -1, nullptr, {840, 120, 4095,  375}},
    {frmHelpBox.cmdHelp,  "cmdHelp",  -1, nullptr, {120,   0,  615,  495}, "Print"},
    {frmHelpBox.txtText,  "txtText",  -1, nullptr, {150, 480, 5415, 5295}, "Help"},
    // clang-format on
};

const platform::ControlText texts[] = {
    {frmHelpBox.window.title, "Ballhaven Help"},
    {frmHelpBox.cmdHelp.picture, "print"},
};

constexpr int headingPixels = 16;  // 12 points
constexpr int textPixels = 10;     // the largest letters of which a row of 102 hyphens fits into a line

// In twips
constexpr int windowLeft = 3800;
constexpr int windowTop = 0;
constexpr int windowWidth = 5850;
constexpr int windowHeight = 6800;

}  // namespace

void LayOutHelpBoxForm() {
    frmHelpBox.window.name = "frmHelpBox";
    frmHelpBox.window.frame = platform::Window::frameHeightWithoutMenu;
    platform::PlaceControls(frmHelpBox.window, places);
    platform::SetTexts(texts);
    frmHelpBox.lblLabel.bold = true;
    frmHelpBox.lblLabel.alignment = platform::TextAlignment::Centre;
    frmHelpBox.lblLabel.fontHeight = headingPixels;
    frmHelpBox.txtText.fontHeight = textPixels;
    frmHelpBox.window.fixedSize = true;
    frmHelpBox.window.Resize(windowWidth, windowHeight);
    frmHelpBox.window.MoveTo(windowLeft, windowTop);
}

}  // namespace ballhaven
