#pragma once

#include "platform/MessageBox.h"

class QWidget;

namespace ballhaven::platform {

/// Shows a message box over a window, null for none, and waits for the answer. A box closed without one answers No
/// where it asks.
[[nodiscard]] BoxAnswer ShowMessageDialog(const MessageBoxRequest& request, QWidget* parent);

}  // namespace ballhaven::platform
