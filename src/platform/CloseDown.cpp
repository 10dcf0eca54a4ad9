#include "platform/CloseDown.h"

#include "platform/Application.h"
#include "platform/Guard.h"
#include "platform/Services.h"
#include "platform/controls/Toolkit.h"

namespace ballhaven::platform {

namespace {

constexpr int screenLost = 1;

void Raise(const std::function<void()>& notice) {
    if (notice) {
        RunGuarded(notice);
    }
}

}  // namespace

CloseDownNotices closeDownNotices;

void SaveBeforeTheEnd() {
    Raise(closeDownNotices.save);
}

void CloseInOrder() {
    Raise(closeDownNotices.close);
    EndProcess();
}

void CloseWithoutAScreen() {
    services.showMessageBox = Services().showMessageBox;
    toolkit = nullptr;
    Raise(closeDownNotices.save);
    EndProcess(screenLost);
}

}  // namespace ballhaven::platform
