#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ballhaven::data {

/// A table of games at its full length. One that the program would build anew, empty or of a single record, is built
/// here as the program does it; one that ends early gets the records of unused slots behind what it has, a record that
/// is cut blanks.
[[nodiscard]] std::string WholeTable(std::string_view content);

/// Whether a table, or none, says that its folder is mended.
[[nodiscard]] bool IsTableOfMendedFolder(const std::optional<std::string>& content);

/// A record of a table at its full length: 1 the program's own, 2 to 21 those of the slots.
[[nodiscard]] std::string TableRecord(const std::string& table, int record);
void PutTableRecord(std::string& table, int record, std::string_view text);

}  // namespace ballhaven::data
