#include "forms/CalendarForm.h"

namespace ballhaven {

CalendarForm ahcCalendar;

namespace {

using platform::Bounds;

constexpr int fontHeight = 13;  // pixels
constexpr int innerWidth = 2520;
constexpr int innerHeight = 2760;

void Put(platform::Control& control, const char* name, const Bounds& bounds) {
    control.name = name;
    control.bounds = bounds;
    ahcCalendar.window.controls.push_back(&control);
}

void PutButton(std::size_t index, const char* name, const char* caption, int left) {
    platform::Button& button = ahcCalendar.cmdCal[index];
    Put(button, name, {left, 2160, 855, 375});
    button.caption = caption;
    button.answersKeys = false;
}

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
    ahcCalendar.window.title = "Calendar";
    Put(ahcCalendar.surface, "surface", {0, 0, innerWidth, innerHeight});
    ahcCalendar.surface.fontHeight = fontHeight;
    ahcCalendar.surface.accessibleName = "Calendar";
    Put(ahcCalendar.Line1, "Line1", {120, 2040, 2280, 0});
    PutButton(1, "cmdCal(1)", "&Ok", 240);
    PutButton(0, "cmdCal(0)", "&Cancel", 1440);
    ahcCalendar.window.Resize(innerWidth + platform::Window::frameWidth, innerHeight + platform::Window::frameHeight);
}

}  // namespace ballhaven
