#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven {

// Dates as text and as serials, the days since 1 January 1984. A pattern such as "m/d/y" says in which order a date's
// parts stand on screen, and what stands between them. Nothing here keeps anything.

/// Days of the months 1 to 12; 28 of February.
inline constexpr std::array<std::int16_t, 13> daysOfMonths = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// The pattern for a system's short-date pattern: of each group the letter beside a separator counts, so "dd.MM.yyyy"
/// gives "d.m.y". "m/d/y" where it has no two separators with a character beside each of them.
[[nodiscard]] std::string NormalisedDatePattern(const std::string& systemPattern);

/// A screen date as the neutral text: month and day in two digits and the year as it was typed, between hyphens. Any
/// character but a digit and a colon separates the parts.
[[nodiscard]] std::string NeutralText(std::string_view text, std::string_view pattern);

/// The serial of a neutral text; none for a year below 1984. Raises the overflow failure beyond the range of the
/// serial.
[[nodiscard]] std::optional<std::int16_t> SerialOfNeutral(std::string_view neutral);

/// The serial of a screen date; none for a year below 1984. Raises the overflow failure beyond the range of the serial.
[[nodiscard]] std::optional<std::int16_t> SerialOf(std::string_view text, std::string_view pattern);

/// The weekday of a serial, 1 Monday to 7 Sunday.
[[nodiscard]] std::int16_t WeekdayOf(std::int16_t serial);

/// The screen text of a serial.
[[nodiscard]] std::string TextOfSerial(std::int16_t serial, std::string_view pattern);

/// The calendar date of a screen text; none where the text is no date.
[[nodiscard]] std::optional<std::chrono::year_month_day> DateOfText(std::string_view text, std::string_view pattern);

}  // namespace ballhaven
