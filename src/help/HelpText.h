#pragma once

#include <cstdint>
#include <string>

namespace ballhaven {

/// What the help window shows.
struct HelpText {
    std::string heading;
    std::string text;  ///< every line ends in a carriage return and a line feed
};

/// The help of a topic: 0 for the instructions, any other number for what is said about the program.
[[nodiscard]] HelpText HelpOf(std::int16_t topic);

}  // namespace ballhaven
