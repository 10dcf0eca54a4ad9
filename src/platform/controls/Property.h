#pragma once

#include <utility>

namespace ballhaven::platform {

/// The widget that shows a value of the program while that value's window is loaded.
class View {
  public:
    virtual ~View() = default;

    /// Takes over everything that the shown value says of itself.
    virtual void Refresh() = 0;
};

/// Something that may be on screen: it tells its view, if it has one, of every change.
class Shown {
  public:
    Shown() = default;
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    void ShowChange() const {
        if (view != nullptr) {
            view->Refresh();
        }
    }

    /// Set by the toolkit while the window is loaded, else null.
    View* view = nullptr;
};

/// A value of a shown thing: assigning another one shows the change at once.
template <typename Value>
class Property {
  public:
    explicit Property(const Shown& shown, Value initial = {}) : owner(shown), value(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    Property& operator=(Value newValue) {
        if (!(value == newValue)) {
            value = std::move(newValue);
            owner.ShowChange();
        }
        return *this;
    }

    /// Takes over what the user did in the widget, which shows it already.
    void SetQuietly(Value newValue) { value = std::move(newValue); }

    operator const Value&() const { return value; }
    const Value& operator*() const { return value; }
    const Value* operator->() const { return &value; }

  private:
    const Shown& owner;
    Value value;
};

}  // namespace ballhaven::platform
