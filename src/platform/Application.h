#pragma once

#include <string>

namespace ballhaven::platform {

/// The application's title; "Ballhaven" until it is set.
[[nodiscard]] std::string ApplicationTitle();
void SetApplicationTitle(const std::string& title);

/// Lets events that wait be handled; nothing without a toolkit.
void ProcessPendingEvents();

/// Ends the process at once, whatever windows are open, through `services`.
void EndProcess(int exitCode = 0);

}  // namespace ballhaven::platform
