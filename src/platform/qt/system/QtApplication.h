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

    /// Closes the program in order from now on when anything outside wants it to end.
    void CloseWhenAsked();

    /// Runs the event loop until the last window has closed, and returns the exit code.
    [[nodiscard]] int Run();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}  // namespace ballhaven::platform
