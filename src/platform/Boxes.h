#pragma once

#include "platform/MessageBox.h"

#include <string>

namespace ballhaven::platform {

// Message boxes bear the application's title, and take the hourglass off while they are open.

/// Tells the user something in a box with an OK button. Lines end in '\n'.
void Tell(const std::string& text, BoxIcon icon = BoxIcon::None);

/// Asks the user; true for Yes. A box closed without an answer says No.
[[nodiscard]] bool Ask(const std::string& question, BoxIcon icon = BoxIcon::None);

/// Asks the user about something that cannot be undone, as `Ask`, but the box stands on No.
[[nodiscard]] bool AskBeforeLoss(const std::string& question, BoxIcon icon);

}  // namespace ballhaven::platform
