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

// In pixels. The heading has 12 points; the text has the largest letters of which a row of 102 hyphens fits into a
// line.
constexpr int headingHeight = 16;
constexpr int textHeight = 10;

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
    frmHelpBox.lblLabel.fontHeight = headingHeight;
    frmHelpBox.txtText.fontHeight = textHeight;
    frmHelpBox.window.fixedSize = true;
    frmHelpBox.window.Resize(windowWidth, windowHeight);
    frmHelpBox.window.MoveTo(windowLeft, windowTop);
}

}  // namespace ballhaven
