#include "platform/qt/windows/WindowRole.h"

#include "platform/controls/Controls.h"
#include "platform/controls/Window.h"
#include "support/qt/TestWindow.h"

#include <QAccessible>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

QAccessible::Role RoleOf(const Window& window) {
    return QAccessible::queryAccessibleInterface(dynamic_cast<QWidget*>(window.view))->role();
}

TEST(WindowRole, AModalWindowIsADialog) {
    Button button;
    support::TestWindow form{&button};
    QAccessible::Role role = QAccessible::NoRole;
    QTimer::singleShot(0, [&] {
        role = RoleOf(form.window);
        form.window.Unload();
    });
    form.window.ShowModal();
    EXPECT_EQ(role, QAccessible::Dialog);
}

TEST(WindowRole, AnyOtherIsAWindow) {
    Button button;
    support::TestWindow form{&button};
    form.Show();
    EXPECT_EQ(RoleOf(form.window), QAccessible::Window);
}

}  // namespace
}  // namespace ballhaven::platform
