#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

/// The five-character pattern for `shortDateFormat` from a system's short-date pattern such as "M/d/yyyy": "m/d/y"
/// where the pattern has no two separators with a letter at each place.
[[nodiscard]] std::string NormalisedDatePattern(const std::string& systemPattern);

/// Turns a screen date in the order of `shortDateFormat` into the neutral text: month, day and year between hyphens.
void DateToFileText(std::string& text);

/// Makes the text neutral and leaves its day number since 1 January 1984 in `dateSerial` and its weekday in
/// `dateWeekday`. A year below 1984 leaves both as they were. Raises the overflow failure beyond the range of the
/// serial.
void DateToSerial(std::string& text);

/// The screen text of a serial in the order of `shortDateFormat`. Fills `monthDays`.
[[nodiscard]] std::string SerialToDate(std::int16_t serial);

}  // namespace ballhaven
