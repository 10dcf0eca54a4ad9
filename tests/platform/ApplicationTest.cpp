#include "platform/Application.h"

#include "platform/Services.h"
#include "support/PointerKeeper.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven::platform {
namespace {

TEST(Application, IsCalledBallhavenUntilItsTitleIsSet) {
    EXPECT_EQ(ApplicationTitle(), "Ballhaven");
    SetApplicationTitle("!@#$%^&");
    EXPECT_EQ(ApplicationTitle(), "!@#$%^&");
    SetApplicationTitle("Ballhaven");
}

TEST(Application, EndsThroughTheServicesWithItsExitCode) {
    const Services before = services;
    std::vector<int> exitCodes;
    services.endProcess = [&exitCodes](int exitCode) { exitCodes.push_back(exitCode); };
    EndProcess();
    EndProcess(1);
    services = before;

    EXPECT_EQ(exitCodes, (std::vector<int>{0, 1}));
}

TEST(ApplicationDeathTest, EndsTheProcessItselfWhereNobodyElseDoes) {
    EXPECT_EXIT(
        {
            services.endProcess = nullptr;
            EndProcess(3);
        },
        testing::ExitedWithCode(3), "");
}

/// A toolkit that counts how often pending events are handled.
class EventCounter final : public support::PointerKeeper {
  public:
    void ProcessPendingEvents() override { ++times; }

    int times = 0;
};

TEST(Application, PendingEventsAreTheToolkits) {
    ProcessPendingEvents();  // without a toolkit there are none
    EventCounter events;
    ProcessPendingEvents();

    EXPECT_EQ(events.times, 1);
}

}  // namespace
}  // namespace ballhaven::platform
