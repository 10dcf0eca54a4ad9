#pragma once

#include "data/checks/Examination.h"
#include "data/checks/GameTableCheck.h"

#include <vector>

namespace ballhaven::data {

/// Looks through the file of plays of a slot: how each was made, and its picks.
[[nodiscard]] CheckedFile CheckPlayFile(const FoundFile& found, const CheckedSlot& slot);

/// Looks through the file of chosen picks: the lists of all slots (1 to 20).
[[nodiscard]] CheckedFile CheckChosenPicksFile(const FoundFile& found, const std::vector<CheckedSlot>& slots);

}  // namespace ballhaven::data
