#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/Menu.h"
#include "platform/controls/Window.h"

#include <span>
#include <string>

namespace ballhaven::platform {

// A window's layout as tables of facts, and the walks that carry them out. The layouts are the program's own, so a row
// may name controls, panels and texts that live as long as the process.

/// A control and its place.
struct PlacedControl {
    Control& control;
    const char* name;
    int index;           ///< in the array of its name, -1 for a control of its own
    Control* container;  ///< the panel or frame on which it stands, null for the window itself
    Bounds bounds;       ///< within the container, in twips
    const char* accessibleName = "";
};

/// A text of a control: a caption, a tool tip, the name of a picture.
struct ControlText {
    Property<std::string>& property;
    const char* text;
};

/// A menu of the menu bar.
struct PlacedMenu {
    Menu& menu;
    const char* name;
    const char* caption;
};

/// An entry of a menu; "-" makes it a separator.
struct PlacedMenuItem {
    Menu& menu;
    MenuItem& item;
    const char* name;
    int index;  ///< in the array of its name, -1 for an entry of its own
    const char* caption;
};

/// The name of a control with its index, such as "cboList(0)"; the name alone for an index of -1.
[[nodiscard]] std::string NameWithIndex(const char* name, int index);

/// Puts controls on a window in the order of the rows, which is that of the keyboard and from back to front. A
/// container comes before what stands on it.
void PlaceControls(Window& window, std::span<const PlacedControl> rows);

void SetTexts(std::span<const ControlText> rows);

/// Gives a window its menu bar: the menus in their order, and to each its entries in theirs.
void PlaceMenus(Window& window, std::span<const PlacedMenu> menus, std::span<const PlacedMenuItem> items);

}  // namespace ballhaven::platform
