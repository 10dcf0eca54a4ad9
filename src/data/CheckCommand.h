#pragma once

#include "data/Console.h"

#include <string>

namespace ballhaven::data {

/// How a check has ended.
struct CheckOutcome {
    bool nothingIsWrong = false;  ///< any more
    std::string changed = {};     ///< the words about what was changed; empty where nothing was
};

/// Tells of all that is wrong in a folder, one line a finding; with `mend` it repairs what can be repaired without a
/// guess, keeps a copy of what was there, and tells what is left, notes included. Throws Refusal.
[[nodiscard]] CheckOutcome CheckData(const std::string& folder, bool mend, const Console& console);

}  // namespace ballhaven::data
