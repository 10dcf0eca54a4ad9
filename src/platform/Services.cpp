#include "platform/Services.h"

#include "platform/Chance.h"

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

float DrawByChance() {
    static Chance chance;
    chance.Reseed(static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
    return chance.Next();
}

}  // namespace ballhaven::platform
