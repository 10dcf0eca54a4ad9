#pragma once

#include <string>

namespace ballhaven::platform {

enum class BoxButtons { Ok, YesNo };
enum class BoxIcon { None, Information, Question, Critical };
enum class BoxAnswer { Ok, Yes, No };

/// What a message box says and asks.
struct MessageBoxRequest {
    std::string text;  ///< lines end in '\n'
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    std::string title;

    bool operator==(const MessageBoxRequest&) const = default;
};

/// Shows a message box through `services` and returns the user's answer. A box closed without an answer counts as No
/// where it asks. A box without a title bears the application's.
BoxAnswer ShowMessageBox(const std::string& text, BoxButtons buttons = BoxButtons::Ok, BoxIcon icon = BoxIcon::None,
                         const std::string& title = {});

}  // namespace ballhaven::platform
