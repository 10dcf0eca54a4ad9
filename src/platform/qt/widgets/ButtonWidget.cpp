#include "platform/qt/widgets/ButtonWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QMouseEvent>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace ballhaven::platform {

namespace {

constexpr int focusMargin = 3;

}  // namespace

ButtonWidget::ButtonWidget(Button& shownButton, QWidget* parent)
    : ControlWidget(shownButton, parent), button(shownButton) {
    setAutoDefault(true);  // Enter presses it, as the space bar does
    setAttribute(Qt::WA_Hover);
    setAutoFillBackground(true);  // a flat button hides what it stands on
    connect(this, &QPushButton::clicked, this, [this] {
        Report([this] {
            if (button.click) {
                button.click();
            }
        });
    });
    Refresh();
}

void ButtonWidget::Refresh() {
    ShowCommon(button, *this, *button.caption);
    setText(ToQString(*button.caption));
    if (!*button.answersKeys) {
        setFocusPolicy(Qt::NoFocus);
        setShortcut(QKeySequence());  // the caption keeps its underlined letter
    }
    picture.SetName(*button.picture);
    update();
}

// The style's own drawing keeps margins for which buttons of these measures have no room, and would cut the text off.
void ButtonWidget::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton look;
    initStyleOption(&look);
    look.features &= ~(QStyleOptionButton::AutoDefaultButton | QStyleOptionButton::DefaultButton);
    const bool flat = picture.HasPicture() && !underMouse() && !isDown() && !hasFocus();
    if (!flat) {
        painter.drawControl(QStyle::CE_PushButtonBevel, look);
    }
    picture.Paint(painter, PicturePlace());
    painter.drawItemText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, palette(), isEnabled(),
                         text(), QPalette::ButtonText);
    if (look.state & QStyle::State_HasFocus && look.state & QStyle::State_KeyboardFocusChange) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
    QPushButton::mousePressEvent(event);
    event->accept();  // so that the release of any mouse button comes here too
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<ButtonWidget> self(this);
    QPushButton::mouseReleaseEvent(event);  // whose click may let its window go
    event->accept();
    if (!self.isNull() && rect().contains(event->position().toPoint())) {
        Report([this, event] {
            if (button.mouseUp) {
                button.mouseUp(ToMouseButton(event->button()));
            }
        });
    }
}

QRect ButtonWidget::PicturePlace() const {
    QRect place(QPoint(0, 0), picture.Size());
    place.moveCenter(rect().center());
    return place;
}

}  // namespace ballhaven::platform
