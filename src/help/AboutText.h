#pragma once

#include <span>
#include <string_view>

namespace ballhaven {

/// The lines of what is said about the program, without their line ends. An empty one ends a block.
[[nodiscard]] std::span<const std::string_view> AboutLines();

}  // namespace ballhaven
