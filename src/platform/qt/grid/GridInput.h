#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridCellEditor.h"
#include "platform/qt/grid/GridPanes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QRect>

#include <functional>
#include <optional>

namespace ballhaven::platform {

/// What the user does with a grid: mouse and keys of all its parts come together here, so that the notices keep their
/// order, and the editor of the current cell lives here.
class GridInput : public QObject {
  public:
    /// Listens to `widget`, which is what shows the grid, and to the panes that are told of later.
    GridInput(Grid& servedGrid, GridPanes& servedPanes, QWidget& gridWidget, const View& gridView);
    ~GridInput() override;

    void ListenTo(GridPaneView& pane);

    /// Runs what the user's act leads to, under the guard. False when the widget is gone afterwards, or was before.
    bool Report(const std::function<void()>& act);

    /// See `GridView`.
    bool EndEdit() { return editor->Leave(); }
    void SelectCellText();
    [[nodiscard]] bool HasSelectedText() const { return editor->IsOpen() && editor->hasSelectedText(); }

    /// Moves the current cell as an assistive tool asks for it, to one that can be current.
    void MoveFromOutside(const GridCell& cell);

    /// Puts an open editor over its cell after that has moved.
    void PutEditorOverCell();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Press(QPoint position, const QMouseEvent& event);
    void Release(QPoint position, const QMouseEvent& event);
    [[nodiscard]] bool IsBoard() const;
    [[nodiscard]] bool IsWherePressed(QPoint position) const;
    void FinishClick(QPoint position);
    [[nodiscard]] bool IsOnDropDownButton(const GridCell& cell, QPoint position) const;

    bool ServeKey(QKeyEvent& key);
    bool ServeEditorKey(QKeyEvent& key);
    bool ServeCellKey(QKeyEvent& key);
    bool MoveByKey(QKeyEvent& key);
    void MoveTo(const GridCell& cell);

    void OpenEditor(GridCellEditor::Start start, const std::optional<QString>& typed = std::nullopt);
    void ShowEditedCell();
    void EditorLostFocus(Qt::FocusReason reason);
    void DropComingPress();

    Grid& grid;
    GridPanes& panes;
    QWidget& widget;
    const View& view;
    GridCellEditor* editor;
    bool pressed = false;
    std::optional<QRect> pressedCell;  ///< the place of the cell of the last press; none beside the cells
    bool pressedTwice = false;
    bool dropsPress = false;
};

}  // namespace ballhaven::platform
