#include "platform/CloseDown.h"

#include "platform/Boxes.h"
#include "platform/Guard.h"
#include "platform/Services.h"
#include "platform/controls/Toolkit.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace ballhaven::platform {
namespace {

/// A toolkit that must not be asked for anything.
class LostToolkit final : public Toolkit {
  public:
    void Build(Window&) override { ADD_FAILURE(); }
    void TearDown(Window&) override { ADD_FAILURE(); }
    void ShowHourglass(bool) override { ADD_FAILURE(); }
    void ProcessPendingEvents() override { ADD_FAILURE(); }
};

class ClosingDown : public ::testing::Test {
  protected:
    void SetUp() override {
        services = Services{};
        services.endProcess = [this](int exitCode) { steps.push_back("end " + std::to_string(exitCode)); };
        services.showMessageBox = [this](const MessageBoxRequest& request) {
            steps.push_back("box " + request.text);
            return BoxAnswer::Ok;
        };
        closeDownNotices.save = [this] { steps.emplace_back("save"); };
        closeDownNotices.close = [this] { steps.emplace_back("close"); };
    }

    void TearDown() override {
        services = Services{};
        closeDownNotices = {};
        toolkit = nullptr;
    }

    std::vector<std::string> steps;
};

TEST_F(ClosingDown, BeforeTheEndTheProgramSavesAndGoesOn) {
    SaveBeforeTheEnd();
    EXPECT_EQ(steps, (std::vector<std::string>{"save"}));
}

TEST_F(ClosingDown, InOrderTheProgramClosesAndTheProcessEnds) {
    CloseInOrder();
    EXPECT_EQ(steps, (std::vector<std::string>{"close", "end 0"}));
}

TEST_F(ClosingDown, AFailureOfTheCloseIsToldAndEndsTheProcess) {
    closeDownNotices.close = [] { throw std::runtime_error("no room"); };
    CloseInOrder();
    ASSERT_GE(steps.size(), 2U);
    EXPECT_EQ(steps[0].substr(0, 4), "box ");
    EXPECT_EQ(steps[1], "end 1");
}

TEST_F(ClosingDown, WhileAFailureIsToldNothingIsSavedAndTheProcessEnds) {
    services.showMessageBox = [](const MessageBoxRequest&) {
        CloseInOrder();
        return BoxAnswer::Ok;
    };
    RunGuarded([] { throw std::runtime_error("failure"); });
    EXPECT_EQ(steps.front(), "end 0");
}

TEST_F(ClosingDown, BeforeTheProgramHasHungAnythingHereTheProcessJustEnds) {
    closeDownNotices = {};
    SaveBeforeTheEnd();
    CloseInOrder();
    EXPECT_EQ(steps, (std::vector<std::string>{"end 0"}));
}

TEST_F(ClosingDown, WithoutAScreenTheProgramSavesWithoutTouchingIt) {
    LostToolkit lost;
    toolkit = &lost;
    closeDownNotices.save = [this] {
        const bool answer = Ask("Try again?");
        steps.emplace_back(answer ? "again" : "given up");
        EXPECT_EQ(toolkit, nullptr);
    };
    CloseWithoutAScreen();
    EXPECT_EQ(steps, (std::vector<std::string>{"given up", "end 1"}));
}

}  // namespace
}  // namespace ballhaven::platform
