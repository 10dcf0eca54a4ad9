#include "platform/qt/widgets/ToldOption.h"

#include "platform/qt/widgets/OptionWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace ballhaven::platform {

namespace {

class ToldOption final : public QAccessibleWidget {
  public:
    explicit ToldOption(OptionWidget& option) : QAccessibleWidget(&option, QAccessible::RadioButton) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = Option().isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == toggleAction()) {
            Option().click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

  private:
    [[nodiscard]] OptionWidget& Option() const { return static_cast<OptionWidget&>(*widget()); }
};

QAccessibleInterface* TellOf(const QString&, QObject* object) {
    auto* const option = dynamic_cast<OptionWidget*>(object);
    return option == nullptr ? nullptr : new ToldOption(*option);
}

}  // namespace

void InstallToldOptions() {
    QAccessible::installFactory(TellOf);
}

}  // namespace ballhaven::platform
