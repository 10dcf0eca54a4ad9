#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace ballhaven {

// Dates in the order of `shortDateFormat`. What only looks a date up, and what draws, calls `DateSerial` instead, which
// leaves nothing behind.

/// The pattern for `shortDateFormat` of the system whose settings stand in `windowsDirectory`.
[[nodiscard]] std::string ProbeShortDate();

/// Turns a screen date into the neutral text.
void DateToFileText(std::string& text);

/// Makes the text neutral and leaves its serial in `dateSerial` and its weekday in `dateWeekday`. A year below 1984
/// leaves both as they were. Raises the overflow failure beyond the range of the serial.
void DateToSerial(std::string& text);

/// What `DateToSerial` of the text leaves in `dateSerial`.
std::int16_t ReadSerial(std::string text);

/// The screen text of a serial. Fills `monthDays`.
[[nodiscard]] std::string SerialToDate(std::int16_t serial);

/// A date as the system writes it in short, such as "2/14/2004"; where it has no pattern for that, the screen text.
[[nodiscard]] std::string ShortDate(std::chrono::year_month_day date);

}  // namespace ballhaven
