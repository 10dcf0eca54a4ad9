#pragma once

#include "platform/controls/Property.h"

#include <functional>
#include <string>
#include <vector>

namespace ballhaven::platform {

/// An entry of a menu. "&" before a letter of its caption marks the access key; the caption "-" makes it a separator.
class MenuItem : public Shown {
  public:
    std::string name;
    std::string caption;
    Property<bool> enabled{*this, true};
    Property<bool> checked{*this, false};
    std::function<void()> click;
};

/// A menu of a window's menu bar.
class Menu {
  public:
    std::string name;
    std::string caption;
    std::vector<MenuItem*> items;  ///< from top to bottom. Fixed by the layout
};

}  // namespace ballhaven::platform
