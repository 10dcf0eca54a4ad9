#include "platform/qt/windows/MessageDialog.h"

#include "platform/qt/widgets/Conversions.h"

#include <QMessageBox>
#include <QPushButton>

namespace ballhaven::platform {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton DefaultButton(const MessageBoxRequest& request) {
    if (request.buttons == BoxButtons::Ok) {
        return QMessageBox::Ok;
    }
    return request.offered == BoxAnswer::No ? QMessageBox::No : QMessageBox::Yes;
}

void NameButton(const QMessageBox& box, QMessageBox::StandardButton which, const char* name) {
    if (QAbstractButton* const button = box.button(which)) {
        button->setObjectName(QLatin1String(name));
    }
}

}  // namespace

BoxAnswer ShowMessageDialog(const MessageBoxRequest& request, QWidget* parent) {
    const bool asks = request.buttons == BoxButtons::YesNo;
    QMessageBox box(parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(ToQString(request.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(request.text));
    box.setIcon(IconOf(request.icon));
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(DefaultButton(request));
    box.setEscapeButton(asks ? QMessageBox::No : QMessageBox::Ok);
    NameButton(box, QMessageBox::Ok, "ok");
    NameButton(box, QMessageBox::Yes, "yes");
    NameButton(box, QMessageBox::No, "no");
    const int pressed = box.exec();
    if (!asks) {
        return BoxAnswer::Ok;
    }
    return pressed == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace ballhaven::platform
