#include "platform/MessageBox.h"

#include "platform/Application.h"
#include "platform/Services.h"

namespace ballhaven::platform {

BoxAnswer ShowMessageBox(const std::string& text, BoxButtons buttons, BoxIcon icon, const std::string& title) {
    return services.showMessageBox({text, buttons, icon, title.empty() ? ApplicationTitle() : title});
}

}  // namespace ballhaven::platform
