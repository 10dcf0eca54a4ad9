#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/DrawingSurface.h"
#include "platform/controls/Window.h"
#include "state/CalendarMonth.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace ballhaven {

/// The pop-up calendar, a modal month view that draws itself. Created once. To offer a date: `Terminate` if it is
/// `Loaded`, set `OutputControl`, `SetToday`, clear `OutputFormat`, `Initialize`; what has been chosen is then told to
/// `acceptDate`.
struct CalendarForm {
    platform::Window window;

    /// Builds the calendar and shows it modally. Returns when it has closed.
    void Initialize();

    /// Closes the calendar as it is; one that is not open stays so. `acceptDate` is not asked.
    void Terminate();
    [[nodiscard]] bool Loaded() const { return window.IsLoaded(); }

    /// Selects a date; what is no date of the calendar leaves the one before.
    void SetToday(std::chrono::year_month_day date);

    /// Remember a place of the window on the screen, in twips, and move the window there, which loads it.
    void SetBorderLeft(std::int16_t left);
    void SetBorderTop(std::int16_t top);

    /// The closing by "&Ok", with the selected date in the form of `OutputFormat`. False keeps the calendar open for
    /// another choice. Empty while nobody minds.
    std::function<bool(const std::string& date)> acceptDate;

    /// Draws the calendar up before it is shown; hung here by the wiring.
    platform::Handler prepare;

    std::string OutputFormat;             ///< mask such as "mm/dd/yyyy"; empty for that of `shortDateFormat`
    std::chrono::year_month_day Today{};  ///< the selected date; no date of the calendar until one is set
    platform::Control* OutputControl = nullptr;
    std::int16_t BorderLeft = 0;
    std::int16_t BorderTop = 0;
    std::int16_t result = 0;  ///< index of the button that closed the calendar; 0 for any other way out

    CalendarMeasures measures;
    CalendarMonth month;  ///< the month on show
    WeekdayLetters weekdayLetter;
    AimedCell aim;
    bool dragging = false;  ///< a focus rectangle is on the screen

    platform::DrawingSurface surface;
    platform::Line Line1;
    std::array<platform::Button, 2> cmdCal;  ///< 0 Cancel, 1 Ok
};

extern CalendarForm ahcCalendar;

/// Gives the calendar its controls. Its size comes from its texts' measures when it is drawn up.
void LayOutCalendar();

}  // namespace ballhaven
