#include "platform/controls/Toolkit.h"

#include "platform/controls/Window.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(Toolkit, IsNoneBeforeOneHasBeenSetUp) {
    EXPECT_EQ(toolkit, nullptr);
}

TEST(Toolkit, IsNotNeededToLoadAndUnloadAWindow) {
    Window window;
    window.Load();
    EXPECT_TRUE(window.IsLoaded());
    EXPECT_EQ(window.view, nullptr);
    window.Unload();
    EXPECT_FALSE(window.IsLoaded());
}

}  // namespace
}  // namespace ballhaven::platform
