#include "platform/qt/windows/QtToolkit.h"

#include "platform/Application.h"
#include "platform/controls/Toolkit.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(QtToolkit, ThereIsNoHourglassBeforeThereIsAWindow) {
    toolkit->ShowHourglass(true);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    toolkit->ShowHourglass(false);
}

TEST(QtToolkit, TheHourglassIsShownOnceHoweverOftenItIsAskedFor) {
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    toolkit->ShowHourglass(true);
    toolkit->ShowHourglass(true);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);

    toolkit->ShowHourglass(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    toolkit->ShowHourglass(false);
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
