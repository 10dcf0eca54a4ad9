#include "platform/qt/widgets/TextAreaWidget.h"

#include "platform/qt/widgets/Conversions.h"

namespace ballhaven::platform {

TextAreaWidget::TextAreaWidget(TextArea& shownArea, QWidget* parent)
    : ControlWidget(shownArea, parent), area(shownArea) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);  // a caret comes with the keyboard's selection alone
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Refresh();
}

void TextAreaWidget::Refresh() {
    ShowCommon(area, *this);
    QFont wanted = font();
    wanted.setPixelSize(*area.fontHeight);
    setFont(wanted);
    if (shownText != *area.text) {
        shownText = *area.text;
        setPlainText(ToQString(shownText));
    }
}

}  // namespace ballhaven::platform
