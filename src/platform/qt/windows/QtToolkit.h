#pragma once

#include "platform/controls/Toolkit.h"
#include "platform/qt/windows/ActivationOrder.h"

#include <vector>

class QObject;

namespace ballhaven::platform {

/// The toolkit over Qt's widgets.
class QtToolkit final : public Toolkit {
  public:
    void Build(Window& window) override;
    void TearDown(Window& window) override;
    void ShowHourglass(bool shown) override;
    void ProcessPendingEvents() override;

    /// The window of the program that was active last, null for none.
    [[nodiscard]] QWidget* FrontWindow() const { return activations.Front(); }

  private:
    ActivationOrder activations;
    bool hourglassShown = false;
    bool processing = false;         ///< pending events are being handled
    std::vector<QObject*> tornDown;  ///< the widgets of windows that went meanwhile
};

}  // namespace ballhaven::platform
