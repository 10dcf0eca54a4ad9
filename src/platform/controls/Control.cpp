#include "platform/controls/Control.h"

namespace ballhaven::platform {

void Control::SetLeft(int left) {
    bounds = Bounds{left, bounds->top, bounds->width, bounds->height};
}

void Control::SetTop(int top) {
    bounds = Bounds{bounds->left, top, bounds->width, bounds->height};
}

void Control::SetWidth(int width) {
    bounds = Bounds{bounds->left, bounds->top, width, bounds->height};
}

void Control::SetHeight(int height) {
    bounds = Bounds{bounds->left, bounds->top, bounds->width, height};
}

void Control::TakeFocus() {
    if (view != nullptr) {
        static_cast<ControlView*>(view)->TakeFocus();
    }
}

void Control::BringToFront() {
    if (view != nullptr) {
        static_cast<ControlView*>(view)->BringToFront();
    }
}

std::optional<Bounds> Control::ScreenPlace() const {
    return view != nullptr ? std::optional(static_cast<ControlView*>(view)->ScreenPlace()) : std::nullopt;
}

}  // namespace ballhaven::platform
