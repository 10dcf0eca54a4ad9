#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace ballhaven {

/// The five-character pattern for `shortDateFormat` from a system's short-date pattern: of each group the letter beside
/// a separator counts, so "dd.MM.yyyy" gives "d.m.y". "m/d/y" where the pattern has no two separators with a character
/// beside each of them.
[[nodiscard]] std::string NormalisedDatePattern(const std::string& systemPattern);

/// The pattern for `shortDateFormat` of the system whose settings stand in `windowsDirectory`.
[[nodiscard]] std::string ProbeShortDate();

/// Turns a screen date in the order of `shortDateFormat` into the neutral text: month and day in two digits and the
/// year as it was typed, between hyphens. Any character but a digit and a colon separates the parts.
void DateToFileText(std::string& text);

/// Makes the text neutral and leaves its day number since 1 January 1984 in `dateSerial` and its weekday in
/// `dateWeekday`. A year below 1984 leaves both as they were. Raises the overflow failure beyond the range of the
/// serial.
void DateToSerial(std::string& text);

/// The screen text of a serial in the order of `shortDateFormat`. Fills `monthDays`.
[[nodiscard]] std::string SerialToDate(std::int16_t serial);

/// The calendar date of a screen text in the order of `shortDateFormat`; none where the text is no date.
[[nodiscard]] std::optional<std::chrono::year_month_day> TextToDate(std::string text);

}  // namespace ballhaven
