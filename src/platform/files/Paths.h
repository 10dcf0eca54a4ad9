#pragma once

#include <string>

namespace ballhaven::platform {

/// Separator of directories in paths.
inline constexpr char directorySeparator = '/';

/// The directory with a separator at its end: one is added unless it ends in one already.
[[nodiscard]] std::string WithSeparator(std::string directory);

}  // namespace ballhaven::platform
