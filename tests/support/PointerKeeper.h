#pragma once

#include "platform/controls/Toolkit.h"

#include <functional>

namespace ballhaven::support {

/// A toolkit that only keeps the pointer, and says when events are let in.
class PointerKeeper : public platform::Toolkit {
  public:
    PointerKeeper() { platform::toolkit = this; }
    ~PointerKeeper() override { platform::toolkit = nullptr; }
    PointerKeeper(const PointerKeeper&) = delete;
    PointerKeeper& operator=(const PointerKeeper&) = delete;

    void Build(platform::Window&) override {}
    void TearDown(platform::Window&) override {}
    void ShowHourglass(bool shown) override { hourglass = shown; }
    void ProcessPendingEvents() override { pendingEvents(); }

    bool hourglass = false;
    std::function<void()> pendingEvents = [] {};
};

}  // namespace ballhaven::support
