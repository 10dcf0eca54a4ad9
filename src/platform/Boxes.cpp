#include "platform/Boxes.h"

#include "platform/Application.h"
#include "platform/Pointer.h"
#include "platform/Services.h"

namespace ballhaven::platform {

namespace {

BoxAnswer Show(const MessageBoxRequest& request) {
    const WaitPointerLifted lifted;
    return services.showMessageBox(request);
}

}  // namespace

void Tell(const std::string& text, BoxIcon icon) {
    Show({text, BoxButtons::Ok, icon, ApplicationTitle()});
}

bool Ask(const std::string& question, BoxIcon icon) {
    return Show({question, BoxButtons::YesNo, icon, ApplicationTitle()}) == BoxAnswer::Yes;
}

bool AskBeforeLoss(const std::string& question, BoxIcon icon) {
    return Show({question, BoxButtons::YesNo, icon, ApplicationTitle(), BoxAnswer::No}) == BoxAnswer::Yes;
}

}  // namespace ballhaven::platform
