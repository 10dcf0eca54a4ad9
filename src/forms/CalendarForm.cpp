#include "forms/CalendarForm.h"

#include "platform/controls/LayoutTable.h"

namespace ballhaven {

CalendarForm ahcCalendar;

namespace {

constexpr int fontHeight = 13;  // pixels
constexpr int innerWidth = 2520;
constexpr int innerHeight = 2760;

const platform::PlacedControl places[] = {
    // clang-format off
    {ahcCalendar.surface,   "surface", -1, nullptr, {   0,    0, innerWidth, innerHeight}, "Calendar"},
    {ahcCalendar.Line1,     "Line1",   -1, nullptr, { 120, 2040, 2280, 0}},
    {ahcCalendar.cmdCal[1], "cmdCal",   1, nullptr, { 240, 2160, 855, 375}},
    {ahcCalendar.cmdCal[0], "cmdCal",   0, nullptr, {1440, 2160, 855, 375}},
    // clang-format on
};

const platform::ControlText texts[] = {
    {ahcCalendar.window.title, "Calendar"},
    {ahcCalendar.cmdCal[0].caption, "&Cancel"},
    {ahcCalendar.cmdCal[1].caption, "&Ok"},
};

}  // namespace

void CalendarForm::Initialize() {
    window.Load();
    if (prepare) {
        prepare();
    }
    window.ShowModal();
}

void CalendarForm::Terminate() {
    window.Unload();
}

void CalendarForm::SetToday(std::chrono::year_month_day date) {
    if (date.ok()) {
        Today = date;
    }
}

void CalendarForm::SetBorderLeft(std::int16_t left) {
    BorderLeft = left;
    window.Load();  // whose opening would move it elsewhere
    window.MoveTo(left, window.Top());
}

void CalendarForm::SetBorderTop(std::int16_t top) {
    BorderTop = top;
    window.Load();
    window.MoveTo(window.Left(), top);
}

void LayOutCalendar() {
    ahcCalendar.window.name = "ahcCalendar";
    platform::PlaceControls(ahcCalendar.window, places);
    platform::SetTexts(texts);
    ahcCalendar.surface.fontHeight = fontHeight;
    for (platform::Button& button : ahcCalendar.cmdCal) {
        button.answersKeys = false;
    }
    ahcCalendar.window.fixedSize = true;
    ahcCalendar.window.Resize(innerWidth + platform::Window::frameWidth, innerHeight + platform::Window::frameHeight);
}

}  // namespace ballhaven
