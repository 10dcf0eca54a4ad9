#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven::data {

/// In which order a date's numbers stand where its year is the last of them.
enum class DateOrder { monthFirst, dayFirst, yearFirst };

/// What an order is called on the command line: "m/d/y", "d.m.y" or "y-m-d".
[[nodiscard]] std::string_view NameOf(DateOrder order);

/// The order with a name, whatever separates its three letters; none for any other text.
[[nodiscard]] std::optional<DateOrder> OrderNamed(std::string_view name);

/// The date that a text holds; it may be none of the calendar, as 31 February. None where the text is no date in the
/// order. Its parts are divided by hyphens, strokes, points or blanks, and the year has four digits. A year that stands
/// first (20110521 too) and a month by its English name tell themselves, whatever the order. A weekday before the date,
/// English or of three letters at most, and a point and a time of day behind it are passed over.
[[nodiscard]] std::optional<std::chrono::year_month_day> DateIn(std::string_view text, DateOrder order);

/// The serial of a day as a user names it, the year first; none for any other text, and for no day of the calendar.
[[nodiscard]] std::optional<int> SerialNamed(std::string_view text);

/// The days from 1 January 1984 to a date of the calendar.
[[nodiscard]] int SerialOf(const std::chrono::year_month_day& date);

/// Finds the order of the dates of a column by looking at one after the other, until one decides. The first that is a
/// day of the calendar in a single order does; so do a year that stands first, and points, which put the day first.
class DateOrderFinder {
  public:
    /// Looks at the text of a date in a line. What is no date tells nothing.
    void Look(std::string_view text, std::int64_t line);

    [[nodiscard]] bool IsDecided() const { return decided.has_value(); }

    /// The order. Throws Refusal where every date seen can be read in two.
    [[nodiscard]] DateOrder Order() const;

  private:
    std::optional<DateOrder> decided;
    std::string readInTwoWays;  ///< the first such date, as it is told; empty without one
    bool yearStandsLast = false;
};

}  // namespace ballhaven::data
