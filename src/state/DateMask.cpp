#include "state/DateMask.h"

#include "platform/Services.h"
#include "state/modUTILS.h"

#include <algorithm>

namespace ballhaven {

namespace {

using std::chrono::year_month_day;

bool IsSeparator(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 'A' || (code > 'Z' && code < 'a') || code > 'z';
}

std::string PartOf(std::string_view pattern, std::size_t position) {
    const char letter = position < pattern.size() ? pattern[position] : '\0';
    if (letter == 'm') {
        return "mm";
    }
    return letter == 'd' ? "dd" : "yyyy";
}

int Number(unsigned value) {
    return static_cast<int>(value);
}

/// What a run of one letter in a mask stands for; the run itself where it stands for nothing.
std::string TextOfRun(std::string_view run, year_month_day date) {
    const int month = Number(static_cast<unsigned>(date.month()));
    const int day = Number(static_cast<unsigned>(date.day()));
    const int year = static_cast<int>(date.year());
    if (run == "m") {
        return std::to_string(month);
    }
    if (run == "mm") {
        return modUTILS::ZeroPadded(month, 2);
    }
    if (run == "mmmm") {
        return platform::services.monthName(date.month());
    }
    if (run == "d") {
        return std::to_string(day);
    }
    if (run == "dd") {
        return modUTILS::ZeroPadded(day, 2);
    }
    if (run == "yy") {
        return modUTILS::ZeroPadded(year, 2);
    }
    if (run == "yyyy") {
        return modUTILS::ZeroPadded(year, 4);
    }
    return std::string(run);
}

}  // namespace

std::string DateMaskOf(std::string_view pattern) {
    const auto found = std::find_if(pattern.begin(), pattern.end(), IsSeparator);
    const std::string separator = found == pattern.end() ? std::string() : std::string(1, *found);
    return PartOf(pattern, 0) + separator + PartOf(pattern, 2) + separator + PartOf(pattern, 4);
}

std::string FormatDate(year_month_day date, std::string_view mask) {
    std::string text;
    while (!mask.empty()) {
        const std::size_t length = std::min(mask.find_first_not_of(mask.front()), mask.size());
        text += TextOfRun(mask.substr(0, length), date);
        mask.remove_prefix(length);
    }
    return text;
}

}  // namespace ballhaven
