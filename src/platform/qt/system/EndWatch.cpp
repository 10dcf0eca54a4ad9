#include "platform/qt/system/EndWatch.h"

#include "platform/CloseDown.h"
#include "platform/process/Signals.h"

#include <QEvent>
#include <QGuiApplication>

#include <cstdlib>

namespace ballhaven::platform {

namespace {

/// Whether windows are on a display: the toolkit ends the process by itself when that goes.
bool displayInUse = false;

void FollowTheDisplay() {
    if (displayInUse) {
        displayInUse = false;
        CloseWithoutAScreen();
    }
}

}  // namespace

EndWatch::EndWatch(QGuiApplication& application) : endSignals(CatchEndSignals(), QSocketNotifier::Read) {
    connect(&endSignals, &QSocketNotifier::activated, this, [this] {
        endSignals.setEnabled(false);  // one is enough
        CloseInOrder();
    });
    connect(
        &application, &QGuiApplication::commitDataRequest, this, [] { SaveBeforeTheEnd(); }, Qt::DirectConnection);
    application.installEventFilter(this);
    displayInUse = true;
    std::atexit(FollowTheDisplay);
}

EndWatch::~EndWatch() {
    displayInUse = false;
}

// The toolkit would close one window after the other, and stop at the first that stays: a dialog is all that would go.
bool EndWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Quit) {
        return QObject::eventFilter(watched, event);
    }
    CloseInOrder();
    return true;
}

}  // namespace ballhaven::platform
