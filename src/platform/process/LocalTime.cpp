#include "platform/process/LocalTime.h"

#include <ctime>

namespace ballhaven::platform {

std::chrono::local_seconds CurrentLocalTime() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    constexpr int firstYear = 1900;
    const auto date = std::chrono::year{parts.tm_year + firstYear} / (parts.tm_mon + 1) / parts.tm_mday;
    return std::chrono::local_days{date} + std::chrono::hours{parts.tm_hour} + std::chrono::minutes{parts.tm_min} +
           std::chrono::seconds{parts.tm_sec};
}

}  // namespace ballhaven::platform
