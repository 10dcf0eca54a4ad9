#pragma once

namespace ballhaven {

namespace platform {
class Control;
}

/// Hangs the handlers onto the calendar.
void WireCalendar();

/// Makes a control the calendar's `OutputControl` and puts the calendar below it. Says in a message why it could not.
void AttachControl(platform::Control& control);

/// Hands `Today` in the form of `OutputFormat` to `OutputControl`: as its text, else as its caption, else by its own
/// routine for texts. A control that takes none of them stays as it is.
void SendDateToControl();

}  // namespace ballhaven
