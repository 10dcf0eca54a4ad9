#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridMeasures.h"

#include <QFont>
#include <QPainter>

namespace ballhaven::platform {

/// The rows that a grid shows at the moment.
struct GridRowsInView {
    int first = 0;
    int count = 0;
};

/// Draws what of a grid is not in its panes: the caption bar, the row-selector margin with its mark at the current
/// row, the lines between the panes, the empty corners and the frame.
void DrawGridFrame(QPainter& painter, const Grid& grid, const GridMeasures& measures, QSize size, GridRowsInView rows);

}  // namespace ballhaven::platform
