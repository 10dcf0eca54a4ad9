#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace ballhaven::bench {

/// A program that runs in a process of its own, until the end of its scope at the longest.
class ChildProgram {
  public:
    /// Starts a command, whose first word is looked for as a shell does. Throws std::system_error.
    explicit ChildProgram(std::vector<std::string> command);
    ChildProgram(ChildProgram&& other) noexcept;
    ChildProgram& operator=(ChildProgram&&) = delete;
    ~ChildProgram();

    /// Ends the process at once and waits until it is gone.
    void End();

  private:
    pid_t process = 0;  ///< 0 once it has ended
};

}  // namespace ballhaven::bench
