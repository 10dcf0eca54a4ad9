#pragma once

#include "platform/controls/Grid.h"

#include <QRect>

#include <vector>

namespace ballhaven::platform {

/// Heights and widths of the fixed parts of a grid, in pixels. A heading row and the rows below it are as high as the
/// owner of a press reckons them, so the heading row begins at the grid's own upper edge.
inline constexpr int gridHeadingHeight = 15;
inline constexpr int gridCaptionHeight = 17;
inline constexpr int gridMarginWidth = 17;

/// Where the parts of a grid stand, in pixels from its top left corner.
struct GridMeasures {
    /// One pane: its place with its headings, the widths of its visible columns, and its scroll bar, empty where all
    /// of its columns have room.
    struct PanePlace {
        QRect place;
        QRect scrollBar;
        std::vector<int> columnWidths;

        bool operator==(const PanePlace&) const = default;
    };

    QRect caption;  ///< empty where the grid has none
    /// The rows of all panes, without margin, headings and scroll bars; whole rows only. With a row cut off the
    /// toolkit's table would put its last row to the lower edge, and no row would stand where a press looks for it.
    QRect rows;
    QRect scrollBar;  ///< the vertical one, empty where all rows have room
    std::vector<PanePlace> panes;
    int rowHeight = 0;

    bool operator==(const GridMeasures&) const = default;
};

/// Height of a row in pixels, at least 1.
[[nodiscard]] int RowPixels(const Grid& grid);

/// Lays out a grid of the given size. `rowCount` rows are to be shown; `barExtent` is the thickness of a scroll bar.
[[nodiscard]] GridMeasures MeasureGrid(const Grid& grid, QSize size, int rowCount, int barExtent);

}  // namespace ballhaven::platform
