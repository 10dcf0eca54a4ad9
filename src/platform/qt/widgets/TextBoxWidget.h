#pragma once

#include "platform/controls/Controls.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QLineEdit>

namespace ballhaven::platform {

/// Shows a text box. What the user types is in the value at once.
class TextBoxWidget final : public ControlWidget<QLineEdit> {
  public:
    TextBoxWidget(TextBox& shownBox, QWidget* parent);
    void Refresh() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void ShowColor();
    void ShowSelection(TextSelection wanted);
    void KeepSelection();
    [[nodiscard]] TextSelection ShownSelection() const;

    TextBox& box;
};

}  // namespace ballhaven::platform
