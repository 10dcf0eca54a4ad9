#include "platform/Pointer.h"

#include "platform/Toolkit.h"

namespace ballhaven::platform {

namespace {

void SetHourglass(bool shown) {
    if (toolkit != nullptr) {
        toolkit->ShowHourglass(shown);
    }
}

}  // namespace

void ShowHourglass() {
    SetHourglass(true);
}

void ShowArrow() {
    SetHourglass(false);
}

}  // namespace ballhaven::platform
