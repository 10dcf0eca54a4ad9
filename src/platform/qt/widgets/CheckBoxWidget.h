#pragma once

#include "platform/controls/CheckBox.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QCheckBox>

namespace ballhaven::platform {

/// Shows a check box.
class CheckBoxWidget final : public ControlWidget<QCheckBox> {
  public:
    CheckBoxWidget(CheckBox& shownBox, QWidget* parent);
    void Refresh() override;

  private:
    CheckBox& box;
};

}  // namespace ballhaven::platform
