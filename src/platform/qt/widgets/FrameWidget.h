#pragma once

#include "platform/controls/Frame.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QGroupBox>

namespace ballhaven::platform {

/// Shows a frame, with its title in the upper edge.
class FrameWidget final : public ControlWidget<QGroupBox> {
  public:
    FrameWidget(Frame& shownFrame, QWidget* parent);
    void Refresh() override;

  private:
    const Frame& frame;
};

}  // namespace ballhaven::platform
