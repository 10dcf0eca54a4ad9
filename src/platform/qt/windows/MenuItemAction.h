#pragma once

#include "platform/controls/Menu.h"

#include <QAction>

#include <span>

class QMenuBar;

namespace ballhaven::platform {

/// Shows an entry of a menu; a checked one bears a mark.
class MenuItemAction final : public QAction, public View {
  public:
    MenuItemAction(MenuItem& shownItem, QObject* parent);
    void Refresh() override;

  private:
    MenuItem& item;
};

/// Fills a menu bar with menus and their entries, and sets `view` in the entries.
void FillMenuBar(QMenuBar& bar, std::span<Menu* const> menus);

}  // namespace ballhaven::platform
