#pragma once

#include "platform/controls/Window.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace ballhaven::support {

/// A window on screen for tests of its widgets; gone with its widgets when it ends. Its client area is 400 by 300
/// pixels.
class TestWindow {
  public:
    static constexpr int clientWidth = 6000;   ///< twips
    static constexpr int clientHeight = 4500;  ///< twips

    explicit TestWindow(std::initializer_list<platform::Control*> controls);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    /// Shows the window, and waits until it is active.
    void Show();

    /// The window's own widget, null when it is not loaded.
    [[nodiscard]] QWidget* Widget() const { return dynamic_cast<QWidget*>(window.view); }

    /// The widget or other object of a name; a failure of the test and null where there is none.
    template <typename Object = QWidget>
    [[nodiscard]] Object* Find(const char* name) const {
        auto* const found = Widget() == nullptr ? nullptr : Widget()->findChild<Object*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    platform::Window window;

  private:
    std::vector<platform::Control*> parts;
};

/// Lets everything happen that waits, deletions too.
void Settle();

}  // namespace ballhaven::support
