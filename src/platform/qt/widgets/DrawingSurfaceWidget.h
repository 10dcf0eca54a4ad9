#pragma once

#include "platform/controls/DrawingSurface.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QWidget>

namespace ballhaven::platform {

/// Shows a surface that the program draws itself, sharp at every scale.
class DrawingSurfaceWidget final : public ControlWidget<QWidget, DrawingSurfaceView> {
  public:
    DrawingSurfaceWidget(DrawingSurface& shownSurface, QWidget* parent);
    void Refresh() override;
    void Repaint() override { update(); }
    [[nodiscard]] int TextWidth(std::string_view text) const override;
    [[nodiscard]] int TextHeight() const override;

    // For what assistive tools are told.
    [[nodiscard]] const DrawingSurface& Shown() const { return surface; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const DrawingSurface& surface;
};

}  // namespace ballhaven::platform
