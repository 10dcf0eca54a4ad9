#pragma once

#include <span>
#include <string_view>

namespace ballhaven {

/// The lines of the instructions, without their line ends. An empty one ends a block; a row of hyphens stands between
/// two topics, and every other line begins with a blank.
[[nodiscard]] std::span<const std::string_view> InstructionLines();

}  // namespace ballhaven
