#pragma once

#include "platform/controls/Color.h"
#include "platform/controls/Property.h"

#include <string>

namespace ballhaven::platform {

/// The colours of one cell as it is drawn.
struct CellStyle {
    Color foreground = black;
    Color background = white;

    bool operator==(const CellStyle&) const = default;
};

/// One column of a grid.
class GridColumn {
  public:
    explicit GridColumn(const Shown& grid)
        : heading(grid),
          accessibleHeading(grid),
          width(grid, 600),
          visible(grid, true),
          locked(grid, false),
          focusable(grid, true),
          background(grid, windowColor),
          styled(grid, false),
          hasButton(grid, false) {}

    Property<std::string> heading;
    Property<std::string> accessibleHeading;  ///< what assistive tools are told where the heading does not say it
    Property<int> width;                      ///< in twips
    Property<bool> visible;
    Property<bool> locked;       ///< nothing can be typed in it
    Property<bool> focusable;    ///< its cells can become current
    Property<Color> background;  ///< of the cells that are not styled
    Property<bool> styled;       ///< `cellStyle` is asked for its cells
    Property<bool> hasButton;    ///< its current cell bears a drop-down button
};

/// One of the panes of a grid that stand side by side; it shows a run of the columns.
class GridPane {
  public:
    GridPane(const Shown& grid, int first, int last)
        : firstColumn(first),
          lastColumn(last),
          columnsWide(grid, 0),
          locked(grid, false),
          marksCurrentCell(grid, true),
          caption(grid),
          accessibleName(grid) {}

    [[nodiscard]] bool Has(int column) const { return firstColumn <= column && column <= lastColumn; }

    const int firstColumn;
    const int lastColumn;

    /// How many of its columns the pane is wide, the others being scrolled to; 0 takes the width that the other panes
    /// leave.
    Property<int> columnsWide;
    Property<bool> locked;            ///< nothing can be typed in it
    Property<bool> marksCurrentCell;  ///< its current cell is marked; else only the row is

    /// A board's own heading, which stands over all of its columns instead of theirs.
    Property<std::string> caption;

    /// What a person would call a board; other panes need no name of their own.
    Property<std::string> accessibleName;
};

}  // namespace ballhaven::platform
