#include "calendar/Calendar.h"

#include <algorithm>
#include <optional>
#include <string>

#include "calendar/CalendarForm.h"
#include "calendar/DateMask.h"
#include "calendar/MonthLayout.h"
#include "calendar/MonthPainting.h"
#include "platform/Grid.h"
#include "platform/MessageBox.h"
#include "platform/Pointer.h"
#include "platform/Services.h"
#include "screen/MainForm.h"
#include "state/AppState.h"

namespace ballhaven {

namespace {

using platform::Control;
using platform::ControlKind;
using platform::MouseButton;
using platform::PixelPoint;
using platform::SurfaceKey;

CalendarForm& form = ahcCalendar;

constexpr std::int16_t cancelButton = 0;
constexpr std::int16_t okButton = 1;

// From the left top corner of the main window's picture, in twips
constexpr int openingLeft = 500;
constexpr int openingTop = 1000;

void ShowFocusRect(bool shown) {
    if (form.dragging != shown) {
        form.dragging = shown;
        form.surface.DrawFocusRect(form.focusRect);
    }
}

void Open() {
    form.result = cancelButton;
    ShowFocusRect(false);  // of a drag that the last closing cut short
    const platform::Bounds& picture = frmMainForm.Picture1.bounds;
    form.window.MoveTo(frmMainForm.window.Left() + picture.left + openingLeft,
                       frmMainForm.window.Top() + picture.top + openingTop);
}

void Prepare() {
    MeasureCalendar();
    FillWeekdayLetters();
    if (!form.Today.ok()) {
        form.Today = platform::services.today();
    }
    if (form.OutputFormat.empty()) {
        form.OutputFormat = DateMaskOf(appState.shortDateFormat);
    }
    LayOutMonth();
}

/// A closing that has been refused leaves no result: any other way out is a "Cancel".
void Close(std::int16_t button) {
    form.result = button;
    if (button == okButton && form.acceptDate && !form.acceptDate(FormatDate(form.Today, form.OutputFormat))) {
        form.result = cancelButton;
        platform::ShowArrow();
        return;
    }
    form.window.Unload();
    platform::ShowArrow();
}

void PressLeft(PixelPoint place) {
    if (form.prevRect.Holds(place)) {
        StepMonth(-1);
    } else if (form.nextRect.Holds(place)) {
        StepMonth(1);
    } else if (IsInDayArea(place)) {
        AimAt(place);
        ShowFocusRect(true);
    }
    form.surface.Repaint();
}

void Press(MouseButton button, PixelPoint place) {
    if (button == MouseButton::Right) {
        Close(cancelButton);
    } else if (button == MouseButton::Left) {
        PressLeft(place);
    }
}

void Drag(bool leftHeld, PixelPoint place) {
    if (leftHeld && form.dragging && IsInDayArea(place)) {
        ShowFocusRect(false);
        AimAt(place);
        ShowFocusRect(true);
    }
}

void Release() {
    if (form.dragging) {
        ShowFocusRect(false);
        SelectAimedDay();
        form.surface.Repaint();
    }
}

bool ServeKey(SurfaceKey key) {
    if (key == SurfaceKey::Escape) {
        Close(cancelButton);
    }
    return key == SurfaceKey::Escape;
}

// QUIRK CALENDAR-KEYS-1: the buttons answer the mouse alone; Enter, the space bar and the underlined letters do
// nothing. It is meant: a date is stored by a deliberate click, and Enter is the key that the user has just pressed in
// the log. Letting the keys through would store dates that nobody looked at.
void ReleaseOverButton(std::int16_t index, MouseButton mouseButton) {
    if (mouseButton != MouseButton::Right) {
        platform::ShowHourglass();
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
    form.window.layout = LayOutCalendar;
    form.window.load = Open;
    form.window.activate = platform::ShowArrow;
    form.prepare = Prepare;
    form.surface.paint = PaintCalendar;
    form.surface.mouseDown = Press;
    form.surface.mouseMove = Drag;
    form.surface.mouseUp = [](MouseButton, PixelPoint) { Release(); };
    form.surface.keyDown = ServeKey;
    form.cmdCal[0].mouseUp = [](MouseButton button) { ReleaseOverButton(cancelButton, button); };
    form.cmdCal[1].mouseUp = [](MouseButton button) { ReleaseOverButton(okButton, button); };
}

void AttachControl(Control& control) {
    form.OutputControl = &control;
    const std::optional<platform::Bounds> place = control.ScreenPlace();
    if (!place) {
        platform::ShowMessageBox("Error while attaching to a control: " + control.name + " is not on the screen",
                                 platform::BoxButtons::Ok, platform::BoxIcon::Critical);
        return;
    }
    form.window.Load();
    form.window.MoveTo(place->left, place->top + place->height);
}

void SendDateToControl() {
    if (form.OutputControl == nullptr) {
        return;
    }
    Control& control = *form.OutputControl;
    const std::string date = FormatDate(form.Today, form.OutputFormat);
    if (!SetText(control, date) && !SetCaption(control, date)) {
        CallTakeText(control, date);
    }
}

}  // namespace ballhaven
