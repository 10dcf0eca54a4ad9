#pragma once

#include "platform/controls/Control.h"

#include <string>

namespace ballhaven::platform {

/// A box with a text of many lines that can be read but not changed. It shows no caret: its keys scroll the text, and
/// what the mouse has marked can be copied.
class TextArea : public Control {
  public:
    TextArea() : Control(ControlKind::TextArea) {}

    /// Lines end in a carriage return and a line feed. One that is wider than the box goes on below.
    Property<std::string> text{*this};

    Property<int> fontHeight{*this, 11};  ///< in pixels
};

}  // namespace ballhaven::platform
