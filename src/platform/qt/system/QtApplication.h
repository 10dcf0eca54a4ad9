#pragma once

#include <memory>

namespace ballhaven::platform {

/// The running toolkit: from its making on, windows show widgets and `services` answers with the real surroundings.
/// One per process, made before anything is shown.
class QtApplication {
  public:
    /// `argc` and `argv` are those of the process and must outlive the application.
    QtApplication(int& argc, char** argv);
    ~QtApplication();
    QtApplication(const QtApplication&) = delete;
    QtApplication& operator=(const QtApplication&) = delete;

    /// Runs the event loop until the last window has closed, and returns the exit code.
    [[nodiscard]] int Run();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}  // namespace ballhaven::platform
