#include "platform/qt/system/QtApplication.h"

#include "platform/controls/Toolkit.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <gtest/gtest.h>

#include <cstdlib>

namespace ballhaven::platform {
namespace {

// The tests run within an application; there can be only one in a process.

TEST(QtApplication, SetsTheToolkitUpWithTheProgramsNameAndPictures) {
    EXPECT_NE(toolkit, nullptr);
    EXPECT_EQ(QApplication::applicationName(), QStringLiteral("Ballhaven"));
    EXPECT_EQ(QApplication::desktopFileName(), QStringLiteral("ballhaven"));
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/pictures/1/print.argb")));
}

// Pictures take their time: the first window does not wait for them.
TEST(QtApplicationDeathTest, TakesItsIconOnceEventsAreServed) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // in a process that begins anew
    EXPECT_EXIT(std::_Exit(QApplication::windowIcon().isNull() ? 0 : 1), testing::ExitedWithCode(0), "");
    QApplication::processEvents();
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

}  // namespace
}  // namespace ballhaven::platform
