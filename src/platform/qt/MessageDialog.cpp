#include "platform/qt/MessageDialog.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/qt/Conversions.h"

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

/// Takes an hourglass off for as long as it lives.
class ArrowMeanwhile {
  public:
    ArrowMeanwhile() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowMeanwhile() { QGuiApplication::restoreOverrideCursor(); }
    ArrowMeanwhile(const ArrowMeanwhile&) = delete;
    ArrowMeanwhile& operator=(const ArrowMeanwhile&) = delete;
};

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
    box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
    box.setEscapeButton(asks ? QMessageBox::No : QMessageBox::Ok);
    NameButton(box, QMessageBox::Ok, "ok");
    NameButton(box, QMessageBox::Yes, "yes");
    NameButton(box, QMessageBox::No, "no");
    const ArrowMeanwhile arrow;
    const int pressed = box.exec();
    if (!asks) {
        return BoxAnswer::Ok;
    }
    return pressed == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace ballhaven::platform
