#pragma once

#include "platform/controls/Toolkit.h"

namespace ballhaven::support {

/// A toolkit that only keeps the pointer.
class PointerKeeper : public platform::Toolkit {
  public:
    PointerKeeper() { platform::toolkit = this; }
    ~PointerKeeper() override { platform::toolkit = nullptr; }
    PointerKeeper(const PointerKeeper&) = delete;
    PointerKeeper& operator=(const PointerKeeper&) = delete;

    void Build(platform::Window&) override {}
    void TearDown(platform::Window&) override {}
    void ShowHourglass(bool shown) override { hourglass = shown; }
    void ProcessPendingEvents() override {}

    bool hourglass = false;
};

}  // namespace ballhaven::support
