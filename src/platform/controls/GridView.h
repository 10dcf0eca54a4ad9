#pragma once

#include "platform/controls/Control.h"

#include <optional>

namespace ballhaven::platform {

/// What a grid's widget can do besides showing the grid.
class GridView : public ControlView {
  public:
    /// Reads all rows anew.
    virtual void ReadAgain() = 0;

    /// Draws all cells anew without reading the rows again.
    virtual void Repaint() = 0;

    /// Follows the grid's current cell, and scrolls it into view.
    virtual void ShowCurrentCell() = 0;

    /// Ends an open editor as if the user had left the cell: the value is checked, and taken if it passes. False when
    /// it was refused, so that the editor is still open. While the grid is switched off the value is dropped.
    virtual bool EndEdit() = 0;

    /// Opens the editor of the current cell, if it can be typed in, with its whole text selected.
    virtual void SelectCellText() = 0;

    /// Whether an editor is open with text selected in it.
    [[nodiscard]] virtual bool HasSelectedText() const = 0;

    /// First row in the visible part, from 0.
    [[nodiscard]] virtual int FirstVisibleRow() const = 0;

    /// Rows that the visible part holds whole.
    [[nodiscard]] virtual int VisibleRows() const = 0;

    /// Upper edge of a row in twips below the grid's own; none for a row outside the visible part.
    [[nodiscard]] virtual std::optional<int> RowTop(int row) const = 0;

    /// Left edge of a pane in twips right of the grid's own.
    [[nodiscard]] virtual int PaneLeft(int pane) const = 0;
};

}  // namespace ballhaven::platform
