#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/Control.h"
#include "platform/controls/Controls.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::platform {

/// A place in pixels of scale 1 from the top left corner of a surface.
struct PixelPoint {
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// The edges of an area, in pixels.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    /// Whether a place lies in the area, all four edges included.
    [[nodiscard]] bool Holds(PixelPoint place) const {
        return left <= place.x && place.x <= right && top <= place.y && place.y <= bottom;
    }

    bool operator==(const PixelRect&) const = default;
};

/// What the program draws on, in pixels of scale 1.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// A line that lies or stands straight. The pixel at its end is not drawn.
    virtual void DrawLine(PixelPoint from, PixelPoint to, const Color& color) = 0;
    virtual void FillBox(PixelPoint corner, int width, int height, const Color& color) = 0;
    virtual void DrawPixel(PixelPoint place, const Color& color) = 0;

    /// A line of text in the surface's font, whose cell has its top left corner at a place.
    virtual void DrawText(PixelPoint corner, std::string_view text, const Color& color) = 0;
};

/// The keys that a surface's owner may serve; all others are told as one.
enum class SurfaceKey { Escape, Other };

/// A part of what is drawn that assistive tools are told of as of a cell.
struct SurfaceCell {
    PixelRect place;
    std::string name;
    bool selected = false;
};

/// What a surface's widget can do besides showing it.
class DrawingSurfaceView : public ControlView {
  public:
    virtual void Repaint() = 0;
    [[nodiscard]] virtual int TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual int TextHeight() const = 0;
};

/// A control on which the program draws itself and whose mouse and keys it serves itself.
class DrawingSurface : public Control {
  public:
    DrawingSurface() : Control(ControlKind::DrawingSurface) {}

    /// Has everything drawn anew.
    void Repaint();

    /// Width and height of a text in the surface's font, in pixels. Without a window all characters are 7 wide and 15
    /// high.
    [[nodiscard]] int TextWidth(std::string_view text) const;
    [[nodiscard]] int TextHeight() const;

    /// Inverts a dotted frame straight on the screen, over what `paint` draws: the first call shows it, a second one
    /// with the same area takes it off. Its right and bottom edge lie one pixel before those of the area.
    void DrawFocusRect(const PixelRect& area);
    [[nodiscard]] const std::vector<PixelRect>& FocusRects() const { return focusRects; }

    Property<int> fontHeight{*this, 11};  ///< in pixels

    /// Draws everything that is to be seen, on a ground of the colour of the window.
    std::function<void(Canvas& canvas)> paint;

    /// The parts of what is drawn, for assistive tools; none where it has no such parts.
    std::function<std::vector<SurfaceCell>()> cells;

    /// The mouse, with the surface as its captor from a press to the release. A second press in quick succession is a
    /// press like any other. A move says whether the left button is held.
    std::function<void(MouseButton button, PixelPoint place)> mouseDown;
    std::function<void(bool leftHeld, PixelPoint place)> mouseMove;
    std::function<void(MouseButton button, PixelPoint place)> mouseUp;

    /// A key going down; true when it has been served.
    std::function<bool(SurfaceKey key)> keyDown;

    /// Takes a text for the surface, which has none of its own; empty where it takes none.
    std::function<void(const std::string& text)> takeText;

  private:
    [[nodiscard]] DrawingSurfaceView* Widget() const { return static_cast<DrawingSurfaceView*>(view); }

    std::vector<PixelRect> focusRects;
};

}  // namespace ballhaven::platform
