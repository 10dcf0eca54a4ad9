#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ballhaven::tools {

/// Reads docs/floors.txt and the includes of src/ below `root`, and gives one line for each fault:
/// an include of a higher floor, a chain of includes that leads back to where it began, a file in no room, a room
/// without files or with two lines, an include of a file that src/ does not have, one of Qt outside src/platform/qt/,
/// and one of platform/qt/ from a place below the start. Sorted; empty when the house stands.
[[nodiscard]] std::vector<std::string> FloorFaults(const std::filesystem::path& root);

}  // namespace ballhaven::tools
