#include "forms/PrintForm.h"

#include "platform/controls/LayoutTable.h"

namespace ballhaven {

PrintForm frmPrint;

namespace {

const platform::PlacedControl places[] = {
    // clang-format off
    {frmPrint.chkPrint[0], "chkPrint", 0, nullptr, { 240,  120, 2055, 375}},
    {frmPrint.chkPrint[1], "chkPrint", 1, nullptr, { 240,  480, 2055, 375}},
    {frmPrint.chkPrint[2], "chkPrint", 2, nullptr, { 240,  840, 1935, 375}},
    {frmPrint.chkPrint[3], "chkPrint", 3, nullptr, { 240, 1200, 2175, 375}},
    {frmPrint.chkPrint[4], "chkPrint", 4, nullptr, { 240, 1560, 1575, 375}},
    {frmPrint.chkPrint[5], "chkPrint", 5, nullptr, { 240, 1920, 1575, 375}},
    {frmPrint.chkPrint[6], "chkPrint", 6, nullptr, { 240, 2520, 3495, 375}},
    {frmPrint.cmdPrint[0], "cmdPrint", 0, nullptr, {2880,  120,  855, 495}},
    {frmPrint.cmdPrint[1], "cmdPrint", 1, nullptr, {2880,  840,  855, 495}},
    // clang-format on
};

const platform::ControlText texts[] = {
    {frmPrint.window.title, "Print data"},
    {frmPrint.chkPrint[0].caption, "Print Historical Log"},
    {frmPrint.chkPrint[1].caption, "Print Hot Numbers"},
    {frmPrint.chkPrint[2].caption, "Print Hot Pairs"},
    {frmPrint.chkPrint[3].caption, "Print Paired Only Once"},
    {frmPrint.chkPrint[4].caption, "Print Repeaters"},
    {frmPrint.chkPrint[5].caption, "Print No Hitters"},
    {frmPrint.chkPrint[6].caption, "Print All Plays  (on standard paper)"},
    {frmPrint.cmdPrint[0].caption, "Cancel"},
    {frmPrint.cmdPrint[1].caption, "Print"},
};

}  // namespace

void LayOutPrintForm() {
    frmPrint.window.name = "frmPrint";
    frmPrint.window.frame = platform::Window::frameHeightWithoutMenu;
    platform::PlaceControls(frmPrint.window, places);
    platform::SetTexts(texts);
}

}  // namespace ballhaven
