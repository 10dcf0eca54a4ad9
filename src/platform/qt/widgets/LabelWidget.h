#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QLabel>

namespace ballhaven::platform {

/// Shows a label. Text that needs more than the label's place takes it, so that nothing is cut off.
class LabelWidget final : public ControlWidget<QLabel> {
  public:
    LabelWidget(Label& shownLabel, QWidget* parent);
    void Refresh() override;

  private:
    void ShowColors();
    void GrowWithText();

    const Label& label;
};

}  // namespace ballhaven::platform
