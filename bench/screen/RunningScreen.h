#pragma once

#include <QString>
#include <QWidget>

namespace ballhaven::platform {
class Control;
class Window;
}  // namespace ballhaven::platform

namespace ballhaven::bench {

/// Starts the program on the games of the benchmarks, with its main window open on the first of them; only once.
void StartOnScreen();

/// The widget of an open window by its name, which must be there.
[[nodiscard]] QWidget& WidgetOf(const platform::Window& window, const QString& name);

/// Presses and releases a key where the keyboard is, and draws what comes of it.
void Press(int key, const QString& text = {});

}  // namespace ballhaven::bench
