#include "platform/qt/grid/GridCellEditor.h"

#include "platform/Guard.h"
#include "platform/qt/grid/GridNames.h"
#include "platform/qt/widgets/Conversions.h"

#include <QFocusEvent>
#include <QPainter>
#include <QPointer>

namespace ballhaven::platform {

GridCellEditor::GridCellEditor(Grid& editedGrid) : grid(editedGrid) {
    setObjectName(ToQString(grid.name) + QStringLiteral(".editor"));
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setContextMenuPolicy(Qt::NoContextMenu);
    hide();
}

void GridCellEditor::Open(QWidget& viewport, const QRect& place, const QString& text, Start start) {
    open = true;
    cell = grid.CurrentCell();
    setParent(&viewport);
    setAccessibleName(NameOfEditor(grid, cell));
    setText(text);
    setModified(start == Start::Typed);
    PutOver(place);
    show();
    setFocus(Qt::OtherFocusReason);
    if (start == Start::Selected) {
        selectAll();
    } else {
        deselect();
        end(false);
    }
}

void GridCellEditor::PutOver(const QRect& place) {
    setGeometry(place.adjusted(0, 0, -1, -1));
}

bool GridCellEditor::Leave() {
    if (!open || checking) {
        return true;
    }
    if (!grid.IsOn() || !isModified()) {
        Close();
        return true;
    }
    // The check may show a box, and what follows an accepted value moves the current cell: neither must check again.
    checking = true;
    bool accepted = false;
    const QPointer<GridCellEditor> self(this);
    RunGuarded([&] { accepted = grid.Edit(cell.column, FromQString(text())); });
    if (self.isNull()) {
        return false;
    }
    checking = false;
    if (accepted || grid.CurrentCell() != cell) {
        Close();
    } else {
        refused();
        setFocus(Qt::OtherFocusReason);
        selectAll();
    }
    return !open;
}

void GridCellEditor::Cancel() {
    if (open && !checking) {
        Close();
    }
}

void GridCellEditor::Close() {
    open = false;
    if (hasFocus()) {
        handFocusBack();
    }
    hide();
}

bool GridCellEditor::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
            keyPressEvent(key);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void GridCellEditor::keyPressEvent(QKeyEvent* event) {
    if (keyPressed(*event)) {
        event->accept();
    } else if (open) {
        QLineEdit::keyPressEvent(event);
    }
}

void GridCellEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Another program's window or a menu only borrows the keyboard.
    const Qt::FocusReason reason = event->reason();
    const bool borrowed =
        reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (open && !checking && !borrowed) {
        focusLost(reason);
    }
}

void GridCellEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace ballhaven::platform
