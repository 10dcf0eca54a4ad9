#include "calendar/Calendar.h"

#include "calendar/MonthLayout.h"
#include "calendar/MonthPainting.h"
#include "forms/CalendarForm.h"
#include "forms/MainForm.h"
#include "platform/Boxes.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "platform/controls/Grid.h"
#include "state/AppState.h"
#include "state/DateMask.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven {

namespace {

using platform::Control;
using platform::ControlKind;
using platform::MouseButton;
using platform::PixelPoint;
using platform::SurfaceKey;

constexpr std::int16_t cancelButton = 0;
constexpr std::int16_t okButton = 1;

// From the left top corner of the main window's picture, in twips
constexpr int openingLeft = 500;
constexpr int openingTop = 1000;

void ShowFocusRect(bool shown) {
    if (ahcCalendar.dragging != shown) {
        ahcCalendar.dragging = shown;
        ahcCalendar.surface.DrawFocusRect(ahcCalendar.aim.focusRect);
    }
}

void Open() {
    ahcCalendar.result = cancelButton;
    ShowFocusRect(false);  // of a drag that the last closing cut short
    const platform::Bounds& picture = frmMainForm.Picture1.bounds;
    ahcCalendar.window.MoveTo(frmMainForm.window.Left() + picture.left + openingLeft,
                              frmMainForm.window.Top() + picture.top + openingTop);
}

/// Gives the calendar its size by the texts of its surface.
void Measure() {
    ahcCalendar.measures = MeasuresOf(ahcCalendar.surface.TextHeight(), ahcCalendar.surface.TextWidth("777"));
    const int width = ahcCalendar.measures.width;
    const int height = ahcCalendar.measures.height;
    ahcCalendar.window.Resize(width + platform::Window::frameWidth, height + platform::Window::frameHeight);
    ahcCalendar.surface.bounds = platform::Bounds{0, 0, width, height};
}

void SelectDate(std::chrono::year_month_day date) {
    ahcCalendar.Today = date;
    ahcCalendar.month = MonthOf(date, platform::services.today());
}

void Prepare() {
    Measure();
    ahcCalendar.weekdayLetter = LettersOfWeek(platform::services.firstDayOfWeek(), platform::services.shortDayName);
    if (ahcCalendar.OutputFormat.empty()) {
        ahcCalendar.OutputFormat = DateMaskOf(appState.shortDateFormat);
    }
    SelectDate(ahcCalendar.Today.ok() ? ahcCalendar.Today : platform::services.today());
}

void Paint(platform::Canvas& canvas) {
    MonthPicture picture;
    picture.measures = ahcCalendar.measures;
    picture.month = ahcCalendar.month;
    picture.title = FormatDate(ahcCalendar.month.shownMonth / 1, "mmmm yyyy");
    for (int column = 1; column <= daysOfWeek; ++column) {
        picture.columnLetters[static_cast<std::size_t>(column)] =
            LetterOverColumn(ahcCalendar.month, ahcCalendar.weekdayLetter, platform::services.firstDayOfWeek(), column);
    }
    picture.textWidth = [](std::string_view text) { return ahcCalendar.surface.TextWidth(text); };
    PaintMonth(canvas, picture);
}

/// A closing that has been refused leaves no result: any other way out is a "Cancel".
void Close(std::int16_t button) {
    ahcCalendar.result = button;
    if (button == okButton && ahcCalendar.acceptDate &&
        !ahcCalendar.acceptDate(FormatDate(ahcCalendar.Today, ahcCalendar.OutputFormat))) {
        ahcCalendar.result = cancelButton;
        return;
    }
    ahcCalendar.window.Unload();
}

void PressLeft(PixelPoint place) {
    if (ahcCalendar.measures.prevRect.Holds(place)) {
        SelectDate(MonthsOnward(ahcCalendar.Today, -1));
    } else if (ahcCalendar.measures.nextRect.Holds(place)) {
        SelectDate(MonthsOnward(ahcCalendar.Today, 1));
    } else if (IsInDayArea(ahcCalendar.measures, place)) {
        ahcCalendar.aim = CellAt(ahcCalendar.measures, place);
        ShowFocusRect(true);
    }
    ahcCalendar.surface.Repaint();
}

void Press(MouseButton button, PixelPoint place) {
    if (button == MouseButton::Right) {
        Close(cancelButton);
    } else if (button == MouseButton::Left) {
        PressLeft(place);
    }
}

void Drag(bool leftHeld, PixelPoint place) {
    if (leftHeld && ahcCalendar.dragging && IsInDayArea(ahcCalendar.measures, place)) {
        ShowFocusRect(false);
        ahcCalendar.aim = CellAt(ahcCalendar.measures, place);
        ShowFocusRect(true);
    }
}

void Release() {
    if (ahcCalendar.dragging) {
        ShowFocusRect(false);
        const SelectedDay day = DayOfCell(ahcCalendar.month, ahcCalendar.aim, platform::services.today());
        ahcCalendar.Today = day.date;
        ahcCalendar.month = day.month;
        ahcCalendar.surface.Repaint();
    }
}

bool CloseByEscape(SurfaceKey key) {
    if (key == SurfaceKey::Escape) {
        Close(cancelButton);
    }
    return key == SurfaceKey::Escape;
}

// QUIRK CALENDAR-KEYS-1: the buttons answer the mouse alone; Enter, the space bar and the underlined letters do
// nothing. Enter is the key that the user has just pressed in the log: letting it through would store the offered date
// before anybody has looked at it.
void ReleaseOverButton(std::int16_t index, MouseButton mouseButton) {
    if (mouseButton != MouseButton::Right) {
        const platform::WaitPointer waiting;
        Close(index);
    }
}

bool SetText(Control& control, const std::string& text) {
    if (control.kind == ControlKind::TextBox) {
        static_cast<platform::TextBox&>(control).text = text;
        return true;
    }
    if (control.kind == ControlKind::DropDownList) {
        auto& list = static_cast<platform::DropDownList&>(control);
        const auto entry = std::find(list.Entries().begin(), list.Entries().end(), text);
        list.Select(entry == list.Entries().end() ? list.Selected() : static_cast<int>(entry - list.Entries().begin()));
        return entry != list.Entries().end();
    }
    return false;
}

bool SetCaption(Control& control, const std::string& text) {
    switch (control.kind) {
        case ControlKind::Label:
            static_cast<platform::Label&>(control).text = text;
            return true;
        case ControlKind::Button:
            static_cast<platform::Button&>(control).caption = text;
            return true;
        case ControlKind::OptionButton:
            static_cast<platform::OptionButton&>(control).caption = text;
            return true;
        case ControlKind::Grid:
            static_cast<platform::Grid&>(control).caption = text;
            return true;
        default:
            return false;
    }
}

void CallTakeText(Control& control, const std::string& text) {
    if (control.kind == ControlKind::DrawingSurface) {
        const auto& surface = static_cast<platform::DrawingSurface&>(control);
        if (surface.takeText) {
            surface.takeText(text);
        }
    }
}

}  // namespace

