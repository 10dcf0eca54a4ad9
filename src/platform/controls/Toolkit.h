#pragma once

namespace ballhaven::platform {

class Window;

/// The widgets behind the windows: what the rest of the program asks of a toolkit as a whole.
class Toolkit {
  public:
    virtual ~Toolkit() = default;

    /// Builds the widgets of a window that is being loaded and sets `view` in it and in its controls.
    virtual void Build(Window& window) = 0;

    /// Tears the widgets of a window down, also from inside one of its handlers, and clears every `view` of it.
    virtual void TearDown(Window& window) = 0;

    /// Shows the hourglass over the whole screen, or takes it off.
    virtual void ShowHourglass(bool shown) = 0;

    /// Lets events that wait be handled.
    virtual void ProcessPendingEvents() = 0;
};

/// The toolkit at work; null where the program runs without windows.
extern Toolkit* toolkit;

}  // namespace ballhaven::platform
