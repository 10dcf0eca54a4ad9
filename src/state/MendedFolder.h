#pragma once

#include <string>
#include <string_view>

namespace ballhaven {

// A folder can be marked as mended in record 1 of its LOTTOSYS. In such a folder no statistic ends the program, and the
// ways in which daily use loses what was entered are closed: the oddities concerned ask here, each at its line, and
// keep to what people expect. Without the mark all of them stay.

/// Whether the record says that its folder is mended.
[[nodiscard]] bool IsMended(std::string_view systemRecord);

/// The record with the mark of a mended folder, at its full length.
[[nodiscard]] std::string WithMendedMark(std::string_view systemRecord);

/// Whether the folder that the program works on is mended, by its `systemRecord`.
[[nodiscard]] bool FolderIsMended();

}  // namespace ballhaven
