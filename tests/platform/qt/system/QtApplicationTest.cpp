#include "platform/qt/system/QtApplication.h"

#include "platform/controls/Toolkit.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

// The tests run within an application; there can be only one in a process.

TEST(QtApplication, SetsTheToolkitUpWithTheProgramsNameAndPictures) {
    EXPECT_NE(toolkit, nullptr);
    EXPECT_EQ(QApplication::applicationName(), QStringLiteral("Ballhaven"));
    EXPECT_EQ(QApplication::desktopFileName(), QStringLiteral("ballhaven"));
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/pictures/1/print.argb")));
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

}  // namespace
}  // namespace ballhaven::platform
