#pragma once

#include "platform/controls/Grid.h"
#include "platform/qt/grid/GridMeasures.h"

#include <QHeaderView>

namespace ballhaven::platform {

/// The headings of one pane: its columns', or its caption over all of them.
class GridHeadings : public QHeaderView {
  public:
    GridHeadings(const GridPane& shownPane, QWidget* parent);

    /// The toolkit's own headings would measure all their texts each time they are asked.
    [[nodiscard]] QSize sizeHint() const override { return {0, gridHeadingHeight}; }

  protected:
    void paintSection(QPainter* painter, const QRect& section, int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    const GridPane& pane;
};

}  // namespace ballhaven::platform
