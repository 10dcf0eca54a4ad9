#include "platform/qt/grid/GridInput.h"

#include "platform/Guard.h"
#include "platform/qt/grid/GridNavigation.h"
#include "platform/qt/widgets/Conversions.h"

#include <QApplication>
#include <QHeaderView>
#include <QPointer>

namespace ballhaven::platform {

GridInput::GridInput(Grid& servedGrid, GridPanes& servedPanes, QWidget& gridWidget, const View& gridView)
    : grid(servedGrid), panes(servedPanes), widget(gridWidget), view(gridView), editor(new GridCellEditor(servedGrid)) {
    editor->setParent(&widget);
    editor->keyPressed = [this](QKeyEvent& key) { return ServeKey(key); };
    editor->focusLost = [this](Qt::FocusReason reason) { EditorLostFocus(reason); };
    editor->refused = [this] { ShowEditedCell(); };
    editor->handFocusBack = [this] { panes.TakeFocus(); };
    editor->installEventFilter(this);
    widget.installEventFilter(this);
}

GridInput::~GridInput() {
    editor->Cancel();
    delete editor;
}

void GridInput::ListenTo(GridPaneView& pane) {
    pane.keyPressed = [this](QKeyEvent& key) { return ServeKey(key); };
    pane.movedFromOutside = [this](const GridCell& cell) { MoveFromOutside(cell); };
    pane.editAsked = [this] { OpenEditor(GridCellEditor::Start::Behind); };
    pane.viewport()->installEventFilter(this);
    pane.horizontalHeader()->viewport()->installEventFilter(this);
}

bool GridInput::Report(const std::function<void()>& act) {
    const QPointer<GridInput> self(this);
    if (grid.view == &view && act) {
        RunGuarded(act);
    }
    return !self.isNull() && grid.view == &view;
}

bool GridInput::eventFilter(QObject* watched, QEvent* event) {
    const bool presses = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    auto* part = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseMove && part != editor) {
        // The toolkit's table would drag its current cell along.
        return true;
    }
    if (part == nullptr || (!presses && event->type() != QEvent::MouseButtonRelease)) {
        return false;
    }
    if (dropsPress) {
        return presses;
    }
    if (part != &widget && !widget.isAncestorOf(part)) {
        return false;
    }
    const auto& mouse = *static_cast<QMouseEvent*>(event);
    const QPoint position = part->mapTo(&widget, mouse.position().toPoint());
    const bool inEditor = part == editor;  // asked now: the grid may be gone when its handlers have run
    if (presses) {
        Press(position, mouse);
    } else {
        Release(position, mouse);
    }
    // The toolkit's table would move its current cell at the press.
    return !inEditor;
}

void GridInput::Press(QPoint position, const QMouseEvent& event) {
    pressed = grid.IsOn() && event.button() == Qt::LeftButton;
    pressedCell = panes.PlaceOfCellAt(position);
    pressedTwice = event.type() == QEvent::MouseButtonDblClick;
    if (!grid.IsOn()) {
        return;
    }
    if (!editor->IsOpen()) {
        panes.TakeFocus();
    }
    if (grid.mousePress) {
        Report([&] { grid.mousePress(ToTwips(position.x()), ToTwips(position.y())); });
    }
}

void GridInput::Release(QPoint position, const QMouseEvent& event) {
    if (pressed && event.button() == Qt::LeftButton) {
        pressed = false;
        if (grid.IsOn() && IsWherePressed(position)) {
            FinishClick(position);
        }
    }
}

/// Whether the grid shows cells to click on and nothing else: nothing can be typed, and no row is selected beside them.
bool GridInput::IsBoard() const {
    bool isLocked = true;
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        isLocked = isLocked && grid.Pane(pane).locked;
    }
    return isLocked && !grid.showsRowMargin;
}

/// A drag from one cell to another is a click on neither, and a board has nothing to click on beside its cells.
bool GridInput::IsWherePressed(QPoint position) const {
    if (pressedCell) {
        return pressedCell->contains(position);
    }
    return !IsBoard() && widget.rect().contains(position) && !panes.CellAt(position);
}

void GridInput::FinishClick(QPoint position) {
    const bool inEditor = editor->IsOpen() && editor == widget.childAt(position);
    // What follows an accepted value may scroll the rows: the click is on the cell that was under the mouse before.
    const std::optional<GridCell> target = inEditor ? std::nullopt : panes.CellAt(position);
    const bool onButton = target && IsOnDropDownButton(*target, position);
    const QPointer<GridInput> self(this);
    // A refused value keeps the cursor: the click does nothing more.
    if (!inEditor && !editor->Leave()) {
        return;
    }
    if (!Report(grid.click)) {
        return;
    }
    if (target && grid.Column(target->column).focusable) {
        MoveTo(*target);
    }
    if (self.isNull() || !Report(grid.settled)) {
        return;
    }
    if (onButton && grid.dropDown) {
        Report([&] { grid.dropDown(target->column); });
    } else if (pressedTwice && target && *target == grid.CurrentCell()) {
        SelectCellText();
    }
}

bool GridInput::IsOnDropDownButton(const GridCell& cell, QPoint position) const {
    const GridPaneView& pane = panes.Pane(cell.pane);
    return cell.row == grid.CurrentRow() && grid.Column(cell.column).hasButton &&
           GridCellPainter::ButtonIn(pane.CellPlace(cell)).contains(pane.viewport()->mapFrom(&widget, position));
}

