#include "platform/process/LocalTime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace ballhaven::platform {
namespace {

/// A time zone within its scope.
class ZoneScope {
  public:
    explicit ZoneScope(const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
    }
    ZoneScope(const ZoneScope&) = delete;
    ZoneScope& operator=(const ZoneScope&) = delete;
    ~ZoneScope() {
        unsetenv("TZ");
        tzset();
    }
};

TEST(LocalTimeTest, IsTheTimeOfTheUsersZone) {
    const auto timeIn = [](const char* zone) {
        const ZoneScope scope(zone);
        return CurrentLocalTime();
    };
    const auto universal = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto east = timeIn("EAST-05:30");
    const auto difference = east.time_since_epoch() - universal.time_since_epoch();
    EXPECT_GE(difference, std::chrono::minutes{330});
    EXPECT_LT(difference, std::chrono::minutes{331});
}

}  // namespace
}  // namespace ballhaven::platform
