#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QComboBox>

namespace ballhaven::platform {

/// Shows a drop-down list. The user's choice is reported by mouse and keyboard, also of the entry selected already.
class DropDownWidget final : public ControlWidget<QComboBox> {
  public:
    DropDownWidget(DropDownList& shownList, QWidget* parent);
    void Refresh() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    [[nodiscard]] bool ShowsTheEntries() const;

    DropDownList& list;
};

}  // namespace ballhaven::platform
