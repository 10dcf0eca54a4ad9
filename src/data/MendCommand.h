#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

#include <string>

namespace ballhaven::data {

/// Marks a folder as mended, and each of its files of draws as one that keeps dates of five digits; a folder without a
/// table of games gets a new one, if nothing is in it or the program itself. Tells what becomes different and how to go
/// back. A folder that is mended already stays as it is. Returns the words about the change that was made; none where
/// there was none. Throws Refusal.
[[nodiscard]] std::string MendFolder(const WorkFolder& folder, const Console& console);

}  // namespace ballhaven::data
