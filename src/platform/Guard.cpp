#include "platform/Guard.h"

#include <exception>

#include "platform/Application.h"
#include "platform/MessageBox.h"
#include "platform/Pointer.h"

namespace ballhaven::platform {

namespace {

// While the box of a failure is open the windows behind it go on drawing; what they would call might fail again.
bool failing = false;

}  // namespace

void RunGuarded(const std::function<void()>& handler) {
    if (failing) {
        return;
    }
    try {
        handler();
    } catch (const std::exception& failure) {
        failing = true;
        ShowArrow();
        ShowMessageBox(failure.what(), BoxButtons::Ok, BoxIcon::Critical);
        failing = false;
        EndProcess(1);
    }
}

}  // namespace ballhaven::platform
