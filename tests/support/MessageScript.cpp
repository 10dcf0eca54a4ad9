#include "support/MessageScript.h"

#include "platform/Services.h"

#include <gtest/gtest.h>

#include <utility>

namespace ballhaven::support {

namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::MessageBoxRequest;

std::string Words(const MessageBoxRequest& request) {
    const char* const icons[] = {"no icon", "information", "question", "critical"};
    return "\"" + request.title + "\": \"" + request.text + "\" (" +
           (request.buttons == BoxButtons::Ok ? "OK" : "Yes and No") + ", " + icons[static_cast<int>(request.icon)] +
           (request.offered == BoxAnswer::No ? ", on No)" : ")");
}

}  // namespace

MessageScript::MessageScript() : before(platform::services.showMessageBox) {
    platform::services.showMessageBox = [this](const MessageBoxRequest& request) { return Answer(request); };
}

MessageScript::~MessageScript() {
    platform::services.showMessageBox = before;
    for (const Entry& entry : queue) {
        ADD_FAILURE() << "This box did not come: " << Words(entry.request);
    }
}

MessageScript& MessageScript::Expect(std::string title, std::string text, BoxButtons buttons, BoxIcon icon,
                                     BoxAnswer answer) {
    queue.push_back({{std::move(text), buttons, icon, std::move(title)}, answer});
    return *this;
}

MessageScript& MessageScript::ExpectBeforeLoss(std::string text, BoxIcon icon, BoxAnswer answer) {
    queue.push_back({{std::move(text), BoxButtons::YesNo, icon, "Ballhaven", BoxAnswer::No}, answer});
    return *this;
}

BoxAnswer MessageScript::Answer(const MessageBoxRequest& request) {
    const BoxAnswer closed = request.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    if (queue.empty()) {
        ADD_FAILURE() << "An unexpected box: " << Words(request);
        return closed;
    }
    const Entry next = queue.front();
    queue.pop_front();
    if (!(next.request == request)) {
        ADD_FAILURE() << "Expected this box: " << Words(next.request) << "\n         This one came: " << Words(request);
        return closed;
    }
    ++answered;
    return next.answer;
}

}  // namespace ballhaven::support
