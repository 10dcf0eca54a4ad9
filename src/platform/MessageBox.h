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

    /// The answer of the button on which a question stands when it opens.
    BoxAnswer offered = BoxAnswer::Yes;

    bool operator==(const MessageBoxRequest&) const = default;
};

}  // namespace ballhaven::platform
