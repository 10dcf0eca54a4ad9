#pragma once

#include <string>
#include <vector>

namespace ballhaven::data {

/// Whether a change of the folder was decided and not brought to its end. Its steps and new contents stand in the
/// folder.
[[nodiscard]] bool HasDecidedChange(const std::string& directory);

/// Files that a crash has left in the folder and that nothing reads: their paths below the folder. Those of a decided
/// change are none. Throws std::system_error where the folder cannot be listed.
[[nodiscard]] std::vector<std::string> FindLeftOvers(const std::string& directory);

}  // namespace ballhaven::data
