#pragma once

#include "platform/controls/DrawingSurface.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QWidget>

#include <string>
#include <vector>

namespace ballhaven::platform {

/// Shows a surface that the program draws itself, sharp at every scale.
class DrawingSurfaceWidget final : public ControlWidget<QWidget, DrawingSurfaceView> {
  public:
    DrawingSurfaceWidget(DrawingSurface& shownSurface, QWidget* parent);
    void Refresh() override;
    void Repaint() override;
    [[nodiscard]] int TextWidth(std::string_view text) const override;
    [[nodiscard]] int TextHeight() const override;

    /// The cells of what is drawn, for assistive tools, which are told of the selected one when it changes while the
    /// surface has the keyboard.
    [[nodiscard]] std::vector<SurfaceCell> Cells() const;

    /// The number of the selected cell, -1 where none is.
    [[nodiscard]] int SelectedCell() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void TellSelectedCell();

    const DrawingSurface& surface;
    std::string toldCell;
};

}  // namespace ballhaven::platform
