#pragma once

#include "platform/controls/Control.h"

#include <string>

namespace ballhaven::platform {

/// A box with a title that carries other controls. Switched off or hidden, it takes them with it.
class Frame : public Control {
  public:
    Frame() : Control(ControlKind::Frame) {}

    Property<std::string> caption{*this};
};

}  // namespace ballhaven::platform
