#include "platform/qt/grid/GridMeasures.h"

#include "platform/qt/widgets/Conversions.h"

#include <algorithm>
#include <numeric>

namespace ballhaven::platform {

namespace {

constexpr int separatorWidth = 1;

int Sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// Widths of a pane's visible columns. The edges are rounded, not the widths, so that many narrow columns together
/// are as wide as their twips say.
std::vector<int> ColumnWidths(const Grid& grid, const GridPane& pane) {
    std::vector<int> widths;
    int rightEdge = 0;
    for (int column = pane.firstColumn; column <= pane.lastColumn; ++column) {
        if (grid.Column(column).visible) {
            const int leftEdge = rightEdge;
            rightEdge += grid.Column(column).width;
            widths.push_back(ToPixels(rightEdge) - ToPixels(leftEdge));
        }
    }
    return widths;
}

/// The space around the rows for the frame. A bare board stands a little off its frame; other grids reach to it.
int FrameWidth(const Grid& grid) {
    return grid.showsHeadings || grid.showsRowMargin || !grid.caption->empty() ? 1 : 2;
}

/// The space for panes and bars: below the caption and right of the margin.
QRect PaneArea(const Grid& grid, QSize size) {
    const int frame = FrameWidth(grid);
    const int caption = grid.caption->empty() ? 0 : gridCaptionHeight;
    const int left = grid.showsRowMargin ? gridMarginWidth : frame;
    const int top = grid.showsHeadings || caption > 0 ? caption : frame;
    return {QPoint(left, top), QPoint(size.width() - frame - 1, size.height() - frame - 1)};
}

/// Widths of the panes: those that count their columns first, the others share the rest.
std::vector<int> PaneWidths(const Grid& grid, const std::vector<GridMeasures::PanePlace>& panes, int available) {
    std::vector<int> widths(panes.size(), 0);
    int rest = available - separatorWidth * (grid.PaneCount() - 1);
    int sharing = 0;
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        const auto& columns = panes[static_cast<std::size_t>(pane)].columnWidths;
        const int counted = std::min(*grid.Pane(pane).columnsWide, static_cast<int>(columns.size()));
        const int wanted = std::accumulate(columns.begin(), columns.begin() + counted, 0);
        widths[static_cast<std::size_t>(pane)] = std::clamp(wanted, 0, std::max(rest, 0));
        rest -= widths[static_cast<std::size_t>(pane)];
        sharing += grid.Pane(pane).columnsWide == 0 ? 1 : 0;
    }
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        if (grid.Pane(pane).columnsWide == 0) {
            const int share = std::max(rest, 0) / sharing--;
            widths[static_cast<std::size_t>(pane)] = share;
            rest -= share;
        }
    }
    return widths;
}

/// The room that scroll bars take, 0 where there is none.
struct Bars {
    int right = 0;
    int lower = 0;
};

/// The bars that a grid needs which has so much room for its rows. A bar takes room from the other direction, which may
/// want its own bar then: twice settles it.
Bars BarsOf(const Grid& grid, const std::vector<GridMeasures::PanePlace>& panes, QSize room, int rowCount,
            int barExtent) {
    Bars bars;
    for (int round = 0; round < 2; ++round) {
        const std::vector<int> widths = PaneWidths(grid, panes, room.width() - bars.right);
        for (std::size_t pane = 0; pane < widths.size(); ++pane) {
            bars.lower = Sum(panes[pane].columnWidths) > widths[pane] ? barExtent : bars.lower;
        }
        bars.right = rowCount * RowPixels(grid) > room.height() - bars.lower ? barExtent : bars.right;
    }
    return bars;
}

/// Gives a pane its place. Where its columns are wider it has the bar, else the last one of them reaches to its edge.
void PlacePane(GridMeasures::PanePlace& pane, const QRect& place, const QRect& bar) {
    pane.place = place;
    const int missing = place.width() - Sum(pane.columnWidths);
    if (missing < 0) {
        pane.scrollBar = bar;
    } else if (!pane.columnWidths.empty()) {
        pane.columnWidths.back() += missing;
    }
}

}  // namespace

int RowPixels(const Grid& grid) {
    return std::max(1, ToPixels(grid.rowHeight));
}

GridMeasures MeasureGrid(const Grid& grid, QSize size, int rowCount, int barExtent) {
    GridMeasures measures;
    measures.rowHeight = RowPixels(grid);
    if (!grid.caption->empty()) {
        measures.caption = QRect(0, 0, size.width(), gridCaptionHeight);
    }
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        measures.panes.push_back({{}, {}, ColumnWidths(grid, grid.Pane(pane))});
    }

    const QRect area = PaneArea(grid, size);
    const int heading = grid.showsHeadings ? gridHeadingHeight : 0;
    const Bars bars = BarsOf(grid, measures.panes, area.size() - QSize(0, heading), rowCount, barExtent);

    const QRect room = area.adjusted(0, heading, -bars.right, -bars.lower);
    measures.rows = room;
    measures.rows.setHeight(room.height() / RowPixels(grid) * RowPixels(grid));
    if (bars.right > 0) {
        measures.scrollBar = QRect(room.right() + 1, room.top(), bars.right, room.height());
    }
    const std::vector<int> widths = PaneWidths(grid, measures.panes, room.width());
    int left = area.left();
    for (std::size_t pane = 0; pane < widths.size(); ++pane) {
        PlacePane(measures.panes[pane], QRect(left, area.top(), widths[pane], heading + measures.rows.height()),
                  QRect(left, room.bottom() + 1, widths[pane], bars.lower));
        left += widths[pane] + separatorWidth;
    }
    return measures;
}

}  // namespace ballhaven::platform