bool GridInput::ServeKey(QKeyEvent& key) {
    const bool modifier = key.key() == Qt::Key_Shift || key.key() == Qt::Key_Control || key.key() == Qt::Key_Alt ||
                          key.key() == Qt::Key_Meta || key.key() == Qt::Key_AltGr;
    if (!grid.IsOn() || modifier) {
        return false;
    }
    bool served = false;
    if (grid.keyDown && !Report([&] { served = grid.keyDown(KeyOf(key)); })) {
        return true;
    }
    return served || (editor->IsOpen() ? ServeEditorKey(key) : ServeCellKey(key));
}

bool GridInput::ServeEditorKey(QKeyEvent& key) {
    const bool selected = editor->hasSelectedText() || key.modifiers() & Qt::ShiftModifier;
    switch (key.key()) {
        case Qt::Key_Escape:
            editor->Cancel();
            return true;
        case Qt::Key_Enter:
        case Qt::Key_Return:
            editor->Leave();
            return true;
        case Qt::Key_F2:
            return true;
        case Qt::Key_Left:
            return !selected && editor->cursorPosition() == 0 && MoveByKey(key);
        case Qt::Key_Right:
            return !selected && editor->cursorPosition() == editor->text().size() && MoveByKey(key);
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return MoveByKey(key);
        default:
            return false;
    }
}

bool GridInput::ServeCellKey(QKeyEvent& key) {
    const int column = grid.CurrentColumn();
    if (IsDropDownKey(key) && grid.CurrentRow() >= 0 && grid.Column(column).hasButton && grid.dropDown) {
        Report([this, column] { grid.dropDown(column); });
        return true;
    }
    switch (key.key()) {
        case Qt::Key_F2:
            OpenEditor(GridCellEditor::Start::Behind);
            return editor->IsOpen();
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
            OpenEditor(GridCellEditor::Start::Typed, QString());
            return editor->IsOpen();
        default:
            break;
    }
    if (IsTyping(key)) {
        OpenEditor(GridCellEditor::Start::Typed, key.text());
        return editor->IsOpen();
    }
    return MoveByKey(key);
}

bool GridInput::MoveByKey(QKeyEvent& key) {
    const GridCell before = grid.CurrentCell();
    if (!editor->Leave()) {
        return true;
    }
    // What follows an accepted value may have moved to another column already.
    const bool sideways = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right || key.key() == Qt::Key_Tab ||
                          key.key() == Qt::Key_Backtab;
    if (sideways && grid.CurrentCell() != before) {
        return true;
    }
    if (const auto target = CellByKey(grid, key, panes.Rows(), panes.VisibleRows())) {
        MoveTo(*target);
        return true;
    }
    if ((key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && panes.Current() != nullptr) {
        panes.Current()->LeaveByTab(key.key() == Qt::Key_Tab);
        return true;
    }
    return false;
}

void GridInput::MoveTo(const GridCell& cell) {
    if (!grid.IsOn() || !editor->Leave()) {
        return;
    }
    Report([&] { grid.MoveByUser(cell); });
}

void GridInput::MoveFromOutside(const GridCell& cell) {
    const QPointer<GridInput> self(this);
    if (grid.Column(cell.column).focusable) {
        MoveTo(cell);
    }
    // Where the grid did not follow the toolkit's table, the table follows the grid.
    if (!self.isNull()) {
        panes.FollowCurrentCell();
    }
}

void GridInput::OpenEditor(GridCellEditor::Start start, const std::optional<QString>& typed) {
    const GridCell cell = grid.CurrentCell();
    GridPaneView* pane = panes.Current();
    if (pane == nullptr || !grid.IsOn() || !grid.CanType(cell.column) || !editor->Leave()) {
        return;
    }
    pane->ScrollTo(cell);
    const QRect place = pane->CellPlace(cell);
    if (!place.isEmpty()) {
        editor->Open(*pane->viewport(), place, typed.value_or(pane->Cells().CellText(cell)), start);
    }
}

void GridInput::SelectCellText() {
    if (editor->IsOpen()) {
        editor->selectAll();
    } else {
        OpenEditor(GridCellEditor::Start::Selected);
    }
}

void GridInput::PutEditorOverCell() {
    if (editor->IsOpen() && panes.Current() != nullptr) {
        editor->PutOver(panes.Current()->CellPlace(grid.CurrentCell()));
    }
}

void GridInput::ShowEditedCell() {
    if (panes.Current() != nullptr) {
        panes.Current()->ScrollTo(grid.CurrentCell());
        PutEditorOverCell();
    }
}

void GridInput::EditorLostFocus(Qt::FocusReason reason) {
    const QPointer<GridInput> self(this);
    if (!editor->Leave() && !self.isNull() && reason == Qt::MouseFocusReason) {
        DropComingPress();
    }
}

/// A click that would have left a refused value must not do its work elsewhere: the press that took the keyboard away
/// is yet to come, and goes nowhere.
void GridInput::DropComingPress() {
    dropsPress = true;
    qApp->installEventFilter(this);
    QMetaObject::invokeMethod(
        this,
        [this] {
            dropsPress = false;
            qApp->removeEventFilter(this);
        },
        Qt::QueuedConnection);
}

}  // namespace ballhaven::platform
