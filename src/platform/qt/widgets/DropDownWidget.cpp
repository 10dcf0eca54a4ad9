#include "platform/qt/widgets/DropDownWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace ballhaven::platform {

namespace {

constexpr int entriesInSight = 20;
constexpr int textMargin = 1;  // of the style, at both ends of the text

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

// The style's own drawing cuts a long entry off in the middle of a letter.
void DropDownWidget::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox look;
    initStyleOption(&look);
    const QRect place = style()->subControlRect(QStyle::CC_ComboBox, &look, QStyle::SC_ComboBoxEditField, this);
    look.currentText = fontMetrics().elidedText(look.currentText, Qt::ElideRight, place.width() - 2 * textMargin);
    painter.drawComplexControl(QStyle::CC_ComboBox, look);
    painter.drawControl(QStyle::CE_ComboBoxLabel, look);
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
