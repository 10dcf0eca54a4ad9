#pragma once

#include "bench/ChildProgram.h"
#include "support/TemporaryDirectory.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace ballhaven::bench {

/// All bytes of a screen's frame buffer.
using Picture = std::string;

/// An X server without a monitor, whose frame buffer lies in a file: what programs have drawn is seen there without
/// asking the server, which would slow them down.
class VirtualScreen {
  public:
    /// Starts the server and makes it the display of the programs that this process starts from now on.
    /// Throws std::system_error, also where the server is not installed.
    VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;
    ~VirtualScreen();

    /// The picture of the screen without a window.
    [[nodiscard]] const Picture& Empty() const { return empty; }

    /// Waits until the screen shows just this picture. Returns whether it came in time.
    [[nodiscard]] bool WaitFor(const Picture& picture, std::chrono::milliseconds patience) const;

    /// Waits until something is shown and stays the same for a while. Gives `Empty` where nothing came in time.
    [[nodiscard]] Picture NextStillPicture(std::chrono::milliseconds patience,
                                           std::chrono::milliseconds stillTime) const;

  private:
    [[nodiscard]] bool Shows(const Picture& picture) const;

    support::TemporaryDirectory directory;
    ChildProgram server;
    std::size_t size = 0;
    const char* frameBuffer = nullptr;
    Picture empty;
};

}  // namespace ballhaven::bench
