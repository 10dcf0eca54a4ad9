#include "platform/qt/windows/WindowRole.h"

#include "platform/qt/windows/WindowWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace ballhaven::platform {

namespace {

class ToldWindow final : public QAccessibleWidget {
  public:
    explicit ToldWindow(WindowWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
    }
};

QAccessibleInterface* TellOf(const QString&, QObject* object) {
    auto* const window = dynamic_cast<WindowWidget*>(object);
    return window == nullptr ? nullptr : new ToldWindow(*window);
}

}  // namespace

void InstallWindowRoles() {
    QAccessible::installFactory(TellOf);
}

}  // namespace ballhaven::platform
