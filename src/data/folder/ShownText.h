#pragma once

#include <string>
#include <string_view>

namespace ballhaven::data {

/// A text of a file in UTF-8: as it is where it is UTF-8, else taken for Windows-1252. Characters that would move a
/// terminal's cursor become "?".
[[nodiscard]] std::string ShownText(std::string_view text);

/// A text that is known to be Windows-1252, in the same way.
[[nodiscard]] std::string ShownWindows1252(std::string_view text);

/// As `ShownText`, between quotes, cut to 40 bytes at most, at the end of a character.
[[nodiscard]] std::string Quoted(std::string_view text);

}  // namespace ballhaven::data
