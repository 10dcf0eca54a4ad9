#include "platform/qt/widgets/TextAreaWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QTextDocument>

namespace ballhaven::platform {

namespace {

constexpr int margin = 2;  // pixels, around the text

}  // namespace

TextAreaWidget::TextAreaWidget(TextArea& shownArea, QWidget* parent)
    : ControlWidget(shownArea, parent), area(shownArea) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);  // a caret comes with the keyboard's selection alone
    setTabChangesFocus(true);
    document()->setDocumentMargin(margin);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
