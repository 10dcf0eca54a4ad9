#pragma once

#include <string>
#include <vector>

namespace ballhaven::data {

/// Files that a crash has left in the folder and that nothing reads: their paths below the folder. Those of a decided
/// change are none. Throws std::system_error where the folder cannot be listed.
[[nodiscard]] std::vector<std::string> FindLeftOvers(const std::string& directory);

}  // namespace ballhaven::data
