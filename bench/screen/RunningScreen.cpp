#include "bench/screen/RunningScreen.h"

#include "bench/BenchGames.h"
#include "platform/Services.h"
#include "platform/controls/Window.h"
#include "start/Start.h"

#include <QApplication>
#include <QKeyEvent>

#include <stdexcept>

namespace ballhaven::bench {

namespace {

bool Start() {
    platform::services.executableDirectory = [] { return GamesDirectory(); };
    platform::services.endProcess = [](int) {};
    StartProgram();
    QApplication::processEvents();
    return true;
}

}  // namespace

void StartOnScreen() {
    [[maybe_unused]] static const bool started = Start();
}

QWidget& WidgetOf(const platform::Window& window, const QString& name) {
    const auto* const parent = dynamic_cast<QWidget*>(window.view);
    auto* const widget = parent == nullptr ? nullptr : parent->findChild<QWidget*>(name);
    if (widget == nullptr) {
        throw std::runtime_error("no such widget: " + name.toStdString());
    }
    return *widget;
}

void Press(int key, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QApplication::processEvents();
}

}  // namespace ballhaven::bench
