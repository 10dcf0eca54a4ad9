#pragma once

#include "platform/controls/TextArea.h"
#include "platform/qt/widgets/ControlWidget.h"

#include <QPlainTextEdit>

namespace ballhaven::platform {

/// Shows a text of many lines.
class TextAreaWidget final : public ControlWidget<QPlainTextEdit> {
  public:
    TextAreaWidget(TextArea& shownArea, QWidget* parent);
    void Refresh() override;

  private:
    const TextArea& area;
    std::string shownText;
};

}  // namespace ballhaven::platform
