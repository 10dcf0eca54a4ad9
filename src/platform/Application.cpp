#include "platform/Application.h"

#include "platform/Services.h"
#include "platform/controls/Toolkit.h"

#include <cstdlib>

namespace ballhaven::platform {

namespace {

std::string applicationTitle = "Ballhaven";

}  // namespace

std::string ApplicationTitle() {
    return applicationTitle;
}

void SetApplicationTitle(const std::string& title) {
    applicationTitle = title;
}

void ProcessPendingEvents() {
    if (toolkit != nullptr) {
        toolkit->ProcessPendingEvents();
    }
}

void EndProcess(int exitCode) {
    if (services.endProcess) {
        services.endProcess(exitCode);
        return;
    }
    std::_Exit(exitCode);
}

}  // namespace ballhaven::platform
