#pragma once

#include <optional>
#include <string_view>

namespace ballhaven {

/// The number of plays that the text of a Total Plays box asks for, above 1 and up to 5000; none for any other. It is
/// the number with which the text begins: blanks, a sign, digits, a point, digits; 0 where there is none. What follows
/// is ignored.
[[nodiscard]] std::optional<double> TotalPlaysOf(std::string_view text);

}  // namespace ballhaven
