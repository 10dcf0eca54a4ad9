#include "platform/controls/Window.h"

#include "platform/controls/Toolkit.h"

#include <utility>

namespace ballhaven::platform {

void Window::Load() {
    if (loaded) {
        return;
    }
    loaded = true;
    if (layout) {
        layout();
    }
    if (toolkit != nullptr) {
        toolkit->Build(*this);
    }
    if (const auto place = std::exchange(openingPlace, std::nullopt)) {
        MoveTo(place->left, place->top);
    }
    if (load) {
        load();
    }
}

void Window::Show() {
    Load();
    if (view != nullptr) {
        Widgets()->Show();
    }
}

void Window::ShowModal() {
    Load();
    if (view != nullptr) {
        Widgets()->ShowModal();
    }
}

void Window::ShowInFront() {
    Load();
    if (view != nullptr) {
        Widgets()->ShowInFront();
    }
}

void Window::RepaintNow() {
    if (view != nullptr) {
        Widgets()->RepaintNow();
    }
}

void Window::Unload() {
    if (!loaded) {
        return;
    }
    loaded = false;
    if (unload) {
        unload();
    }
    if (view != nullptr) {
        toolkit->TearDown(*this);
    }
    controls.clear();
    menus.clear();
    timers.clear();
}

void Window::Resize(int width, int height) {
    outerWidth = width;
    outerHeight = height;
    if (resize) {
        resize();
    }
}

void Window::MoveTo(int left, int top) {
    if (view != nullptr) {
        Widgets()->MoveTo(left, top);
    } else {
        openingPlace = WindowPlace{left, top};
    }
}

int Window::Left() const {
    return view != nullptr ? Widgets()->Left() : openingPlace.value_or(WindowPlace{}).left;
}

int Window::Top() const {
    return view != nullptr ? Widgets()->Top() : openingPlace.value_or(WindowPlace{}).top;
}

void Window::SetState(WindowState state) {
    if (view != nullptr) {
        Widgets()->SetState(state);
    }
}

WindowState Window::State() const {
    return view != nullptr ? Widgets()->State() : WindowState::Normal;
}

void Window::ResizeByUser(int width, int height) {
    outerWidth.SetQuietly(width);
    outerHeight.SetQuietly(height);
    if (resize) {
        resize();
    }
}

}  // namespace ballhaven::platform
