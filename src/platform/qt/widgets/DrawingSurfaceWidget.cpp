#include "platform/qt/widgets/DrawingSurfaceWidget.h"

#include "platform/qt/widgets/Conversions.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace ballhaven::platform {

namespace {

/// The painter as the program's canvas. Lines and pixels are filled, so that they cover whole pixels of scale 1 at
/// every scale.
class PainterCanvas final : public Canvas {
  public:
    explicit PainterCanvas(QPainter& surfacePainter) : painter(surfacePainter) {}

    void DrawLine(PixelPoint from, PixelPoint to, const Color& color) override {
        if (from.y == to.y) {
            const int left = from.x < to.x ? from.x : to.x + 1;
            FillBox({left, from.y}, qAbs(to.x - from.x), 1, color);
        } else {
            const int top = from.y < to.y ? from.y : to.y + 1;
            FillBox({from.x, top}, 1, qAbs(to.y - from.y), color);
        }
    }

    void FillBox(PixelPoint corner, int width, int height, const Color& color) override {
        painter.fillRect(corner.x, corner.y, width, height, ToQColor(color));
    }

    void DrawPixel(PixelPoint place, const Color& color) override { FillBox(place, 1, 1, color); }

    void DrawText(PixelPoint corner, std::string_view text, const Color& color) override {
        painter.setPen(ToQColor(color));
        painter.drawText(corner.x, corner.y + painter.fontMetrics().ascent(), ToQString(text));
    }

  private:
    QPainter& painter;
};

/// Inverts every second pixel along the frame of an area.
void InvertFrame(QPainter& painter, const PixelRect& area) {
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    const auto dot = [&](int x, int y) {
        if ((x + y) % 2 == 0) {
            painter.fillRect(x, y, 1, 1, Qt::white);
        }
    };
    for (int x = area.left; x < area.right; ++x) {
        dot(x, area.top);
        dot(x, area.bottom - 1);
    }
    for (int y = area.top + 1; y < area.bottom - 1; ++y) {
        dot(area.left, y);
        dot(area.right - 1, y);
    }
}

/// The pixel of scale 1 under the mouse, which can stand anywhere within it on finely scaled screens.
PixelPoint PlaceOf(const QMouseEvent& event) {
    return {qFloor(event.position().x()), qFloor(event.position().y())};
}

}  // namespace

DrawingSurfaceWidget::DrawingSurfaceWidget(DrawingSurface& shownSurface, QWidget* parent)
    : ControlWidget(shownSurface, parent), surface(shownSurface) {
    setFocusPolicy(Qt::StrongFocus);
    Refresh();
}

void DrawingSurfaceWidget::Refresh() {
    ShowCommon(surface, *this);
    QFont wanted = font();
    wanted.setPixelSize(*surface.fontHeight);
    setFont(wanted);
    update();
}

void DrawingSurfaceWidget::Repaint() {
    update();
    if (hasFocus()) {
        TellSelectedCell();
    }
}

std::vector<SurfaceCell> DrawingSurfaceWidget::Cells() const {
    std::vector<SurfaceCell> cells;
    if (surface.cells) {
        RunGuardedReading([&] { cells = surface.cells(); });
    }
    return cells;
}

int DrawingSurfaceWidget::SelectedCell() const {
    const std::vector<SurfaceCell> cells = Cells();
    const auto selected = std::ranges::find_if(cells, &SurfaceCell::selected);
    return selected == cells.end() ? -1 : static_cast<int>(selected - cells.begin());
}

void DrawingSurfaceWidget::TellSelectedCell() {
    const int cell = QAccessible::isActive() ? SelectedCell() : -1;
    if (cell < 0) {
        return;
    }
    const std::string name = Cells()[static_cast<std::size_t>(cell)].name;
    if (name != toldCell) {
        toldCell = name;
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(cell);
        QAccessible::updateAccessibility(&event);
    }
}

int DrawingSurfaceWidget::TextWidth(std::string_view text) const {
    return fontMetrics().horizontalAdvance(ToQString(text));
}

int DrawingSurfaceWidget::TextHeight() const {
    return fontMetrics().height();
}

void DrawingSurfaceWidget::paintEvent(QPaintEvent*) {
    ReportReading([this] {
        QPainter painter(this);
        PainterCanvas canvas(painter);
        if (surface.paint) {
            surface.paint(canvas);
        }
        for (const PixelRect& area : surface.FocusRects()) {
            InvertFrame(painter, area);
        }
    });
}

void DrawingSurfaceWidget::mousePressEvent(QMouseEvent* event) {
    Report([this, event] {
        if (surface.mouseDown) {
            surface.mouseDown(ToMouseButton(event->button()), PlaceOf(*event));
        }
    });
}

void DrawingSurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    Report([this, event] {
        if (surface.mouseMove) {
            surface.mouseMove(event->buttons().testFlag(Qt::LeftButton), PlaceOf(*event));
        }
    });
}

void DrawingSurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
    Report([this, event] {
        if (surface.mouseUp) {
            surface.mouseUp(ToMouseButton(event->button()), PlaceOf(*event));
        }
    });
}

void DrawingSurfaceWidget::keyPressEvent(QKeyEvent* event) {
    bool served = false;
    Report([this, event, &served] {
        const SurfaceKey key = event->key() == Qt::Key_Escape ? SurfaceKey::Escape : SurfaceKey::Other;
        served = surface.keyDown && surface.keyDown(key);
    });
    if (!served) {
        QWidget::keyPressEvent(event);
    }
}

void DrawingSurfaceWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    toldCell.clear();
    TellSelectedCell();
}

}  // namespace ballhaven::platform
