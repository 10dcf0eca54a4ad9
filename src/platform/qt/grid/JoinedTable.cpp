#include "platform/qt/grid/JoinedTable.h"

#include "platform/qt/grid/GridNames.h"
#include "platform/qt/grid/GridWidget.h"
#include "platform/qt/widgets/ToldCells.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <optional>

namespace ballhaven::platform {

namespace {

int ColumnsOf(const GridWidget& grid) {
    return static_cast<int>(FirstRowOfTable(grid.Shown()).size());
}

/// A cell of the table. It is told by its place, so that it says what stands there at the time.
class JoinedCell final : public ToldCell, public QAccessibleTableCellInterface, public QAccessibleActionInterface {
  public:
    JoinedCell(GridWidget& gridWidget, int shownRow, int shownColumn)
        : widget(&gridWidget), row(shownRow), column(shownColumn) {}

    [[nodiscard]] int Number() const override { return row * ColumnsOf(*widget) + column; }
    [[nodiscard]] bool isValid() const override {
        return !widget.isNull() && row < widget->Panes().Rows() && column < ColumnsOf(*widget);
    }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget);
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? Cells().CellDescription(Place()) : QString();
    }
    void setText(QAccessible::Text, const QString& text) override {
        if (isValid()) {
            Cells().setData(Cells().IndexOf(Place()), text, Qt::EditRole);
        }
    }
    [[nodiscard]] QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const QWidget& viewport = *Pane().viewport();
        const QRect place = Pane().CellPlace(Place()).intersected(viewport.rect());
        return {viewport.mapToGlobal(place.topLeft()), place.size()};
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const Qt::ItemFlags flags = Flags();
        state.focusable = flags.testFlag(Qt::ItemIsSelectable);
        state.selectable = state.focusable;
        state.editable = flags.testFlag(Qt::ItemIsEditable);
        state.readOnly = !state.editable;
        state.selected = isSelected();
        state.focused = isSelected() && widget->Panes().HaveKeyboard();
        state.offscreen = rect().isEmpty();
        return state;
    }

    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override { return column; }
    [[nodiscard]] int rowIndex() const override { return row; }
    [[nodiscard]] bool isSelected() const override { return isValid() && widget->Shown().CurrentCell() == Place(); }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

    [[nodiscard]] QStringList actionNames() const override { return {setFocusAction()}; }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override {
        if (action == setFocusAction() && isValid() && Flags().testFlag(Qt::ItemIsSelectable)) {
            widget->MoveByTool(Place());
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
            case QAccessible::TableCellInterface:
                return static_cast<QAccessibleTableCellInterface*>(this);
            case QAccessible::ActionInterface:
                return static_cast<QAccessibleActionInterface*>(this);
            default:
                return nullptr;
        }
    }

  private:
    [[nodiscard]] GridCell Place() const {
        GridCell cell = FirstRowOfTable(widget->Shown()).at(static_cast<std::size_t>(column));
        cell.row = row;
        return cell;
    }
    [[nodiscard]] GridPaneView& Pane() const { return widget->Panes().Pane(Place().pane); }
    [[nodiscard]] GridPaneModel& Cells() const { return Pane().Cells(); }
    [[nodiscard]] Qt::ItemFlags Flags() const { return Cells().flags(Cells().IndexOf(Place())); }

    QPointer<GridWidget> widget;
    int row;
    int column;
};

/// A grid as one table. Its cells come into being when they are asked for, and go with it.
class JoinedTable final : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit JoinedTable(GridWidget& gridWidget) : QAccessibleWidget(&gridWidget, QAccessible::Table) {}

    [[nodiscard]] int childCount() const override { return rowCount() * columnCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return 0 <= index && index < childCount() ? cellAt(index / columnCount(), index % columnCount()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* cell) const override {
        return ToldCells::NumberOf(cell);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const std::optional<GridCell> cell = Served().Panes().CellAt(Served().mapFromGlobal(QPoint(x, y)));
        return cell ? child(IndexInTable(Served().Shown(), *cell)) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        return Served().Panes().HaveKeyboard() ? CurrentChild() : nullptr;
    }

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] int rowCount() const override { return Served().Panes().Rows(); }
    [[nodiscard]] int columnCount() const override { return ColumnsOf(Served()); }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) {
            return nullptr;
        }
        return cells.At(row * Served().Shown().ColumnCount() + column,
                        [this, row, column] { return new JoinedCell(Served(), row, column); });
    }
    [[nodiscard]] QString columnDescription(int column) const override {
        return NameOfColumn(Served().Shown(),
                            FirstRowOfTable(Served().Shown()).at(static_cast<std::size_t>(column)).column);
    }
    [[nodiscard]] QString rowDescription(int row) const override { return NameOfRow(Served().Shown(), row); }

    [[nodiscard]] int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override {
        QAccessibleInterface* const current = CurrentChild();
        return current == nullptr ? QList<QAccessibleInterface*>() : QList<QAccessibleInterface*>{current};
    }

    // Cells are chosen one by one.
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return 0; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override { return {}; }
    [[nodiscard]] bool isColumnSelected(int) const override { return false; }
    [[nodiscard]] bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

  private:
    [[nodiscard]] GridWidget& Served() const { return static_cast<GridWidget&>(*widget()); }
    [[nodiscard]] QAccessibleInterface* CurrentChild() const {
        return child(IndexInTable(Served().Shown(), Served().Shown().CurrentCell()));
    }

    mutable ToldCells cells;
};

/// A pane whose cells the joined table tells of.
class SilentPane final : public QAccessibleWidget {
  public:
    explicit SilentPane(QWidget& pane) : QAccessibleWidget(&pane, QAccessible::NoRole) {}

    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QString text(QAccessible::Text) const override { return {}; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface* TellOf(const QString&, QObject* object) {
    if (auto* const grid = dynamic_cast<GridWidget*>(object); grid != nullptr && IsOneTable(grid->Shown())) {
        return new JoinedTable(*grid);
    }
    auto* const pane = dynamic_cast<GridPaneView*>(object);
    const auto* const grid = pane == nullptr ? nullptr : dynamic_cast<GridWidget*>(pane->parentWidget());
    return grid != nullptr && IsOneTable(grid->Shown()) ? new SilentPane(*pane) : nullptr;
}

}  // namespace

void InstallJoinedTables() {
    QAccessible::installFactory(TellOf);
}

}  // namespace ballhaven::platform
