#include "platform/controls/CheckBox.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(TheCheckBox, OpensCleared) {
    EXPECT_FALSE(CheckBox().IsTicked());
}

TEST(TheCheckBox, RaisesANoticeWhenTheProgramChangesItAndOnlyThen) {
    CheckBox box;
    std::vector<bool> ticks;
    box.click = [&] { ticks.push_back(box.IsTicked()); };
    box.Tick(false);
    box.Tick(true);
    box.Tick(true);
    box.Tick(false);

    EXPECT_EQ(ticks, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace ballhaven::platform
