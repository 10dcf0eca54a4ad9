#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace ballhaven::support {

/// A call of the system's files.
struct FileCall {
    std::string name;       ///< such as "write", or "open Directory"
    std::size_t bytes = 0;  ///< asked for in a read or a write
};

/// Stands between the program and the system's files within its scope: notes every call and lets chosen ones fail.
class WatchedFiles {
  public:
    WatchedFiles();
    WatchedFiles(const WatchedFiles&) = delete;
    WatchedFiles& operator=(const WatchedFiles&) = delete;
    ~WatchedFiles();

    std::vector<FileCall> calls;

    /// Runs before a call, whose number counts from 0; an error number lets the call fail with it, 0 lets it through. A
    /// close that fails has closed.
    std::function<int(std::size_t call)> before = [](std::size_t) { return 0; };

    /// Runs after a call that went through.
    std::function<void(std::size_t call)> after = [](std::size_t) {};

    std::size_t mostBytesOfWrite = std::numeric_limits<std::size_t>::max();  ///< more are taken in several writes
    std::size_t mostBytesOfRead = std::numeric_limits<std::size_t>::max();
    std::size_t room = std::numeric_limits<std::size_t>::max();  ///< bytes until the disk is full

    /// The names of all calls so far, in order.
    [[nodiscard]] std::vector<std::string> Names() const;

    /// How many calls bear this name.
    [[nodiscard]] std::size_t Count(const std::string& name) const;

  private:
    template <typename Call>
    auto Watch(const std::string& name, std::size_t bytes, const Call& call);
};

}  // namespace ballhaven::support
