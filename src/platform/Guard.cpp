#include "platform/Guard.h"

#include "platform/Application.h"
#include "platform/Boxes.h"

#include <exception>

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
        Tell(failure.what(), BoxIcon::Critical);
        failing = false;
        EndProcess(1);
    }
}

}  // namespace ballhaven::platform
