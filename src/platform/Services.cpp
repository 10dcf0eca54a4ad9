#include "platform/Services.h"

#include <array>

namespace ballhaven::platform {

Services services;

std::string EnglishMonthName(std::chrono::month month) {
    constexpr std::array names = {"January", "February", "March",     "April",   "May",      "June",
                                  "July",    "August",   "September", "October", "November", "December"};
    return names.at(static_cast<unsigned>(month) - 1);
}

std::string EnglishShortDayName(std::chrono::weekday day) {
    constexpr std::array names = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    return names.at(day.c_encoding());
}

}  // namespace ballhaven::platform
