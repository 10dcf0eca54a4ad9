#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QRadioButton>

namespace ballhaven::platform {

/// Shows an option button. The arrow keys choose the next button of its group.
class OptionWidget final : public ControlWidget<QRadioButton> {
  public:
    OptionWidget(OptionButton& shownOption, QWidget* parent);
    void Refresh() override;

  protected:
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ChooseNeighbour(int step);

    OptionButton& option;
};

}  // namespace ballhaven::platform
