#include "platform/qt/widgets/TextBoxWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace ballhaven::platform {

namespace {

constexpr int longestText = 32767;

Qt::CursorShape CursorOf(PointerShape pointer) {
    return pointer == PointerShape::Cross ? Qt::CrossCursor : Qt::IBeamCursor;
}

}  // namespace

TextBoxWidget::TextBoxWidget(TextBox& shownBox, QWidget* parent) : ControlWidget(shownBox, parent), box(shownBox) {
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
        Report([&] {
            box.text.SetQuietly(FromQString(typed));
            Refresh();  // a character outside the code page shows as what it became
        });
    });
    Refresh();
}

void TextBoxWidget::Refresh() {
    ShowCommon(box, *this);
    setMaxLength(*box.maxLength > 0 ? *box.maxLength : longestText);
    setReadOnly(*box.locked);
    setCursor(CursorOf(*box.pointer));
    const QString wanted = ToQString(*box.text);
    if (text() != wanted) {
        const int position = cursorPosition();
        setText(wanted);
        setCursorPosition(position);
    }
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
    const std::string key = FromQString(event->text());
    bool served = false;
    if (box.keyPress && key.size() == 1) {
        Report([&] { served = box.keyPress(key.front()); });
    }
    if (!served) {
        ControlWidget::keyPressEvent(event);
    }
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
    ControlWidget::mouseReleaseEvent(event);
    if (box.click && IsClick(*event, *this)) {
        Report(box.click);
    }
}

}  // namespace ballhaven::platform
