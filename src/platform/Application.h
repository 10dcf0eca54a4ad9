#pragma once

#include <string>

namespace ballhaven::platform {

/// Separator of directories in paths.
#ifdef _WIN32
inline constexpr char directorySeparator = '\\';
#else
inline constexpr char directorySeparator = '/';
#endif

/// The directory with a separator at its end: one is added unless it ends in one already.
[[nodiscard]] std::string WithSeparator(std::string directory);

/// The application's title; "Ballhaven" until it is set.
[[nodiscard]] std::string ApplicationTitle();
void SetApplicationTitle(const std::string& title);

/// Lets events that wait be handled; nothing without a toolkit.
void ProcessPendingEvents();

/// Ends the process at once, whatever windows are open, through `services`.
void EndProcess(int exitCode = 0);

}  // namespace ballhaven::platform
