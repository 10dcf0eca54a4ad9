#include "platform/controls/DrawingSurface.h"

#include <algorithm>

namespace ballhaven::platform {

namespace {

constexpr int plainCharacterWidth = 7;
constexpr int plainCharacterHeight = 15;

}  // namespace

void DrawingSurface::Repaint() {
    if (view != nullptr) {
        Widget()->Repaint();
    }
}

int DrawingSurface::TextWidth(std::string_view text) const {
    return view != nullptr ? Widget()->TextWidth(text) : plainCharacterWidth * static_cast<int>(text.size());
}

int DrawingSurface::TextHeight() const {
    return view != nullptr ? Widget()->TextHeight() : plainCharacterHeight;
}

void DrawingSurface::DrawFocusRect(const PixelRect& area) {
    const auto shown = std::find(focusRects.begin(), focusRects.end(), area);
    if (shown != focusRects.end()) {
        focusRects.erase(shown);
    } else {
        focusRects.push_back(area);
    }
    Repaint();
}

}  // namespace ballhaven::platform
