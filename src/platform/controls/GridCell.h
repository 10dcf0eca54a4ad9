#pragma once

namespace ballhaven::platform {

/// A cell of a grid in one of its panes. The column is the grid's own, also where several panes show it.
struct GridCell {
    int pane = 0;
    int row = -1;  ///< -1 for none
    int column = 0;

    bool operator==(const GridCell&) const = default;
};

/// Lets a routine of row and column serve the cells of a grid that shows each column once, as its `cellText` or
/// `cellStyle`.
template <typename Routine>
auto ByRowAndColumn(Routine routine) {
    return [routine](const GridCell& cell, auto&... more) { return routine(cell.row, cell.column, more...); };
}

}  // namespace ballhaven::platform
