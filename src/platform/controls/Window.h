#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Menu.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ballhaven::platform {

class Window;

/// Whether a window has its own size, an icon's or the whole screen's.
enum class WindowState { Normal, Minimised, Maximised };

/// An outer size, in twips; a measure of 0 sets no limit.
struct SizeLimit {
    int width = 0;
    int height = 0;
};

/// The place of a window's left top corner on the screen, in twips.
struct WindowPlace {
    int left = 0;
    int top = 0;
};

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

    virtual void SetState(WindowState state) = 0;
    [[nodiscard]] virtual WindowState State() const = 0;
};

/// A window: a title, menus, controls and handlers. Loading it runs the layout, builds its widgets if there is a
/// toolkit, and runs `load`. Without a toolkit it works as a value.
class Window : public Shown {
  public:
    /// What a frame with a title bar and a menu bar takes of the outer size, in twips. The window's own frame on the
    /// desktop at hand may be of another size; the program reckons with this one everywhere.
    static constexpr int frameWidth = 120;
    static constexpr int frameHeight = 810;
    static constexpr int frameHeightWithoutMenu = 405;

    /// Loads the window if it is not loaded. Runs `layout`, then `load`.
    void Load();
    [[nodiscard]] bool IsLoaded() const { return loaded; }

    /// Loads the window if needed and shows it.
    void Show();
    void ShowModal();
    void ShowInFront();
    void RepaintNow();

    /// Normal until a window is loaded, and again when it is loaded anew.
    void SetState(WindowState state);
    [[nodiscard]] WindowState State() const;

    /// Runs `unload` and tears the window down; a window that is not loaded stays so. It may be called from inside one
    /// of the window's own handlers.
    void Unload();

    /// Sets the outer size, in twips. Raises `resize`.
    void Resize(int outerWidth, int outerHeight);

    /// The outer size as it is, in twips.
    [[nodiscard]] int Width() const { return *outerWidth; }
    [[nodiscard]] int Height() const { return *outerHeight; }

    /// Moves the left top corner to a place of the screen, in twips; a window that is not loaded opens there the next
    /// time. One that is never moved is placed by the desktop, and is at 0, 0 before.
    void MoveTo(int left, int top);
    [[nodiscard]] int Left() const;
    [[nodiscard]] int Top() const;

    /// The user's change of the outer size, in twips, for the widget. Raises `resize`.
    void ResizeByUser(int width, int height);

    std::string name;
    Property<std::string> title{*this};

    /// A window that is switched off takes neither mouse nor keys, and does not close by its close box.
    Property<bool> enabled{*this, true};

    /// What the frame takes of the outer height, in twips. Fixed by the layout, as what follows is.
    int frame = frameHeight;

    /// The user can neither resize nor maximise the window.
    bool fixedSize = false;
    SizeLimit smallestSize;
    SizeLimit largestSize;

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

    /// The window has lost the keyboard, to whatever other window.
    Handler deactivate;
    Handler resize;

    /// The Escape key where the control that has the keyboard has no use for it.
    Handler escape;

    /// The window is about to close, in whatever way.
    Handler unload;

  private:
    [[nodiscard]] WindowView* Widgets() const { return static_cast<WindowView*>(view); }

    Property<int> outerWidth{*this, 0};
    Property<int> outerHeight{*this, 0};
    std::optional<WindowPlace> openingPlace;  ///< set while the window is not loaded
    bool loaded = false;
};

}  // namespace ballhaven::platform
