#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Menu.h"

#include <functional>
#include <string>
#include <vector>

namespace ballhaven::platform {

class Window;

/// The widgets of a loaded window. Destroying it tears them down.
class WindowView : public View {
  public:
    virtual void Show() = 0;

    /// Shows the window above all others of the program, and returns when it has closed.
    virtual void ShowModal() = 0;

    /// Restores the window from a minimised state and brings it before all others.
    virtual void ShowInFront() = 0;

    /// Draws at once what waits to be drawn.
    virtual void RepaintNow() = 0;

    /// Moves the window's left top corner to a place of the screen, in twips.
    virtual void MoveTo(int left, int top) = 0;
    [[nodiscard]] virtual int Left() const = 0;
    [[nodiscard]] virtual int Top() const = 0;
};

/// A window: a title, menus, controls and handlers. Loading it runs the layout, builds its widgets if there is a
/// toolkit, and runs `load`. Without a toolkit it works as a value.
class Window : public Shown {
  public:
    /// What a frame with a title bar and a menu bar takes of the outer size, in twips. The window's own frame on the
    /// desktop at hand may be of another size; the program reckons with this one everywhere.
    static constexpr int frameWidth = 120;
    static constexpr int frameHeight = 810;

    /// Loads the window if it is not loaded. Runs `layout`, then `load`.
    void Load();
    [[nodiscard]] bool IsLoaded() const { return loaded; }

    /// Loads the window if needed and shows it.
    void Show();
    void ShowModal();
    void ShowInFront();
    void RepaintNow();

    /// Runs `unload` and tears the window down; a window that is not loaded stays so. It may be called from inside one
    /// of the window's own handlers.
    void Unload();

    /// Sets the outer size, in twips. Raises `resize`.
    void Resize(int outerWidth, int outerHeight);

    /// The outer size as it is, in twips.
    [[nodiscard]] int Width() const { return *outerWidth; }
    [[nodiscard]] int Height() const { return *outerHeight; }

    /// Moves the left top corner to a place of the screen, in twips. A window that is not loaded has none: it stays at
    /// 0, 0.
    void MoveTo(int left, int top);
    [[nodiscard]] int Left() const;
    [[nodiscard]] int Top() const;

    /// The user's change of the outer size, in twips, for the widget. Raises `resize`.
    void ResizeByUser(int width, int height);

    std::string name;
    Property<std::string> title{*this};

    /// In the order of the keyboard, and from back to front. Fixed by the layout.
    std::vector<Control*> controls;
    std::vector<Menu*> menus;
    std::vector<Timer*> timers;

    /// Places the controls; runs before the widgets are built.
    Handler layout;
    Handler load;

    /// The window is shown for the first time, or becomes active from another window of the program. Message boxes and
    /// other programs do not count.
    Handler activate;
    Handler resize;

    /// The window is about to close, in whatever way.
    Handler unload;

  private:
    [[nodiscard]] WindowView* Widgets() const { return static_cast<WindowView*>(view); }

    Property<int> outerWidth{*this, 0};
    Property<int> outerHeight{*this, 0};
    bool loaded = false;
};

}  // namespace ballhaven::platform
