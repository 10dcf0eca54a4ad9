#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace ballhaven {

/// The mask for `OutputFormat` from a pattern such as `shortDateFormat`: "m/d/y" gives "mm/dd/yyyy". What stands where
/// a letter should is a year; a pattern without a separator gives a mask without one.
[[nodiscard]] std::string DateMaskOf(std::string_view pattern);

/// A date in the form of a mask: "m" and "mm" stand for the month in digits, "mmmm" for its name in the system's
/// language, "d" and "dd" for the day, "yy" and "yyyy" for the year; anything else stands for itself.
[[nodiscard]] std::string FormatDate(std::chrono::year_month_day date, std::string_view mask);

}  // namespace ballhaven
