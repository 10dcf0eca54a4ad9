#pragma once

#include <chrono>
#include <string>

namespace ballhaven {

// The date of a draw is chosen in the calendar, in these steps: one of the two `Begin...` routines before it opens,
// `TakeChosenDate` for each date that the user chooses, and `EndDateChoice` when it has closed.

/// Begins the choice of a new draw's date and returns the date to offer: today at the first time in a game, then the
/// day after the last draw, or today again while there is only one. Sets `pendingLogDate` to -1, `nextLogDate`, and
/// empties `logDateText`. Raises the overflow failure beyond the range of the serial.
[[nodiscard]] std::chrono::year_month_day BeginNewDraw();

/// Begins the change of a draw's date, given in the screen form, and returns that date; today where the text is none.
/// Sets `logDateText`.
[[nodiscard]] std::chrono::year_month_day BeginDateChange(const std::string& date);

/// Takes a date in the screen form for the draw that the choice was begun for, asking before a date is changed, and
/// saves the history at once, a new draw standing at the end. False when another draw has the date: after saying so
/// nothing has changed, and the calendar stays open for another choice. Sets `pendingLogDate` to the serial of what it
/// has taken. Raises the overflow failure beyond the range of the serial, and the file failure.
[[nodiscard]] bool TakeChosenDate(const std::string& chosen);

/// Ends the choice: without a date taken nothing waits for one any more.
void EndDateChoice();

}  // namespace ballhaven
