#include "platform/controls/LayoutTable.h"

namespace ballhaven::platform {

std::string NameWithIndex(const char* name, int index) {
    return index < 0 ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")";
}

void PlaceControls(Window& window, std::span<const PlacedControl> rows) {
    for (const PlacedControl& row : rows) {
        row.control.name = NameWithIndex(row.name, row.index);
        row.control.container = row.container;
        row.control.bounds = row.bounds;
        row.control.accessibleName = row.accessibleName;
        window.controls.push_back(&row.control);
    }
}

void SetTexts(std::span<const ControlText> rows) {
    for (const ControlText& row : rows) {
        row.property = row.text;
    }
}

void PlaceMenus(Window& window, std::span<const PlacedMenu> menus, std::span<const PlacedMenuItem> items) {
    for (const PlacedMenu& row : menus) {
        row.menu.name = row.name;
        row.menu.caption = row.caption;
        row.menu.items.clear();
        window.menus.push_back(&row.menu);
    }
    for (const PlacedMenuItem& row : items) {
        row.item.name = NameWithIndex(row.name, row.index);
        row.item.caption = row.caption;
        row.menu.items.push_back(&row.item);
    }
}

}  // namespace ballhaven::platform
