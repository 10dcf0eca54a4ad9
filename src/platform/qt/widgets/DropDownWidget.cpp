#include "platform/qt/widgets/DropDownWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QSignalBlocker>
#include <QWheelEvent>

namespace ballhaven::platform {

namespace {

constexpr int entriesInSight = 20;

}  // namespace

DropDownWidget::DropDownWidget(DropDownList& shownList, QWidget* parent)
    : ControlWidget(shownList, parent), list(shownList) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(entriesInSight);
    connect(this, &QComboBox::activated, this, [this](int entry) { Report([&] { list.SelectByUser(entry); }); });
    Refresh();
}

void DropDownWidget::Refresh() {
    const QSignalBlocker quiet(this);
    ShowCommon(list, *this);
    if (!ShowsTheEntries()) {
        clear();
        for (const std::string& entry : list.Entries()) {
            addItem(ToQString(entry));
        }
    }
    setCurrentIndex(list.Selected());
}

bool DropDownWidget::ShowsTheEntries() const {
    const std::vector<std::string>& entries = list.Entries();
    if (count() != static_cast<int>(entries.size())) {
        return false;
    }
    for (int index = 0; index < count(); ++index) {
        if (itemText(index) != ToQString(entries[static_cast<std::size_t>(index)])) {
            return false;
        }
    }
    return true;
}

// A wheel that turns over a list on its way to something else must not choose another game.
void DropDownWidget::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace ballhaven::platform
