#pragma once

#include "platform/controls/Controls.h"

namespace ballhaven::platform {

/// A box that is ticked or not.
class CheckBox : public Control {
  public:
    CheckBox() : Control(ControlKind::CheckBox) {}

    [[nodiscard]] bool IsTicked() const { return ticked; }

    /// Ticks the box, or clears it. Raises `click` when that changes it.
    void Tick(bool wanted);

    Property<std::string> caption{*this};

    /// The box has been ticked or cleared, by the user or by the program.
    Handler click;

  private:
    bool ticked = false;
};

}  // namespace ballhaven::platform
