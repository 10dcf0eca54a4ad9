#include "platform/qt/windows/MenuItemAction.h"

#include "platform/Guard.h"
#include "platform/qt/widgets/Conversions.h"

#include <QMenu>
#include <QMenuBar>

namespace ballhaven::platform {

MenuItemAction::MenuItemAction(MenuItem& shownItem, QObject* parent) : QAction(parent), item(shownItem) {
    item.view = this;
    setObjectName(ToQString(item.name));
    setSeparator(item.caption == "-");
    if (!isSeparator()) {
        setText(ToQString(item.caption));
    }
    setMenuRole(QAction::NoRole);
    connect(this, &QAction::triggered, this, [this] {
        if (item.view != this) {
            return;
        }
        Refresh();  // the toolkit has turned the mark over, which is for the program to do
        RunGuarded([this] {
            if (item.click) {
                item.click();
            }
        });
    });
    Refresh();
}

// An entry that can bear a mark shows an empty box without it, so only a checked one is marked as one that can.
void MenuItemAction::Refresh() {
    setEnabled(*item.enabled);
    setCheckable(*item.checked);
    setChecked(*item.checked);
}

void FillMenuBar(QMenuBar& bar, std::span<Menu* const> menus) {
    for (const Menu* menu : menus) {
        QMenu* const shown = bar.addMenu(ToQString(menu->caption));
        shown->setObjectName(ToQString(menu->name));
        for (MenuItem* item : menu->items) {
            shown->addAction(new MenuItemAction(*item, shown));
        }
    }
}

}  // namespace ballhaven::platform
