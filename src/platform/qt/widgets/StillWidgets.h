#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"
#include "platform/qt/widgets/PictureRenderer.h"

#include <QWidget>

namespace ballhaven::platform {

/// Shows a panel; an aligned one has an edge where the rest of the window begins.
class PanelWidget final : public ControlWidget<QWidget> {
  public:
    PanelWidget(Panel& shownPanel, QWidget* parent);
    void Refresh() override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Panel& panel;
};

/// Shows a line: an engraved rule where it lies or stands straight.
class LineWidget final : public ControlWidget<QWidget> {
  public:
    LineWidget(Line& shownLine, QWidget* parent);
    void Refresh() override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Line& line;
};

/// Shows a picture at its own size in the middle of its place, and tells where it is clicked.
class PictureWidget final : public ControlWidget<QWidget> {
  public:
    PictureWidget(Picture& shownPicture, QWidget* parent);
    void Refresh() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    const Picture& picture;
    PictureRenderer renderer;
};

}  // namespace ballhaven::platform