void WireCalendar() {
    ahcCalendar.window.layout = LayOutCalendar;
    ahcCalendar.window.load = Open;
    ahcCalendar.prepare = Prepare;
    ahcCalendar.surface.paint = Paint;
    ahcCalendar.surface.cells = [] {
        return DaysOf(ahcCalendar.month, ahcCalendar.measures, platform::services.today());
    };
    ahcCalendar.surface.mouseDown = Press;
    ahcCalendar.surface.mouseMove = Drag;
    ahcCalendar.surface.mouseUp = [](MouseButton, PixelPoint) { Release(); };
    ahcCalendar.surface.keyDown = CloseByEscape;
    ahcCalendar.cmdCal[0].mouseUp = [](MouseButton button) { ReleaseOverButton(cancelButton, button); };
    ahcCalendar.cmdCal[1].mouseUp = [](MouseButton button) { ReleaseOverButton(okButton, button); };
}

void AttachControl(Control& control) {
    ahcCalendar.OutputControl = &control;
    const std::optional<platform::Bounds> place = control.ScreenPlace();
    if (!place) {
        platform::Tell("Error while attaching to a control: " + control.name + " is not on the screen",
                       platform::BoxIcon::Critical);
        return;
    }
    ahcCalendar.window.Load();
    ahcCalendar.window.MoveTo(place->left, place->top + place->height);
}

void SendDateToControl() {
    if (ahcCalendar.OutputControl == nullptr) {
        return;
    }
    Control& control = *ahcCalendar.OutputControl;
    const std::string date = FormatDate(ahcCalendar.Today, ahcCalendar.OutputFormat);
    if (!SetText(control, date) && !SetCaption(control, date)) {
        CallTakeText(control, date);
    }
}

}  // namespace ballhaven
