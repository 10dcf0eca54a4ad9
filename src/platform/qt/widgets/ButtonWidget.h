#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"
#include "platform/qt/widgets/PictureRenderer.h"

#include <QPushButton>

namespace ballhaven::platform {

/// Shows a button. One with a picture is flat until the pointer or the keyboard is on it.
class ButtonWidget final : public ControlWidget<QPushButton> {
  public:
    ButtonWidget(Button& shownButton, QWidget* parent);
    void Refresh() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QRect PicturePlace() const;

    Button& button;
    PictureRenderer picture;
};

}  // namespace ballhaven::platform
