#pragma once

#include "platform/controls/Controls.h"
#include "platform/controls/GridCell.h"
#include "platform/controls/GridColumns.h"
#include "platform/controls/GridView.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace ballhaven::platform {

/// The keys that an owner may serve itself; all others are told as one.
enum class GridKey { Insert, Left, Right, Tab, Other };

/// A grid without storage of its own: it asks its owner for the text and the colours of a cell as it draws it, and
/// keeps no copy. Rows, columns and panes count from 0; a row or column of -1 is none.
///
/// Its panes stand side by side and share the rows. Each shows a run of the columns: either runs of their own, so that
/// the panes together are one table, or each the same one, as boards of one kind. Owners are told the pane of a cell
/// with its row and its column, and a pane's column is the grid's own: the third column of each board is column 2.
///
/// Notices of one mouse click: `mousePress`, before anything moves; then, at the release, `click`, `currentCellChanged`
/// if the current cell changed, and `settled`. Of a key: `keyDown`, then `currentCellChanged`. A move by the program
/// reports `currentCellChanged` as well. While the grid is switched off it neither reads nor reports.
class Grid : public Control {
  public:
    Grid() : Control(ControlKind::Grid) {}

    /// Gives the grid its columns, without panes, and then its panes, each with its first and last column, or boards,
    /// which are panes with all columns; for the layout.
    void SetColumns(int count);
    void AddPane(int firstColumn, int lastColumn);
    void AddBoards(int count);

    [[nodiscard]] GridColumn& Column(int column) { return columns.at(static_cast<std::size_t>(column)); }
    [[nodiscard]] const GridColumn& Column(int column) const { return columns.at(static_cast<std::size_t>(column)); }
    [[nodiscard]] int ColumnCount() const { return static_cast<int>(columns.size()); }
    [[nodiscard]] GridPane& Pane(int pane) { return panes.at(static_cast<std::size_t>(pane)); }
    [[nodiscard]] const GridPane& Pane(int pane) const { return panes.at(static_cast<std::size_t>(pane)); }
    [[nodiscard]] int PaneCount() const { return static_cast<int>(panes.size()); }

    /// Tells the grid how many rows its owner has. A current row beyond them is held at the last one; with no rows
    /// there is none. A grid that gets its first rows has row 0 as the current one. Reports nothing.
    void SetRowCount(int count);
    [[nodiscard]] int RowCount() const { return rowCount; }

    /// Rows up to the first whose first cell the owner answers with a null, `RowCount` at most: these are drawn.
    [[nodiscard]] int RowsRead() const;

    [[nodiscard]] int CurrentPane() const { return currentPane; }
    [[nodiscard]] int CurrentRow() const { return currentRow; }
    [[nodiscard]] int CurrentColumn() const { return currentColumn; }
    [[nodiscard]] GridCell CurrentCell() const { return {currentPane, currentRow, currentColumn}; }

    /// Moves the current cell. A row or column outside the grid is held at its ends; a column is looked for in the
    /// current pane first; a pane that does not show the current column takes its own first column. An open editor is
    /// ended before the move; where its value is refused nothing moves. A move to the cell that is current already
    /// brings it into view and reports nothing.
    void GoToRow(int row);
    void GoToColumn(int column);
    void GoToPane(int pane);
    void GoTo(int row, int column);
    void GoTo(const GridCell& cell);

    /// The user's move to a cell, for the widget: it ends no editor. Reports a change.
    void MoveByUser(const GridCell& cell) { Move(cell); }

    /// Text of a column in the current pane and row as its owner answers it; empty where there is none.
    [[nodiscard]] std::string Text(int column) const;

    /// The end of an edit of the current row: `acceptEdit` may refuse the text; if it passes, `edited` follows. Returns
    /// false, with nothing changed, when it was refused, or when the column or its pane is locked, or while the grid is
    /// switched off.
    bool Edit(int column, const std::string& text);

    /// Whether the current pane lets text be typed into a column.
    [[nodiscard]] bool CanType(int column) const;

    /// Reads all rows again.
    void ReadAgain();

    /// Draws all cells again without reading the rows again.
    void Repaint();

    /// Ends an open editor as if the user had left the cell. False when its value was refused: it is still open then.
    bool EndEdit();

    /// Opens the editor of the current cell, if it can be typed in, with its whole text selected.
    void SelectCellText();
    [[nodiscard]] bool HasSelectedText() const;

    /// Without a window all rows are in view, from the first.
    [[nodiscard]] int FirstVisibleRow() const;
    [[nodiscard]] int VisibleRows() const;
    [[nodiscard]] std::optional<int> RowTop(int row) const;

    /// Left edge of a pane in twips right of the grid's own. Without a window nothing stands around and between the
    /// panes.
    [[nodiscard]] int PaneLeft(int pane) const;

    /// Off, the grid neither reads nor reports; an open editor is ended before. The calls nest: each `SwitchOff` wants
    /// its `SwitchOn`.
    void SwitchOff();
    void SwitchOn();
    [[nodiscard]] bool IsOn() const { return switchedOff == 0; }

    Property<std::string> caption{*this};  ///< a grid without a caption has no caption bar
    Property<bool> showsHeadings{*this, true};
    Property<bool> showsRowMargin{*this, false};  ///< the row-selector margin at the left
    Property<int> rowHeight{*this, 225};          ///< in twips; the heading row has always 225

    int rowNameColumn = -1;  ///< its text names a row to assistive tools; -1 for none. Fixed by the layout

    /// The text of a cell, a null ending the reading.
    std::function<std::optional<std::string>(const GridCell& cell)> cellText;

    /// Changes the colours of a cell of a styled column.
    std::function<void(const GridCell& cell, CellStyle& style)> cellStyle;

    /// What assistive tools are told of a cell instead of its text, such as "17, chosen"; none where the text says it.
    std::function<std::string(const GridCell& cell)> cellDescription;

    /// A press of a mouse button, in twips from the grid's top left corner.
    std::function<void(int x, int y)> mousePress;

    /// The release of the mouse button, and its end, when the current cell has moved. Boards raise them on cells alone.
    Handler click;
    Handler settled;
    Handler currentCellChanged;

    /// A key going down; true when it has been served and the grid does nothing more with it.
    std::function<bool(GridKey key)> keyDown;

    /// The check of a text that was typed into a column of the current row; false refuses it. Then the taking of it.
    std::function<bool(int column, const std::string& text)> acceptEdit;
    std::function<void(int column, const std::string& text)> edited;

    /// A click on the drop-down button of a column in the current row.
    std::function<void(int column)> dropDown;

    /// A finished repaint; what it moves over the grid raises no further one.
    Handler painted;

  private:
    void Move(const GridCell& cell);
    [[nodiscard]] GridView* Widget() const { return static_cast<GridView*>(view); }

    std::deque<GridColumn> columns;
    std::deque<GridPane> panes;
    int rowCount = 0;
    int currentPane = 0;
    int currentRow = -1;
    int currentColumn = 0;
    int switchedOff = 0;
};

/// Keeps a grid switched off for as long as it lives.
class GridPause {
  public:
    explicit GridPause(Grid& pausedGrid) : grid(pausedGrid) { grid.SwitchOff(); }
    ~GridPause() { grid.SwitchOn(); }
    GridPause(const GridPause&) = delete;
    GridPause& operator=(const GridPause&) = delete;

  private:
    Grid& grid;
};

}  // namespace ballhaven::platform
