#include "platform/qt/windows/QtToolkit.h"

#include "platform/controls/Window.h"
#include "platform/qt/windows/WindowWidget.h"

#include <QApplication>
#include <QWindow>

#include <algorithm>

namespace ballhaven::platform {

namespace {

bool IsAnyWindowOnScreen() {
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), &QWindow::isExposed);
}

}  // namespace

void QtToolkit::Build(Window& window) {
    window.view = new WindowWidget(window, activations);
}

void QtToolkit::TearDown(Window& window) {
    auto* const widget = static_cast<WindowWidget*>(window.view);
    widget->TearDown();
    if (processing) {
        tornDown.push_back(widget);
    } else {
        widget->deleteLater();
    }
}

// Before there is a window nobody would see the hourglass, and the shapes of a pointer take long to read.
void QtToolkit::ShowHourglass(bool shown) {
    if (shown == hourglassShown || (shown && !IsAnyWindowOnScreen())) {
        return;
    }
    hourglassShown = shown;
    if (shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

// A window that is torn down meanwhile is not deleted yet: the handler that lets the events run may be one of its own.
void QtToolkit::ProcessPendingEvents() {
    const bool outermost = !processing;
    processing = true;
    QCoreApplication::processEvents();
    if (outermost) {
        processing = false;
        for (QObject* widget : tornDown) {
            widget->deleteLater();
        }
        tornDown.clear();
    }
}

}  // namespace ballhaven::platform
