#pragma once

#include <QLocale>

#include <chrono>
#include <string>

namespace ballhaven::platform {

/// The folder of the program's executable, in the bytes by which the system opens it.
[[nodiscard]] std::string ExecutableDirectory();

/// The folder of the system's own settings.
[[nodiscard]] std::string SystemDirectory();

/// The user's short-date pattern, such as "M/d/yyyy"; empty where there is none.
[[nodiscard]] std::string ShortDatePattern(const std::string& systemDirectory);

/// The short-date pattern of a locale such as "de_DE.UTF-8", without the blanks and the words in it: "yyyy. MM. dd."
/// comes as "yyyy.MM.dd.". Empty for "C", "POSIX" and the empty name.
[[nodiscard]] std::string ShortDatePatternOfLocale(const std::string& name);

/// The current date in the user's time zone.
[[nodiscard]] std::chrono::year_month_day CurrentDate();

/// The locale that gives months and days their names: the user's own, or the English one where a letter of any of those
/// names is outside the code page.
[[nodiscard]] QLocale LocaleOfNames(const QLocale& user);

/// The day with which the week of the user's locale begins, and the names of months and short names of days.
[[nodiscard]] std::chrono::weekday FirstDayOfWeek();
[[nodiscard]] std::string MonthName(std::chrono::month month);
[[nodiscard]] std::string ShortDayName(std::chrono::weekday day);

}  // namespace ballhaven::platform
