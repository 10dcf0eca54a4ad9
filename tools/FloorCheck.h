#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ballhaven::tools {

/// Reads docs/floors.txt and the includes of src/ below `root`, where a header and its source are one room, and gives
/// one line for each fault. Between rooms: an include of a higher floor, one of a folder that stands behind its own in
/// the list, a circle, named with every room of it. Of the list: a room or folder that is missing there, that has no
/// files or two lines. Of a file: an include of a file that src/ does not have, of its own room other than of the
/// header by the source, of Qt outside src/platform/qt/, and of platform/qt/ from a place below the start. Sorted;
/// empty when the house stands.
[[nodiscard]] std::vector<std::string> FloorFaults(const std::filesystem::path& root);

/// One line for each room of src/ below `root` that has a source and no file of tests, tests/folder/RoomTest.cpp. Only
/// the entry of the program needs none. Sorted.
[[nodiscard]] std::vector<std::string> UntestedRooms(const std::filesystem::path& root);

}  // namespace ballhaven::tools
