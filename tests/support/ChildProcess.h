#pragma once

#include <functional>
#include <string>

namespace ballhaven::support {

/// How a child process ended.
struct ChildEnd {
    bool killed = false;
    std::string words;  ///< what its work returned, where it was not killed
};

/// Runs work in a process of its own, which may be killed, limited or stripped of rights, and waits for its end.
[[nodiscard]] ChildEnd RunInChild(const std::function<std::string()>& work);

/// Ends the calling process at once, as a crash or the user's system would.
[[noreturn]] void KillThisProcess();

/// Gives up the rights of the system's administrator, who may read and write everything, if the process has them.
void BecomeOrdinaryUser();

/// Lets no file of the calling process grow beyond this length. A write that would ends it, unless it sees to that.
void LimitFileLength(std::size_t bytes);

}  // namespace ballhaven::support
