#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

#include <string>

namespace ballhaven::data {

/// Copies all data of the folder into a new zip. Returns the words about what was made. Throws Refusal, also where
/// something bears the zip's name already.
[[nodiscard]] std::string BackUp(const WorkFolder& folder, const std::string& zip, const Console& console);

/// Puts the files of a zip back, all or nothing, once every byte of it has been verified: a file that was not there
/// when the zip was made goes. What they held before is kept in a copy. Returns the words about the change that was
/// made; none where there was none. Throws Refusal.
[[nodiscard]] std::string Restore(const WorkFolder& folder, const std::string& zip, const Console& console);

}  // namespace ballhaven::data
