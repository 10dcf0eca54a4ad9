#pragma once

#include "data/Console.h"
#include "data/folder/WorkFolder.h"

#include <string>

namespace ballhaven::data {

/// Copies all data of the folder into a new zip. Throws Refusal, also where something bears the zip's name already.
void BackUp(const WorkFolder& folder, const std::string& zip, const Console& console);

/// Puts the files of a zip back, all or nothing, once every byte of it has been verified: a file that was not there
/// when the zip was made goes. What they held before is kept in a copy. Throws Refusal.
void Restore(const WorkFolder& folder, const std::string& zip, const Console& console);

}  // namespace ballhaven::data
