#include "platform/qt/QtToolkit.h"

#include <QApplication>

#include "platform/Window.h"
#include "platform/qt/WindowWidget.h"

namespace ballhaven::platform {

void QtToolkit::Build(Window& window) {
    window.view = new WindowWidget(window, activations);
}

void QtToolkit::TearDown(Window& window) {
    static_cast<WindowWidget*>(window.view)->TearDown();
}

void QtToolkit::ShowHourglass(bool shown) {
    if (shown == hourglassShown) {
        return;
    }
    hourglassShown = shown;
    if (shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtToolkit::ProcessPendingEvents() {
    QCoreApplication::processEvents();
}

}  // namespace ballhaven::platform
