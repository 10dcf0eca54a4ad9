#pragma once

#include "data/Console.h"

#include <string>

namespace ballhaven::data {

/// Tells of all that is wrong in a folder, one line a finding; with `mend` it repairs what can be repaired without a
/// guess, keeps a copy of what was there, and tells what is left. Returns whether nothing is wrong any more. Throws
/// Refusal.
[[nodiscard]] bool CheckData(const std::string& folder, bool mend, const Console& console);

}  // namespace ballhaven::data
