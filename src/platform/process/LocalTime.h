#pragma once

#include <chrono>

namespace ballhaven::platform {

/// The current time where the user is.
[[nodiscard]] std::chrono::local_seconds CurrentLocalTime();

}  // namespace ballhaven::platform
