#include "state/DateText.h"

#include "platform/Services.h"
#include "state/AppState.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

namespace ballhaven {

namespace {

constexpr int firstYear = 1984;  // serial 0 is its first day
constexpr int yearsPerCycle = 4;
constexpr int daysPerCycle = 1461;
constexpr int daysPerYear = 365;
constexpr int monthsPerYear = 12;
constexpr int february = 2;

constexpr std::array<std::int16_t, 13> daysOfMonths = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr std::array<int, 13> daysBeforeMonth = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

constexpr std::string_view monthDayYear = "m/d/y";

bool IsAsciiLetter(char character) {
    return ('A' <= character && character <= 'Z') || ('a' <= character && character <= 'z');
}

/// Place of the first character that is no ASCII letter, `npos` without one.
std::size_t FindSeparator(std::string_view pattern) {
    return static_cast<std::size_t>(std::ranges::find_if_not(pattern, IsAsciiLetter) - pattern.begin());
}

/// The letter of one of the three places of `shortDateFormat`, from 0.
char PatternLetter(int place) {
    return modUTILS::Columns(appState.shortDateFormat, 2 * place + 1, 1)[0];
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

std::string ProbeShortDate() {
    return NormalisedDatePattern(platform::services.shortDatePattern(appState.windowsDirectory));
}

void DateToFileText(std::string& text) {
    std::string rest = text;
    std::ranges::replace_if(rest, std::not_fn(StaysInDate), '/');

    NeutralDate date;
    std::int64_t value = modUTILS::ValueOf(rest);
    PutPart(date, PatternLetter(0), value);
    for (const int place : {1, 2}) {
        if (const std::size_t separator = rest.find('/'); separator != std::string::npos) {
            rest.erase(0, separator + 1);
            value = modUTILS::ValueOf(rest);
        }
        PutPart(date, PatternLetter(place), value);
    }
    text = date.month + "-" + date.day + "-" + date.year;
}

void DateToSerial(std::string& text) {
    DateToFileText(text);
    const std::string_view neutral = text;
    const auto month = static_cast<std::size_t>(modUTILS::ValueOf(neutral.substr(0, 2)));
    auto day = static_cast<int>(modUTILS::ValueOf(modUTILS::Columns(neutral, 4, 2)));
    const auto year =
        static_cast<int>(modUTILS::ValueOf(neutral.substr(neutral.size() - std::min<std::size_t>(neutral.size(), 4))));

    // QUIRK DATE-BEFORE-1984-1: a year below 1984, and so every year of two digits, changes nothing: the caller goes on
    // with the date of the call before. Setting 0 here would turn a mistyped year into a row without a date, which
    // counts as empty and loses its picks.
    if (year < firstYear) {
        return;
    }

    const int cycles = (year - firstYear) / yearsPerCycle;
    const int yearInCycle = (year - firstYear) % yearsPerCycle;
    const bool leapYear = yearInCycle == 0;
    const int firstDayOfYear = cycles * daysPerCycle + (leapYear ? 0 : yearInCycle * daysPerYear + 1);
    if (month <= monthsPerYear) {
        day += daysBeforeMonth[month] + (leapYear && month > february ? 1 : 0);
    }
    appState.dateSerial = modUTILS::ToInt16(day + firstDayOfYear - 1);
    appState.dateWeekday = static_cast<std::int16_t>((appState.dateSerial + 6) % 7 + 1);
}

std::string SerialToDate(std::int16_t serial) {
    appState.monthDays = daysOfMonths;

    // A year has 365.25 days on average, in quarters of a day so that nothing is rounded.
    const int yearsPassed = FloorDivide(serial * yearsPerCycle, daysPerCycle);
    const bool leapYear = yearsPassed % yearsPerCycle == 0;
    int day = serial - FloorDivide(yearsPassed * daysPerCycle, yearsPerCycle) + (leapYear ? 1 : 0);
    std::size_t month = 1;
    int limit = appState.monthDays[month];
    while (day > limit) {
        day -= limit;
        ++month;
        limit = appState.monthDays[month] + (leapYear && month == february ? 1 : 0);
    }

    const auto part = [&](int place) {
        switch (PatternLetter(place)) {
            case 'm':
                return modUTILS::ZeroPadded(static_cast<std::int64_t>(month), 2);
            case 'd':
                return modUTILS::ZeroPadded(day, 2);
            default:
                return modUTILS::ZeroPadded(firstYear + yearsPassed, 4);
        }
    };
    const std::size_t separatorPlace = FindSeparator(appState.shortDateFormat);
    const std::string separator = appState.shortDateFormat.substr(separatorPlace, 1);
    return part(0) + separator + part(1) + separator + part(2);
}

std::optional<std::chrono::year_month_day> TextToDate(std::string text) {
    DateToFileText(text);
    const auto part = [&text](int first, int width) {
        return modUTILS::ValueOf16(modUTILS::Columns(text, first, width));
    };
    const std::chrono::year_month_day date = std::chrono::year{part(7, 4)} / part(1, 2) / part(4, 2);
    return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace ballhaven
