#include "state/DateSerial.h"

#include "state/modUTILS.h"

#include <algorithm>
#include <array>
#include <functional>

namespace ballhaven {

namespace {

constexpr int firstYear = 1984;  // serial 0 is its first day
constexpr int yearsPerCycle = 4;
constexpr int daysPerCycle = 1461;
constexpr int daysPerYear = 365;
constexpr int monthsPerYear = 12;
constexpr int february = 2;

constexpr std::array<int, 13> daysBeforeMonth = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

constexpr std::string_view monthDayYear = "m/d/y";

bool IsAsciiLetter(char character) {
    return ('A' <= character && character <= 'Z') || ('a' <= character && character <= 'z');
}

/// Place of the first character that is no ASCII letter, `npos` without one.
std::size_t FindSeparator(std::string_view pattern) {
    return static_cast<std::size_t>(std::ranges::find_if_not(pattern, IsAsciiLetter) - pattern.begin());
}

/// The letter of one of the three places of a pattern, from 0.
char PatternLetter(std::string_view pattern, int place) {
    return modUTILS::Columns(pattern, 2 * place + 1, 1)[0];
}

struct NeutralDate {
    std::string month;
    std::string day;
    std::string year;
};

void PutPart(NeutralDate& date, char letter, std::int64_t value) {
    if (letter == 'm') {
        date.month = modUTILS::ZeroPadded(value, 2);
    } else if (letter == 'd') {
        date.day = modUTILS::ZeroPadded(value, 2);
    } else {
        date.year = std::to_string(value);
    }
}

/// QUIRK DATE-COLON-1: a colon is not a separator of dates: what follows it in its part is not read, and it starts no
/// new part, so 9:27:1986 is month 9, day 9, year 9. Turning it into a separator would make a time of day a date.
bool StaysInDate(char character) {
    return '0' <= character && character <= ':';
}

int FloorDivide(int dividend, int divisor) {
    const int quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

std::string NormalisedDatePattern(const std::string& systemPattern) {
    const std::size_t first = FindSeparator(systemPattern);
    if (first == 0 || first == systemPattern.size()) {
        return std::string(monthDayYear);
    }
    const char separator = systemPattern[first];
    const std::size_t second = systemPattern.find(separator, first + 1);
    if (second == std::string::npos || second + 1 == systemPattern.size()) {
        return std::string(monthDayYear);
    }
    return {modUTILS::LowerCase(systemPattern[first - 1]), separator, modUTILS::LowerCase(systemPattern[second - 1]),
            separator, modUTILS::LowerCase(systemPattern[second + 1])};
}

std::string NeutralText(std::string_view text, std::string_view pattern) {
    std::string rest(text);
    std::ranges::replace_if(rest, std::not_fn(StaysInDate), '/');

    NeutralDate date;
    std::int64_t value = modUTILS::ValueOf(rest);
    PutPart(date, PatternLetter(pattern, 0), value);
    for (const int place : {1, 2}) {
        if (const std::size_t separator = rest.find('/'); separator != std::string::npos) {
            rest.erase(0, separator + 1);
            value = modUTILS::ValueOf(rest);
        }
        PutPart(date, PatternLetter(pattern, place), value);
    }
    return date.month + "-" + date.day + "-" + date.year;
}

std::optional<std::int16_t> SerialOfNeutral(std::string_view neutral) {
    const auto month = static_cast<std::size_t>(modUTILS::ValueOf(neutral.substr(0, 2)));
    auto day = static_cast<int>(modUTILS::ValueOf(modUTILS::Columns(neutral, 4, 2)));
    const auto year =
        static_cast<int>(modUTILS::ValueOf(neutral.substr(neutral.size() - std::min<std::size_t>(neutral.size(), 4))));
    if (year < firstYear) {
        return std::nullopt;
    }

    const int cycles = (year - firstYear) / yearsPerCycle;
    const int yearInCycle = (year - firstYear) % yearsPerCycle;
    const bool leapYear = yearInCycle == 0;
    const int firstDayOfYear = cycles * daysPerCycle + (leapYear ? 0 : yearInCycle * daysPerYear + 1);
    if (month <= monthsPerYear) {
        day += daysBeforeMonth[month] + (leapYear && month > february ? 1 : 0);
    }
    return modUTILS::ToInt16(day + firstDayOfYear - 1);
}

std::optional<std::int16_t> SerialOf(std::string_view text, std::string_view pattern) {
    return SerialOfNeutral(NeutralText(text, pattern));
}

std::int16_t WeekdayOf(std::int16_t serial) {
    return static_cast<std::int16_t>((serial + 6) % 7 + 1);
}

std::string TextOfSerial(std::int16_t serial, std::string_view pattern) {
    // A year has 365.25 days on average, in quarters of a day so that nothing is rounded.
    const int yearsPassed = FloorDivide(serial * yearsPerCycle, daysPerCycle);
    const bool leapYear = yearsPassed % yearsPerCycle == 0;
    int day = serial - FloorDivide(yearsPassed * daysPerCycle, yearsPerCycle) + (leapYear ? 1 : 0);
    std::size_t month = 1;
    int limit = daysOfMonths[month];
    while (day > limit) {
        day -= limit;
        ++month;
        limit = daysOfMonths[month] + (leapYear && month == february ? 1 : 0);
    }

    const auto part = [&](int place) {
        switch (PatternLetter(pattern, place)) {
            case 'm':
                return modUTILS::ZeroPadded(static_cast<std::int64_t>(month), 2);
            case 'd':
                return modUTILS::ZeroPadded(day, 2);
            default:
                return modUTILS::ZeroPadded(firstYear + yearsPassed, 4);
        }
    };
    const std::string separator(pattern.substr(FindSeparator(pattern), 1));
    return part(0) + separator + part(1) + separator + part(2);
}

std::optional<std::chrono::year_month_day> DateOfText(std::string_view text, std::string_view pattern) {
    const std::string neutral = NeutralText(text, pattern);
    const auto part = [&neutral](int first, int width) {
        return modUTILS::ValueOf16(modUTILS::Columns(neutral, first, width));
    };
    const std::chrono::year_month_day date = std::chrono::year{part(7, 4)} / part(1, 2) / part(4, 2);
    return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace ballhaven
