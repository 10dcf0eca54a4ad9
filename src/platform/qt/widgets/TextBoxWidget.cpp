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
            KeepSelection();
            Refresh();  // a character outside the code page shows as what it became
        });
    });
    connect(this, &QLineEdit::selectionChanged, this, [this] { KeepSelection(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { KeepSelection(); });
    Refresh();
}

void TextBoxWidget::Refresh() {
    TextSelection selection = box.Selection();
    ShowCommon(box, *this);
    const int wantedLength = *box.maxLength > 0 ? *box.maxLength : longestText;
    if (maxLength() != wantedLength) {
        setMaxLength(wantedLength);
    }
    setReadOnly(*box.locked);
    setCursor(CursorOf(*box.pointer));
    ShowColor();
    const QString wanted = ToQString(*box.text);
    if (text() != wanted) {
        setText(wanted);
        selection.length = 0;
    }
    ShowSelection(selection);
}

void TextBoxWidget::ShowColor() {
    const bool ownColor = *box.background != windowColor;
    if (ownColor || testAttribute(Qt::WA_SetPalette)) {
        QPalette colors;
        if (ownColor) {
            colors.setColor(QPalette::Base, ToQColor(*box.background));
        }
        setPalette(colors);
    }
}

void TextBoxWidget::ShowSelection(TextSelection wanted) {
    if (ShownSelection() == wanted) {
        return;
    }
    if (wanted.length > 0) {
        setSelection(wanted.start, wanted.length);
    } else {
        setCursorPosition(wanted.start);
    }
}

TextSelection TextBoxWidget::ShownSelection() const {
    return hasSelectedText() ? TextSelection{selectionStart(), selectionLength()} : TextSelection{cursorPosition(), 0};
}

void TextBoxWidget::KeepSelection() {
    box.SelectByUser(ShownSelection());
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
    const std::string key = FromQString(event->text());
    bool served = false;
    // Escape is the window's.
    if (box.keyPress && key.size() == 1 && event->key() != Qt::Key_Escape) {
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
