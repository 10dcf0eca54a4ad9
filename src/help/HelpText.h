#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

/// What the help window shows.
struct HelpText {
    std::string heading;
    std::string text;  ///< every line ends in a carriage return and a line feed
};

/// The topics, each the index of its menu entry in both windows; between the two is a separator.
inline constexpr std::int16_t instructionsTopic = 0;
inline constexpr std::int16_t aboutTopic = 2;

/// The help of a topic; any number but that of the instructions gives what is said about the program.
[[nodiscard]] HelpText HelpOf(std::int16_t topic);

}  // namespace ballhaven
