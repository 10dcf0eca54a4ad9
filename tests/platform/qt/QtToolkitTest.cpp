#include "platform/qt/QtToolkit.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "platform/Application.h"
#include "platform/Pointer.h"

namespace ballhaven::platform {
namespace {

TEST(QtToolkit, TheHourglassDoesNotNest) {
    ShowHourglass();
    ShowHourglass();
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);

    ShowArrow();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtToolkit, TheArrowOverTheArrowChangesNothing) {
    ShowArrow();

    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtToolkit, PendingEventsAreHandledOnTheSpot) {
    bool handled = false;
    QMetaObject::invokeMethod(
        qApp, [&] { handled = true; }, Qt::QueuedConnection);
    ProcessPendingEvents();

    EXPECT_TRUE(handled);
}

}  // namespace
}  // namespace ballhaven::platform
