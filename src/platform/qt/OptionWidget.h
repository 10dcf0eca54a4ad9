#pragma once

#include <QRadioButton>

#include "platform/Controls.h"
#include "platform/qt/ControlWidget.h"

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
