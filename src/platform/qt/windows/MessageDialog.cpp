#include "platform/qt/windows/MessageDialog.h"

#include "platform/qt/widgets/Conversions.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QWindow>

#include <chrono>

namespace ballhaven::platform {

namespace {

constexpr std::chrono::milliseconds placingTime(500);
constexpr unsigned long lookAgain = 5;  // milliseconds

// A box is put into the middle of its window, which has no place before the desktop has shown it.
void LetAppear(const QWidget& window) {
    const QWindow* const shown = window.windowHandle();
    const QDeadlineTimer patience(placingTime);
    while (shown != nullptr && shown->isVisible() && !shown->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(lookAgain);
    }
}

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

// The toolkit moves the text in from the edge where there is no icon.
void TakeRoomOfIcon(const QMessageBox& box) {
    const auto* const places = qobject_cast<QGridLayout*>(box.layout());
    QLayoutItem* const first = places == nullptr ? nullptr : places->itemAtPosition(0, 0);
    if (first != nullptr && first->spacerItem() != nullptr) {
        first->spacerItem()->changeSize(0, 0);
    }
}

void NameButton(const QMessageBox& box, QMessageBox::StandardButton which, const char* name) {
    if (QAbstractButton* const button = box.button(which)) {
        button->setObjectName(QLatin1String(name));
    }
}

}  // namespace

BoxAnswer ShowMessageDialog(const MessageBoxRequest& request, QWidget* parent) {
    if (parent != nullptr) {
        LetAppear(*parent);
    }
    const bool asks = request.buttons == BoxButtons::YesNo;
    QMessageBox box(parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(ToQString(request.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(request.text));
    box.setIcon(IconOf(request.icon));
    if (request.icon == BoxIcon::None) {
        TakeRoomOfIcon(box);
    }
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
