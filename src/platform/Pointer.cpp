#include "platform/Pointer.h"

#include "platform/controls/Toolkit.h"

#include <utility>

namespace ballhaven::platform {

namespace {

/// The works that go on for which the user has to wait.
int waiters = 0;

void ShowPointer() {
    if (toolkit != nullptr) {
        toolkit->ShowHourglass(waiters > 0);
    }
}

}  // namespace

WaitPointer::WaitPointer() {
    ++waiters;
    ShowPointer();
}

WaitPointer::~WaitPointer() {
    --waiters;
    ShowPointer();
}

WaitPointerLifted::WaitPointerLifted() : waitersBefore(std::exchange(waiters, 0)) {
    ShowPointer();
}

WaitPointerLifted::~WaitPointerLifted() {
    waiters += waitersBefore;
    ShowPointer();
}

}  // namespace ballhaven::platform
