#include "support/qt/TestWindow.h"

#include "platform/controls/Toolkit.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTest>

namespace ballhaven::support {

using platform::Window;

TestWindow::TestWindow(std::initializer_list<platform::Control*> controls) : parts(controls) {
    window.name = "frmTest";
    window.title = "Test";
    window.layout = [this] {
        window.controls = parts;
        window.Resize(clientWidth + Window::frameWidth, clientHeight + Window::frameHeight);
    };
}

TestWindow::~TestWindow() {
    window.unload = nullptr;
    window.Unload();
    if (window.view != nullptr) {
        platform::toolkit->TearDown(window);  // left by an `unload` that failed, which would have ended the process
    }
    Settle();
}

void TestWindow::Show() {
    window.Show();
    ASSERT_NE(Widget(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Widget()));
    Settle();
}

void Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace ballhaven::support
